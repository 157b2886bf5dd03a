// SPDX-License-Identifier: MIT
#include "dom/Element.h"

#include <Wt/WTable>
#include <Wt/WTableCell>
#include <algorithm>

namespace Wt
{

WTableCell::WTableCell(WTableRow *row) : row_(row)
{
  setInline(false);
}

WTableCell::~WTableCell() = default;

void WTableCell::setRowSpan(int rows)
{
  rowSpan_ = std::max(1, rows);
  table()->spansChanged(*this);
}

void WTableCell::setColumnSpan(int columns)
{
  columnSpan_ = std::max(1, columns);
  table()->spansChanged(*this);
}

int WTableCell::row() const
{
  return row_->rowNum();
}

int WTableCell::column() const
{
  return row_->columnOf(this);
}

WTable *WTableCell::table() const
{
  return row_->table();
}

WTableColumn *WTableCell::tableColumn() const
{
  return table()->columnAt(column());
}

const char *WTableCell::domTag() const
{
  return table()->isHeader(*this) ? "th" : "td";
}

void WTableCell::render(Dom::Element &e)
{
  WContainerWidget::render(e);
  e.setIf(rowSpan_ > 1, "rowspan", std::to_string(rowSpan_));
  e.setIf(columnSpan_ > 1, "colspan", std::to_string(columnSpan_));
  if (table()->isHeader(*this))
    e.set("scope", row() < table()->headerCount(Horizontal) ? "col" : "row");
}

const char *WTableCell::displayStyle() const
{
  return nullptr;
}

void WTableCell::addOwnClasses(std::string &classes) const
{
  WContainerWidget::addOwnClasses(classes);
  // The base has the style property for the widget's own place; what is in the cell goes by class.
  const int vertical = contentAlignment().value() & AlignVerticalMask.value();
  if (vertical & AlignMiddle)
    classes += " Wt-cell-middle";
  else if (vertical & AlignBottom)
    classes += " Wt-cell-bottom";
  else if (vertical & AlignBaseline)
    classes += " Wt-cell-baseline";
}

} // namespace Wt
