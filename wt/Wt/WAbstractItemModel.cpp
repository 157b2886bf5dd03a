// SPDX-License-Identifier: MIT
#include "base/Matcher.h"

#include <Wt/WAbstractItemModel>
#include <Wt/WString>
#include <algorithm>

namespace Wt
{

WAbstractItemModel::WAbstractItemModel(WObject *parent) : WObject(parent) {}

WAbstractItemModel::~WAbstractItemModel() = default;

bool WAbstractItemModel::hasIndex(int row, int column, const WModelIndex &parent) const
{
  return row >= 0 && column >= 0 && row < rowCount(parent) && column < columnCount(parent);
}

WFlags<ItemFlag> WAbstractItemModel::flags(const WModelIndex &) const
{
  return ItemIsSelectable;
}

bool WAbstractItemModel::hasChildren(const WModelIndex &index) const
{
  return rowCount(index) > 0 && columnCount(index) > 0;
}

boost::any WAbstractItemModel::headerData(int, Orientation, int) const
{
  return boost::any();
}

bool WAbstractItemModel::setData(const WModelIndex &, const boost::any &, int)
{
  return false;
}

bool WAbstractItemModel::setHeaderData(int, Orientation, const boost::any &, int)
{
  return false;
}

bool WAbstractItemModel::setHeaderData(int section, const boost::any &value)
{
  return setHeaderData(section, Horizontal, value);
}

bool WAbstractItemModel::insertColumns(int, int, const WModelIndex &)
{
  return false;
}

bool WAbstractItemModel::insertRows(int, int, const WModelIndex &)
{
  return false;
}

bool WAbstractItemModel::removeColumns(int, int, const WModelIndex &)
{
  return false;
}

bool WAbstractItemModel::removeRows(int, int, const WModelIndex &)
{
  return false;
}

bool WAbstractItemModel::insertColumn(int column, const WModelIndex &parent)
{
  return insertColumns(column, 1, parent);
}

bool WAbstractItemModel::insertRow(int row, const WModelIndex &parent)
{
  return insertRows(row, 1, parent);
}

bool WAbstractItemModel::removeColumn(int column, const WModelIndex &parent)
{
  return removeColumns(column, 1, parent);
}

bool WAbstractItemModel::removeRow(int row, const WModelIndex &parent)
{
  return removeRows(row, 1, parent);
}

bool WAbstractItemModel::setData(int row, int column, const boost::any &value, int role,
                                 const WModelIndex &parent)
{
  const WModelIndex cell = index(row, column, parent);
  return cell.isValid() && setData(cell, value, role);
}

boost::any WAbstractItemModel::data(int row, int column, int role, const WModelIndex &parent) const
{
  const WModelIndex cell = index(row, column, parent);
  return cell.isValid() ? data(cell, role) : boost::any();
}

void WAbstractItemModel::sort(int, SortOrder) {}

void *WAbstractItemModel::toRawIndex(const WModelIndex &) const
{
  return nullptr;
}

WModelIndex WAbstractItemModel::fromRawIndex(void *) const
{
  return WModelIndex();
}

WModelIndexList WAbstractItemModel::match(const WModelIndex &start, int role, const boost::any &value,
                                          int hits, WFlags<MatchFlag> flags) const
{
  WModelIndexList result;
  const Engine::Matcher matcher(value, flags);
  const WModelIndex parent = start.parent();
  const int rows = rowCount(parent);
  const int first = start.row();
  const int last = (flags & MatchWrap) ? first + rows : rows;
  for (int i = first; i < last && (hits == -1 || static_cast<int>(result.size()) < hits); ++i) {
    const WModelIndex cell = index(i % rows, start.column(), parent);
    if (matcher.matches(data(cell, role)))
      result.push_back(cell);
  }
  return result;
}

WModelIndex WAbstractItemModel::createIndex(int row, int column, void *pointer) const
{
  return WModelIndex(row, column, this, pointer);
}

void WAbstractItemModel::reset()
{
  modelReset_.emit();
}

void WAbstractItemModel::beginInsertColumns(const WModelIndex &parent, int first, int last)
{
  changeFirst_ = first;
  changeLast_ = last;
  changeParent_ = parent;
  columnsAboutToBeInserted_.emit(parent, first, last);
}

void WAbstractItemModel::endInsertColumns()
{
  columnsInserted_.emit(changeParent_, changeFirst_, changeLast_);
}

void WAbstractItemModel::beginInsertRows(const WModelIndex &parent, int first, int last)
{
  changeFirst_ = first;
  changeLast_ = last;
  changeParent_ = parent;
  rowsAboutToBeInserted_.emit(parent, first, last);
}

void WAbstractItemModel::endInsertRows()
{
  rowsInserted_.emit(changeParent_, changeFirst_, changeLast_);
}

void WAbstractItemModel::beginRemoveColumns(const WModelIndex &parent, int first, int last)
{
  changeFirst_ = first;
  changeLast_ = last;
  changeParent_ = parent;
  columnsAboutToBeRemoved_.emit(parent, first, last);
}

void WAbstractItemModel::endRemoveColumns()
{
  columnsRemoved_.emit(changeParent_, changeFirst_, changeLast_);
}

void WAbstractItemModel::beginRemoveRows(const WModelIndex &parent, int first, int last)
{
  changeFirst_ = first;
  changeLast_ = last;
  changeParent_ = parent;
  rowsAboutToBeRemoved_.emit(parent, first, last);
}

void WAbstractItemModel::endRemoveRows()
{
  rowsRemoved_.emit(changeParent_, changeFirst_, changeLast_);
}

} // namespace Wt
