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

void TableElement::rowsMoved(bool removed)
{
  removals_ += removed ? 1 : 0;
  // A list is often filled anew row by row: only names that may end by it are looked at.
  if (namesMayEnd_)
    for (Row &row : rows_)
      row.name.rowsMoved(removed);
  current_.name.rowsMoved(removed);
  anchor_.name.rowsMoved(removed);
  repaint();
}

void TableElement::mark(Mark &mark, int row)
{
  mark = Mark();
  if (row < 0 || row >= rowCount())
    return;
  mark.row = row;
  mark.name = RowName::ofRows(*view_.model(), row, row + 1).front();
}

void TableElement::settle(Mark &mark)
{
  if (mark.row < 0 || rowCount() == 0)
    return;
  const int row = mark.name.find(*view_.model(), mark.row);
  if (row >= 0)
    mark.row = row;
  else
    this->mark(mark, std::min(mark.row, rowCount() - 1));
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
  e.set("tabindex", isEnabled() ? "0" : "-1");
  e.set("!table", told());
}

/// What the runtime is to do and to tell of the mouse, since most lists do not listen for all of it.
std::string TableElement::told() const
{
  const bool selects = view_.selectionMode() != NoSelection;
  std::string names;
  const auto add = [&names](bool wanted, const char *name) {
    if (wanted)
      names += (names.empty() ? "\"" : ",\"") + std::string(name) + '"';
  };
  add(selects || view_.mouseWentDown_.isConnected(), "down");
  add(view_.mouseWentUp_.isConnected(), "up");
  add(view_.clicked_.isConnected(), "click");
  add(view_.doubleClicked_.isConnected(), "dblclick");
  return std::string("{") + (selects ? "\"select\":1," : "") + "\"tell\":[" + names + "]}";
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
    headRow_->set("aria-rowindex", "1");
    head_->setChildren({headRow_});
    body_ = document.create("div", this);
    body_->set("class", "Wt-tv-body");
    body_->set("role", "rowgroup");
    contents_ = document.create("div", this);
    contents_->set("class", "Wt-tv-contents");
    contents_->set("role", "presentation");
    body_->setChildren({contents_});
  }
  headRow_->set("*height", view_.headerHeight().cssText());
  const std::vector<int> columns = visibleColumns();
  if (columns != columns_)
    dropCells();
  columns_ = columns;
  renderHead(document);
  settle(current_);
  settle(anchor_);
  renderBody(document);
  renderCurrent();
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
  nameRows(first, last);
  contents_->setIf(first > 0, ".first", std::to_string(first));

  std::vector<Dom::Element *> elements;
  elements.reserve(rows_.size());
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    renderRow(rows_[i], first + static_cast<int>(i), columns_, document);
    elements.push_back(rows_[i].element);
  }
  contents_->setChildren(elements);
}

/// Makes rows_ those from `first` to before `last`: with the elements of records that were in sight before.
void TableElement::nameRows(int first, int last)
{
  std::map<RowName, Row> former;
  for (Row &row : rows_) {
    RowName name = row.name;
    former.emplace(std::move(name), std::move(row));
  }
  rows_.clear();
  namesMayEnd_ = false;
  for (RowName &name : last > first ? RowName::ofRows(*view_.model(), first, last) : std::vector<RowName>()) {
    const auto known = former.find(name);
    if (known != former.end() && known->first == name) {
      rows_.push_back(std::move(known->second));
      former.erase(known);
    } else {
      rows_.emplace_back();
    }
    namesMayEnd_ = namesMayEnd_ || !name.lasts();
    rows_.back().name = std::move(name);
  }
}

/// Who reads by ear hears the row that the keyboard stands on.
void TableElement::renderCurrent()
{
  const Row *row = nullptr;
  for (const Row &shown : rows_)
    if (shown.number == current_.row)
      row = &shown;
  element_->setIf(row && view_.selectionMode() != NoSelection, "aria-activedescendant",
                  row ? "wt-r" + std::to_string(row->element->id()) : std::string());
}

std::string TableElement::rowClasses(int index) const
{
  std::string classes;
  if (view_.selectionBehavior() == SelectRows && view_.rowSelected(index, 0))
    classes = "Wt-selected";
  if (index == current_.row && view_.selectionMode() == ExtendedSelection)
    classes += classes.empty() ? "Wt-current" : " Wt-current";
  return classes;
}

void TableElement::renderRow(Row &row, int index, const std::vector<int> &columns, Dom::Document &document)
{
  if (!row.element) {
    row.element = document.create("~r", this);
    for (std::size_t i = 0; i < columns.size(); ++i)
      row.cells.push_back(document.create("~c", this));
    row.element->setChildren(row.cells);
  }
  row.number = index;
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
    userChecks(event);
  } else if (event.name.compare(0, 6, "table:") == 0) {
    mouse(event);
  } else {
    WWebWidget::handleDomEvent(at, event);
  }
}

