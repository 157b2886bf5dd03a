// SPDX-License-Identifier: MIT
#include "base/ItemCell.h"
#include "base/ModelAccess.h"

#include <Wt/WStandardItemModel>
#include <algorithm>
#include <iterator>
#include <numeric>

namespace Wt
{

using Engine::ItemCell;

WStandardItemModel::WStandardItemModel(WObject *parent) : WAbstractItemModel(parent) {}

WStandardItemModel::WStandardItemModel(int rows, int columns, WObject *parent) : WAbstractItemModel(parent)
{
  insertColumns(0, columns);
  insertRows(0, rows);
}

WStandardItemModel::~WStandardItemModel()
{
  detachItems();
}

void WStandardItemModel::detachItems()
{
  for (const Row &row : rows_)
    for (int column = 0; column < columns_; ++column)
      if (WStandardItem *item = row[column].item())
        item->model_ = nullptr;
}

void WStandardItemModel::clear()
{
  detachItems();
  rows_.clear();
  columnHeaders_.clear();
  rowHeaders_.clear();
  columns_ = 0;
  reset();
}

ItemCell *WStandardItemModel::cell(int row, int column) const
{
  if (row < 0 || column < 0 || row >= static_cast<int>(rows_.size()) || column >= columns_)
    return nullptr;
  return &rows_[row][column];
}

ItemCell *WStandardItemModel::cell(const WModelIndex &index) const
{
  return index.model() == this ? cell(index.row(), index.column()) : nullptr;
}

WStandardItem *WStandardItemModel::item(int row, int column) const
{
  ItemCell *found = cell(row, column);
  if (!found || !found->exists())
    return nullptr;
  if (!found->item()) {
    auto fresh = std::make_unique<WStandardItem>();
    *fresh->cell_ = std::move(*found);
    const_cast<WStandardItemModel *>(this)->place(*found, fresh.release(), row, column);
  }
  return found->item();
}

void WStandardItemModel::place(ItemCell &target, WStandardItem *item, int row, int column)
{
  if (WStandardItem *former = target.item())
    former->model_ = nullptr;
  target.setItem(std::unique_ptr<WStandardItem>(item));
  if (!item)
    return;
  item->model_ = this;
  item->row_ = row;
  item->column_ = column;
}

void WStandardItemModel::setItem(int row, int column, WStandardItem *item)
{
  if (row < 0 || column < 0)
    return;
  if (item && item->model_)
    item->model_->release(item);
  if (column >= columns_)
    insertColumns(columns_, column - columns_ + 1);
  if (row >= rowCount())
    insertRows(rowCount(), row - rowCount() + 1);
  place(rows_[row][column], item, row, column);
  const WModelIndex changed = index(row, column);
  dataChanged().emit(changed, changed);
}

void WStandardItemModel::appendRow(const std::vector<WStandardItem *> &items)
{
  insertRow(rowCount(), items);
}

void WStandardItemModel::insertRow(int row, const std::vector<WStandardItem *> &items)
{
  if (static_cast<int>(items.size()) > columns_)
    insertColumns(columns_, static_cast<int>(items.size()) - columns_);
  if (!insertRows(row, 1))
    return;
  for (std::size_t column = 0; column < items.size(); ++column)
    if (items[column])
      setItem(row, static_cast<int>(column), items[column]);
}

WStandardItem *WStandardItemModel::itemFromIndex(const WModelIndex &index) const
{
  return index.model() == this ? item(index.row(), index.column()) : nullptr;
}

bool WStandardItemModel::locate(const WStandardItem *item) const
{
  const auto isAt = [this, item](int row, int column) {
    const ItemCell *candidate = cell(row, column);
    return candidate && candidate->item() == item;
  };
  // Rows and columns come and go, so look near its last place first.
  const int rows = rowCount();
  for (int distance = 0; distance <= rows; ++distance) {
    for (int row : {item->row_ - distance, item->row_ + distance}) {
      if (isAt(row, item->column_)) {
        item->row_ = row;
        return true;
      }
    }
  }
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns_; ++column) {
      if (isAt(row, column)) {
        item->row_ = row;
        item->column_ = column;
        return true;
      }
    }
  }
  return false;
}

