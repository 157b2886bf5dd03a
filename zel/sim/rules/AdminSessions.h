// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_ADMIN_SESSIONS_H_
#define ZEL_SIM_RULES_ADMIN_SESSIONS_H_

#include "data/Password.h"
#include "life/World.h"

#include <cstdint>

namespace zelsim
{

/// Whether an administrator's session still has its person. Nobody says so: a page that was closed, or an
/// interface that ended, logs nobody out, and a connection that broke is made anew without a word on whose it
/// was.
///
/// So a session whose connection has ended stands for ten minutes more. If by then a connection that nobody
/// logged in over, of the same process, has stood since about the moment of the loss, it is taken for the
/// person's new one, and the session goes on over it. Else the session ends.

void noteClient(World &world, std::uint64_t client, std::int64_t process);
void noteClientGone(World &world, std::uint64_t client);

/// For a start: all connections are those of an earlier run.
void resumeAdminSessions(World &world);

/// What the password of a CREATE of "adminSession" takes to be checked (AdminRules.cpp). False if nothing.
bool passwordWorkOfLogin(const World &world, const json_t *params, PasswordWork &work);

/// Ends the session that is most likely nobody's, if there is no room for one more.
void makeRoomForAdminSession(World &world);

} // namespace zelsim

#endif // ZEL_SIM_RULES_ADMIN_SESSIONS_H_
