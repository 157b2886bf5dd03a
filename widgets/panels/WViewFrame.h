// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WVIEW_FRAME_H_
#define WIDGETS_WVIEW_FRAME_H_

#include <Wt/WFlags>
#include <Wt/WGlobal>

namespace Wt
{
class WContainerWidget;
class WVBoxLayout;
} // namespace Wt

class WNavAccordion;

/// The shape of a main view: on the left an action bar, on the right panels above each other, with splitters
/// between.
struct WViewFrame {
  WNavAccordion *accordion; ///< owned by the view
  Wt::WVBoxLayout *panels;  ///< owned by the view's layout; the view adds its panels to it

  /// With Wt::AlignTop the panels keep their heights; without, they share the height of the window.
  static WViewFrame build(Wt::WContainerWidget &view,
                          Wt::WFlags<Wt::AlignmentFlag> alignment = Wt::AlignJustify);
};

#endif // WIDGETS_WVIEW_FRAME_H_
