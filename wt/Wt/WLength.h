// SPDX-License-Identifier: MIT
#ifndef WT_WLENGTH_H_
#define WT_WLENGTH_H_

#include <string>

namespace Wt
{

/// A length of a style sheet; auto by default.
class WLength
{
public:
  enum Unit { FontEm, FontEx, Pixel, Inch, Centimeter, Millimeter, Point, Pica, Percentage };

  static WLength Auto;

  WLength();
  /// From the text of a style sheet, such as "12px" or "50%"; auto if it is none.
  explicit WLength(const std::string &text);
  explicit WLength(const char *text);
  WLength(int value, Unit unit = Pixel);
  WLength(long value, Unit unit = Pixel);
  WLength(unsigned value, Unit unit = Pixel);
  WLength(unsigned long value, Unit unit = Pixel);
  WLength(double value, Unit unit = Pixel);

  bool isAuto() const { return auto_; }
  /// -1 for auto.
  double value() const { return value_; }
  Unit unit() const { return unit_; }
  const std::string cssText() const;
  /// 0 for auto; a percentage is one of the font size.
  double toPixels(double fontSize = 16.0) const;

  bool operator==(const WLength &other) const;
  bool operator!=(const WLength &other) const { return !(*this == other); }
  WLength operator*(double factor) const;
  WLength operator/(double divisor) const;

private:
  bool auto_;
  Unit unit_;
  double value_;
};

WLength operator*(double factor, const WLength &length);

} // namespace Wt

#endif // WT_WLENGTH_H_
