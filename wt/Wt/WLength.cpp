// SPDX-License-Identifier: MIT
#include <Wt/WLength>
#include <charconv>
#include <cmath>
#include <cstring>

namespace Wt
{

WLength WLength::Auto;

namespace
{

struct UnitFacts {
  const char *name;
  double pixels; ///< 0: relative to the font
};

const UnitFacts kUnits[] = {
    {"em", 0},           {"ex", 0},           {"px", 1.0},        {"in", 96.0}, {"cm", 96.0 / 2.54},
    {"mm", 96.0 / 25.4}, {"pt", 96.0 / 72.0}, {"pc", 96.0 / 6.0}, {"%", 0},
};
const int kUnitCount = sizeof kUnits / sizeof *kUnits;

} // namespace

WLength::WLength() : auto_(true), unit_(Pixel), value_(-1) {}

WLength::WLength(const char *text) : WLength(std::string(text ? text : "")) {}

WLength::WLength(const std::string &text) : WLength()
{
  const std::size_t begin = text.find_first_not_of(' ');
  if (begin == std::string::npos)
    return;
  double value = 0;
  const char *end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data() + begin, end, value);
  if (error != std::errc() || !std::isfinite(value))
    return;
  std::string unit(rest, end);
  unit.erase(0, unit.find_first_not_of(' '));
  unit.erase(unit.find_last_not_of(' ') + 1);
  for (int i = 0; i < kUnitCount; ++i) {
    if (unit == kUnits[i].name || (unit.empty() && i == Pixel)) {
      auto_ = false;
      unit_ = static_cast<Unit>(i);
      value_ = value;
    }
  }
}

WLength::WLength(int value, Unit unit) : WLength(static_cast<double>(value), unit) {}

WLength::WLength(long value, Unit unit) : WLength(static_cast<double>(value), unit) {}

WLength::WLength(unsigned value, Unit unit) : WLength(static_cast<double>(value), unit) {}

WLength::WLength(unsigned long value, Unit unit) : WLength(static_cast<double>(value), unit) {}

WLength::WLength(double value, Unit unit) : auto_(false), unit_(unit), value_(value) {}

const std::string WLength::cssText() const
{
  if (auto_)
    return "auto";
  char text[400];
  const double rounded = std::round(value_ * 10) / 10;
  const auto [end, error] = std::to_chars(text, text + sizeof text, rounded, std::chars_format::fixed);
  if (error != std::errc() || !std::isfinite(rounded))
    return std::string("0") + kUnits[unit_].name;
  return (rounded == 0 ? std::string("0") : std::string(text, end)) + kUnits[unit_].name;
}

double WLength::toPixels(double fontSize) const
{
  if (auto_)
    return 0;
  switch (unit_) {
  case FontEm:
    return value_ * fontSize;
  case FontEx:
    return value_ * fontSize / 2.0;
  case Percentage:
    return value_ * fontSize / 100.0;
  default:
    return value_ * kUnits[unit_].pixels;
  }
}

bool WLength::operator==(const WLength &other) const
{
  return auto_ == other.auto_ && unit_ == other.unit_ && value_ == other.value_;
}

WLength WLength::operator*(double factor) const
{
  return auto_ ? WLength() : WLength(value_ * factor, unit_);
}

WLength WLength::operator/(double divisor) const
{
  return auto_ ? WLength() : WLength(value_ / divisor, unit_);
}

WLength operator*(double factor, const WLength &length)
{
  return length * factor;
}

} // namespace Wt
