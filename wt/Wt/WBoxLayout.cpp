// SPDX-License-Identifier: MIT
#include "dom/Document.h"
#include "layout/ItemStyle.h"
#include "layout/LayoutElements.h"

#include <Wt/WBoxLayout>
#include <Wt/WWidget>
#include <Wt/WWidgetItem>
#include <algorithm>

namespace Wt
{

namespace
{

/// Room, of a size or that stretches.
class GapItem : public WLayoutItem
{
public:
  WLayoutItem *findWidgetItem(WWidget *) override { return nullptr; }
  WLayout *layout() override { return nullptr; }
  WWidget *widget() override { return nullptr; }
};

const char *const kDirectionNames[] = {"row", "row-reverse", "column", "column-reverse"};

} // namespace

struct WBoxLayout::Place {
  std::unique_ptr<WLayoutItem> item;
  int stretch;
  WFlags<AlignmentFlag> alignment;
  WLength size; ///< of a gap, or the initial one of an item that the user can resize
  bool resizable = false;
};

WBoxLayout::WBoxLayout(Direction direction, WWidget *parent) : direction_(direction)
{
  if (parent)
    setLayoutInParent(parent);
}

WBoxLayout::~WBoxLayout()
{
  releaseItems();
}

void WBoxLayout::addItem(WLayoutItem *item)
{
  insertPlace(count(), item, 0, WFlags<AlignmentFlag>());
}

void WBoxLayout::removeItem(WLayoutItem *item)
{
  const int index = indexOf(item);
  if (index < 0)
    return;
  places_[index].item.release();
  places_.erase(places_.begin() + index);
  itemRemoved(item);
}

WLayoutItem *WBoxLayout::itemAt(int index) const
{
  return places_[index].item.get();
}

int WBoxLayout::count() const
{
  return static_cast<int>(places_.size());
}

void WBoxLayout::clear()
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
}

void WBoxLayout::setDirection(Direction direction)
{
  direction_ = direction;
  repaint();
}

void WBoxLayout::setSpacing(int size)
{
  spacing_ = size;
  repaint();
}

void WBoxLayout::addWidget(WWidget *widget, int stretch, WFlags<AlignmentFlag> alignment)
{
  insertWidget(count(), widget, stretch, alignment);
}

void WBoxLayout::addLayout(WLayout *layout, int stretch, WFlags<AlignmentFlag> alignment)
{
  insertLayout(count(), layout, stretch, alignment);
}

void WBoxLayout::addSpacing(const WLength &size)
{
  insertSpacing(count(), size);
}

void WBoxLayout::addStretch(int stretch)
{
  insertStretch(count(), stretch);
}

void WBoxLayout::insertWidget(int index, WWidget *widget, int stretch, WFlags<AlignmentFlag> alignment)
{
  insertPlace(index, new WWidgetItem(widget), stretch, alignment);
}

void WBoxLayout::insertLayout(int index, WLayout *layout, int stretch, WFlags<AlignmentFlag> alignment)
{
  insertPlace(index, layout, stretch, alignment);
}

void WBoxLayout::insertSpacing(int index, const WLength &size)
{
  insertPlace(index, new GapItem(), 0, WFlags<AlignmentFlag>(), size);
}

void WBoxLayout::insertStretch(int index, int stretch)
{
  insertPlace(index, new GapItem(), stretch, WFlags<AlignmentFlag>(), WLength(0));
}

void WBoxLayout::insertPlace(int index, WLayoutItem *item, int stretch, WFlags<AlignmentFlag> alignment,
                             const WLength &gap)
{
  aboutToAdd(item);
  Place place{std::unique_ptr<WLayoutItem>(item), stretch, alignment, gap};
  const int at = std::max(0, std::min(index, count()));
  places_.insert(places_.begin() + at, std::move(place));
  itemAdded(item);
}

