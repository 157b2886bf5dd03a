// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_DERIVED_H_
#define WIDGETS_WTEXT_DERIVED_H_

#include "Db.h"

#include <Wt/WText>
#include <functional>
#include <string>
#include <vector>

/**
 * A text that shows no parameter of the store but what Db derives from several records, for one record of a
 * list or for several that agree. A subclass names the method of Db.
 */
class WTextDerived : public Wt::WText
{
public:
  /// Shows what is true of all these records. Blank where they differ, where there are none, and where one
  /// of them can't be told, which is a failure: true. Records behind the first that differs are not asked
  /// for.
  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors);

protected:
  using Errors = std::vector<std::string>;
  using TextOf = unsigned int (Db::*)(unsigned int index, std::string &text, Errors &errors);
  using PortOf = unsigned int (Db::*)(unsigned int index, unsigned int &swxIndex, unsigned int &portIndex,
                                      Errors &errors);

  WTextDerived(TextOf textOf, Wt::WContainerWidget *parent);
  /// Shows the port's number.
  WTextDerived(PortOf portOf, Wt::WContainerWidget *parent);

private:
  std::function<unsigned int(unsigned int index, std::string &text, Errors &errors)> derive;
};

#endif // WIDGETS_WTEXT_DERIVED_H_
