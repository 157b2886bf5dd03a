// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_CASCADE_ROLE_H_
#define WIDGETS_WTEXT_CASCADE_ROLE_H_

#include "WTextZel.h"

/// Shows the part that a switch plays in a cascade. Switches that differ count as a backup.
/// After a bulk read it shows the store's word instead.
class WTextCascadeRole : public WTextZel
{
public:
  WTextCascadeRole(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

protected:
  Wt::WString textOfRead(const std::string &word) const override;
};

#endif // WIDGETS_WTEXT_CASCADE_ROLE_H_
