// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_AREA_ZEL_H_
#define WIDGETS_WTEXT_AREA_ZEL_H_

#include "WEditZel.h"
#include "WTextAreaPlus.h"

/// A text area of a text parameter.
class WTextAreaZel : public WEditZel<WTextAreaPlus, std::string>
{
public:
  WTextAreaZel(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

  /// How many characters the browser lets the user type.
  void setMaxLength(unsigned int characters);

protected:
  Wt::WString textOf(const std::string &value) const override;
  std::string valueOfText() const override;

private:
  unsigned int maxLength;
};

#endif // WIDGETS_WTEXT_AREA_ZEL_H_
