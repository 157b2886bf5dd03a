// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WLINE_EDIT_ZEL_H_
#define WIDGETS_WLINE_EDIT_ZEL_H_

#include "WEditZel.h"
#include "WLineEditPlus.h"

/// A line edit of a text parameter.
class WLineEditZel : public WEditZel<WLineEditPlus, std::string>
{
public:
  WLineEditZel(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

  using WWidgetZel::setContentChanged;
  /// Says whether the content counts as changed by the user; emits nothing.
  virtual void setContentChanged(bool changed);

protected:
  Wt::WString textOf(const std::string &value) const override;
  std::string valueOfText() const override;
};

#endif // WIDGETS_WLINE_EDIT_ZEL_H_
