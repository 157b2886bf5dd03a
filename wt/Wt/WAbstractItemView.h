// SPDX-License-Identifier: MIT
#ifndef WT_WABSTRACTITEMVIEW_H_
#define WT_WABSTRACTITEMVIEW_H_

#include <Wt/WCompositeWidget>
#include <Wt/WEvent>
#include <Wt/WModelIndex>
#include <Wt/WSignal>
#include <vector>

namespace Wt
{

class WAbstractItemModel;

namespace Engine
{
class TableElement;
}

/// What views of item models share: the model, the selection, the columns and the sorting. Does not own its
/// model.
class WAbstractItemView : public WCompositeWidget
{
public:
  enum ScrollHint { EnsureVisible, PositionAtTop, PositionAtBottom, PositionAtCenter };

  ~WAbstractItemView() override;

  /// Takes columns for those of the model. The selection is emptied without a signal.
  virtual void setModel(WAbstractItemModel *model);
  WAbstractItemModel *model() const { return model_; }

  /// Selection. With SelectRows, the default, each selected row is its index of column 0; a row whose cell
  /// there is missing or not selectable cannot be selected.

  void setSelectionMode(SelectionMode mode);
  SelectionMode selectionMode() const { return selectionMode_; }
  void setSelectionBehavior(SelectionBehavior behavior);
  SelectionBehavior selectionBehavior() const { return selectionBehavior_; }
  /// Emits selectionChanged() once, even for an equal set; not for an empty one onto an empty one.
  void setSelectedIndexes(const WModelIndexSet &indexes);
  WModelIndexSet selectedIndexes() const;
  /// Emits selectionChanged() if something changed.
  void select(const WModelIndex &index, SelectionFlag option = Select);
  bool isSelected(const WModelIndex &index) const;
  /// Emits nothing.
  void clearSelection();

  /// Sorting: by the model, when a heading is clicked.

  void setSortingEnabled(bool enabled);
  void setSortingEnabled(int column, bool enabled);
  bool isSortingEnabled() const { return sortingEnabled_; }
  bool isSortingEnabled(int column) const;
  void sortByColumn(int column, SortOrder order);
  /// -1 before the first sorting.
  int sortColumn() const { return sortColumn_; }
  SortOrder sortOrder() const;

  /// Columns

  void setColumnResizeEnabled(bool enabled);
  bool isColumnResizeEnabled() const { return columnResizeEnabled_; }
  /// Pixels count as they are; a column takes 7 more on the screen. Emits nothing.
  virtual void setColumnWidth(int column, const WLength &width);
  /// 150 pixels by default.
  WLength columnWidth(int column) const;
  virtual void setColumnHidden(int column, bool hidden);
  void hideColumn(int column) { setColumnHidden(column, true); }
  void showColumn(int column) { setColumnHidden(column, false); }
  bool isColumnHidden(int column) const;
  virtual void setColumnAlignment(int column, AlignmentFlag alignment);
  AlignmentFlag columnAlignment(int column) const;
  virtual void setHeaderAlignment(int column, WFlags<AlignmentFlag> alignment);
  AlignmentFlag horizontalHeaderAlignment(int column) const;

  void setAlternatingRowColors(bool enabled);
  bool alternatingRowColors() const { return alternatingRowColors_; }
  /// 20 pixels by default.
  virtual void setRowHeight(const WLength &height);
  WLength rowHeight() const { return rowHeight_; }
  /// 20 pixels by default.
  virtual void setHeaderHeight(const WLength &height);
  WLength headerHeight() const { return headerHeight_; }

  /// May be called before the view is shown.
  virtual void scrollTo(const WModelIndex &index, ScrollHint hint = EnsureVisible) = 0;

  /// The user has dragged a column's border; its width, in pixels, is already noted.
  Signal<int, WLength> &columnResized() { return columnResized_; }
  Signal<> &selectionChanged() { return selectionChanged_; }
  /// The index is invalid where there is no cell.
  Signal<WModelIndex, WMouseEvent> &clicked();
  Signal<WModelIndex, WMouseEvent> &doubleClicked();
  Signal<WModelIndex, WMouseEvent> &mouseWentDown();
  Signal<WModelIndex, WMouseEvent> &mouseWentUp();

protected:
  explicit WAbstractItemView(WContainerWidget *parent = nullptr);

private:
  friend class Engine::TableElement;

  struct Column {
    WLength width = WLength(150);
    WFlags<AlignmentFlag> headerAlignment = AlignLeft;
    AlignmentFlag alignment = AlignLeft;
    SortOrder order = AscendingOrder; ///< of the last sorting by this column
    bool hidden = false;
    bool sortable = true;
  };
  struct Cell {
    int row;
    int column;
    bool operator<(const Cell &o) const { return row != o.row ? row < o.row : column < o.column; }
    bool operator==(const Cell &o) const { return row == o.row && column == o.column; }
  };

  /// Makes the column if it is not there yet. The index may not be negative.
  Column &column(int index);
  const Column &columnInfo(int index) const;
  void repaint();
  void connectModel();
  void disconnectModel();

  void rowsInserted(WModelIndex parent, int first, int last);
  void rowsRemoved(WModelIndex parent, int first, int last);
  void columnsInserted(WModelIndex parent, int first, int last);
  void columnsRemoved(WModelIndex parent, int first, int last);
  void layoutAboutToBeChanged();
  void layoutChanged();
  void reset();
  void modelGone();

  bool selectable(int row, int column) const;
  Cell cellOf(const WModelIndex &index) const;
  bool insertSelected(const Cell &cell);
  bool removeSelected(const Cell &cell);
  bool rowSelected(int row, int column) const;

  /// What the user does, as the element tells it.
  void userSelects(const WModelIndex &index, WFlags<KeyboardModifier> modifiers);
  void userExtendsTo(const WModelIndex &index);
  void userSortsBy(int column);
  void userResizes(int column, int width);

  WAbstractItemModel *model_ = nullptr;
  Engine::TableElement *element_;
  std::vector<Column> columns_;
  std::vector<Cell> selection_; ///< sorted
  std::vector<void *> tracked_; ///< the model's names of the selected cells, while it is being rearranged
  std::vector<Signals::connection> connections_;
  WLength rowHeight_ = WLength(20);
  WLength headerHeight_ = WLength(20);
  int sortColumn_ = -1;
  SelectionMode selectionMode_ = NoSelection;
  SelectionBehavior selectionBehavior_ = SelectRows;
  bool sortingEnabled_ = true;
  bool columnResizeEnabled_ = true;
  bool alternatingRowColors_ = false;

  Signal<int, WLength> columnResized_;
  Signal<> selectionChanged_;
  Signal<WModelIndex, WMouseEvent> clicked_;
  Signal<WModelIndex, WMouseEvent> doubleClicked_;
  Signal<WModelIndex, WMouseEvent> mouseWentDown_;
  Signal<WModelIndex, WMouseEvent> mouseWentUp_;
};

} // namespace Wt

#endif // WT_WABSTRACTITEMVIEW_H_
