// SPDX-License-Identifier: MIT
#include "dom/Document.h"
#include "dom/JsonText.h"

#include <Wt/WPushButton>

namespace Wt
{

struct WPushButton::Extras {
  Engine::LinkWatch icon;
  Engine::LinkWatch link;
  Dom::Element *iconElement = nullptr;
  Dom::Element *textElement = nullptr;
};

WPushButton::WPushButton(WContainerWidget *parent) : WPushButton(WString(), parent) {}

WPushButton::WPushButton(const WString &text, WContainerWidget *parent) : WFormWidget(parent), text_(text)
{
  setInline(true);
}

WPushButton::~WPushButton() = default;

WPushButton::Extras &WPushButton::extras()
{
  if (!extras_)
    extras_ = std::make_unique<Extras>();
  return *extras_;
}

bool WPushButton::setText(const WString &text)
{
  text_ = text;
  repaint();
  return true;
}

void WPushButton::setIcon(const WLink &link)
{
  extras().icon.set(link, [this] { repaint(); });
  repaint();
}

WLink WPushButton::icon() const
{
  return extras_ ? extras_->icon.link() : WLink();
}

void WPushButton::setLink(const WLink &link)
{
  extras().link.set(link, [this] { repaint(); });
  repaint();
}

WLink WPushButton::link() const
{
  return extras_ ? extras_->link.link() : WLink();
}

void WPushButton::setLinkTarget(AnchorTarget target)
{
  extras().link.setTarget(target);
  repaint();
}

void WPushButton::setDefault(bool isDefault)
{
  if (isDefault_ == isDefault)
    return;
  isDefault_ = isDefault;
  repaint();
}

WString WPushButton::valueText() const
{
  return WString();
}

void WPushButton::setValueText(const WString &) {}

void WPushButton::refresh()
{
  if (text_.refresh())
    repaint();
  WFormWidget::refresh();
}

const char *WPushButton::domTag() const
{
  return "button";
}

void WPushButton::addOwnClasses(std::string &classes) const
{
  WFormWidget::addOwnClasses(classes);
  classes += " Wt-btn";
  if (!text_.empty())
    classes += " with-label";
  if (isDefault_)
    classes += " Wt-btn-default";
}

void WPushButton::render(Dom::Element &e)
{
  WFormWidget::render(e);
  if (!extras_)
    return;
  const std::string url = extras_->link.url();
  std::string configuration = "{\"u\":";
  Dom::appendJsonString(configuration, url);
  if (const char *target = Engine::targetName(extras_->link.link().target()))
    configuration += std::string(",\"t\":\"") + target + '"';
  if (extras_->link.link().target() == TargetDownload)
    configuration += ",\"d\":1";
  configuration += '}';
  e.setIf(!url.empty() && isEnabled() && Engine::isHarmlessUrl(url), "!link", configuration);
}

void WPushButton::renderContents(Dom::Element &e)
{
  const std::string text = text_.toUTF8();
  if (extras_ && !extras_->icon.isNull()) {
    e.unset("#");
    renderIcon(e, text);
  } else {
    e.setChildren({});
    e.set("#", text);
  }
}

void WPushButton::renderIcon(Dom::Element &e, const std::string &text)
{
  Extras &x = *extras_;
  if (!x.iconElement)
    x.iconElement = e.document().create("img", e.owner());
  if (!x.textElement)
    x.textElement = e.document().create("span", e.owner());
  const std::string url = x.icon.url();
  x.iconElement->setIf(Engine::isHarmlessUrl(url, true), "src", url);
  x.iconElement->set("alt", "");
  x.textElement->set("#", text);
  e.setChildren({x.iconElement, x.textElement});
}

void WPushButton::domGone(Dom::Element &gone) noexcept
{
  if (extras_ && &gone == extras_->iconElement)
    extras_->iconElement = nullptr;
  if (extras_ && &gone == extras_->textElement)
    extras_->textElement = nullptr;
  WFormWidget::domGone(gone);
}

} // namespace Wt
