// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_AREA_PLUS_H_
#define WIDGETS_WTEXT_AREA_PLUS_H_

#include "WEditPlus.h"

#include <Wt/WTextArea>

/// A text area that tells of an edit while the field still has the focus.
class WTextAreaPlus : public WEditPlus<Wt::WTextArea>
{
public:
  explicit WTextAreaPlus(Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WTEXT_AREA_PLUS_H_
