// SPDX-License-Identifier: MIT
#include "base/ModelAccess.h"
#include "base/Pattern.h"
#include "base/RowMapping.h"
#include "base/Value.h"

#include <Wt/WSortFilterProxyModel>
#include <algorithm>
#include <vector>

namespace Wt
{

/// Follows the source model and keeps the order of its rows.
class WSortFilterProxyModel::Impl : public Signals::trackable
{
public:
  explicit Impl(WSortFilterProxyModel &proxy) : proxy_(proxy) {}

  void attach(WAbstractItemModel *source);
  void rebuild();
  void relayout();

  WSortFilterProxyModel &proxy_;
  Engine::RowMapping mapping_;
  WString filterPattern_;
  std::shared_ptr<const Engine::Pattern> filter_;
  int filterKeyColumn_ = 0;
  int filterRole_ = DisplayRole;
  int sortRole_ = DisplayRole;
  int sortColumn_ = -1;
  SortOrder sortOrder_ = AscendingOrder;
  bool dynamic_ = false;

private:
  WAbstractItemModel &source() const { return *proxy_.sourceModel(); }
  bool before(int left, int right) const;
  bool inOrder(int position) const;
  int insertionPoint(int row) const;
  void show(int row, int position);
  void hide(int first, int last);
  void placeInserted(int first, int last);
  void rowChanged(int row, const WModelIndex &topLeft, const WModelIndex &bottomRight);

  void columnsAboutToBeInserted(WModelIndex parent, int first, int last);
  void columnsInserted(WModelIndex parent, int first, int last);
  void columnsAboutToBeRemoved(WModelIndex parent, int first, int last);
  void columnsRemoved(WModelIndex parent, int first, int last);
  void rowsInserted(WModelIndex parent, int first, int last);
  void rowsAboutToBeRemoved(WModelIndex parent, int first, int last);
  void rowsRemoved(WModelIndex parent, int first, int last);
  void dataChanged(WModelIndex topLeft, WModelIndex bottomRight);
  void headerDataChanged(Orientation orientation, int first, int last);
  void layoutAboutToBeChanged();
  void layoutChanged();
  void modelReset();

