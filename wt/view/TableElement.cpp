// SPDX-License-Identifier: MIT
#include "view/TableElement.h"

#include "base/EventAccess.h"
#include "base/RawEvent.h"
#include "dom/Document.h"
#include "view/CellContent.h"

#include <Wt/WAbstractItemModel>
#include <Wt/WLink>
#include <algorithm>
#include <charconv>

namespace Wt
{
namespace Engine
{

namespace
{

const int kCellExtra = 7;   ///< pixels that a column takes beside its width
const int kRowsAround = 10; ///< rendered above and below what is in sight
const int kLeastColumnWidth = 0;
const int kHighestScroll = 1 << 29; ///< pixels; more than a browser can scroll

int number(const RawEvent &event, std::size_t index)
{
  int value = 0;
  if (index < event.args.size()) {
    const std::string &text = event.args[index];
    std::from_chars(text.data(), text.data() + text.size(), value);
  }
  return value;
}

const char *alignmentClass(AlignmentFlag alignment)
{
  return alignment == AlignRight ? "Wt-right" : alignment == AlignCenter ? "Wt-center" : nullptr;
}

} // namespace

int TableElement::rowCount() const
{
  return view_.model() ? view_.model()->rowCount() : 0;
}

std::vector<int> TableElement::visibleColumns() const
{
  std::vector<int> columns;
  const int count = view_.model() ? view_.model()->columnCount() : 0;
  for (int column = 0; column < count; ++column)
    if (!view_.isColumnHidden(column))
      columns.push_back(column);
  return columns;
}

int TableElement::rowHeight() const
{
  return std::max(1, static_cast<int>(view_.rowHeight().toPixels()));
}

WModelIndex TableElement::indexAt(int row, int column) const
{
  const bool there = row >= 0 && row < rowCount() && column >= 0 && column < view_.model()->columnCount();
  return there ? view_.model()->index(row, column) : WModelIndex();
}

void TableElement::dropCells()
{
  rows_.clear();
  contents_->setChildren({});
  headCells_.clear();
  headRow_->setChildren({});
}

void TableElement::scrollTo(int row, WAbstractItemView::ScrollHint hint)
{
  const int height = rowHeight();
  const int top = row * height;
  if (hint == WAbstractItemView::PositionAtTop)
    scrollTop_ = top;
  else if (hint == WAbstractItemView::PositionAtBottom)
    scrollTop_ = top + height - bodyHeight_;
  else if (hint == WAbstractItemView::PositionAtCenter)
    scrollTop_ = top + (height - bodyHeight_) / 2;
  else if (top < scrollTop_)
    scrollTop_ = top;
  else if (top + height > scrollTop_ + bodyHeight_)
    scrollTop_ = top + height - bodyHeight_;
  scrollTop_ = std::max(0, scrollTop_);
  pendingScroll_ = std::make_pair(row, hint);
  repaint();
}

void TableElement::addOwnClasses(std::string &classes) const
{
  classes += " Wt-itemview Wt-tableview";
  if (rowCount() == 0)
    classes += " Wt-noRows";
  if (view_.alternatingRowColors())
    classes += " Wt-striped";
}

void TableElement::render(Dom::Element &e)
{
  WWebWidget::render(e);
  e.set("role", "grid");
  e.set("aria-rowcount", std::to_string(rowCount() + 1));
  e.setIf(view_.selectionMode() == ExtendedSelection, "aria-multiselectable", "true");
  e.setIf(!isEnabled(), "aria-disabled", "true");
  e.set("*--wt-columns", trackList());
  e.set("*--wt-row", std::to_string(rowHeight()) + "px");
  e.set("!table", view_.selectionMode() == NoSelection ? "{}" : "{\"select\":1}");
}

std::string TableElement::trackList() const
{
  std::string tracks;
  for (const int column : visibleColumns()) {
    const int width = std::max(kLeastColumnWidth, static_cast<int>(view_.columnWidth(column).toPixels()));
    tracks += (tracks.empty() ? "" : " ") + std::to_string(width + kCellExtra) + "px";
  }
  return tracks;
}

void TableElement::renderContents(Dom::Element &e)
{
  Dom::Document &document = e.document();
  if (!head_) {
    head_ = document.create("div", this);
    head_->set("class", "Wt-header headerrh");
    head_->set("role", "rowgroup");
    headRow_ = document.create("div", this);
    headRow_->set("class", "Wt-headerdiv");
    headRow_->set("role", "row");
    head_->setChildren({headRow_});
    body_ = document.create("div", this);
    body_->set("class", "Wt-tv-body");
    body_->set("role", "rowgroup");
    contents_ = document.create("div", this);
    contents_->set("class", "Wt-tv-contents");
    contents_->set("role", "presentation");
    body_->setChildren({contents_});
  }
  body_->set("tabindex", isEnabled() ? "0" : "-1");
  headRow_->set("*height", view_.headerHeight().cssText());
  const std::vector<int> columns = visibleColumns();
  if (columns != columns_)
    dropCells();
  columns_ = columns;
  renderHead(document);
  renderBody(document);
  e.setChildren({head_, body_});
  if (pendingScroll_.first >= 0) {
    // Last of all: the row may have come with this very update.
    e.call("tableScroll", std::to_string(pendingScroll_.first) + "," + std::to_string(pendingScroll_.second));
    pendingScroll_.first = -1;
  }
}

void TableElement::renderHead(Dom::Document &document)
{
  std::vector<Dom::Element *> cells;
  for (const int column : columns_) {
    Dom::Element *&cell = headCells_[column];
    if (!cell)
      cell = document.create("div", this);
    renderHeadCell(*cell, column);
    cells.push_back(cell);
  }
  headRow_->setChildren(cells);
}

void TableElement::renderHeadCell(Dom::Element &cell, int column)
{
  Dom::Document &document = cell.document();
  const bool sortable = view_.isSortingEnabled(column);
  const bool sorted = sortable && view_.sortColumn() == column;
  const bool descending = sorted && view_.sortOrder() == DescendingOrder;
  std::string classes = "Wt-tv-c";
  if (!view_.isColumnResizeEnabled())
    classes += " Wt-tv-no-rh";
  if (const char *alignment = alignmentClass(view_.horizontalHeaderAlignment(column)))
    classes += std::string(" ") + alignment;
  cell.set("class", classes);
  cell.set("role", "columnheader");
  cell.set("data-column", std::to_string(column));
  cell.setIf(sortable || view_.isColumnResizeEnabled(), "tabindex", "0");
  cell.setIf(sortable, "aria-sort", sorted ? (descending ? "descending" : "ascending") : "none");

  std::vector<Dom::Element *> parts = cell.children();
  if (parts.empty()) {
    parts = {document.create("span", this), document.create("span", this), document.create("span", this)};
    parts[0]->set("class", "Wt-label");
    parts[1]->set("aria-hidden", "true");
    parts[2]->set("class", "Wt-tv-rh");
    parts[2]->set("aria-hidden", "true");
  }
  parts[0]->set("#", asString(view_.model()->headerData(column)).toUTF8());
  parts[1]->setIf(sortable, "class",
                  std::string("Wt-tv-sh ") + (!sorted      ? "Wt-tv-sh-none"
                                              : descending ? "Wt-tv-sh-down"
                                                           : "Wt-tv-sh-up"));
  parts[2]->setIf(!view_.isColumnResizeEnabled(), "hidden", "");
  cell.setChildren(parts);
}

void TableElement::renderBody(Dom::Document &document)
{
  const int height = rowHeight();
  const int count = rowCount();
  contents_->set("*height", std::to_string(count * height) + "px");

  // A list that has become shorter is not scrolled beyond its end, as the browser sees to as well.
  const int top = std::max(0, std::min(scrollTop_, count * height - bodyHeight_));
  const int first = std::max(0, std::min(top / height - kRowsAround, count - 1));
  const int last = std::min(count, (top + bodyHeight_) / height + 1 + kRowsAround);
  std::vector<Row> rows(std::max(0, last - first));
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const int at = firstRow_ + static_cast<int>(i) - first;
    if (at >= 0 && at < static_cast<int>(rows.size()))
      rows[at] = std::move(rows_[i]);
  }
  rows_.swap(rows);
  firstRow_ = first;

