// SPDX-License-Identifier: MIT
#include "dom/Element.h"

#include <Wt/WTextArea>
#include <algorithm>

namespace Wt
{

namespace
{

/// The size that the page's runtime gives to every text area by itself.
constexpr int kDefaultColumns = 20;
constexpr int kDefaultRows = 5;

void setSize(Dom::Element &e, const char *key, int size, int byDefault)
{
  if (size > 0 && (size != byDefault || e.get(key)))
    e.set(key, std::to_string(size));
}

} // namespace

WTextArea::WTextArea(WContainerWidget *parent) : WTextArea(WString(), parent) {}

WTextArea::WTextArea(const WString &content, WContainerWidget *parent)
    : WFormWidget(parent), content_(content)
{
  setInline(true);
}

WTextArea::~WTextArea() = default;

void WTextArea::setText(const WString &text)
{
  content_ = text;
  revalidate();
  repaint();
}

void WTextArea::setColumns(int columns)
{
  columns_ = columns;
  repaint();
}

void WTextArea::setRows(int rows)
{
  rows_ = rows;
  repaint();
}

int WTextArea::selectionStart() const
{
  return hasFocus() ? selection_.start(content_.toUTF8()) : -1;
}

WString WTextArea::selectedText() const
{
  return hasFocus() ? WString::fromUTF8(selection_.selected(content_.toUTF8())) : WString();
}

bool WTextArea::hasSelectedText() const
{
  return selectionStart() != -1;
}

int WTextArea::cursorPosition() const
{
  return hasFocus() ? selection_.cursor(content_.toUTF8()) : -1;
}

WString WTextArea::valueText() const
{
  return content_;
}

void WTextArea::setValueText(const WString &value)
{
  setText(value);
}

const char *WTextArea::domTag() const
{
  return "textarea";
}

void WTextArea::render(Dom::Element &e)
{
  WFormWidget::render(e);
  setSize(e, "cols", columns_, kDefaultColumns);
  setSize(e, "rows", rows_, kDefaultRows);
  e.set("!sel", "1");
  showValue(e, ".value", content_.toUTF8());
}

void WTextArea::handleDomEvent(Dom::Element &at, const Engine::RawEvent &event)
{
  if (!selection_.read(event))
    WFormWidget::handleDomEvent(at, event);
}

void WTextArea::formValue(Dom::Element &at, const std::string &value)
{
  std::string text = value;
  text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  content_ = WString::fromUTF8(text);
  acceptValue(at, ".value", text);
  revalidate();
}

} // namespace Wt
