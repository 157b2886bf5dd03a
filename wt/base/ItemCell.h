// SPDX-License-Identifier: MIT
#ifndef WT_BASE_ITEM_CELL_H_
#define WT_BASE_ITEM_CELL_H_

#include <Wt/WGlobal>
#include <boost/any.hpp>
#include <map>
#include <memory>

namespace Wt
{

class WStandardItem;

namespace Engine
{

/// The data of one cell, kept small because a list has tens of thousands: the displayed value, flags, and a
/// pointer to all that is rare. Once somebody has asked for the cell's item, the item has the data.
class ItemCell
{
public:
  ItemCell();
  ItemCell(ItemCell &&other) noexcept;
  ItemCell &operator=(ItemCell &&other) noexcept;
  ~ItemCell();

  /// False until something is set; such a cell has no data and no flags.
  bool exists() const { return exists_; }
  WFlags<ItemFlag> flags() const;
  void setFlags(WFlags<ItemFlag> flags);
  boost::any data(int role) const;
  void setData(const boost::any &value, int role);
  /// The displayed value without a copy; null if an item has it.
  const boost::any *display() const;

  WStandardItem *item() const;
  /// Takes over the item with its data; null empties the cell.
  void setItem(std::unique_ptr<WStandardItem> item);
  /// Gives the item up; the cell is empty then.
  std::unique_ptr<WStandardItem> takeItem();

private:
  struct Rare {
    std::map<int, boost::any> roles;
    std::unique_ptr<WStandardItem> item;
  };

  Rare &rare();
  void create();

  boost::any display_;
  std::unique_ptr<Rare> rare_;
  short flags_ = 0;
  bool exists_ = false;
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_ITEM_CELL_H_
