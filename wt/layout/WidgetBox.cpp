// SPDX-License-Identifier: MIT
#include "layout/WidgetBox.h"

#include "dom/Element.h"

namespace Wt
{
namespace Engine
{

namespace
{

const int kVerticalFlags = AlignBaseline | AlignSub | AlignSuper | AlignTop | AlignTextTop | AlignMiddle |
                           AlignBottom | AlignTextBottom;

struct SideKey {
  Side side;
  const char *margin;
};
const SideKey kSideKeys[] = {
    {Top, "*margin-top"}, {Right, "*margin-right"}, {Bottom, "*margin-bottom"}, {Left, "*margin-left"}};

void setLength(Dom::Element &e, const char *key, const WLength &length, bool wanted)
{
  if (wanted)
    e.set(key, length.cssText());
  else
    e.unset(key);
}

const char *verticalAlignText(AlignmentFlag alignment)
{
  switch (alignment) {
  case AlignSub:
    return "sub";
  case AlignSuper:
    return "super";
  case AlignTop:
    return "top";
  case AlignTextTop:
    return "text-top";
  case AlignMiddle:
    return "middle";
  case AlignBottom:
    return "bottom";
  case AlignTextBottom:
    return "text-bottom";
  default:
    return "baseline";
  }
}

} // namespace

WLength WidgetBox::positive(const WLength &length)
{
  return length.isAuto() || length.value() >= 0 ? length : WLength(-length.value(), length.unit());
}

bool WidgetBox::isVertical(AlignmentFlag alignment)
{
  return !(alignment & ~kVerticalFlags);
}

void WidgetBox::setMargin(const WLength &margin, WFlags<Side> sides)
{
  for (int i = 0; i < 4; ++i) {
    if (sides.value() & kSideKeys[i].side) {
      margins[i] = margin;
      marginsSet[i] = true;
    }
  }
}

WLength WidgetBox::margin(Side side) const
{
  for (int i = 0; i < 4; ++i)
    if (kSideKeys[i].side == side)
      return margins[i];
  return WLength(0);
}

void WidgetBox::render(Dom::Element &e) const
{
  setLength(e, "*width", width, !width.isAuto());
  setLength(e, "*height", height, !height.isAuto());
  setLength(e, "*min-width", minimumWidth, !minimumWidth.isAuto() && minimumWidth.value() != 0);
  setLength(e, "*min-height", minimumHeight, !minimumHeight.isAuto() && minimumHeight.value() != 0);
  setLength(e, "*max-width", maximumWidth, !maximumWidth.isAuto());
  setLength(e, "*max-height", maximumHeight, !maximumHeight.isAuto());
  if (verticalSet)
    e.set("*vertical-align", verticalAlignment == AlignBaseline && !verticalLength.isAuto()
                                 ? verticalLength.cssText()
                                 : verticalAlignText(verticalAlignment));
  for (int i = 0; i < 4; ++i)
    if (marginsSet[i])
      e.set(kSideKeys[i].margin, margins[i].cssText());
}

} // namespace Engine
} // namespace Wt
