// SPDX-License-Identifier: MIT
#include "view/CellContent.h"

#include <Wt/WLink>
#include <Wt/WString>

#include "dom/Document.h"

#include <cstring>

namespace Wt {
namespace Engine {

namespace {

/// The cell's present part with that tag, or a new one.
Dom::Element *part(Dom::Element &cell, const char *tag, Dom::Owner *owner)
{
  for (Dom::Element *child : cell.children())
    if (std::strcmp(child->tag(), tag) == 0)
      return child;
  return cell.document().create(tag, owner);
}

bool isChecked(const boost::any &state)
{
  if (const bool *flag = boost::any_cast<bool>(&state))
    return *flag;
  const CheckState *value = boost::any_cast<CheckState>(&state);
  return value && *value == Checked;
}

} // namespace

std::string CellContent::textOf(int role) const
{
  const boost::any value = index_.data(role);
  return value.empty() ? std::string() : asString(value).toUTF8();
}

std::string CellContent::styleClass() const
{
  return textOf(StyleClassRole);
}

std::string CellContent::toolTip() const
{
  return textOf(ToolTipRole);
}

void CellContent::renderInto(Dom::Element &cell, Dom::Owner *owner) const
{
  const std::string text = textOf(DisplayRole);
  const boost::any checkState = index_.data(CheckStateRole);
  const std::string icon = textOf(DecorationRole);
  const boost::any linkData = index_.data(LinkRole);
  const WLink *link = boost::any_cast<WLink>(&linkData);
  if (checkState.empty() && icon.empty() && !link) {
    cell.setChildren({});
    cell.set("#", text);
    return;
  }
  cell.unset("#");
  std::vector<Dom::Element *> parts;
  if (!checkState.empty()) {
    Dom::Element *box = part(cell, "input", owner);
    box->set("type", "checkbox");
    box->setIf(isChecked(checkState), ".checked", "1");
    box->setIf(!index_.flags().testFlag(ItemIsUserCheckable), ".disabled", "1");
    parts.push_back(box);
  }
  if (!icon.empty()) {
    Dom::Element *image = part(cell, "img", owner);
    image->set("src", icon);
    image->set("alt", "");
    parts.push_back(image);
  }
  Dom::Element *label = part(cell, link ? "a" : "span", owner);
  label->set("#", text);
  if (link)
    label->set("href", link->url());
  parts.push_back(label);
  cell.setChildren(parts);
}

} // namespace Engine
} // namespace Wt
