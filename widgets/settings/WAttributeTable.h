// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WATTRIBUTE_TABLE_H_
#define WIDGETS_WATTRIBUTE_TABLE_H_

#include <Wt/WString>
#include <Wt/WTable>
#include <string>
#include <vector>

namespace Wt
{
class WText;
}

/// A table of a record's values for reading: a heading in row 0, then a label and a value in each row.
class WAttributeTable : public Wt::WTable
{
public:
  WAttributeTable(const Wt::WString &labelHeading, const Wt::WString &valueHeading,
                  const std::vector<Wt::WString> &labels, Wt::WContainerWidget *parent = 0);

  /// Shows a value, which is plain text, in UTF-8. Rows of values count from 1.
  void setValue(int row, const std::string &value);
  void clearValues();

private:
  std::vector<Wt::WText *> values;
};

#endif // WIDGETS_WATTRIBUTE_TABLE_H_
