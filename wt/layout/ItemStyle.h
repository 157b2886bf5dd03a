// SPDX-License-Identifier: MIT
#ifndef WT_LAYOUT_ITEM_STYLE_H_
#define WT_LAYOUT_ITEM_STYLE_H_

#include <Wt/WFlags>
#include <Wt/WGlobal>

namespace Wt
{

namespace Dom
{
class Element;
}

namespace Engine
{

/**
 * The settings by which layouts place an element. The runtime's style sheet gives "data-li" its meaning: its
 * words say what the layout rules over the element's own wishes. g  may become smaller than its content w its
 * width is the cell's, whatever the widget was resized to h  the same for the height
 */
struct ItemStyle {
  /// True if the alignment keeps the preferred size and places the item in its cell.
  static bool placed(WFlags<AlignmentFlag> alignment);

  /// Makes `cell` place what is in it.
  static void place(Dom::Element &cell, WFlags<AlignmentFlag> alignment);

  /// Places the element itself in its cell of a grid.
  static void placeSelf(Dom::Element &element, WFlags<AlignmentFlag> alignment);

  static void control(Dom::Element &element, bool shrinks, bool width, bool height);

  /// Takes away what a box, or a grid, set on an element that now stands elsewhere.
  static void leaveBox(Dom::Element &element);
  static void leaveGrid(Dom::Element &element);
  /// Takes away all that a layout may have set on one of its items.
  static void leave(Dom::Element &element);
  /// Takes away what a layout set on the element that it managed.
  static void unmanage(Dom::Element &element);

  /// Makes `handle` a border that can be moved by mouse and keyboard: a horizontal one between rows if
  /// `betweenRows`.
  static void handle(Dom::Element &handle, bool betweenRows);
};

} // namespace Engine
} // namespace Wt

#endif // WT_LAYOUT_ITEM_STYLE_H_
