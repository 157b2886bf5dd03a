// SPDX-License-Identifier: MIT
#include "view/CellContent.h"

#include "base/LinkWatch.h"
#include "base/RichText.h"
#include "dom/Document.h"
#include "dom/RichContent.h"

#include <Wt/WLink>
#include <Wt/WString>
#include <cstring>

namespace Wt
{
namespace Engine
{

namespace
{

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

/// True if the state is shown as undecided.
bool isPartial(const boost::any &state)
{
  const CheckState *value = boost::any_cast<CheckState>(&state);
  return value && *value == PartiallyChecked;
}

void renderLink(Dom::Element &anchor, const WLink &link)
{
  const std::string url = link.isNull() ? std::string() : link.url();
  const bool leads = !url.empty() && isHarmlessUrl(url, false);
  const char *target = targetName(link.target());
  anchor.setIf(leads, "href", url);
  anchor.setIf(leads && target, "target", target ? target : "");
  anchor.setIf(leads && target, "rel", "noopener noreferrer");
  anchor.setIf(leads && link.target() == TargetDownload, "download", "");
}

} // namespace

void CellContent::noteChecked(Dom::Element &cell, bool checked)
{
  for (Dom::Element *child : cell.children()) {
    if (std::strcmp(child->tag(), "input") == 0) {
      child->assume(".checked", checked ? "1" : "0");
      child->assume(".indeterminate", "0");
    }
  }
}

/// Plain, unless the item says that it is markup, of which what can do harm is left out.
void CellContent::renderText(Dom::Element &e, const std::string &text) const
{
  std::optional<RichText> rich;
  if (text.find_first_of("<&") != text.npos && index_.flags().testFlag(ItemIsXHTMLText))
    rich = RichText::parse(text);
  const bool marked = rich && !(rich->nodes().size() == 1 && rich->nodes()[0].isText());
  if (marked) {
    e.unset("#");
    e.set("<", Dom::richContent(*rich));
    return;
  }
  const std::string plain = rich ? rich->plainText() : text;
  e.unset("<");
  e.setIf(!plain.empty(), "#", plain);
}

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
    renderText(cell, text);
    return;
  }
  cell.unset("#");
  cell.unset("<");
  std::vector<Dom::Element *> parts;
  if (!checkState.empty()) {
    Dom::Element *box = part(cell, "input", owner);
    box->set("type", "checkbox");
    box->setIf(isChecked(checkState), ".checked", "1");
    box->setIf(isPartial(checkState), ".indeterminate", "1");
    // Its name is the cell's text.
    box->setIf(!text.empty(), "aria-label", text);
    box->setIf(!index_.flags().testFlag(ItemIsUserCheckable), ".disabled", "1");
    parts.push_back(box);
  }
  if (!icon.empty()) {
    Dom::Element *image = part(cell, "img", owner);
    image->setIf(isHarmlessUrl(icon, true), "src", icon);
    image->set("alt", "");
    parts.push_back(image);
  }
  Dom::Element *label = part(cell, link ? "a" : "span", owner);
  renderText(*label, text);
  if (link)
    renderLink(*label, *link);
  parts.push_back(label);
  cell.setChildren(parts);
}

} // namespace Engine
} // namespace Wt
