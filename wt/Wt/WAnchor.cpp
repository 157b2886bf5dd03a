// SPDX-License-Identifier: MIT
#include "dom/Element.h"

#include <Wt/WAnchor>
#include <Wt/WImage>
#include <Wt/WText>

namespace Wt
{

WAnchor::WAnchor(WContainerWidget *parent) : WAnchor(WLink(), parent) {}

WAnchor::WAnchor(const WLink &link, WContainerWidget *parent) : WContainerWidget(parent)
{
  setInline(true);
  setLink(link);
}

WAnchor::WAnchor(const WLink &link, const WString &text, WContainerWidget *parent) : WAnchor(link, parent)
{
  setText(text);
}

WAnchor::WAnchor(const WLink &link, WImage *image, WContainerWidget *parent) : WAnchor(link, parent)
{
  setImage(image);
}

WAnchor::~WAnchor() = default;

void WAnchor::setLink(const WLink &link)
{
  if (link == watch_.link())
    return;
  watch_.set(link, [this] { repaint(); });
  repaint();
}

WText &WAnchor::textWidget()
{
  if (!text_)
    text_ = new WText(this);
  return *text_;
}

void WAnchor::setText(const WString &text)
{
  textWidget().setText(text);
}

const WString &WAnchor::text() const
{
  return text_ ? text_->text() : WString::Empty;
}

void WAnchor::setWordWrap(bool wordWrap)
{
  textWidget().setWordWrap(wordWrap);
}

bool WAnchor::wordWrap() const
{
  return !text_ || text_->wordWrap();
}

bool WAnchor::setTextFormat(TextFormat format)
{
  return textWidget().setTextFormat(format);
}

TextFormat WAnchor::textFormat() const
{
  return text_ ? text_->textFormat() : XHTMLText;
}

void WAnchor::setImage(WImage *image)
{
  if (image == image_)
    return;
  delete image_;
  image_ = image;
  if (image_)
    insertWidget(0, image_);
}

void WAnchor::setTarget(AnchorTarget target)
{
  if (target == watch_.link().target())
    return;
  watch_.setTarget(target);
  repaint();
}

const char *WAnchor::domTag() const
{
  return "a";
}

void WAnchor::propagateSetEnabled(bool enabled)
{
  WContainerWidget::propagateSetEnabled(enabled);
  repaint();
}

void WAnchor::childRemoved(int index, WWidget *child)
{
  WContainerWidget::childRemoved(index, child);
  if (child == text_)
    text_ = nullptr;
  if (child == image_)
    image_ = nullptr;
}

void WAnchor::render(Dom::Element &e)
{
  WContainerWidget::render(e);
  const std::string url = watch_.url();
  const bool leads = !url.empty() && isEnabled() && Engine::isHarmlessUrl(url);
  const char *target = Engine::targetName(watch_.link().target());
  e.setIf(leads, "href", url);
  e.setIf(leads && target, "target", target ? target : "");
  e.setIf(leads && target, "rel", "noopener noreferrer");
  e.setIf(leads && watch_.link().target() == TargetDownload, "download", "");

  // One that only is clicked is a button in all but its looks, and must be one for the keyboard.
  const EventSignalBase *click = findSignal("click");
  const bool acts = !leads && isEnabled() && click && click->isConnected();
  e.setIf(acts, "!press", "{\"r\":\"button\"}");
}

} // namespace Wt