WBoxLayout::Place *WBoxLayout::placeOf(const WLayoutItem *item)
{
  for (Place &place : places_)
    if (item && place.item.get() == item)
      return &place;
  return nullptr;
}

bool WBoxLayout::setStretchFactor(WWidget *widget, int stretch)
{
  for (Place &place : places_) {
    if (place.item->widget() == widget) {
      place.stretch = stretch;
      repaint();
      return true;
    }
  }
  return false;
}

bool WBoxLayout::setStretchFactor(WLayout *layout, int stretch)
{
  Place *place = placeOf(layout);
  if (!place)
    return false;
  place->stretch = stretch;
  repaint();
  return true;
}

void WBoxLayout::setResizable(int index, bool enabled, const WLength &initialSize)
{
  if (index < 0 || index >= count())
    return;
  places_[index].resizable = enabled;
  places_[index].size = initialSize;
  repaint();
}

bool WBoxLayout::isResizable(int index) const
{
  return index >= 0 && index < count() && places_[index].resizable;
}

void WBoxLayout::renderItems(Dom::Element &e)
{
  e.setIf(direction_ != LeftToRight, "*flex-direction", kDirectionNames[direction_]);
  e.setIf(spacing_ > 0, "*gap", std::to_string(spacing_) + "px");
  const bool anyStretch =
      std::any_of(places_.begin(), places_.end(), [](const Place &place) { return place.stretch > 0; });
  std::vector<Dom::Element *> children;
  for (std::size_t i = 0; i < places_.size(); ++i) {
    renderPlace(places_[i], anyStretch, e.document(), children);
    if (places_[i].resizable && i + 1 < places_.size() && !hides(places_[i].item.get()) &&
        !hides(places_[i + 1].item.get()))
      renderHandle(places_[i], e.document(), children);
  }
  e.setChildren(children);
}

void WBoxLayout::renderPlace(const Place &place, bool anyStretch, Dom::Document &document,
                             std::vector<Dom::Element *> &children)
{
  const bool gap = !place.item->widget() && !place.item->layout();
  Dom::Element *element = gap ? &elements().get(document, place.item.get(), Engine::LayoutElements::Gap)
                              : itemElement(place.item.get(), document);
  if (!element)
    return;
  if (!gap && Engine::ItemStyle::placed(place.alignment)) {
    Engine::ItemStyle::leave(*element);
    Dom::Element &cell = elements().get(document, place.item.get(), Engine::LayoutElements::Place);
    cell.set("class", "Wt-cell");
    Engine::ItemStyle::place(cell, place.alignment);
    cell.setChildren({element});
    element = &cell;
  }
  const bool grows = place.stretch > 0;
  // A share of the rest where the box has a size; of a box that is as large as its content, what the item
  // needs.
  std::string flex = grows               ? std::to_string(place.stretch) + " 1 0%"
                     : anyStretch || gap ? "none"
                                         : "1 1 auto";
  if (!place.size.isAuto() && !grows)
    flex = "0 0 " + place.size.cssText();
  Engine::ItemStyle::leaveGrid(*element);
  element->set("*flex", flex);
  const bool controlled = sizeControlled(place.item.get());
  Engine::ItemStyle::control(*element, grows || !anyStretch, controlled && vertical(),
                             controlled && !vertical());
  children.push_back(element);
}

void WBoxLayout::renderHandle(const Place &place, Dom::Document &document,
                              std::vector<Dom::Element *> &children)
{
  Dom::Element &handle = elements().get(document, place.item.get(), Engine::LayoutElements::Handle);
  Engine::ItemStyle::handle(handle, vertical());
  // In a grid a handle lies at the end of its track; here it is an item of its own.
  handle.set("*align-self", "stretch");
  handle.set("*transform", "none");
  handle.setIf(spacing_ > 0, vertical() ? "*margin-block" : "*margin-inline",
               "-" + std::to_string(spacing_) + "px");
  children.push_back(&handle);
}

} // namespace Wt
