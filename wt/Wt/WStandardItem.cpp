// SPDX-License-Identifier: MIT
#include "base/ItemCell.h"

#include <Wt/WStandardItem>
#include <Wt/WStandardItemModel>

namespace Wt
{

WStandardItem::WStandardItem() : cell_(std::make_unique<Engine::ItemCell>())
{
  cell_->setFlags(ItemIsSelectable);
}

WStandardItem::WStandardItem(const WString &text) : WStandardItem()
{
  cell_->setData(text, DisplayRole);
}

WStandardItem::~WStandardItem()
{
  if (model_)
    model_->release(this);
}

void WStandardItem::setText(const WString &text)
{
  setData(text, DisplayRole);
}

WString WStandardItem::text() const
{
  return asString(data(DisplayRole));
}

void WStandardItem::setStyleClass(const WString &styleClass)
{
  setData(styleClass, StyleClassRole);
}

WString WStandardItem::styleClass() const
{
  return asString(data(StyleClassRole));
}

void WStandardItem::setToolTip(const WString &toolTip)
{
  setData(toolTip, ToolTipRole);
}

WString WStandardItem::toolTip() const
{
  return asString(data(ToolTipRole));
}

void WStandardItem::setFlags(WFlags<ItemFlag> flags)
{
  if (cell_->flags().value() == flags.value())
    return;
  cell_->setFlags(flags);
  changed();
}

WFlags<ItemFlag> WStandardItem::flags() const
{
  return cell_->flags();
}

void WStandardItem::setData(const boost::any &data, int role)
{
  cell_->setData(data, role);
  changed();
}

boost::any WStandardItem::data(int role) const
{
  return cell_->data(role);
}

void WStandardItem::changed()
{
  if (model_)
    model_->itemChanged(this);
}

int WStandardItem::row() const
{
  return index().row();
}

int WStandardItem::column() const
{
  return index().column();
}

WModelIndex WStandardItem::index() const
{
  return model_ ? model_->indexFromItem(this) : WModelIndex();
}

} // namespace Wt
