// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_CONNECTIONS_H_
#define ZEL_SIM_RULES_CONNECTIONS_H_

#include "life/World.h"

#include <vector>

namespace zelsim
{

/// One KVM session.
struct Connection {
  unsigned index;
  unsigned rx;
  unsigned tx;
  bool isPrivate;
};

/// All of them, for rules that look at many: one pass over the records, without a search for each value.
std::vector<Connection> connectionsOf(const World &world);

} // namespace zelsim

#endif // ZEL_SIM_RULES_CONNECTIONS_H_
