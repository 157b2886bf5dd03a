// SPDX-License-Identifier: MIT
#include "layout/ItemStyle.h"

#include "dom/Element.h"

#include <string>

namespace Wt
{
namespace Engine
{

namespace
{

const char *horizontalPlace(WFlags<AlignmentFlag> alignment)
{
  if (alignment.testFlag(AlignLeft))
    return "start";
  if (alignment.testFlag(AlignRight))
    return "end";
  return alignment.testFlag(AlignCenter) ? "center" : "stretch";
}

const char *verticalPlace(WFlags<AlignmentFlag> alignment)
{
  if (alignment.testFlag(AlignTop))
    return "start";
  if (alignment.testFlag(AlignBottom))
    return "end";
  return alignment.testFlag(AlignMiddle) ? "center" : "stretch";
}

} // namespace

bool ItemStyle::placed(WFlags<AlignmentFlag> alignment)
{
  return alignment.value() != 0 && alignment.value() != AlignJustify;
}

void ItemStyle::place(Dom::Element &cell, WFlags<AlignmentFlag> alignment)
{
  cell.set("*display", "grid");
  cell.set("*justify-items", horizontalPlace(alignment));
  cell.set("*align-items", verticalPlace(alignment));
}

void ItemStyle::placeSelf(Dom::Element &element, WFlags<AlignmentFlag> alignment)
{
  element.setIf(placed(alignment), "*justify-self", horizontalPlace(alignment));
  element.setIf(placed(alignment), "*align-self", verticalPlace(alignment));
}

void ItemStyle::control(Dom::Element &element, bool shrinks, bool width, bool height)
{
  std::string words = shrinks ? "g" : "";
  for (const auto &word : {std::make_pair(width, "w"), std::make_pair(height, "h")})
    if (word.first)
      words += (words.empty() ? "" : " ") + std::string(word.second);
  element.setIf(!words.empty(), "data-li", words);
}

void ItemStyle::leaveBox(Dom::Element &element)
{
  element.unset("*flex");
}

void ItemStyle::leaveGrid(Dom::Element &element)
{
  for (const char *key : {"*grid-row", "*grid-column", "*justify-self", "*align-self"})
    element.unset(key);
}

void ItemStyle::leave(Dom::Element &element)
{
  leaveBox(element);
  leaveGrid(element);
  element.unset("data-li");
}

void ItemStyle::unmanage(Dom::Element &element)
{
  for (const char *key :
       {"*padding", "*gap", "*flex-direction", "*grid-template-rows", "*grid-template-columns"})
    element.unset(key);
}

void ItemStyle::handle(Dom::Element &handle, bool betweenRows)
{
  handle.set("class", betweenRows ? "Wt-hrh2" : "Wt-vrh2");
  handle.set("role", "separator");
  handle.set("tabindex", "0");
  handle.set("aria-orientation", betweenRows ? "horizontal" : "vertical");
  handle.set("!split", betweenRows ? "\"y\"" : "\"x\"");
}

} // namespace Engine
} // namespace Wt
