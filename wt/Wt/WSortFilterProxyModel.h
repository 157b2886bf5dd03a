// SPDX-License-Identifier: MIT
#ifndef WT_WSORT_FILTER_PROXY_MODEL_H_
#define WT_WSORT_FILTER_PROXY_MODEL_H_

#include <Wt/WAbstractProxyModel>
#include <Wt/WString>
#include <memory>

namespace Wt
{

/// Sorts and filters the rows of another model, which it does not own.
class WSortFilterProxyModel : public WAbstractProxyModel
{
public:
  explicit WSortFilterProxyModel(WObject *parent = nullptr);
  ~WSortFilterProxyModel() override;

  void setFilterKeyColumn(int column);
  int filterKeyColumn() const;
  /// Rows pass whose whole text in the key column matches; an empty pattern lets all pass.
  void setFilterRegExp(const WString &pattern);
  WString filterRegExp() const;
  void setFilterRole(int role);
  int filterRole() const;
  void setSortRole(int role);
  int sortRole() const;
  /// -1 before the first sort().
  int sortColumn() const;
  SortOrder sortOrder() const;
  /// Whether inserted and changed source rows are placed and filtered at once; off by default.
  void setDynamicSortFilter(bool enable);
  bool dynamicSortFilter() const;
  /// Sorts and filters anew.
  void invalidate();

  WModelIndex mapFromSource(const WModelIndex &sourceIndex) const override;
  WModelIndex mapToSource(const WModelIndex &proxyIndex) const override;
  void setSourceModel(WAbstractItemModel *sourceModel) override;

  int columnCount(const WModelIndex &parent = WModelIndex()) const override;
  int rowCount(const WModelIndex &parent = WModelIndex()) const override;
  using WAbstractProxyModel::parent;
  WModelIndex parent(const WModelIndex &index) const override;
  WModelIndex index(int row, int column, const WModelIndex &parent = WModelIndex()) const override;
  boost::any headerData(int section, Orientation orientation = Horizontal,
                        int role = DisplayRole) const override;
  using WAbstractProxyModel::setHeaderData;
  bool setHeaderData(int section, Orientation orientation, const boost::any &value,
                     int role = EditRole) override;
  bool insertColumns(int column, int count, const WModelIndex &parent = WModelIndex()) override;
  bool insertRows(int row, int count, const WModelIndex &parent = WModelIndex()) override;
  bool removeColumns(int column, int count, const WModelIndex &parent = WModelIndex()) override;
  bool removeRows(int row, int count, const WModelIndex &parent = WModelIndex()) override;
  void sort(int column, SortOrder order = AscendingOrder) override;

protected:
  void sourceModelDestroyed() override;
  virtual bool filterAcceptRow(int sourceRow, const WModelIndex &sourceParent) const;
  /// Whether the left source cell comes before the right one in ascending order.
  virtual bool lessThan(const WModelIndex &left, const WModelIndex &right) const;

private:
  class Impl;
  friend class Impl;
  std::unique_ptr<Impl> impl_;
};

} // namespace Wt

#endif // WT_WSORT_FILTER_PROXY_MODEL_H_
