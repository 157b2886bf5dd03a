// SPDX-License-Identifier: MIT
#ifndef WT_WMODEL_INDEX_H_
#define WT_WMODEL_INDEX_H_

#include <Wt/WGlobal>
#include <boost/any.hpp>
#include <set>
#include <string>
#include <vector>

namespace Wt
{

class WAbstractItemModel;
class WString;

/// Names a cell of a model; stale once rows or columns of the model change.
class WModelIndex
{
public:
  WModelIndex() = default;

  int row() const { return row_; }
  int column() const { return column_; }
  const WAbstractItemModel *model() const { return model_; }
  bool isValid() const { return model_ != nullptr; }

  WModelIndex parent() const;
  WModelIndex child(int row, int column) const;
  boost::any data(int role = DisplayRole) const;
  WFlags<ItemFlag> flags() const;

  void *internalPointer() const { return pointer_; }

  bool operator==(const WModelIndex &other) const;
  bool operator!=(const WModelIndex &other) const { return !(*this == other); }
  /// By row, then by column, within one parent; a parent comes before its children.
  bool operator<(const WModelIndex &other) const;

private:
  friend class WAbstractItemModel;
  WModelIndex(int row, int column, const WAbstractItemModel *model, void *pointer)
      : model_(model), pointer_(pointer), row_(row), column_(column)
  {
  }

  const WAbstractItemModel *model_ = nullptr;
  void *pointer_ = nullptr;
  int row_ = -1;
  int column_ = -1;
};

typedef std::set<WModelIndex> WModelIndexSet;
typedef std::vector<WModelIndex> WModelIndexList;

/// The text of a model value: texts as they are (narrow ones are UTF-8), numbers in decimal, else nothing.
WString asString(const boost::any &value);
/// The number of a model value, or not-a-number.
double asNumber(const boost::any &value);

} // namespace Wt

#endif // WT_WMODEL_INDEX_H_
