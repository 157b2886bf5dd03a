// SPDX-License-Identifier: MIT
#include "dom/Document.h"

#include <Wt/WTable>
#include <algorithm>

namespace Wt
{

WTable::WTable(WContainerWidget *parent) : WInteractWidget(parent)
{
  setInline(false);
}

WTable::~WTable()
{
  dropElement();
  clear();
}

void WTable::grow(int rows, int columns)
{
  if (rows <= rowCount() && columns <= columnCount())
    return;
  while (columnCount() < columns)
    columns_.emplace_back(new WTableColumn(this));
  while (rowCount() < rows)
    rows_.emplace_back(new WTableRow(this));
  for (const auto &row : rows_)
    row->cells_.resize(columns_.size(), nullptr);
  repaint();
}

WTableCell *WTable::cellAt(WTableRow &row, std::size_t column)
{
  WTableCell *&cell = row.cells_[column];
  if (!cell) {
    cell = new WTableCell(&row);
    addChild(cell);
    if (!isEnabled())
      cell->propagateSetEnabled(false);
  }
  return cell;
}

WTableCell *WTable::elementAt(int row, int column)
{
  const int r = std::max(0, row);
  const int c = std::max(0, column);
  grow(r + 1, c + 1);
  return cellAt(*rows_[static_cast<std::size_t>(r)], static_cast<std::size_t>(c));
}

WTableRow *WTable::rowAt(int row)
{
  const int r = std::max(0, row);
  grow(r + 1, 0);
  return rows_[static_cast<std::size_t>(r)].get();
}

WTableColumn *WTable::columnAt(int column)
{
  const int c = std::max(0, column);
  grow(0, c + 1);
  return columns_[static_cast<std::size_t>(c)].get();
}

void WTable::deleteCells(WTableRow &row)
{
  // The row goes as one piece, before the widgets of its cells would each take theirs away.
  if (row.element_)
    row.element_->document().destroy(row.element_);
  for (std::size_t i = 0; i < row.cells_.size(); ++i)
    delete row.cells_[i];
}

void WTable::clear()
{
  while (!rows_.empty()) {
    deleteCells(*rows_.back());
    rows_.pop_back();
  }
  columns_.clear();
  hasSpans_ = false;
  repaint();
}

WTableRow *WTable::insertRow(int row)
{
  if (row < 0 || row >= rowCount())
    return rowAt(std::max(row, rowCount()));
  const auto made = rows_.emplace(rows_.begin() + row, new WTableRow(this));
  (*made)->cells_.resize(columns_.size(), nullptr);
  repaint();
  return made->get();
}

void WTable::deleteRow(int row)
{
  if (row < 0 || row >= rowCount())
    return;
  deleteCells(*rows_[static_cast<std::size_t>(row)]);
  rows_.erase(rows_.begin() + row);
  repaint();
}

WTableColumn *WTable::insertColumn(int column)
{
  if (column < 0 || column >= columnCount())
    return columnAt(std::max(column, columnCount()));
  const auto made = columns_.emplace(columns_.begin() + column, new WTableColumn(this));
  for (const auto &row : rows_)
    row->cells_.insert(row->cells_.begin() + column, nullptr);
  repaint();
  return made->get();
}

void WTable::deleteColumn(int column)
{
  if (column < 0 || column >= columnCount())
    return;
  for (const auto &row : rows_) {
    delete row->cells_[static_cast<std::size_t>(column)];
    row->cells_.erase(row->cells_.begin() + column);
  }
  columns_.erase(columns_.begin() + column);
  repaint();
}

void WTable::setHeaderCount(int count, Orientation orientation)
{
  (orientation == Horizontal ? headerRows_ : headerColumns_) = std::max(0, count);
  for (const auto &row : rows_)
    for (WTableCell *cell : row->cells_)
      if (cell)
        cell->repaint();
  repaint();
}

int WTable::headerCount(Orientation orientation) const
{
  return orientation == Horizontal ? headerRows_ : headerColumns_;
}

bool WTable::isHeader(const WTableCell &cell) const
{
  return (headerRows_ > 0 && cell.row() < headerRows_) ||
         (headerColumns_ > 0 && cell.column() < headerColumns_);
}

int WTable::rowNumber(const WTableRow &row) const
{
  for (std::size_t i = 0; i < rows_.size(); ++i)
    if (rows_[i].get() == &row)
      return static_cast<int>(i);
  return -1;
}

int WTable::columnNumber(const WTableColumn &column) const
{
  for (std::size_t i = 0; i < columns_.size(); ++i)
    if (columns_[i].get() == &column)
      return static_cast<int>(i);
  return -1;
}

void WTable::rowsChanged()
{
  repaint();
}

void WTable::spansChanged(WTableCell &cell)
{
  hasSpans_ = true;
  cell.repaint();
  repaint();
}

std::vector<std::vector<bool>> WTable::coveredCells() const
{
  std::vector<std::vector<bool>> covered(rows_.size(), std::vector<bool>(columns_.size(), false));
  if (!hasSpans_)
    return covered;
  for (std::size_t r = 0; r < rows_.size(); ++r) {
    for (std::size_t c = 0; c < columns_.size(); ++c) {
      const WTableCell *cell = rows_[r]->cells_[c];
      if (!cell || covered[r][c])
        continue;
      const std::size_t below = std::min(rows_.size(), r + static_cast<std::size_t>(cell->rowSpan()));
      const std::size_t beyond = std::min(columns_.size(), c + static_cast<std::size_t>(cell->columnSpan()));
      for (std::size_t y = r; y < below; ++y)
        for (std::size_t x = c; x < beyond; ++x)
          covered[y][x] = y != r || x != c;
    }
  }
  return covered;
}

const char *WTable::domTag() const
{
  return "table";
}

const char *WTable::displayStyle() const
{
  return isInline() ? "inline-table" : nullptr;
}

void WTable::render(Dom::Element &e)
{
  WInteractWidget::render(e);
  if (attributeValue("role").empty())
    e.setIf(headerRows_ == 0 && headerColumns_ == 0, "role", "presentation");
}

void WTable::renderColumns(Dom::Element &e, std::vector<Dom::Element *> &sections)
{
  const bool plain =
      std::all_of(columns_.begin(), columns_.end(), [](const auto &column) { return column->plain(); });
  if (plain && !columnGroup_)
    return;
  if (!columnGroup_)
    columnGroup_ = e.document().create("colgroup", e.owner());
  std::vector<Dom::Element *> elements = columnElements_;
  elements.resize(columns_.size(), nullptr);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (!elements[i])
      elements[i] = e.document().create("col", e.owner());
    const WTableColumn &column = *columns_[i];
    const std::string classes = column.styleClass().toUTF8();
    elements[i]->setIf(!classes.empty(), "class", classes);
    elements[i]->setIf(!column.width().isAuto(), "*width", column.width().cssText());
  }
  columnElements_ = elements;
  columnGroup_->setChildren(elements);
  sections.push_back(columnGroup_);
}

