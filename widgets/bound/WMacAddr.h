// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WMAC_ADDR_H_
#define WIDGETS_WMAC_ADDR_H_

#include "WLineEditZel.h"
#include "WValidatedEdit.h"

/// A MAC address of six or eight groups, with colons or with dashes, or nothing.
class WMacAddr : public WValidatedEdit<WLineEditZel>
{
public:
  WMacAddr(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WMAC_ADDR_H_
