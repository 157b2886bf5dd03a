// SPDX-License-Identifier: MIT
#include "WAttributeTable.h"

#include <Wt/WTableCell>
#include <Wt/WText>

namespace
{

enum Column { LabelColumn, ValueColumn };

Wt::WText *addCell(Wt::WTable &table, int row, int column, const Wt::WString &text, const char *styleClass)
{
  Wt::WTableCell *cell = table.elementAt(row, column);
  cell->setStyleClass(styleClass);
  return new Wt::WText(text, Wt::PlainText, cell);
}

} // namespace

WAttributeTable::WAttributeTable(const Wt::WString &labelHeading, const Wt::WString &valueHeading,
                                 const std::vector<Wt::WString> &labels, Wt::WContainerWidget *parent)
    : Wt::WTable(parent)
{
  setHeaderCount(1);
  addCell(*this, 0, LabelColumn, labelHeading, "nevo-attribute-table-heading");
  addCell(*this, 0, ValueColumn, valueHeading, "nevo-attribute-table-heading");
  for (const Wt::WString &label : labels) {
    const int row = rowCount();
    addCell(*this, row, LabelColumn, label, "nevo-attribute-table-label");
    values.push_back(addCell(*this, row, ValueColumn, Wt::WString(), "nevo-attribute-table-read-only-cell"));
  }
}

void WAttributeTable::setValue(int row, const std::string &value)
{
  if (row > 0 && row <= static_cast<int>(values.size()))
    values[row - 1]->setText(Wt::WString::fromUTF8(value));
}

void WAttributeTable::clearValues()
{
  for (Wt::WText *value : values)
    value->setText(Wt::WString());
}
