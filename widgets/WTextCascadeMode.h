// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_CASCADE_MODE_H_
#define WIDGETS_WTEXT_CASCADE_MODE_H_

#include "WTextZel.h"

/// Shows whether a switch is the master of a cascade. Switches that differ count as a slave.
/// After a bulk read it shows the store's word instead.
class WTextCascadeMode : public WTextZel
{
public:
  WTextCascadeMode(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

protected:
  Wt::WString textOfRead(const std::string &word) const override;
};

#endif // WIDGETS_WTEXT_CASCADE_MODE_H_
