// SPDX-License-Identifier: MIT
#include "dom/Document.h"
#include "layout/ItemStyle.h"
#include "layout/LayoutElements.h"

#include <Wt/WGridLayout>
#include <Wt/WWidget>
#include <Wt/WWidgetItem>
#include <algorithm>
#include <string>

namespace Wt
{

struct WGridLayout::Place {
  std::unique_ptr<WLayoutItem> item;
  int row;
  int column;
  int rowSpan;
  int columnSpan;
  WFlags<AlignmentFlag> alignment;
};

WGridLayout::WGridLayout(WWidget *parent)
{
  if (parent)
    setLayoutInParent(parent);
}

WGridLayout::~WGridLayout()
{
  releaseItems();
}

WGridLayout::Track &WGridLayout::track(std::vector<Track> &tracks, int index)
{
  if (index >= static_cast<int>(tracks.size()))
    tracks.resize(index + 1);
  return tracks[index];
}

void WGridLayout::addItem(WLayoutItem *item)
{
  addItem(item, rowCount(), 0);
}

void WGridLayout::addItem(WLayoutItem *item, int row, int column, int rowSpan, int columnSpan,
                          WFlags<AlignmentFlag> alignment)
{
  aboutToAdd(item);
  const auto former = std::find_if(places_.begin(), places_.end(), [row, column](const Place &place) {
    return place.row == row && place.column == column;
  });
  if (former != places_.end()) {
    WLayoutItem *replaced = former->item.get();
    removeItem(replaced);
    delete replaced;
  }
  track(rows_, row + std::max(rowSpan, 1) - 1);
  track(columns_, column + std::max(columnSpan, 1) - 1);
  places_.push_back(Place{std::unique_ptr<WLayoutItem>(item), row, column, std::max(rowSpan, 1),
                          std::max(columnSpan, 1), alignment});
  std::stable_sort(places_.begin(), places_.end(), [](const Place &a, const Place &b) {
    return a.row != b.row ? a.row < b.row : a.column < b.column;
  });
  itemAdded(item);
}

void WGridLayout::removeItem(WLayoutItem *item)
{
  const int index = indexOf(item);
  if (index < 0)
    return;
  places_[index].item.release();
  places_.erase(places_.begin() + index);
  itemRemoved(item);
}

WLayoutItem *WGridLayout::itemAt(int index) const
{
  return places_[index].item.get();
}

int WGridLayout::count() const
{
  return static_cast<int>(places_.size());
}

void WGridLayout::clear()
{
  while (!places_.empty()) {
    WLayoutItem *item = places_.back().item.get();
    WWidget *widget = item->widget();
    if (WLayout *nested = item->layout())
      nested->clear();
    removeItem(item);
    delete item;
    delete widget;
  }
  rows_.clear();
  columns_.clear();
}

void WGridLayout::addWidget(WWidget *widget, int row, int column, WFlags<AlignmentFlag> alignment)
{
  addItem(new WWidgetItem(widget), row, column, 1, 1, alignment);
}

void WGridLayout::addWidget(WWidget *widget, int row, int column, int rowSpan, int columnSpan,
                            WFlags<AlignmentFlag> alignment)
{
  addItem(new WWidgetItem(widget), row, column, rowSpan, columnSpan, alignment);
}

void WGridLayout::addLayout(WLayout *layout, int row, int column, WFlags<AlignmentFlag> alignment)
{
  addItem(layout, row, column, 1, 1, alignment);
}

void WGridLayout::addLayout(WLayout *layout, int row, int column, int rowSpan, int columnSpan,
                            WFlags<AlignmentFlag> alignment)
{
  addItem(layout, row, column, rowSpan, columnSpan, alignment);
}

void WGridLayout::setHorizontalSpacing(int size)
{
  horizontalSpacing_ = size;
  repaint();
}

void WGridLayout::setVerticalSpacing(int size)
{
  verticalSpacing_ = size;
  repaint();
}

void WGridLayout::setRowStretch(int row, int stretch)
{
  track(rows_, row).stretch = stretch;
  repaint();
}

int WGridLayout::rowStretch(int row) const
{
  return row < rowCount() ? rows_[row].stretch : 0;
}

void WGridLayout::setColumnStretch(int column, int stretch)
{
  track(columns_, column).stretch = stretch;
  repaint();
}

int WGridLayout::columnStretch(int column) const
{
  return column < columnCount() ? columns_[column].stretch : 0;
}

void WGridLayout::setRowResizable(int row, bool enabled, const WLength &initialSize)
{
  Track &t = track(rows_, row);
  t.resizable = enabled;
  t.size = initialSize;
  repaint();
}

bool WGridLayout::rowIsResizable(int row) const
{
  return row < rowCount() && rows_[row].resizable;
}

void WGridLayout::setColumnResizable(int column, bool enabled, const WLength &initialSize)
{
  Track &t = track(columns_, column);
  t.resizable = enabled;
  t.size = initialSize;
  repaint();
}

bool WGridLayout::columnIsResizable(int column) const
{
  return column < columnCount() && columns_[column].resizable;
}

std::string WGridLayout::tracksText(const std::vector<Track> &tracks, bool rows)
{
  const bool alone = !rows && tracks.size() == 1;
  std::string text;
  for (const Track &t : tracks) {
    text += text.empty() ? "" : " ";
    if (!t.size.isAuto())
      text += t.size.cssText();
    else if (t.stretch > 0 || alone)
      text += "minmax(0," + std::to_string(std::max(t.stretch, 1)) + "fr)";
    else
      text += "auto";
  }
  return text;
}

void WGridLayout::renderItems(Dom::Element &e)
{
  e.set("*grid-template-rows", tracksText(rows_, true));
  e.set("*grid-template-columns", tracksText(columns_, false));
  e.set("*gap", std::to_string(verticalSpacing_) + "px " + std::to_string(horizontalSpacing_) + "px");
  std::vector<Dom::Element *> children;
  for (const Place &place : places_)
    renderPlace(place, e.document(), children);
  renderHandles(rows_, true, e.document(), children);
  renderHandles(columns_, false, e.document(), children);
  e.setChildren(children);
}

void WGridLayout::renderPlace(const Place &place, Dom::Document &document,
                              std::vector<Dom::Element *> &children)
{
  Dom::Element *element = itemElement(place.item.get(), document);
  if (!element)
    return;
  const auto span = [](int first, int size) {
    return std::to_string(first + 1) + (size > 1 ? " / span " + std::to_string(size) : "");
  };
  Engine::ItemStyle::leaveBox(*element);
  element->set("*grid-row", span(place.row, place.rowSpan));
  element->set("*grid-column", span(place.column, place.columnSpan));
  Engine::ItemStyle::placeSelf(*element, place.alignment);
  const bool fills = !Engine::ItemStyle::placed(place.alignment);
  const bool controlled = fills && sizeControlled(place.item.get());
  const bool wide = columns_.size() == 1 || columns_[place.column].stretch > 0;
  const bool high = rows_[place.row].stretch > 0;
  Engine::ItemStyle::control(*element, fills, controlled && wide, controlled && high);
  children.push_back(element);
}

/// True if the row or column has items, and none of them shows.
bool WGridLayout::trackHidden(std::size_t track, bool row) const
{
  const int at = static_cast<int>(track);
  bool any = false;
  for (const Place &place : places_) {
    const int first = row ? place.row : place.column;
    if (at < first || at >= first + (row ? place.rowSpan : place.columnSpan))
      continue;
    any = true;
    if (!hides(place.item.get()))
      return false;
  }
  return any;
}

void WGridLayout::renderHandles(const std::vector<Track> &tracks, bool rows, Dom::Document &document,
                                std::vector<Dom::Element *> &children)
{
  for (std::size_t i = 0; i + 1 < tracks.size(); ++i) {
    if (!tracks[i].resizable || trackHidden(i, rows) || trackHidden(i + 1, rows))
      continue;
    Dom::Element &handle = elements().get(document, &tracks[i], Engine::LayoutElements::Handle);
    Engine::ItemStyle::handle(handle, rows);
    handle.set(rows ? "*grid-row" : "*grid-column", std::to_string(i + 1));
    handle.set(rows ? "*grid-column" : "*grid-row", "1 / -1");
    children.push_back(&handle);
  }
}

} // namespace Wt
