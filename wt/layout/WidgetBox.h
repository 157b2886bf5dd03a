// SPDX-License-Identifier: MIT
#ifndef WT_LAYOUT_WIDGET_BOX_H_
#define WT_LAYOUT_WIDGET_BOX_H_

#include <Wt/WGlobal>
#include <Wt/WLength>

namespace Wt
{

namespace Dom
{
class Element;
}

namespace Engine
{

/// Sizes, margins and vertical alignment of a widget, as the program has set them.
struct WidgetBox {
  WLength width;
  WLength height;
  WLength minimumWidth = 0;
  WLength minimumHeight = 0;
  WLength maximumWidth;
  WLength maximumHeight;
  WLength margins[4] = {0, 0, 0, 0}; ///< top, right, bottom, left
  WLength verticalLength;
  AlignmentFlag verticalAlignment = AlignBaseline;
  bool marginsSet[4] = {};
  bool verticalSet = false;

  /// Sizes cannot be below 0; of those that are it takes the amount.
  static WLength positive(const WLength &length);
  static bool isVertical(AlignmentFlag alignment);

  void setMargin(const WLength &margin, WFlags<Side> sides);
  /// Of one side.
  WLength margin(Side side) const;

  void render(Dom::Element &e) const;
};

} // namespace Engine
} // namespace Wt

#endif // WT_LAYOUT_WIDGET_BOX_H_
