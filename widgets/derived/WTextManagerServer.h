// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_MANAGER_SERVER_H_
#define WIDGETS_WTEXT_MANAGER_SERVER_H_

#include "WTextZel.h"

/// Shows which of the managers a parameter designates.
/// After a bulk read it shows the store's word instead.
class WTextManagerServer : public WTextZel
{
public:
  using WTextZel::WTextZel;

protected:
  Wt::WString textOfRead(const std::string &word) const override;
};

#endif // WIDGETS_WTEXT_MANAGER_SERVER_H_
