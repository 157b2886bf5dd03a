// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_SESSION_WORK_H_
#define WT_SESSION_SESSION_WORK_H_

#include "session/ClientMessage.h"
#include "session/ResourceHandler.h"
#include "session/Transport.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Wt
{
namespace Engine
{

/// A request for a resource, until it is answered: with 404 if nobody else does before it is destroyed.
struct ResourceRequest {
  std::string resourceId;
  RequestHead head;
  std::vector<SpooledFile> files;
  std::uint64_t tooLarge = 0;
  std::shared_ptr<ResourceResponse> response;

  ResourceRequest() = default;
  ~ResourceRequest();
  ResourceRequest(const ResourceRequest &) = delete;
  ResourceRequest &operator=(const ResourceRequest &) = delete;

  void serve(ResourceHandler &handler);
  /// Answers with 404 and removes the files.
  static void refuse(const std::vector<SpooledFile> &files, ResourceResponse &response);
};

/// Tells a page to load itself anew.
extern const char kReloadMessage[];

/// One thing that happens to a session.
struct SessionWork {
  enum Kind { Begin, Attach, Message, Detach, Call, Alarm, Tick, Beat, Request, Progress, FollowUp };

  Kind kind = Call;
  std::uint64_t number = 0; ///< connection, or a timer's ticket
  std::uint64_t seen = 0;   ///< Attach: the last update seen; Detach: 1 if the page left for good
  bool gathered = false;    ///< Tick: has rested already
  std::string text;         ///< Message; Attach: the scheme; Progress: the resource
  std::shared_ptr<Transport> transport;
  std::function<void()> call;
  std::shared_ptr<ResourceRequest> request;
  ClientMessage hello;

  /// The session cannot handle it any more: a page that waits for an answer is told to load itself anew.
  void refuse();
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_SESSION_WORK_H_
