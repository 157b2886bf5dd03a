// SPDX-License-Identifier: MIT
#ifndef WT_WABSTRACT_ITEM_MODEL_H_
#define WT_WABSTRACT_ITEM_MODEL_H_

#include <Wt/WModelIndex>
#include <Wt/WObject>
#include <Wt/WSignal>
#include <boost/any.hpp>

namespace Wt
{

/// Data in rows and columns, for views and combo boxes.
class WAbstractItemModel : public WObject
{
public:
  explicit WAbstractItemModel(WObject *parent = nullptr);
  ~WAbstractItemModel() override;

  virtual int columnCount(const WModelIndex &parent = WModelIndex()) const = 0;
  virtual int rowCount(const WModelIndex &parent = WModelIndex()) const = 0;
  /// The object of which this is a child stays within reach beside the parent of an index.
  using WObject::parent;
  virtual WModelIndex parent(const WModelIndex &index) const = 0;
  virtual WModelIndex index(int row, int column, const WModelIndex &parent = WModelIndex()) const = 0;
  virtual boost::any data(const WModelIndex &index, int role = DisplayRole) const = 0;

  bool hasIndex(int row, int column, const WModelIndex &parent = WModelIndex()) const;
  virtual WFlags<ItemFlag> flags(const WModelIndex &index) const;
  virtual bool hasChildren(const WModelIndex &index) const;
  virtual boost::any headerData(int section, Orientation orientation = Horizontal,
                                int role = DisplayRole) const;

  virtual bool setData(const WModelIndex &index, const boost::any &value, int role = EditRole);
  virtual bool setHeaderData(int section, Orientation orientation, const boost::any &value,
                             int role = EditRole);
  bool setHeaderData(int section, const boost::any &value);

  virtual bool insertColumns(int column, int count, const WModelIndex &parent = WModelIndex());
  virtual bool insertRows(int row, int count, const WModelIndex &parent = WModelIndex());
  virtual bool removeColumns(int column, int count, const WModelIndex &parent = WModelIndex());
  virtual bool removeRows(int row, int count, const WModelIndex &parent = WModelIndex());
  bool insertColumn(int column, const WModelIndex &parent = WModelIndex());
  bool insertRow(int row, const WModelIndex &parent = WModelIndex());
  bool removeColumn(int column, const WModelIndex &parent = WModelIndex());
  bool removeRow(int row, const WModelIndex &parent = WModelIndex());

  /// False if the cell does not exist.
  bool setData(int row, int column, const boost::any &value, int role = EditRole,
               const WModelIndex &parent = WModelIndex());
  boost::any data(int row, int column, int role = DisplayRole,
                  const WModelIndex &parent = WModelIndex()) const;

  virtual void sort(int column, SortOrder order = AscendingOrder);

  /// A name of the cell that lasts through a change of layout, or null if the model has none.
  virtual void *toRawIndex(const WModelIndex &index) const;
  virtual WModelIndex fromRawIndex(void *rawIndex) const;

  /// Up to `hits` cells (all with -1) of the column of `start`, from its row down, whose text matches.
  virtual WModelIndexList match(const WModelIndex &start, int role, const boost::any &value, int hits = 1,
                                WFlags<MatchFlag> flags = WFlags<MatchFlag>(MatchStartsWith) |
                                                          MatchWrap) const;

  Signal<WModelIndex, int, int> &columnsAboutToBeInserted() { return columnsAboutToBeInserted_; }
  Signal<WModelIndex, int, int> &columnsAboutToBeRemoved() { return columnsAboutToBeRemoved_; }
  Signal<WModelIndex, int, int> &columnsInserted() { return columnsInserted_; }
  Signal<WModelIndex, int, int> &columnsRemoved() { return columnsRemoved_; }
  Signal<WModelIndex, int, int> &rowsAboutToBeInserted() { return rowsAboutToBeInserted_; }
  Signal<WModelIndex, int, int> &rowsAboutToBeRemoved() { return rowsAboutToBeRemoved_; }
  Signal<WModelIndex, int, int> &rowsInserted() { return rowsInserted_; }
  Signal<WModelIndex, int, int> &rowsRemoved() { return rowsRemoved_; }
  Signal<WModelIndex, WModelIndex> &dataChanged() { return dataChanged_; }
  Signal<Orientation, int, int> &headerDataChanged() { return headerDataChanged_; }
  Signal<> &layoutAboutToBeChanged() { return layoutAboutToBeChanged_; }
  Signal<> &layoutChanged() { return layoutChanged_; }
  Signal<> &modelReset() { return modelReset_; }

protected:
  WModelIndex createIndex(int row, int column, void *pointer) const;
  /// Emits modelReset().
  void reset();

  /// Each pair emits what its name says; the change itself belongs between.
  virtual void beginInsertColumns(const WModelIndex &parent, int first, int last);
  virtual void endInsertColumns();
  virtual void beginInsertRows(const WModelIndex &parent, int first, int last);
  virtual void endInsertRows();
  virtual void beginRemoveColumns(const WModelIndex &parent, int first, int last);
  virtual void endRemoveColumns();
  virtual void beginRemoveRows(const WModelIndex &parent, int first, int last);
  virtual void endRemoveRows();

private:
  int changeFirst_ = 0;
  int changeLast_ = 0;
  WModelIndex changeParent_;

  Signal<WModelIndex, int, int> columnsAboutToBeInserted_;
  Signal<WModelIndex, int, int> columnsAboutToBeRemoved_;
  Signal<WModelIndex, int, int> columnsInserted_;
  Signal<WModelIndex, int, int> columnsRemoved_;
  Signal<WModelIndex, int, int> rowsAboutToBeInserted_;
  Signal<WModelIndex, int, int> rowsAboutToBeRemoved_;
  Signal<WModelIndex, int, int> rowsInserted_;
  Signal<WModelIndex, int, int> rowsRemoved_;
  Signal<WModelIndex, WModelIndex> dataChanged_;
  Signal<Orientation, int, int> headerDataChanged_;
  Signal<> layoutAboutToBeChanged_;
  Signal<> layoutChanged_;
  Signal<> modelReset_;
};

} // namespace Wt

#endif // WT_WABSTRACT_ITEM_MODEL_H_
