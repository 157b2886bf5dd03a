// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WHOST_ADDR_H_
#define WIDGETS_WHOST_ADDR_H_

#include "WLineEditZel.h"
#include "WValidatedEdit.h"

/// An IPv4 or IPv6 address, a host name with at least one dot, or nothing.
class WHostAddr : public WValidatedEdit<WLineEditZel>
{
public:
  WHostAddr(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WHOST_ADDR_H_
