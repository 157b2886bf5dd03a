// SPDX-License-Identifier: MIT
#include "dom/Document.h"

#include <Wt/WProgressBar>
#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <functional>

namespace Wt
{

namespace
{

struct Conversion {
  std::size_t begin = std::string::npos; ///< of the "%"
  std::size_t end = 0;                   ///< behind the letter
  int precision = 6;
};

/// Finds the one conversion of a double; false if the format has none, several or another one.
bool findConversion(const std::string &format, Conversion &found)
{
  for (std::size_t i = 0; i < format.size(); ++i) {
    if (format[i] != '%')
      continue;
    if (i + 1 < format.size() && format[i + 1] == '%') {
      ++i;
      continue;
    }
    std::size_t at = i + 1;
    int precision = 6;
    if (at + 1 < format.size() && format[at] == '.' &&
        std::isdigit(static_cast<unsigned char>(format[at + 1]))) {
      precision = format[at + 1] - '0';
      at += 2;
    }
    if (found.begin != std::string::npos || at >= format.size() || format[at] != 'f')
      return false;
    found = {i, at + 1, precision};
    i = at;
  }
  return found.begin != std::string::npos;
}

std::string withoutEscapes(const std::string &text)
{
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    result += text[i];
    if (text[i] == '%' && i + 1 < text.size() && text[i + 1] == '%')
      ++i;
  }
  return result;
}

std::string number(double value, int precision)
{
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.*f", precision, value);
  return buffer;
}

/// Up to three decimals, and none that say nothing.
std::string shortNumber(double value)
{
  std::string text = number(value, 3);
  while (text.back() == '0')
    text.pop_back();
  if (text.back() == '.')
    text.pop_back();
  return text;
}

} // namespace

WProgressBar::WProgressBar(WContainerWidget *parent)
    : WInteractWidget(parent), format_("%.0f %%"), progressCompleted_(this), valueChanged_(this)
{
  setInline(true);
}

WProgressBar::~WProgressBar() = default;

void WProgressBar::setValue(double value)
{
  value_ = value;
  repaint();
  bool alive = true;
  const auto watch = destroyed().connect(std::bind([&alive] { alive = false; }));
  valueChanged_.emit(value);
  if (!alive)
    return;
  watch.disconnect();
  if (value == maximum_)
    progressCompleted_.emit();
}

void WProgressBar::setMinimum(double minimum)
{
  setRange(minimum, maximum_);
}

void WProgressBar::setMaximum(double maximum)
{
  setRange(minimum_, maximum);
}

void WProgressBar::setRange(double minimum, double maximum)
{
  minimum_ = minimum;
  maximum_ = maximum;
  repaint();
}

void WProgressBar::setFormat(const WString &format)
{
  format_ = format;
  repaint();
}

double WProgressBar::percentage() const
{
  const double range = maximum_ - minimum_;
  const double percentage = range == 0 ? 0 : (value_ - minimum_) * 100 / range;
  return std::isfinite(percentage) ? percentage : 0;
}

WString WProgressBar::text() const
{
  const std::string format = format_.toUTF8();
  Conversion conversion;
  if (!findConversion(format, conversion))
    return format_;
  return WString::fromUTF8(withoutEscapes(format.substr(0, conversion.begin)) +
                           number(percentage(), conversion.precision) +
                           withoutEscapes(format.substr(conversion.end)));
}

const char *WProgressBar::domTag() const
{
  return "div";
}

void WProgressBar::addOwnClasses(std::string &classes) const
{
  WInteractWidget::addOwnClasses(classes);
  classes += " Wt-progressbar";
}

void WProgressBar::render(Dom::Element &e)
{
  WInteractWidget::render(e);
  e.set("role", "progressbar");
  e.setIf(minimum_ != 0, "aria-valuemin", shortNumber(minimum_));
  e.setIf(maximum_ != 100, "aria-valuemax", shortNumber(maximum_));
  e.set("aria-valuenow", shortNumber(value_));
}

void WProgressBar::renderContents(Dom::Element &e)
{
  if (!bar_)
    bar_ = e.document().create("div", e.owner());
  if (!label_)
    label_ = e.document().create("div", e.owner());
  bar_->set("class", "Wt-pgb-bar");
  bar_->set("*width", shortNumber(std::clamp(percentage(), 0.0, 100.0)) + "%");
  label_->set("class", "Wt-pgb-label");
  label_->set("#", text().toUTF8());
  e.setChildren({bar_, label_});
}

void WProgressBar::domGone(Dom::Element &gone) noexcept
{
  if (&gone == bar_)
    bar_ = nullptr;
  if (&gone == label_)
    label_ = nullptr;
  WInteractWidget::domGone(gone);
}

} // namespace Wt