  std::vector<Dom::Element *> elements;
  elements.reserve(rows_.size());
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    renderRow(rows_[i], first + static_cast<int>(i), columns_, document);
    elements.push_back(rows_[i].element);
  }
  contents_->setChildren(elements);
}

std::string TableElement::rowClasses(int index) const
{
  std::string classes;
  if (view_.selectionBehavior() == SelectRows && view_.rowSelected(index, 0))
    classes = "Wt-selected";
  if (view_.alternatingRowColors() && index % 2 == 1)
    classes += classes.empty() ? "Wt-odd" : " Wt-odd";
  if (index == currentRow_ && view_.selectionMode() == ExtendedSelection)
    classes += classes.empty() ? "Wt-current" : " Wt-current";
  return classes;
}

void TableElement::renderRow(Row &row, int index, const std::vector<int> &columns, Dom::Document &document)
{
  if (!row.element) {
    row.element = document.create("~r", this);
    row.element->set(".row", std::to_string(index));
    for (std::size_t i = 0; i < columns.size(); ++i)
      row.cells.push_back(document.create("~c", this));
    row.element->setChildren(row.cells);
  }
  const std::string classes = rowClasses(index);
  row.element->setIf(!classes.empty(), "class", classes);
  const bool selected = view_.selectionBehavior() == SelectRows && view_.rowSelected(index, 0);
  row.element->setIf(selected, "aria-selected", "true");
  for (std::size_t i = 0; i < columns.size(); ++i)
    renderCell(*row.cells[i], view_.model()->index(index, columns[i]), view_.columnAlignment(columns[i]));
}

