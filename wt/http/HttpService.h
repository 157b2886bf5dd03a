// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_HTTP_SERVICE_H_
#define WT_HTTP_HTTP_SERVICE_H_

#include "http/AccessLog.h"
#include "http/HostNames.h"
#include "http/LineLimit.h"
#include "http/NetworkLoop.h"
#include "http/Router.h"
#include "http/ScriptAsset.h"
#include "http/StaticFiles.h"
#include "session/SessionHost.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <set>
#include <string>

namespace Wt
{
namespace Net
{

/// How long a peer may take, and how much it may send.
struct HttpLimits {
  std::chrono::seconds head{10}; ///< from its first byte (or the connection's beginning) to the whole head
  std::chrono::seconds body{30}; ///< for a body, and a second more for each `bodyRate` bytes that came
  std::uint64_t bodyRate = 4096;
  std::chrono::seconds keepAlive{15}; ///< between requests
  unsigned uploads = 16;              ///< bodies being received at the same time, one for each session
  std::chrono::seconds greeting{8};   ///< from a WebSocket's opening to its first message
  std::size_t unfinished = 16 << 20;  ///< bytes of messages that are not whole yet, of all pages together
};

/// What all connections of a server share. Network thread only, but for what is atomic.
struct HttpService {
  NetworkLoop &loop;
  Engine::SessionHost &sessions;
  Router router;
  StaticFiles files;
  ScriptAsset script;
  AccessLog accessLog;
  HttpLimits limits;
  std::atomic<std::uint64_t> maximumBody{128 * 1024}; ///< bytes of a request for a resource
  bool behindProxy = false;                           ///< believe X-Forwarded-For and X-Forwarded-Proto
  bool strictTransport = false;                       ///< tell browsers to come by TLS only
  std::set<std::string> uploads;                      ///< sessions of which a body is being received now
  HostNames names;
  LineLimit warnings;         ///< in the log, of what any stranger can bring about
  std::size_t unfinished = 0; ///< bytes of messages that are not whole yet
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_HTTP_SERVICE_H_
