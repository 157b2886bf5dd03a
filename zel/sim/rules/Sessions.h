// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_SESSIONS_H_
#define ZEL_SIM_RULES_SESSIONS_H_

#include "rules/Device.h"

#include <string>

namespace zelsim
{

/// How a KVM session came to its end.
enum class Ending { Disconnected, LinkDown };

/// Most receivers that share one transmitter.
constexpr unsigned kMostSharers = 8;

/// Whether the user may be logged in at the receiver now.
Problem mayLogIn(const World &world, unsigned userIndex, unsigned rxIndex);

/// Whether the receiver may be connected to the transmitter now, under the user who is logged in at it.
/// `mode` is "share_mode" or "private_mode".
Problem mayConnect(const World &world, unsigned rxIndex, unsigned txIndex, const std::string &mode);

/// Fills a new record of "userSession" or "connection" that holds the indexes, and tells the alerts.
/// `automatic` is for a login that a receiver does by itself.
void beginUserSession(World &world, unsigned sessionIndex, bool automatic);
void beginConnection(World &world, unsigned connectionIndex);

/// Make such a record. Return its index, or 0 if that is not possible.
unsigned logIn(World &world, unsigned userIndex, unsigned rxIndex, bool automatic);
unsigned connect(World &world, unsigned rxIndex, unsigned txIndex, const std::string &mode);

/// Removes a connection.
void disconnect(World &world, unsigned connectionIndex, Ending ending);

/// What has to happen before a "userSession" or "connection" record goes: alerts, the receiver's connections.
void endUserSession(World &world, unsigned sessionIndex, Ending ending);
void endConnection(World &world, unsigned connectionIndex, Ending ending);

/// Ends everything that a device takes part in.
void endSessionsOf(World &world, const Device &device, Ending ending);

/// The name that people know a user by.
std::string userLabel(const World &world, unsigned userIndex);

} // namespace zelsim

#endif // ZEL_SIM_RULES_SESSIONS_H_
