// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_ADMIN_SESSIONS_H_
#define ZEL_SIM_RULES_ADMIN_SESSIONS_H_

#include "life/World.h"

#include <cstdint>

namespace zelsim
{

/// A connection has ended: the administrators' sessions that came through it end ten minutes later. Client
/// 0 stands for the connections of an earlier run.
void endSessionsOfClient(World &world, std::uint64_t client);

} // namespace zelsim

#endif // ZEL_SIM_RULES_ADMIN_SESSIONS_H_