Dom::Element *WTable::renderRow(Dom::Element &e, WTableRow &row, const std::vector<bool> &covered)
{
  if (!row.element_) {
    if (row.isHidden())
      return nullptr;
    row.element_ = e.document().create("tr", e.owner());
  }
  row.render();
  std::vector<WWidget *> shown;
  shown.reserve(row.cells_.size());
  for (std::size_t c = 0; c < row.cells_.size(); ++c)
    if (!covered[c])
      shown.push_back(cellAt(row, c));
  place(*row.element_, shown);
  return row.element_;
}

void WTable::renderContents(Dom::Element &e)
{
  std::vector<Dom::Element *> sections;
  renderColumns(e, sections);
  const std::vector<std::vector<bool>> covered = coveredCells();
  std::vector<Dom::Element *> headRows;
  std::vector<Dom::Element *> bodyRows;
  for (std::size_t r = 0; r < rows_.size(); ++r)
    if (Dom::Element *row = renderRow(e, *rows_[r], covered[r]))
      (static_cast<int>(r) < headerRows_ ? headRows : bodyRows).push_back(row);
  if (!headRows.empty()) {
    if (!head_)
      head_ = e.document().create("thead", e.owner());
    head_->setChildren(headRows);
    sections.push_back(head_);
  }
  if (!body_)
    body_ = e.document().create("tbody", e.owner());
  body_->setChildren(bodyRows);
  sections.push_back(body_);
  e.setChildren(sections);
}

void WTable::domGone(Dom::Element &gone) noexcept
{
  for (Dom::Element **part : {&columnGroup_, &head_, &body_})
    if (*part == &gone)
      *part = nullptr;
  for (const auto &row : rows_)
    if (row->element_ == &gone)
      row->element_ = nullptr;
  columnElements_.erase(std::remove(columnElements_.begin(), columnElements_.end(), &gone),
                        columnElements_.end());
  WInteractWidget::domGone(gone);
}

void WTable::removeChild(WObject *child)
{
  for (const auto &row : rows_)
    for (WTableCell *&cell : row->cells_)
      if (cell == child)
        cell = nullptr;
  WInteractWidget::removeChild(child);
}

} // namespace Wt