void TableElement::renderCell(Dom::Element &cell, const WModelIndex &index, AlignmentFlag alignment)
{
  const CellContent content(index);
  std::string classes = content.styleClass();
  if (const char *name = alignmentClass(alignment))
    classes += (classes.empty() ? "" : " ") + std::string(name);
  if (view_.selectionBehavior() == SelectItems && view_.rowSelected(index.row(), index.column()))
    classes += classes.empty() ? "Wt-selected" : " Wt-selected";
  cell.setIf(!classes.empty(), "class", classes);
  const std::string tip = content.toolTip();
  cell.setIf(!tip.empty(), "title", tip);
  content.renderInto(cell, this);
}

void TableElement::propagateSetEnabled(bool enabled)
{
  WWebWidget::propagateSetEnabled(enabled);
  repaint();
}

void TableElement::domGone(Dom::Element &gone) noexcept
{
  if (&gone == element_) {
    head_ = headRow_ = body_ = contents_ = nullptr;
    headCells_.clear();
    rows_.clear();
  }
  WWebWidget::domGone(gone);
}

// --- what the browser tells

void TableElement::handleDomEvent(Dom::Element &at, const RawEvent &event)
{
  if (event.name == "table:scroll") {
    scrollTop_ = std::max(0, std::min(number(event, 0), kHighestScroll));
    bodyHeight_ = std::max(0, std::min(number(event, 1), 20000));
    repaint();
  } else if (event.name == "table:sort") {
    view_.userSortsBy(number(event, 0));
  } else if (event.name == "table:resize") {
    view_.userResizes(number(event, 0), std::max(1, std::min(number(event, 1), 20000)));
  } else if (event.name == "table:key") {
    userPressedKey(number(event, 0), number(event, 1));
  } else if (event.name == "table:check") {
    userChecks(number(event, 0), number(event, 1), number(event, 2) != 0);
  } else if (event.name.compare(0, 6, "table:") == 0) {
    mouse(event);
  } else {
    WWebWidget::handleDomEvent(at, event);
  }
}

void TableElement::mouse(const RawEvent &event)
{
  const int row = number(event, 0);
  const int column = number(event, 1);
  const WMouseEvent mouseEvent = EventAccess::make<WMouseEvent>(event);
  if (event.name == "table:down") {
    const WModelIndex index = indexAt(row, column);
    const std::weak_ptr<int> life = life_;
    if (index.isValid() && mouseEvent.button() == WMouseEvent::LeftButton) {
      currentRow_ = row;
      roams_ = false;
      if (!mouseEvent.modifiers().testFlag(ShiftModifier))
        anchorRow_ = row;
      view_.userSelects(index, mouseEvent.modifiers());
    }
    // A slot may have changed the model, or deleted the view.
    if (!life.expired())
      view_.mouseWentDown_.emit(indexAt(row, column), mouseEvent);
  } else if (event.name == "table:up") {
    view_.mouseWentUp_.emit(indexAt(row, column), mouseEvent);
  } else if (event.name == "table:click") {
    view_.clicked_.emit(indexAt(row, column), mouseEvent);
  } else if (event.name == "table:dblclick") {
    view_.doubleClicked_.emit(indexAt(row, column), mouseEvent);
  }
}

