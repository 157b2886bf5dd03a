// SPDX-License-Identifier: MIT
#include "base/Log.h"
#include "base/RichText.h"
#include "dom/Document.h"
#include "dom/RichContent.h"

#include <Wt/WContainerWidget>
#include <Wt/WText>

namespace Wt
{

namespace
{

/// Most texts have none, and need not be read.
bool hasMarkup(const std::string &text)
{
  return text.find_first_of("<&") != text.npos;
}

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
  if (!hasMarkup(text))
    return true;
  const auto rich = Engine::RichText::parse(text);
  if (rich && text_.literal())
    text_ = WString::fromUTF8(rich->markup());
  return rich.has_value();
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
    Engine::log(Engine::LogLevel::Error, "WText", "setPadding: only left and right have an effect");
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
  std::string plain = text;
  if (format_ == PlainText) {
    if (text.find('\n') != text.npos)
      rich = Dom::plainContent(text);
  } else if (hasMarkup(text)) {
    const auto trust = trusted() ? Engine::RichText::Trust::Program : Engine::RichText::Trust::None;
    const auto parsed = Engine::RichText::parse(text, trust);
    if (parsed && parsed->nodes().size() == 1 && parsed->nodes().front().isText())
      plain = parsed->plainText();
    else if (parsed)
      rich = Dom::richContent(*parsed);
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
