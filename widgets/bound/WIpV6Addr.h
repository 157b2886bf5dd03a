// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WIP_V6_ADDR_H_
#define WIDGETS_WIP_V6_ADDR_H_

#include "WLineEditZel.h"
#include "WValidatedEdit.h"

/// An IPv6 address.
class WIpV6Addr : public WValidatedEdit<WLineEditZel>
{
public:
  WIpV6Addr(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WIP_V6_ADDR_H_