void TableElement::userChecks(int row, int column, bool checked)
{
  const WModelIndex index = indexAt(row, column);
  if (!index.isValid())
    return;
  const auto shown = std::find(columns_.begin(), columns_.end(), column);
  if (row >= firstRow_ && row - firstRow_ < static_cast<int>(rows_.size()) && shown != columns_.end())
    CellContent::noteChecked(*rows_[row - firstRow_].cells[shown - columns_.begin()], checked);
  repaint();
  if (index.flags().testFlag(ItemIsUserCheckable) && !index.data(CheckStateRole).empty())
    view_.model()->setData(index, boost::any(checked), CheckStateRole);
}

void TableElement::userPressedKey(int keyCode, int modifiers)
{
  const int count = rowCount();
  if (count == 0 || view_.selectionMode() == NoSelection)
    return;
  const int page = std::max(1, bodyHeight_ / rowHeight() - 1);
  // Who selects something else than by keys and mouse moves the keyboard there too.
  const bool astray =
      !roams_ && !view_.selection_.empty() &&
      (currentRow_ < 0 || (view_.selection_.size() == 1 && view_.selection_[0].row != currentRow_));
  const int current = std::min(astray ? view_.selection_[0].row : currentRow_, count - 1);
  if (astray)
    anchorRow_ = current;
  int row = current;
  switch (keyCode) {
  case Key_Up:
    row = current - 1;
    break;
  case Key_Down:
    row = current + 1;
    break;
  case Key_PageUp:
    row = current - page;
    break;
  case Key_PageDown:
    row = current + page;
    break;
  case Key_Home:
    row = 0;
    break;
  case Key_End:
    row = count - 1;
    break;
  default:
    break;
  }
  if (keyCode == Key_A)
    row = current;
  currentRow_ = std::max(0, std::min(row, count - 1));
  // First: a slot of the selection may delete the view.
  scrollTo(currentRow_, WAbstractItemView::EnsureVisible);
  selectByKey(keyCode, WFlags<KeyboardModifier>(static_cast<KeyboardModifier>(modifiers)));
}

/// What a key does to the selection once the keyboard stands where it leads. With several rows to be had,
/// Control moves without selecting and Shift takes all rows from where the selection began.
void TableElement::selectByKey(int keyCode, WFlags<KeyboardModifier> modifiers)
{
  const bool control = modifiers.testFlag(ControlModifier) || modifiers.testFlag(MetaModifier);
  const bool shift = modifiers.testFlag(ShiftModifier);
  const bool moves = keyCode != Key_Space && keyCode != Key_A;
  const WModelIndex index = view_.model()->index(currentRow_, 0);
  roams_ = control && !shift && view_.selectionMode() == ExtendedSelection;
  if (view_.selectionMode() != ExtendedSelection) {
    if (keyCode != Key_A)
      view_.userSelects(index, moves ? WFlags<KeyboardModifier>(NoModifier) : modifiers);
  } else if (keyCode == Key_A) {
    if (control)
      selectRange(0, rowCount() - 1);
  } else if (shift) {
    if (anchorRow_ < 0 || anchorRow_ >= rowCount())
      anchorRow_ = currentRow_;
    selectRange(std::min(anchorRow_, currentRow_), std::max(anchorRow_, currentRow_));
  } else if (!control || !moves) {
    anchorRow_ = currentRow_;
    view_.userSelects(index, modifiers);
  }
}

void TableElement::selectRange(int first, int last)
{
  const int columns = view_.selectionBehavior() == SelectItems ? view_.model()->columnCount() : 1;
  WModelIndexSet range;
  for (int row = first; row <= last; ++row)
    for (int column = 0; column < columns; ++column)
      range.insert(range.end(), view_.model()->index(row, column));
  view_.setSelectedIndexes(range);
}

} // namespace Engine
} // namespace Wt