  std::vector<Signals::connection> connections_;
  /// Counts what changed the rows of the source, to notice a slot that does so under our feet.
  unsigned changes_ = 0;
};

void WSortFilterProxyModel::Impl::attach(WAbstractItemModel *model)
{
  for (const Signals::connection &connection : connections_)
    connection.disconnect();
  connections_.clear();
  if (!model)
    return;
  connections_ = {
      model->columnsAboutToBeInserted().connect(this, &Impl::columnsAboutToBeInserted),
      model->columnsInserted().connect(this, &Impl::columnsInserted),
      model->columnsAboutToBeRemoved().connect(this, &Impl::columnsAboutToBeRemoved),
      model->columnsRemoved().connect(this, &Impl::columnsRemoved),
      model->rowsInserted().connect(this, &Impl::rowsInserted),
      model->rowsAboutToBeRemoved().connect(this, &Impl::rowsAboutToBeRemoved),
      model->rowsRemoved().connect(this, &Impl::rowsRemoved),
      model->dataChanged().connect(this, &Impl::dataChanged),
      model->headerDataChanged().connect(this, &Impl::headerDataChanged),
      model->layoutAboutToBeChanged().connect(this, &Impl::layoutAboutToBeChanged),
      model->layoutChanged().connect(this, &Impl::layoutChanged),
      model->modelReset().connect(this, &Impl::modelReset),
  };
}

bool WSortFilterProxyModel::Impl::before(int left, int right) const
{
  const WModelIndex leftCell = sortColumn_ < 0 ? WModelIndex() : source().index(left, sortColumn_);
  const WModelIndex rightCell = sortColumn_ < 0 ? WModelIndex() : source().index(right, sortColumn_);
  if (!leftCell.isValid() || !rightCell.isValid())
    return left < right;
  // A list that is being filled has many rows without a value; they need no comparison.
  const boost::any *leftValue = Engine::ModelAccess::peek(source(), leftCell, sortRole_);
  const boost::any *rightValue = Engine::ModelAccess::peek(source(), rightCell, sortRole_);
  if (leftValue && rightValue && leftValue->empty() && rightValue->empty())
    return left < right;
  // Equal rows stay in the order of the source, so one question decides.
  const bool ascending = sortOrder_ == AscendingOrder;
  const WModelIndex &low = ascending ? leftCell : rightCell;
  const WModelIndex &high = ascending ? rightCell : leftCell;
  return left < right ? !proxy_.lessThan(high, low) : proxy_.lessThan(low, high);
}

bool WSortFilterProxyModel::Impl::inOrder(int position) const
{
  const int row = mapping_.source(position);
  return (position == 0 || before(mapping_.source(position - 1), row)) &&
         (position + 1 == mapping_.size() || before(row, mapping_.source(position + 1)));
}

int WSortFilterProxyModel::Impl::insertionPoint(int row) const
{
  int low = 0;
  int high = mapping_.size();
  while (low < high) {
    const int middle = low + (high - low) / 2;
    if (before(row, mapping_.source(middle)))
      high = middle;
    else
      low = middle + 1;
  }
  return low;
}

void WSortFilterProxyModel::Impl::rebuild()
{
  ++changes_;
  std::vector<int> rows;
  const int count = proxy_.sourceModel() ? source().rowCount() : 0;
  for (int row = 0; row < count; ++row)
    if (proxy_.filterAcceptRow(row, WModelIndex()))
      rows.push_back(row);
  if (sortColumn_ >= 0)
    std::stable_sort(rows.begin(), rows.end(), [this](int left, int right) { return before(left, right); });
  mapping_.assign(std::move(rows), count);
}

void WSortFilterProxyModel::Impl::relayout()
{
  if (!proxy_.sourceModel())
    return;
  proxy_.WAbstractItemModel::layoutAboutToBeChanged().emit();
  rebuild();
  proxy_.WAbstractItemModel::layoutChanged().emit();
}

void WSortFilterProxyModel::Impl::show(int row, int position)
{
  proxy_.beginInsertRows(WModelIndex(), position, position);
  mapping_.insert(position, row);
  proxy_.endInsertRows();
}

void WSortFilterProxyModel::Impl::hide(int first, int last)
{
  proxy_.beginRemoveRows(WModelIndex(), first, last);
  mapping_.erase(first, last);
  proxy_.endRemoveRows();
}

void WSortFilterProxyModel::Impl::columnsAboutToBeInserted(WModelIndex parent, int first, int last)
{
  if (!parent.isValid())
    proxy_.beginInsertColumns(WModelIndex(), first, last);
}

void WSortFilterProxyModel::Impl::columnsInserted(WModelIndex parent, int, int)
{
  if (!parent.isValid())
    proxy_.endInsertColumns();
}

void WSortFilterProxyModel::Impl::columnsAboutToBeRemoved(WModelIndex parent, int first, int last)
{
  if (!parent.isValid())
    proxy_.beginRemoveColumns(WModelIndex(), first, last);
}

void WSortFilterProxyModel::Impl::columnsRemoved(WModelIndex parent, int, int)
{
  if (!parent.isValid())
    proxy_.endRemoveColumns();
}

void WSortFilterProxyModel::Impl::rowsInserted(WModelIndex parent, int first, int last)
{
  if (parent.isValid())
    return;
  ++changes_;
  mapping_.sourceInserted(first, last - first + 1);
  if (dynamic_)
    placeInserted(first, last);
}

void WSortFilterProxyModel::Impl::placeInserted(int first, int last)
{
  const unsigned changes = changes_;
  int guess = mapping_.size();
  for (int row = first; row <= last && changes == changes_; ++row) {
    if (!proxy_.filterAcceptRow(row, WModelIndex()))
      continue;
    // New rows are mostly neighbours.
    const bool guessed = guess <= mapping_.size() &&
                         (guess == 0 || before(mapping_.source(guess - 1), row)) &&
                         (guess == mapping_.size() || before(row, mapping_.source(guess)));
    const int position = guessed ? guess : insertionPoint(row);
    show(row, position);
    guess = position + 1;
  }
}

void WSortFilterProxyModel::Impl::rowsAboutToBeRemoved(WModelIndex parent, int first, int last)
{
  if (parent.isValid())
    return;
  ++changes_;
  const auto goes = [this, first, last](int position) {
    const int row = mapping_.source(position);
    return row >= first && row <= last;
  };
  for (int end = mapping_.size(); end > 0; end = std::min(end, mapping_.size())) {
    if (!goes(end - 1)) {
      --end;
      continue;
    }
    int begin = end - 1;
    while (begin > 0 && goes(begin - 1))
      --begin;
    hide(begin, end - 1);
    end = begin;
  }
}

void WSortFilterProxyModel::Impl::rowsRemoved(WModelIndex parent, int first, int last)
{
  if (parent.isValid())
    return;
  ++changes_;
  mapping_.sourceRemoved(first, last - first + 1);
}

void WSortFilterProxyModel::Impl::dataChanged(WModelIndex topLeft, WModelIndex bottomRight)
{
  if (topLeft.parent().isValid())
    return;
  const unsigned changes = changes_;
  for (int row = topLeft.row(); row <= bottomRight.row() && changes == changes_; ++row)
    rowChanged(row, topLeft, bottomRight);
}

void WSortFilterProxyModel::Impl::rowChanged(int row, const WModelIndex &topLeft,
                                             const WModelIndex &bottomRight)
{
  const auto covers = [&topLeft, &bottomRight](int column) {
    return column >= topLeft.column() && column <= bottomRight.column();
  };
  const bool refilter = dynamic_ && covers(filterKeyColumn_);
  const bool resort = dynamic_ && sortColumn_ >= 0 && covers(sortColumn_);
  const int position = mapping_.position(row);
  const bool accepted = refilter ? proxy_.filterAcceptRow(row, WModelIndex()) : position >= 0;
  if (position >= 0 && accepted && (!resort || inOrder(position))) {
    proxy_.WAbstractItemModel::dataChanged().emit(proxy_.index(position, topLeft.column()),
                                                  proxy_.index(position, bottomRight.column()));
    return;
  }
  const unsigned changes = changes_;
  if (position >= 0)
    hide(position, position);
  if (accepted && changes == changes_)
    show(row, insertionPoint(row));
}

void WSortFilterProxyModel::Impl::headerDataChanged(Orientation orientation, int first, int last)
{
  if (orientation == Horizontal)
    proxy_.WAbstractItemModel::headerDataChanged().emit(orientation, first, last);
  else if (mapping_.size() > 0)
    proxy_.WAbstractItemModel::headerDataChanged().emit(orientation, 0, mapping_.size() - 1);
}

void WSortFilterProxyModel::Impl::layoutAboutToBeChanged()
{
  proxy_.WAbstractItemModel::layoutAboutToBeChanged().emit();
}

void WSortFilterProxyModel::Impl::layoutChanged()
{
  rebuild();
  proxy_.WAbstractItemModel::layoutChanged().emit();
}

void WSortFilterProxyModel::Impl::modelReset()
{
  rebuild();
  proxy_.reset();
}

WSortFilterProxyModel::WSortFilterProxyModel(WObject *parent)
    : WAbstractProxyModel(parent), impl_(std::make_unique<Impl>(*this))
{
}

WSortFilterProxyModel::~WSortFilterProxyModel() = default;

void WSortFilterProxyModel::setSourceModel(WAbstractItemModel *sourceModel)
{
  WAbstractProxyModel::setSourceModel(sourceModel);
  impl_->attach(sourceModel);
  impl_->rebuild();
  reset();
}

void WSortFilterProxyModel::sourceModelDestroyed()
{
  impl_->rebuild();
  reset();
}

void WSortFilterProxyModel::setFilterKeyColumn(int column)
{
  impl_->filterKeyColumn_ = column;
}

int WSortFilterProxyModel::filterKeyColumn() const
{
  return impl_->filterKeyColumn_;
}

void WSortFilterProxyModel::setFilterRegExp(const WString &pattern)
{
  impl_->filterPattern_ = pattern;
  impl_->filter_ = pattern.empty() ? nullptr : Engine::Pattern::shared(pattern.toUTF8());
  impl_->relayout();
}

WString WSortFilterProxyModel::filterRegExp() const
{
  return impl_->filterPattern_;
}

void WSortFilterProxyModel::setFilterRole(int role)
{
  impl_->filterRole_ = role;
}

int WSortFilterProxyModel::filterRole() const
{
  return impl_->filterRole_;
}

void WSortFilterProxyModel::setSortRole(int role)
{
  impl_->sortRole_ = role;
}

int WSortFilterProxyModel::sortRole() const
{
  return impl_->sortRole_;
}

int WSortFilterProxyModel::sortColumn() const
{
  return impl_->sortColumn_;
}

SortOrder WSortFilterProxyModel::sortOrder() const
{
  return impl_->sortOrder_;
}

void WSortFilterProxyModel::setDynamicSortFilter(bool enable)
{
  impl_->dynamic_ = enable;
}

bool WSortFilterProxyModel::dynamicSortFilter() const
{
  return impl_->dynamic_;
}

void WSortFilterProxyModel::invalidate()
{
  impl_->relayout();
}

void WSortFilterProxyModel::sort(int column, SortOrder order)
{
  impl_->sortColumn_ = column;
  impl_->sortOrder_ = order;
  impl_->relayout();
}

WModelIndex WSortFilterProxyModel::mapFromSource(const WModelIndex &sourceIndex) const
{
  if (!sourceIndex.isValid() || sourceIndex.model() != sourceModel())
    return WModelIndex();
  return index(impl_->mapping_.position(sourceIndex.row()), sourceIndex.column());
}

WModelIndex WSortFilterProxyModel::mapToSource(const WModelIndex &proxyIndex) const
{
  const bool known = proxyIndex.model() == this && sourceModel() && proxyIndex.row() < impl_->mapping_.size();
  if (!known)
    return WModelIndex();
  return sourceModel()->index(impl_->mapping_.source(proxyIndex.row()), proxyIndex.column());
}

int WSortFilterProxyModel::columnCount(const WModelIndex &parent) const
{
  return parent.isValid() || !sourceModel() ? 0 : sourceModel()->columnCount();
}

int WSortFilterProxyModel::rowCount(const WModelIndex &parent) const
{
  return parent.isValid() ? 0 : impl_->mapping_.size();
}

WModelIndex WSortFilterProxyModel::parent(const WModelIndex &) const
{
  return WModelIndex();
}

WModelIndex WSortFilterProxyModel::index(int row, int column, const WModelIndex &parent) const
{
  return hasIndex(row, column, parent) ? createIndex(row, column, nullptr) : WModelIndex();
}

boost::any WSortFilterProxyModel::headerData(int section, Orientation orientation, int role) const
{
  return WAbstractProxyModel::headerData(section, orientation, role);
}

bool WSortFilterProxyModel::setHeaderData(int section, Orientation orientation, const boost::any &value,
                                          int role)
{
  if (!sourceModel())
    return false;
  if (orientation == Vertical)
    section = mapToSource(index(section, 0)).row();
  return sourceModel()->setHeaderData(section, orientation, value, role);
}

bool WSortFilterProxyModel::insertColumns(int column, int count, const WModelIndex &parent)
{
  return !parent.isValid() && sourceModel() && sourceModel()->insertColumns(column, count);
}

bool WSortFilterProxyModel::removeColumns(int column, int count, const WModelIndex &parent)
{
  return !parent.isValid() && sourceModel() && sourceModel()->removeColumns(column, count);
}

bool WSortFilterProxyModel::insertRows(int row, int count, const WModelIndex &parent)
{
  if (parent.isValid() || !sourceModel() || row < 0 || row > rowCount())
    return false;
  const int sourceRow = row < rowCount() ? impl_->mapping_.source(row) : sourceModel()->rowCount();
  return sourceModel()->insertRows(sourceRow, count);
}

bool WSortFilterProxyModel::removeRows(int row, int count, const WModelIndex &parent)
{
  if (parent.isValid() || !sourceModel() || row < 0 || count < 0 || row > rowCount() - count)
    return false;
  std::vector<int> rows;
  for (int i = row; i < row + count; ++i)
    rows.push_back(impl_->mapping_.source(i));
  std::sort(rows.rbegin(), rows.rend());
  bool removed = true;
  for (int sourceRow : rows)
    removed = sourceModel()->removeRows(sourceRow, 1) && removed;
  return removed;
}

bool WSortFilterProxyModel::filterAcceptRow(int sourceRow, const WModelIndex &sourceParent) const
{
  if (!impl_->filter_)
    return true;
  const WModelIndex cell = sourceModel()->index(sourceRow, impl_->filterKeyColumn_, sourceParent);
  return impl_->filter_->matches(Engine::valueText(cell.data(impl_->filterRole_)));
}

bool WSortFilterProxyModel::lessThan(const WModelIndex &left, const WModelIndex &right) const
{
  return Engine::compareCells(*sourceModel(), left, right, impl_->sortRole_) < 0;
}

} // namespace Wt
