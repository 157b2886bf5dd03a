// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_SESSION_CONFIG_H_
#define WT_SESSION_SESSION_CONFIG_H_

#include <Wt/WApplication>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

namespace Wt
{

class WServer;

namespace Engine
{

/// What one page may hold of the server's memory.
struct PageLimits {
  std::size_t queuedMessages;      ///< messages that wait while the session is busy
  std::size_t queuedBytes;         ///< of these
  std::size_t unacknowledgedBytes; ///< updates that the page has not acknowledged
};

/// What all sessions of a server share. Fixed before the first session.
struct SessionConfig {
  std::chrono::seconds timeout{600}; ///< how long a session outlives its connection; negative: for ever
  std::size_t maxSessions = 500;     ///< beyond it a page is told to try again later
  /// Within newSessionsInterval. All people of an office may come from one address, and all at once: after an
  /// outage each page loads itself anew.
  std::size_t maxNewSessionsPerAddress = 600;
  std::chrono::seconds newSessionsInterval{60};
  /// A page is at the door as long as its application shows nothing but dialogs: nobody has let it in yet.
  /// Such pages get little, because anybody can open many of them.
  PageLimits doorPage{200, 128u << 10, 256u << 10};
  PageLimits page{1000, 1u << 20, 2u << 20};
  std::chrono::seconds doorTimeout{10}; ///< how long a page at the door outlives its connection
  std::int64_t maxRequestSize = 128 * 1024;
  WServer *server = nullptr; ///< may be null
  std::string idPrefix;      ///< of the sessions' public names
  std::string scriptVersion; ///< the hash in the runtime script's URL
};

/// One place of the server where pages begin.
struct EntryPoint {
  std::string path;    ///< begins and ends as the router has it, such as "/"
  std::string favicon; ///< may be empty
  ApplicationCreator creator;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_SESSION_CONFIG_H_
