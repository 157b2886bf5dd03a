// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WIP_ADDR_H_
#define WIDGETS_WIP_ADDR_H_

#include "WLineEditZel.h"
#include "WValidatedEdit.h"

/// An IPv4 or IPv6 address, or nothing.
class WIpAddr : public WValidatedEdit<WLineEditZel>
{
public:
  WIpAddr(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WIP_ADDR_H_
