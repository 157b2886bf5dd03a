// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_SERVER_LISTENER_H_
#define ZEL_SIM_SERVER_LISTENER_H_

#include <string>

namespace zelsim
{

/// A listening Unix stream socket at `path`, for the owner and the group only; -1 and `problem` on a
/// failure. A socket file that nobody listens on is replaced; one that is in use is a failure.
int listenAt(const std::string &path, std::string &problem);

/// A connection to the socket at `path`, or -1.
int connectTo(const std::string &path);

} // namespace zelsim

#endif // ZEL_SIM_SERVER_LISTENER_H_