WModelIndex WStandardItemModel::indexFromItem(const WStandardItem *item) const
{
  if (!item || item->model_ != this || !locate(item))
    return WModelIndex();
  return index(item->row_, item->column_);
}

void WStandardItemModel::release(WStandardItem *item)
{
  item->model_ = nullptr;
  if (locate(item))
    rows_[item->row_][item->column_].takeItem().release();
}

void WStandardItemModel::itemChanged(WStandardItem *item)
{
  const WModelIndex changed = indexFromItem(item);
  if (changed.isValid())
    dataChanged().emit(changed, changed);
}

int WStandardItemModel::columnCount(const WModelIndex &parent) const
{
  return parent.isValid() ? 0 : columns_;
}

int WStandardItemModel::rowCount(const WModelIndex &parent) const
{
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

WModelIndex WStandardItemModel::parent(const WModelIndex &) const
{
  return WModelIndex();
}

WModelIndex WStandardItemModel::index(int row, int column, const WModelIndex &parent) const
{
  return !parent.isValid() && cell(row, column) ? createIndex(row, column, nullptr) : WModelIndex();
}

WFlags<ItemFlag> WStandardItemModel::flags(const WModelIndex &index) const
{
  const ItemCell *found = cell(index);
  return found ? found->flags() : WFlags<ItemFlag>();
}

boost::any WStandardItemModel::data(const WModelIndex &index, int role) const
{
  const ItemCell *found = cell(index);
  return found ? found->data(role) : boost::any();
}

bool WStandardItemModel::setData(const WModelIndex &index, const boost::any &value, int role)
{
  ItemCell *found = cell(index);
  if (!found)
    return false;
  const bool itemTells = found->item() != nullptr;
  found->setData(value, role);
  if (!itemTells)
    dataChanged().emit(index, index);
  return true;
}

boost::any WStandardItemModel::headerData(int section, Orientation orientation, int role) const
{
  const HeaderData *header = nullptr;
  if (orientation == Horizontal) {
    if (section >= 0 && section < columns_)
      header = &columnHeaders_[section];
  } else {
    const auto found = rowHeaders_.find(section);
    if (found != rowHeaders_.end())
      header = &found->second;
  }
  if (!header)
    return boost::any();
  const auto value = header->find(role);
  return value == header->end() ? boost::any() : value->second;
}

bool WStandardItemModel::setHeaderData(int section, Orientation orientation, const boost::any &value,
                                       int role)
{
  const int sections = orientation == Horizontal ? columns_ : rowCount();
  if (section < 0 || section >= sections)
    return false;
  if (role == EditRole)
    role = DisplayRole;
  HeaderData &header = orientation == Horizontal ? columnHeaders_[section] : rowHeaders_[section];
  header[role] = value;
  headerDataChanged().emit(orientation, section, section);
  return true;
}

bool WStandardItemModel::insertColumns(int column, int count, const WModelIndex &parent)
{
  if (parent.isValid() || column < 0 || column > columns_ || count < 0)
    return false;
  if (count == 0)
    return true;
  beginInsertColumns(parent, column, column + count - 1);
  for (Row &row : rows_) {
    Row wider(new ItemCell[static_cast<std::size_t>(columns_ + count)]);
    std::move(row.get(), row.get() + column, wider.get());
    std::move(row.get() + column, row.get() + columns_, wider.get() + column + count);
    row = std::move(wider);
  }
  columnHeaders_.insert(columnHeaders_.begin() + column, static_cast<std::size_t>(count), HeaderData());
  columns_ += count;
  endInsertColumns();
  return true;
}

bool WStandardItemModel::insertRows(int row, int count, const WModelIndex &parent)
{
  if (parent.isValid() || row < 0 || row > rowCount() || count < 0)
    return false;
  if (count == 0)
    return true;
  if (columns_ == 0)
    insertColumns(0, 1);
  beginInsertRows(parent, row, row + count - 1);
  std::vector<Row> fresh;
  fresh.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i)
    fresh.emplace_back(new ItemCell[static_cast<std::size_t>(columns_)]);
  rows_.insert(rows_.begin() + row, std::make_move_iterator(fresh.begin()),
               std::make_move_iterator(fresh.end()));
  std::map<int, HeaderData> moved;
  for (auto &[section, header] : rowHeaders_)
    moved[section < row ? section : section + count] = std::move(header);
  rowHeaders_ = std::move(moved);
  endInsertRows();
  return true;
}

