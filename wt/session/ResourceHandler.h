// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_RESOURCE_HANDLER_H_
#define WT_SESSION_RESOURCE_HANDLER_H_

#include "session/SessionHost.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace Wt
{
namespace Engine
{

/// What answers the requests for one resource of a session. Shared by the resource, the session, and the
/// requests under way; it must know by itself when the resource has gone.
class ResourceHandler
{
public:
  virtual ~ResourceHandler() = default;

  /// Answers a request, on a worker thread, with WApplication::instance() set but without the session's lock.
  /// Removes the files that it does not keep.
  virtual void serve(RequestHead head, std::vector<SpooledFile> files, std::uint64_t tooLarge,
                     std::shared_ptr<ResourceResponse> response) = 0;

  /// An upload's progress, told within the session.
  virtual void progress(std::uint64_t /*got*/, std::uint64_t /*total*/) {}

  /// True if serve() is to be called with the session's lock held.
  virtual bool wantsLock() const { return false; }
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_RESOURCE_HANDLER_H_
