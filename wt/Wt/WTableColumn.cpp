// SPDX-License-Identifier: MIT
#include <Wt/WTable>
#include <Wt/WTableColumn>

namespace Wt
{

WTableColumn::~WTableColumn() = default;

WTableCell *WTableColumn::elementAt(int row)
{
  return table_->elementAt(row, columnNum());
}

int WTableColumn::columnNum() const
{
  return table_->columnNumber(*this);
}

void WTableColumn::setWidth(const WLength &width)
{
  width_ = width;
  table_->rowsChanged();
}

void WTableColumn::setStyleClass(const WString &styleClass)
{
  styleClass_ = styleClass;
  table_->rowsChanged();
}

} // namespace Wt
