// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WKEY_CODE_H_
#define WIDGETS_WKEY_CODE_H_

#include "WLineEditUInt32Zel.h"
#include "WValidatedEdit.h"

/// The code of a key, 0 to 255.
class WKeyCode : public WValidatedEdit<WLineEditUInt32Zel>
{
public:
  WKeyCode(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WKEY_CODE_H_
