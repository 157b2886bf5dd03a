// SPDX-License-Identifier: MIT
#include "WAutoSizeTableView.h"

#include <Wt/WAbstractItemModel>
#include <boost/any.hpp>
#include <unordered_map>

namespace
{

const int kFrameAndScrollBar = 20; ///< pixels of a view's width that no column gets
const int kCellPadding = 7;        ///< pixels that each column takes beside its width

} // namespace

WAutoSizeTableView::WAutoSizeTableView(int columns, Wt::WContainerWidget *parent)
    : Wt::WTableView(parent), columnCount(static_cast<std::int8_t>(columns)), hiddenColumnCount(0),
      firstAdaptDone(false), columnWidths(columns > 0 ? columns : 0, 0), lastWidth(0)
{
  setLayoutSizeAware(true);
  columnResized().connect(this, &WAutoSizeTableView::columnResizedHandler);
}

void WAutoSizeTableView::clearSelection()
{
  setSelectedIndexes(Wt::WModelIndexSet());
}

void WAutoSizeTableView::setSelectedZelIndexes(std::vector<unsigned int> &indexes)
{
  if (indexes.empty()) {
    clearSelection();
    return;
  }
  Wt::WModelIndexSet selection;
  addRowsOf(indexes, selection, 0, 0);
  setSelectedIndexes(selection);
}

void WAutoSizeTableView::setSelectedFilteredZelIndexes(std::vector<unsigned int> &indexes, void *context,
                                                       bool (*filter)(void *, Wt::WModelIndex))
{
  Wt::WModelIndexSet selection = selectedIndexes();
  addRowsOf(indexes, selection, context, filter);
  setSelectedIndexes(selection);
}

void WAutoSizeTableView::addRowsOf(const std::vector<unsigned int> &indexes, Wt::WModelIndexSet &selection,
                                   void *context, bool (*filter)(void *, Wt::WModelIndex))
{
  // One pass over the rows, however many records are wanted; the first row of a record counts.
  std::unordered_map<unsigned int, int> rowOf;
  for (int row = 0, rows = model()->rowCount(); row < rows; ++row) {
    const boost::any data = model()->data(row, 0, Wt::EditRole);
    if (const unsigned int *index = boost::any_cast<unsigned int>(&data))
      rowOf.emplace(*index, row);
  }
  for (const unsigned int index : indexes) {
    const auto row = rowOf.find(index);
    if (row == rowOf.end())
      continue;
    const Wt::WModelIndex found = model()->index(row->second, 0);
    if (!filter || filter(context, found))
      selection.insert(found);
  }
}

void WAutoSizeTableView::adaptToWidth(int width)
{
  if (firstAdaptDone)
    adaptFreeColumns(width);
  else
    adaptFirstTime(width);
  lastWidth = width;
}

void WAutoSizeTableView::adaptFirstTime(int width)
{
  firstAdaptDone = true;
  for (int column = 0; column < columnCount; ++column)
    if (isColumnHidden(column))
      ++hiddenColumnCount;
  const int visible = columnCount - hiddenColumnCount;
  if (visible < 1)
    return;
  const double each = static_cast<double>(width - kFrameAndScrollBar) / visible - kCellPadding;
  for (int column = 0; column < columnCount; ++column)
    if (!isColumnHidden(column))
      setColumnWidth(column, Wt::WLength(static_cast<int>(each)));
}

void WAutoSizeTableView::adaptFreeColumns(int width)
{
  int sum = 0;
  int sized = 0;
  int free = 0;
  for (int column = 0; column < columnCount; ++column) {
    if (isColumnHidden(column))
      continue;
    if (columnWidths[column] != 0) {
      sum += columnWidths[column];
      ++sized;
    } else {
      ++free;
    }
  }
  if (free == 0)
    return;
  const double each =
      static_cast<double>(width - kFrameAndScrollBar - kCellPadding * sized - sum) / free - kCellPadding;
  for (int column = 0; column < columnCount; ++column)
    if (!isColumnHidden(column) && columnWidths[column] == 0)
      setColumnWidth(column, Wt::WLength(static_cast<int>(each)));
}

void WAutoSizeTableView::columnResizedHandler(int column, Wt::WLength width)
{
  if (column < 0 || column >= columnCount)
    return;
  columnWidths[column] = static_cast<std::int32_t>(width.toPixels());
  setColumnWidth(column, width);
  adaptToWidth(lastWidth);
}

void WAutoSizeTableView::layoutSizeChanged(int width, int height)
{
  if (width != lastWidth)
    adaptToWidth(width);
  if (this->height() != Wt::WLength(height))
    resize(Wt::WLength(width), Wt::WLength(height));
}
