// SPDX-License-Identifier: MIT
#include "dom/Document.h"

#include <Wt/WMenuItem>
#include <Wt/WTabWidget>

namespace Wt
{

WMenuItem::WMenuItem(const WString &text, WWidget *contents, LoadPolicy policy)
    : text_(text), contents_(contents), panel_(new WContainerWidget())
{
  panel_->setAttributeValue("role", "tabpanel");
  clicked().connect(this, &WMenuItem::select);
  if (!contents_)
    return;
  contentsDestroyed_ = contents_->destroyed().connect(this, &WMenuItem::contentsGone);
  if (policy == PreLoading)
    load();
}

WMenuItem::~WMenuItem()
{
  contentsDestroyed_.disconnect();
  if (!loaded_)
    delete contents_;
  if (!panelTaken_)
    delete panel_;
}

void WMenuItem::setText(const WString &text)
{
  text_ = text;
  repaint();
}

void WMenuItem::select()
{
  if (tabs_)
    tabs_->setCurrentIndex(tabs_->indexOfItem(this));
}

void WMenuItem::setHidden(bool hidden, const WAnimation &animation)
{
  WContainerWidget::setHidden(hidden, animation);
  if (tabs_ && hidden)
    tabs_->leave(this);
}

void WMenuItem::setDisabled(bool disabled)
{
  WContainerWidget::setDisabled(disabled);
  if (tabs_ && disabled)
    tabs_->leave(this);
}

void WMenuItem::propagateSetEnabled(bool enabled)
{
  WContainerWidget::propagateSetEnabled(enabled);
  repaint();
}

void WMenuItem::refresh()
{
  if (text_.refresh())
    repaint();
  if (!loaded_ && contents_)
    contents_->refresh();
  WContainerWidget::refresh();
}

void WMenuItem::load()
{
  if (loaded_ || !contents_)
    return;
  loaded_ = true;
  panel_->addWidget(contents_);
}

WWidget *WMenuItem::release()
{
  WWidget *contents = contents_;
  contentsDestroyed_.disconnect();
  contents_ = nullptr;
  if (loaded_ && contents)
    panel_->removeWidget(contents);
  return contents;
}

void WMenuItem::contentsGone()
{
  contents_ = nullptr;
}

void WMenuItem::setSelected(bool selected)
{
  if (selected_ == selected)
    return;
  selected_ = selected;
  if (selected)
    load();
  repaint();
}

const char *WMenuItem::domTag() const
{
  return "li";
}

const char *WMenuItem::displayStyle() const
{
  return nullptr;
}

void WMenuItem::addOwnClasses(std::string &classes) const
{
  WContainerWidget::addOwnClasses(classes);
  classes += selected_ ? " itemselected" : " item";
}

void WMenuItem::render(Dom::Element &e)
{
  WContainerWidget::render(e);
  e.set("role", "presentation");
}

void WMenuItem::renderContents(Dom::Element &e)
{
  if (!anchor_)
    anchor_ = e.document().create("a", e.owner());
  anchor_->set("role", "tab");
  anchor_->set("tabindex", selected_ ? "0" : "-1");
  anchor_->set("aria-selected", selected_ ? "true" : "false");
  anchor_->setIf(!isEnabled(), "aria-disabled", "true");
  anchor_->set("#", text_.toUTF8());
  e.setChildren({anchor_});
}

void WMenuItem::domGone(Dom::Element &gone) noexcept
{
  if (&gone == anchor_)
    anchor_ = nullptr;
  WContainerWidget::domGone(gone);
}

} // namespace Wt
