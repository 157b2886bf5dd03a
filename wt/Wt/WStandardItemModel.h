// SPDX-License-Identifier: MIT
#ifndef WT_WSTANDARD_ITEM_MODEL_H_
#define WT_WSTANDARD_ITEM_MODEL_H_

#include <Wt/WAbstractItemModel>
#include <Wt/WStandardItem>
#include <map>
#include <memory>
#include <vector>

namespace Wt
{

namespace Engine
{
class ItemCell;
struct ModelAccess;
} // namespace Engine

/// A table of values. Cells are compact; a WStandardItem is made only for who asks for one.
class WStandardItemModel : public WAbstractItemModel
{
public:
  explicit WStandardItemModel(WObject *parent = nullptr);
  WStandardItemModel(int rows, int columns, WObject *parent = nullptr);
  ~WStandardItemModel() override;

  /// Removes all rows and columns and the headers.
  void clear();

  /// Null if the cell does not exist or was never set.
  WStandardItem *item(int row, int column = 0) const;
  /// Takes the item over and grows the model to hold it; null empties the cell.
  void setItem(int row, int column, WStandardItem *item);
  void appendRow(const std::vector<WStandardItem *> &items);
  void insertRow(int row, const std::vector<WStandardItem *> &items);
  using WAbstractItemModel::insertRow;
  WStandardItem *itemFromIndex(const WModelIndex &index) const;
  WModelIndex indexFromItem(const WStandardItem *item) const;

  void setSortRole(int role) { sortRole_ = role; }
  int sortRole() const { return sortRole_; }

  int columnCount(const WModelIndex &parent = WModelIndex()) const override;
  int rowCount(const WModelIndex &parent = WModelIndex()) const override;
  using WAbstractItemModel::parent;
  WModelIndex parent(const WModelIndex &index) const override;
  WModelIndex index(int row, int column, const WModelIndex &parent = WModelIndex()) const override;
  WFlags<ItemFlag> flags(const WModelIndex &index) const override;
  using WAbstractItemModel::data;
  boost::any data(const WModelIndex &index, int role = DisplayRole) const override;
  using WAbstractItemModel::setData;
  bool setData(const WModelIndex &index, const boost::any &value, int role = EditRole) override;
  boost::any headerData(int section, Orientation orientation = Horizontal,
                        int role = DisplayRole) const override;
  using WAbstractItemModel::setHeaderData;
  bool setHeaderData(int section, Orientation orientation, const boost::any &value,
                     int role = EditRole) override;
  bool insertColumns(int column, int count, const WModelIndex &parent = WModelIndex()) override;
  bool insertRows(int row, int count, const WModelIndex &parent = WModelIndex()) override;
  bool removeColumns(int column, int count, const WModelIndex &parent = WModelIndex()) override;
  bool removeRows(int row, int count, const WModelIndex &parent = WModelIndex()) override;
  void *toRawIndex(const WModelIndex &index) const override;
  WModelIndex fromRawIndex(void *rawIndex) const override;
  /// Stable; cells that were never set compare as greater than all others.
  void sort(int column, SortOrder order = AscendingOrder) override;

private:
  friend class WStandardItem;
  friend struct Engine::ModelAccess;
  typedef std::unique_ptr<Engine::ItemCell[]> Row;
  typedef std::map<int, boost::any> HeaderData;

  Engine::ItemCell *cell(int row, int column) const;
  Engine::ItemCell *cell(const WModelIndex &index) const;
  void place(Engine::ItemCell &cell, WStandardItem *item, int row, int column);
  bool locate(const WStandardItem *item) const;
  void release(WStandardItem *item);
  void itemChanged(WStandardItem *item);
  void detachItems();

  std::vector<Row> rows_;
  std::vector<HeaderData> columnHeaders_;
  std::map<int, HeaderData> rowHeaders_;
  int columns_ = 0;
  int sortRole_ = DisplayRole;
};

} // namespace Wt

#endif // WT_WSTANDARD_ITEM_MODEL_H_
