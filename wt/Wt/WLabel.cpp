// SPDX-License-Identifier: MIT
#include "dom/Element.h"

#include <Wt/WFormWidget>
#include <Wt/WImage>
#include <Wt/WLabel>
#include <Wt/WText>

namespace Wt
{

WLabel::WLabel(WContainerWidget *parent) : WInteractWidget(parent)
{
  setInline(true);
}

WLabel::WLabel(const WString &text, WContainerWidget *parent) : WLabel(parent)
{
  setText(text);
}

WLabel::WLabel(WImage *image, WContainerWidget *parent) : WLabel(parent)
{
  setImage(image);
}

WLabel::~WLabel()
{
  setBuddy(nullptr);
}

void WLabel::setBuddy(WFormWidget *buddy)
{
  if (buddy == buddy_)
    return;
  buddyDestroyed_.disconnect();
  if (buddy_)
    buddy_->setLabel(nullptr);
  buddy_ = buddy;
  if (buddy_) {
    if (buddy_->label())
      buddy_->label()->setBuddy(nullptr);
    buddy_->setLabel(this);
    // The page names an element only where something refers to it.
    buddy_->setAttributeValue("id", WString::fromUTF8(buddy_->id()));
    buddyDestroyed_ = buddy_->destroyed().connect(this, &WLabel::buddyGone);
  }
  repaint();
}

void WLabel::buddyGone()
{
  buddy_ = nullptr;
  repaint();
}

WText &WLabel::textWidget()
{
  if (!text_) {
    text_ = new WText();
    addChild(text_);
    repaint();
  }
  return *text_;
}

void WLabel::setText(const WString &text)
{
  textWidget().setText(text);
}

const WString &WLabel::text() const
{
  return text_ ? text_->text() : WString::Empty;
}

bool WLabel::setTextFormat(TextFormat format)
{
  return textWidget().setTextFormat(format);
}

void WLabel::setWordWrap(bool wordWrap)
{
  textWidget().setWordWrap(wordWrap);
}

void WLabel::setImage(WImage *image, Side side)
{
  if (image != image_) {
    delete image_;
    image_ = image;
    if (image_)
      addChild(image_);
  }
  imageSide_ = side;
  repaint();
}

const char *WLabel::domTag() const
{
  return "label";
}

void WLabel::render(Dom::Element &e)
{
  WInteractWidget::render(e);
  e.setIf(buddy_ != nullptr, "for", buddy_ ? buddy_->id() : std::string());
}

std::vector<WWidget *> WLabel::renderedChildren()
{
  std::vector<WWidget *> shown;
  if (text_)
    shown.push_back(text_);
  if (image_)
    shown.insert(imageSide_ == Left ? shown.begin() : shown.end(), image_);
  return shown;
}

void WLabel::removeChild(WObject *child)
{
  if (child == text_)
    text_ = nullptr;
  if (child == image_)
    image_ = nullptr;
  WInteractWidget::removeChild(child);
}

} // namespace Wt