/// The row whose element the event names, or null.
TableElement::Row *TableElement::rowOf(const RawEvent &event)
{
  const int id = number(event, 0);
  for (Row &row : rows_)
    if (row.element && static_cast<int>(row.element->id()) == id)
      return &row;
  return nullptr;
}

TableElement::Place TableElement::placeOf(const RawEvent &event)
{
  Place place;
  if (number(event, 0) == 0)
    return place;
  if (const Row *row = rowOf(event)) {
    place.name = row->name;
    place.row = row->number;
    place.column = number(event, 1);
    place.removals = removals_;
  }
  // The record may have gone since the page was rendered last.
  place.gone = !indexAt(place).isValid();
  return place;
}

WModelIndex TableElement::indexAt(const Place &place) const
{
  if (place.row < 0 || !view_.model())
    return WModelIndex();
  RowName name = place.name;
  if (place.removals != removals_)
    name.rowsMoved(true);
  return indexAt(name.find(*view_.model(), place.row), place.column);
}

void TableElement::mouse(const RawEvent &event)
{
  const Place place = placeOf(event);
  if (place.gone)
    return;
  const WMouseEvent mouseEvent = EventAccess::make<WMouseEvent>(event);
  if (event.name == "table:down")
    mouseDown(place, mouseEvent);
  else if (event.name == "table:up")
    view_.mouseWentUp_.emit(indexAt(place), mouseEvent);
  else if (event.name == "table:click")
    view_.clicked_.emit(indexAt(place), mouseEvent);
  else if (event.name == "table:dblclick")
    view_.doubleClicked_.emit(indexAt(place), mouseEvent);
}

void TableElement::mouseDown(const Place &place, const WMouseEvent &event)
{
  const WModelIndex index = indexAt(place);
  const std::weak_ptr<int> life = life_;
  if (index.isValid() && event.button() == WMouseEvent::LeftButton) {
    mark(current_, index.row());
    roams_ = false;
    if (!event.modifiers().testFlag(ShiftModifier))
      anchor_ = current_;
    repaint();
    view_.userSelects(index, event.modifiers());
  }
  // A slot may have changed the model, or deleted the view.
  if (!life.expired())
    view_.mouseWentDown_.emit(indexAt(place), event);
}

void TableElement::userChecks(const RawEvent &event)
{
  const Place place = placeOf(event);
  const WModelIndex index = indexAt(place);
  if (!index.isValid())
    return;
  const bool checked = number(event, 2) != 0;
  const auto shown = std::find(columns_.begin(), columns_.end(), place.column);
  if (shown != columns_.end())
    CellContent::noteChecked(*rowOf(event)->cells[shown - columns_.begin()], checked);
  repaint();
  if (index.flags().testFlag(ItemIsUserCheckable) && !index.data(CheckStateRole).empty())
    view_.model()->setData(index, boost::any(checked), CheckStateRole);
}

void TableElement::userPressedKey(int keyCode, int modifiers)
{
  const int count = rowCount();
  if (count == 0 || view_.selectionMode() == NoSelection)
    return;
  settle(current_);
  settle(anchor_);
  const int page = std::max(1, bodyHeight_ / rowHeight() - 1);
  // Who selects something else than by keys and mouse moves the keyboard there too.
  const bool astray =
      !roams_ && !view_.selection_.empty() &&
      (current_.row < 0 || (view_.selection_.size() == 1 && view_.selection_[0].row != current_.row));
  const int current = std::min(astray ? view_.selection_[0].row : current_.row, count - 1);
  if (astray)
    mark(anchor_, current);
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
  mark(current_, std::max(0, std::min(row, count - 1)));
  // First: a slot of the selection may delete the view.
  scrollTo(current_.row, WAbstractItemView::EnsureVisible);
  selectByKey(keyCode, WFlags<KeyboardModifier>(static_cast<KeyboardModifier>(modifiers)));
}

/// What a key does to the selection once the keyboard stands where it leads. With several rows to be had,
/// Control moves without selecting and Shift takes all rows from where the selection began.
void TableElement::selectByKey(int keyCode, WFlags<KeyboardModifier> modifiers)
{
  const bool control = modifiers.testFlag(ControlModifier) || modifiers.testFlag(MetaModifier);
  const bool shift = modifiers.testFlag(ShiftModifier);
  const bool moves = keyCode != Key_Space && keyCode != Key_A;
  const WModelIndex index = view_.model()->index(current_.row, 0);
  roams_ = control && !shift && view_.selectionMode() == ExtendedSelection;
  if (view_.selectionMode() != ExtendedSelection) {
    if (keyCode != Key_A)
      view_.userSelects(index, moves ? WFlags<KeyboardModifier>(NoModifier) : modifiers);
  } else if (keyCode == Key_A) {
    if (control)
      selectRange(0, rowCount() - 1);
  } else if (shift) {
    if (anchor_.row < 0 || anchor_.row >= rowCount())
      anchor_ = current_;
    selectRange(std::min(anchor_.row, current_.row), std::max(anchor_.row, current_.row));
  } else if (!control || !moves) {
    anchor_ = current_;
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
