// SPDX-License-Identifier: MIT
#include "view/TableElement.h"

#include <Wt/WAbstractItemModel>
#include <Wt/WAbstractItemView>
#include <algorithm>

namespace Wt
{

WAbstractItemView::WAbstractItemView(WContainerWidget *parent)
    : WCompositeWidget(parent), element_(new Engine::TableElement(*this))
{
  setImplementation(element_);
}

WAbstractItemView::~WAbstractItemView()
{
  disconnectModel();
}

void WAbstractItemView::repaint()
{
  element_->modelChanged();
}

// --- what is told: who asks for a signal is about to listen to it, which the page must learn

Signal<WModelIndex, WMouseEvent> &WAbstractItemView::clicked()
{
  repaint();
  return clicked_;
}

Signal<WModelIndex, WMouseEvent> &WAbstractItemView::doubleClicked()
{
  repaint();
  return doubleClicked_;
}

Signal<WModelIndex, WMouseEvent> &WAbstractItemView::mouseWentDown()
{
  repaint();
  return mouseWentDown_;
}

Signal<WModelIndex, WMouseEvent> &WAbstractItemView::mouseWentUp()
{
  repaint();
  return mouseWentUp_;
}

// --- model

void WAbstractItemView::setModel(WAbstractItemModel *model)
{
  disconnectModel();
  model_ = model;
  selection_.clear();
  element_->rowsMoved(true);
  if (model_) {
    connectModel();
    columns_.resize(model_->columnCount());
  }
  repaint();
}

void WAbstractItemView::connectModel()
{
  connections_ = {model_->rowsInserted().connect(this, &WAbstractItemView::rowsInserted),
                  model_->rowsRemoved().connect(this, &WAbstractItemView::rowsRemoved),
                  model_->columnsInserted().connect(this, &WAbstractItemView::columnsInserted),
                  model_->columnsRemoved().connect(this, &WAbstractItemView::columnsRemoved),
                  model_->dataChanged().connect(this, &WAbstractItemView::repaint),
                  model_->headerDataChanged().connect(this, &WAbstractItemView::repaint),
                  model_->layoutAboutToBeChanged().connect(this, &WAbstractItemView::layoutAboutToBeChanged),
                  model_->layoutChanged().connect(this, &WAbstractItemView::layoutChanged),
                  model_->modelReset().connect(this, &WAbstractItemView::reset),
                  model_->destroyed().connect(this, &WAbstractItemView::modelGone)};
}

void WAbstractItemView::disconnectModel()
{
  for (Signals::connection &connection : connections_)
    connection.disconnect();
  connections_.clear();
}

/// The model is being deleted and must not be asked any more.
void WAbstractItemView::modelGone()
{
  disconnectModel();
  model_ = nullptr;
  selection_.clear();
  tracked_.clear();
  repaint();
}

void WAbstractItemView::rowsInserted(WModelIndex, int first, int last)
{
  for (Cell &cell : selection_)
    if (cell.row >= first)
      cell.row += last - first + 1;
  element_->rowsMoved(false);
}

void WAbstractItemView::rowsRemoved(WModelIndex, int first, int last)
{
  if (!selection_.empty()) {
    selection_.erase(std::remove_if(selection_.begin(), selection_.end(),
                                    [=](const Cell &cell) { return cell.row >= first && cell.row <= last; }),
                     selection_.end());
    for (Cell &cell : selection_)
      if (cell.row > last)
        cell.row -= last - first + 1;
  }
  element_->rowsMoved(true);
}

void WAbstractItemView::columnsInserted(WModelIndex, int first, int last)
{
  columns_.insert(columns_.begin() + std::min<std::size_t>(first, columns_.size()), last - first + 1,
                  Column());
  columns_.resize(model_->columnCount());
  if (sortColumn_ >= first)
    sortColumn_ += last - first + 1;
  if (selectionBehavior_ == SelectItems)
    for (Cell &cell : selection_)
      if (cell.column >= first)
        cell.column += last - first + 1;
  repaint();
}

void WAbstractItemView::columnsRemoved(WModelIndex, int first, int last)
{
  if (sortColumn_ >= first)
    sortColumn_ = sortColumn_ > last ? sortColumn_ - (last - first + 1) : -1;
  if (selectionBehavior_ == SelectItems) {
    selection_.erase(
        std::remove_if(selection_.begin(), selection_.end(),
                       [=](const Cell &cell) { return cell.column >= first && cell.column <= last; }),
        selection_.end());
    for (Cell &cell : selection_)
      if (cell.column > last)
        cell.column -= last - first + 1;
  } else if (model_->columnCount() == 0) {
    selection_.clear();
  }
  const auto size = static_cast<int>(columns_.size());
  columns_.erase(columns_.begin() + std::min(first, size), columns_.begin() + std::min(last + 1, size));
  repaint();
}

void WAbstractItemView::layoutAboutToBeChanged()
{
  tracked_.clear();
  for (const Cell &cell : selection_)
    tracked_.push_back(model_->toRawIndex(model_->index(cell.row, cell.column)));
}

/// The selection follows its cells; those that are no longer there, or that the model cannot name, are
/// forgotten.
void WAbstractItemView::layoutChanged()
{
  selection_.clear();
  for (void *name : tracked_) {
    const WModelIndex index = name ? model_->fromRawIndex(name) : WModelIndex();
    if (index.isValid())
      insertSelected(cellOf(index));
  }
  tracked_.clear();
  element_->rowsMoved(false);
}

void WAbstractItemView::reset()
{
  selection_.clear();
  columns_.resize(model_->columnCount());
  element_->rowsMoved(true);
}

// --- selection

void WAbstractItemView::setSelectionMode(SelectionMode mode)
{
  if (mode == selectionMode_)
    return;
  selectionMode_ = mode;
  selection_.clear();
  repaint();
}

void WAbstractItemView::setSelectionBehavior(SelectionBehavior behavior)
{
  if (behavior == selectionBehavior_)
    return;
  selectionBehavior_ = behavior;
  selection_.clear();
  repaint();
}

WAbstractItemView::Cell WAbstractItemView::cellOf(const WModelIndex &index) const
{
  return Cell{index.row(), selectionBehavior_ == SelectRows ? 0 : index.column()};
}

bool WAbstractItemView::selectable(int row, int column) const
{
  if (selectionMode_ == NoSelection || !model_ || row < 0 || row >= model_->rowCount())
    return false;
  const WModelIndex index = model_->index(row, column);
  return index.isValid() && model_->flags(index).testFlag(ItemIsSelectable);
}

bool WAbstractItemView::insertSelected(const Cell &cell)
{
  const auto place = std::lower_bound(selection_.begin(), selection_.end(), cell);
  if (place != selection_.end() && *place == cell)
    return false;
  selection_.insert(place, cell);
  return true;
}

bool WAbstractItemView::removeSelected(const Cell &cell)
{
  const auto place = std::lower_bound(selection_.begin(), selection_.end(), cell);
  if (place == selection_.end() || !(*place == cell))
    return false;
  selection_.erase(place);
  return true;
}

bool WAbstractItemView::rowSelected(int row, int column) const
{
  return std::binary_search(selection_.begin(), selection_.end(), Cell{row, column});
}

void WAbstractItemView::setSelectedIndexes(const WModelIndexSet &indexes)
{
  if (indexes.empty() && selection_.empty())
    return;
  selection_.clear();
  for (const WModelIndex &index : indexes) {
    const Cell cell = cellOf(index);
    if (!selectable(cell.row, cell.column))
      continue;
    if (selectionMode_ == SingleSelection)
      selection_.clear();
    insertSelected(cell);
  }
  repaint();
  selectionChanged_.emit();
}

WModelIndexSet WAbstractItemView::selectedIndexes() const
{
  WModelIndexSet indexes;
  for (const Cell &cell : selection_)
    indexes.insert(indexes.end(), model_->index(cell.row, cell.column));
  return indexes;
}

void WAbstractItemView::select(const WModelIndex &index, SelectionFlag option)
{
  if (!index.isValid() || !model_)
    return;
  const Cell cell = cellOf(index);
  const bool selected = rowSelected(cell.row, cell.column);
  if (option == ToggleSelect)
    option = selected ? Deselect : Select;
  if (option == Select && selectionMode_ == SingleSelection)
    option = ClearAndSelect;
  bool changed = false;
  if (option == Deselect) {
    changed = removeSelected(cell);
  } else if (selectable(cell.row, cell.column)) {
    const bool sole = selected && selection_.size() == 1;
    if (option == ClearAndSelect && !sole) {
      changed = true;
      selection_.clear();
    }
    changed = insertSelected(cell) || changed;
  }
  if (changed) {
    repaint();
    selectionChanged_.emit();
  }
}

bool WAbstractItemView::isSelected(const WModelIndex &index) const
{
  const Cell cell = cellOf(index);
  return rowSelected(cell.row, cell.column);
}

void WAbstractItemView::clearSelection()
{
  if (selection_.empty())
    return;
  selection_.clear();
  repaint();
}

void WAbstractItemView::userSelects(const WModelIndex &index, WFlags<KeyboardModifier> modifiers)
{
  const bool toggles = modifiers.testFlag(ControlModifier) || modifiers.testFlag(MetaModifier);
  if (selectionMode_ == ExtendedSelection) {
    if (toggles)
      select(index, ToggleSelect);
    else if (modifiers.testFlag(ShiftModifier))
      userExtendsTo(index);
    else
      select(index, ClearAndSelect);
  } else if (selectionMode_ == SingleSelection) {
    select(index, toggles && isSelected(index) ? Deselect : Select);
  }
}

void WAbstractItemView::userExtendsTo(const WModelIndex &index)
{
  if (selection_.empty()) {
    select(index, ClearAndSelect);
    return;
  }
  const Cell to = cellOf(index);
  const Cell top = selection_.front();
  const Cell bottom = selection_.back();
  const Cell from = to.row < top.row || (to.row == top.row && to.column < top.column) ? bottom : top;
  WModelIndexSet range;
  for (int row = std::min(from.row, to.row); row <= std::max(from.row, to.row); ++row)
    for (int c = std::min(from.column, to.column); c <= std::max(from.column, to.column); ++c)
      range.insert(range.end(), model_->index(row, c));
  setSelectedIndexes(range);
}

// --- sorting

void WAbstractItemView::setSortingEnabled(bool enabled)
{
  sortingEnabled_ = enabled;
  for (Column &c : columns_)
    c.sortable = enabled;
  repaint();
}

void WAbstractItemView::setSortingEnabled(int index, bool enabled)
{
  if (index < 0)
    return;
  column(index).sortable = enabled;
  repaint();
}

bool WAbstractItemView::isSortingEnabled(int index) const
{
  return columnInfo(index).sortable && sortingEnabled_;
}

void WAbstractItemView::sortByColumn(int index, SortOrder order)
{
  sortColumn_ = index;
  if (index >= 0 && index < static_cast<int>(columns_.size()))
    columns_[index].order = order;
  repaint();
  if (model_)
    model_->sort(index, order);
}

SortOrder WAbstractItemView::sortOrder() const
{
  return columnInfo(sortColumn_).order;
}

void WAbstractItemView::userSortsBy(int index)
{
  if (!model_ || index < 0 || index >= model_->columnCount() || !isSortingEnabled(index))
    return;
  SortOrder order = columnInfo(index).order;
  if (index == sortColumn_)
    order = order == AscendingOrder ? DescendingOrder : AscendingOrder;
  sortByColumn(index, order);
}

// --- columns

WAbstractItemView::Column &WAbstractItemView::column(int index)
{
  if (index >= static_cast<int>(columns_.size()))
    columns_.resize(index + 1);
  return columns_[index];
}

const WAbstractItemView::Column &WAbstractItemView::columnInfo(int index) const
{
  static const Column plain;
  return index >= 0 && index < static_cast<int>(columns_.size()) ? columns_[index] : plain;
}

void WAbstractItemView::setColumnResizeEnabled(bool enabled)
{
  columnResizeEnabled_ = enabled;
  repaint();
}

void WAbstractItemView::setColumnWidth(int index, const WLength &width)
{
  if (index < 0)
    return;
  column(index).width = width;
  repaint();
}

WLength WAbstractItemView::columnWidth(int index) const
{
  return columnInfo(index).width;
}

void WAbstractItemView::setColumnHidden(int index, bool hidden)
{
  if (index < 0 || columnInfo(index).hidden == hidden)
    return;
  column(index).hidden = hidden;
  repaint();
}

bool WAbstractItemView::isColumnHidden(int index) const
{
  return columnInfo(index).hidden;
}

void WAbstractItemView::setColumnAlignment(int index, AlignmentFlag alignment)
{
  if (index < 0)
    return;
  column(index).alignment = alignment;
  repaint();
}

AlignmentFlag WAbstractItemView::columnAlignment(int index) const
{
  return columnInfo(index).alignment;
}

void WAbstractItemView::setHeaderAlignment(int index, WFlags<AlignmentFlag> alignment)
{
  if (index < 0)
    return;
  column(index).headerAlignment = alignment;
  repaint();
}

AlignmentFlag WAbstractItemView::horizontalHeaderAlignment(int index) const
{
  for (const AlignmentFlag flag : {AlignRight, AlignCenter})
    if (columnInfo(index).headerAlignment.testFlag(flag))
      return flag;
  return AlignLeft;
}

void WAbstractItemView::userResizes(int index, int width)
{
  if (!columnResizeEnabled_ || index < 0 || index >= static_cast<int>(columns_.size()))
    return;
  const WLength length(width);
  columns_[index].width = length;
  repaint();
  columnResized_.emit(index, length);
}

void WAbstractItemView::setAlternatingRowColors(bool enabled)
{
  alternatingRowColors_ = enabled;
  repaint();
}

void WAbstractItemView::setRowHeight(const WLength &height)
{
  rowHeight_ = height;
  repaint();
}

void WAbstractItemView::setHeaderHeight(const WLength &height)
{
  headerHeight_ = height;
  repaint();
}

} // namespace Wt
