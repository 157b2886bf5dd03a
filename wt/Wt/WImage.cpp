// SPDX-License-Identifier: MIT
#include "dom/Element.h"

#include <Wt/WImage>

namespace Wt
{

WImage::WImage(WContainerWidget *parent) : WImage(WLink(), WString(), parent) {}

WImage::WImage(const WLink &imageLink, WContainerWidget *parent) : WImage(imageLink, WString(), parent) {}

WImage::WImage(const WLink &imageLink, const WString &alternateText, WContainerWidget *parent)
    : WInteractWidget(parent), alternateText_(alternateText)
{
  setInline(true);
  setImageLink(imageLink);
}

WImage::~WImage() = default;

void WImage::setImageLink(const WLink &link)
{
  if (link == watch_.link())
    return;
  watch_.set(link, [this] { repaint(); });
  repaint();
}

void WImage::setAlternateText(const WString &text)
{
  alternateText_ = text;
  repaint();
}

void WImage::refresh()
{
  if (alternateText_.refresh())
    repaint();
  WInteractWidget::refresh();
}

const char *WImage::domTag() const
{
  return "img";
}

void WImage::render(Dom::Element &e)
{
  WInteractWidget::render(e);
  const std::string url = watch_.url();
  e.setIf(!url.empty() && Engine::isHarmlessUrl(url, true), "src", url);
  e.set("alt", alternateText_.toUTF8());
}

} // namespace Wt
