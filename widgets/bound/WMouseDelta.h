// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WMOUSE_DELTA_H_
#define WIDGETS_WMOUSE_DELTA_H_

#include "WLineEditUInt32Zel.h"
#include "WValidatedEdit.h"

/// A distance that the mouse moves, 0 to 127.
class WMouseDelta : public WValidatedEdit<WLineEditUInt32Zel>
{
public:
  WMouseDelta(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WMOUSE_DELTA_H_
