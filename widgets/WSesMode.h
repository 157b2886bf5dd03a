// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WSES_MODE_H_
#define WIDGETS_WSES_MODE_H_

#include "WComboBoxPlus.h"

/// The choice between a shared and a private session.
class WSesMode : public WComboBoxPlus
{
public:
  explicit WSesMode(Wt::WContainerWidget *parent = 0);

  /// 1 for a shared session, 2 for a private one.
  int getSelection();
};

#endif // WIDGETS_WSES_MODE_H_
