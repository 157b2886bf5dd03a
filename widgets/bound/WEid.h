// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WEID_H_
#define WIDGETS_WEID_H_

#include "WLineEditZel.h"
#include "WValidatedEdit.h"

/// An EID: six letters or digits, a dash, and six more.
class WEid : public WValidatedEdit<WLineEditZel>
{
public:
  WEid(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WEID_H_
