// SPDX-License-Identifier: MIT
#include "base/ItemCell.h"

#include <Wt/WStandardItem>
#include <utility>

namespace Wt
{
namespace Engine
{

ItemCell::ItemCell() = default;

ItemCell::ItemCell(ItemCell &&other) noexcept
    : rare_(std::move(other.rare_)), flags_(std::exchange(other.flags_, short(0))),
      exists_(std::exchange(other.exists_, false))
{
  display_.swap(other.display_);
}

ItemCell &ItemCell::operator=(ItemCell &&other) noexcept
{
  display_.swap(other.display_);
  std::swap(rare_, other.rare_);
  std::swap(flags_, other.flags_);
  std::swap(exists_, other.exists_);
  return *this;
}

ItemCell::~ItemCell() = default;

void ItemCell::create()
{
  if (!exists_) {
    exists_ = true;
    flags_ = ItemIsSelectable;
  }
}

ItemCell::Rare &ItemCell::rare()
{
  if (!rare_)
    rare_ = std::make_unique<Rare>();
  return *rare_;
}

WStandardItem *ItemCell::item() const
{
  return rare_ ? rare_->item.get() : nullptr;
}

void ItemCell::setItem(std::unique_ptr<WStandardItem> item)
{
  boost::any().swap(display_);
  exists_ = item != nullptr;
  flags_ = 0;
  rare_.reset();
  if (item)
    rare().item = std::move(item);
}

std::unique_ptr<WStandardItem> ItemCell::takeItem()
{
  std::unique_ptr<WStandardItem> item = rare_ ? std::move(rare_->item) : nullptr;
  setItem(nullptr);
  return item;
}

WFlags<ItemFlag> ItemCell::flags() const
{
  return item() ? item()->flags() : WFlags<ItemFlag>(static_cast<ItemFlag>(flags_));
}

void ItemCell::setFlags(WFlags<ItemFlag> flags)
{
  create();
  flags_ = static_cast<short>(flags.value());
}

const boost::any *ItemCell::display() const
{
  return item() ? nullptr : &display_;
}

boost::any ItemCell::data(int role) const
{
  if (item())
    return item()->data(role);
  if (role == DisplayRole || role == EditRole)
    return display_;
  if (!rare_)
    return boost::any();
  const auto found = rare_->roles.find(role);
  return found == rare_->roles.end() ? boost::any() : found->second;
}

void ItemCell::setData(const boost::any &value, int role)
{
  create();
  if (item())
    item()->setData(value, role);
  else if (role == DisplayRole || role == EditRole)
    display_ = value;
  else
    rare().roles[role] = value;
}

} // namespace Engine
} // namespace Wt
