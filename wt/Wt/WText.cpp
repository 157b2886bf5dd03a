// SPDX-License-Identifier: MIT
#include <Wt/WText>

#include "dom/Document.h"
#include "dom/RichText.h"
#include "session/Log.h"

#include <Wt/WContainerWidget>

namespace Wt {

namespace {

bool beginsBlock(const std::string &xhtml)
{
  const auto begins = [&](const char *tag) { return xhtml.rfind(tag, 0) == 0; };
  return begins("<div") || begins("<p") || begins("<h");
}

} // namespace

WText::WText(WContainerWidget *parent) : WText(WString::Empty, XHTMLText, parent) {}

WText::WText(const WString &text, WContainerWidget *parent) : WText(text, XHTMLText, parent) {}

WText::WText(const WString &text, TextFormat format, WContainerWidget *parent)
    : WInteractWidget(parent), alignment_(AlignLeft), format_(static_cast<std::uint8_t>(format))
{
  setInline(true);
  setText(text);
}

WText::~WText() = default;

/// A text of the program's own, which is neither filtered nor judged.
bool WText::trusted() const
{
  return format_ == XHTMLUnsafeText || (!text_.literal() && text_.args().empty());
}

/// Replaces text_ by what the allow-list lets through. False if it is not well formed.
bool WText::filter()
{
  if (format_ == PlainText || trusted())
    return true;
  const std::string text = text_.toUTF8();
  const Dom::RichText rich = Dom::RichText::parse(text, false);
  if (!rich.wellFormed())
    return false;
  if (text_.literal() && rich.filtered() != text)
    text_ = WString::fromUTF8(rich.filtered());
  return true;
}

bool WText::setText(const WString &text)
{
  // Comparing spares the filter: most texts that are set are what stands already.
  if (text.literal() && text_.literal() && text == text_)
    return true;
  text_ = text;
  const bool fits = filter();
  if (!fits)
    format_ = PlainText;
  repaint();
  return fits;
}

bool WText::setTextFormat(TextFormat format)
{
  const std::uint8_t former = format_;
  format_ = static_cast<std::uint8_t>(format);
  if (!filter()) {
    format_ = former;
    return false;
  }
  repaint();
  return true;
}

void WText::setWordWrap(bool wordWrap)
{
  wordWrap_ = wordWrap;
  repaint();
}

void WText::setTextAlignment(AlignmentFlag alignment)
{
  alignment_ = static_cast<std::uint8_t>(alignment);
  repaint();
}

void WText::setPadding(const WLength &padding, WFlags<Side> sides)
{
  if (sides.value() & (Top | Bottom).value()) {
    Engine::log("error", "WText::setPadding: only left and right have an effect");
    sides = WFlags<Side>(sides) & (Left | Right);
  }
  if (!padding_)
    padding_ = std::make_unique<std::pair<WLength, WLength>>();
  if (sides.value() & Left)
    padding_->first = padding;
  if (sides.value() & Right)
    padding_->second = padding;
  repaint();
}

WLength WText::padding(Side side) const
{
  if (!padding_ || (side != Left && side != Right))
    return WLength();
  return side == Left ? padding_->first : padding_->second;
}

void WText::refresh()
{
  text_.refresh();
  WInteractWidget::refresh();
}

const char *WText::domTag() const
{
  if (isInline() && format_ != PlainText && beginsBlock(text_.toUTF8()))
    return "div";
  return WInteractWidget::domTag();
}

const char *WText::displayStyle() const
{
  // A block by its content is one whatever was said.
  return isInline() && domTag()[0] == 'd' ? nullptr : WInteractWidget::displayStyle();
}

void WText::render(Dom::Element &e)
{
  WInteractWidget::render(e);
  e.setIf(!wordWrap_, "*white-space", "nowrap");
  e.setIf(alignment_ != AlignLeft, "*text-align", alignment_ == AlignCenter ? "center" : "right");
  if (padding_) {
    e.setIf(!padding_->first.isAuto(), "*padding-left", padding_->first.cssText());
    e.setIf(!padding_->second.isAuto(), "*padding-right", padding_->second.cssText());
  }
}

void WText::renderContents(Dom::Element &e)
{
  const std::string text = text_.toUTF8();
  std::string rich;
  std::string plain;
  if (format_ == PlainText) {
    if (text.find('\n') == text.npos)
      plain = text;
    else
      rich = Dom::RichText::plainContent(text);
  } else {
    const Dom::RichText parsed = Dom::RichText::parse(text, trusted());
    if (!parsed.wellFormed())
      plain = text;
    else if (parsed.isPlain())
      plain = parsed.plainText();
    else
      rich = parsed.content();
  }
  if (rich.empty()) {
    e.unset("<");
    e.setIf(!plain.empty(), "#", plain);
  } else {
    e.unset("#");
    e.set("<", rich);
  }
}

} // namespace Wt
