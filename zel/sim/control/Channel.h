// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_CONTROL_CHANNEL_H_
#define ZEL_SIM_CONTROL_CHANNEL_H_

#include "control/Commands.h"

#include <string>
#include <vector>

namespace zelsim
{

/// Sends a command to the store whose control socket is at `path` and waits for its outcome. False if no
/// store answers there.
bool sendCommand(const std::string &path, const std::vector<std::string> &words, Outcome &outcome);

} // namespace zelsim

#endif // ZEL_SIM_CONTROL_CHANNEL_H_