bool WStandardItemModel::removeColumns(int column, int count, const WModelIndex &parent)
{
  if (parent.isValid() || column < 0 || count < 0 || column > columns_ - count)
    return false;
  if (count == 0)
    return true;
  beginRemoveColumns(parent, column, column + count - 1);
  for (Row &row : rows_) {
    for (int i = column; i < column + count; ++i)
      place(row[i], nullptr, -1, -1);
    Row narrower(new ItemCell[static_cast<std::size_t>(columns_ - count)]);
    std::move(row.get(), row.get() + column, narrower.get());
    std::move(row.get() + column + count, row.get() + columns_, narrower.get() + column);
    row = std::move(narrower);
  }
  columnHeaders_.erase(columnHeaders_.begin() + column, columnHeaders_.begin() + column + count);
  columns_ -= count;
  endRemoveColumns();
  return true;
}

bool WStandardItemModel::removeRows(int row, int count, const WModelIndex &parent)
{
  if (parent.isValid() || row < 0 || count < 0 || row > rowCount() - count)
    return false;
  if (count == 0)
    return true;
  beginRemoveRows(parent, row, row + count - 1);
  for (int i = row; i < row + count; ++i)
    for (int column = 0; column < columns_; ++column)
      if (WStandardItem *item = rows_[i][column].item())
        item->model_ = nullptr;
  rows_.erase(rows_.begin() + row, rows_.begin() + row + count);
  std::map<int, HeaderData> moved;
  for (auto &[section, header] : rowHeaders_)
    if (section < row || section >= row + count)
      moved[section < row ? section : section - count] = std::move(header);
  rowHeaders_ = std::move(moved);
  endRemoveRows();
  return true;
}

void WStandardItemModel::sort(int column, SortOrder order)
{
  if (column < 0 || column >= columns_)
    return;
  layoutAboutToBeChanged().emit();
  const auto before = [this, column](int left, int right) {
    const bool leftExists = rows_[left][column].exists();
    const bool rightExists = rows_[right][column].exists();
    if (!leftExists || !rightExists)
      return leftExists && !rightExists;
    return Engine::compareCells(*this, index(left, column), index(right, column), sortRole_) < 0;
  };
  std::vector<int> places(rows_.size());
  std::iota(places.begin(), places.end(), 0);
  std::stable_sort(places.begin(), places.end(), [&before, order](int left, int right) {
    return order == AscendingOrder ? before(left, right) : before(right, left);
  });
  std::vector<Row> sorted;
  sorted.reserve(rows_.size());
  std::map<int, HeaderData> movedHeaders;
  for (int place : places) {
    const auto header = rowHeaders_.find(place);
    if (header != rowHeaders_.end())
      movedHeaders[static_cast<int>(sorted.size())] = std::move(header->second);
    sorted.push_back(std::move(rows_[place]));
  }
  rows_ = std::move(sorted);
  rowHeaders_ = std::move(movedHeaders);
  layoutChanged().emit();
}

void *WStandardItemModel::toRawIndex(const WModelIndex &index) const
{
  return cell(index);
}

WModelIndex WStandardItemModel::fromRawIndex(void *rawIndex) const
{
  const ItemCell *wanted = static_cast<const ItemCell *>(rawIndex);
  const std::less<const ItemCell *> before;
  for (std::size_t row = 0; wanted && row < rows_.size(); ++row) {
    const ItemCell *first = rows_[row].get();
    if (!before(wanted, first) && before(wanted, first + columns_))
      return index(static_cast<int>(row), static_cast<int>(wanted - first));
  }
  return WModelIndex();
}

} // namespace Wt
