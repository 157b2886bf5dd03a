// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WLINE_EDIT_PLUS_H_
#define WIDGETS_WLINE_EDIT_PLUS_H_

#include "WEditPlus.h"

#include <Wt/WLineEdit>

/// A line edit that tells of an edit while the field still has the focus.
class WLineEditPlus : public WEditPlus<Wt::WLineEdit>
{
public:
  explicit WLineEditPlus(Wt::WContainerWidget *parent = 0);
  explicit WLineEditPlus(const Wt::WString &text, Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WLINE_EDIT_PLUS_H_
