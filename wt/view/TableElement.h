// SPDX-License-Identifier: MIT
#ifndef WT_VIEW_TABLE_ELEMENT_H_
#define WT_VIEW_TABLE_ELEMENT_H_

#include "view/RowName.h"

#include <Wt/WAbstractItemView>
#include <Wt/WWebWidget>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Wt
{

class WAbstractItemModel;

namespace Engine
{

/**
 * A table view on the page: a head of column titles over a scrolling body, in which only the rows in sight
 * and a few around them exist.
 *
 * Rows and cells are elements "~r" and "~c", for which the runtime knows tag, class and role. A row's element
 * stands for a record for as long as it exists: what the browser tells of it means that record, wherever its
 * row is by then, or nothing if the record is gone. The runtime places the rows by the number of the first
 * (".first") and their order, so that scrolling and inserting only make and remove rows, and a model that is
 * emptied and filled again with the same data changes nothing. The columns' widths are one setting of the
 * whole view.
 */
class TableElement : public WWebWidget
{
public:
  explicit TableElement(WAbstractItemView &view) : view_(view) { setInline(false); }

  static TableElement &of(WAbstractItemView &view) { return *view.element_; }

  /// Data, rows, columns or looks have changed.
  void modelChanged() { repaint(); }
  /// Rows have come, gone (`removed`) or changed places.
  void rowsMoved(bool removed);

  void scrollTo(int row, WAbstractItemView::ScrollHint hint);

protected:
  void addOwnClasses(std::string &classes) const override;
  void render(Dom::Element &e) override;
  void renderContents(Dom::Element &e) override;
  void handleDomEvent(Dom::Element &at, const RawEvent &event) override;
  void propagateSetEnabled(bool enabled) override;
  void domGone(Dom::Element &gone) noexcept override;

private:
  struct Row {
    Dom::Element *element = nullptr;
    std::vector<Dom::Element *> cells; ///< of the visible columns
    RowName name;
    int number = -1; ///< when it was rendered
  };
  /// A row that the keyboard goes by. It follows its record, and keeps its number when the record is gone.
  struct Mark {
    int row = -1;
    RowName name;
  };
  /// What an event was on.
  struct Place {
    RowName name;
    int row = -1; ///< when it was rendered; -1 beside all rows
    int column = -1;
    unsigned removals = 0;
    bool gone = false; ///< the row is not on the page any more
  };

  int rowCount() const;
  std::vector<int> visibleColumns() const;
  std::string told() const;
  std::string trackList() const;
  int rowHeight() const;
  void dropCells();
  void renderHead(Dom::Document &document);
  void renderHeadCell(Dom::Element &cell, int column);
  void renderBody(Dom::Document &document);
  void renderRow(Row &row, int index, const std::vector<int> &columns, Dom::Document &document);
  void renderCell(Dom::Element &cell, const WModelIndex &index, AlignmentFlag alignment);
  std::string rowClasses(int index) const;
  void nameRows(int first, int last);
  void settle(Mark &mark);
  void mark(Mark &mark, int row);
  void renderCurrent();
  void userPressedKey(int keyCode, int modifiers);
  void selectByKey(int keyCode, WFlags<KeyboardModifier> modifiers);
  void selectRange(int first, int last);
  void userChecks(const RawEvent &event);
  Row *rowOf(const RawEvent &event);
  Place placeOf(const RawEvent &event);
  WModelIndex indexAt(const Place &place) const;
  WModelIndex indexAt(int row, int column) const;
  void mouse(const RawEvent &event);
  void mouseDown(const Place &place, const WMouseEvent &event);

  WAbstractItemView &view_;
  Dom::Element *head_ = nullptr;
  Dom::Element *headRow_ = nullptr;
  Dom::Element *body_ = nullptr;
  Dom::Element *contents_ = nullptr;
  std::map<int, Dom::Element *> headCells_; ///< by column
  std::vector<int> columns_;                ///< that rows and head are made of
  std::vector<Row> rows_;
  int scrollTop_ = 0;
  int bodyHeight_ = 600;                                ///< pixels, until the browser tells
  Mark current_;                                        ///< where the keyboard stands
  bool namesMayEnd_ = false;                            ///< of some of rows_
  unsigned removals_ = 0;                               ///< times that rows were removed
  bool roams_ = false;                                  ///< the keyboard was led away from the selection
  Mark anchor_;                                         ///< where a range begins that Shift makes
  std::pair<int, int> pendingScroll_ = {-1, 0};         ///< row and hint, until the view is rendered
  std::shared_ptr<int> life_ = std::make_shared<int>(); ///< lets see whether a slot has deleted the view
};

} // namespace Engine
} // namespace Wt

#endif // WT_VIEW_TABLE_ELEMENT_H_
