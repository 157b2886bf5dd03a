// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WIP_V4_ADDR_H_
#define WIDGETS_WIP_V4_ADDR_H_

#include "WLineEditZel.h"
#include "WValidatedEdit.h"

/// An IPv4 address.
class WIpV4Addr : public WValidatedEdit<WLineEditZel>
{
public:
  WIpV4Addr(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WIP_V4_ADDR_H_
