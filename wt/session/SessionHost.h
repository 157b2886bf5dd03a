// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_SESSION_HOST_H_
#define WT_SESSION_SESSION_HOST_H_

#include "session/RequestHead.h"
#include "session/Transport.h"

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace Wt
{
namespace Engine
{

/// A body part that the HTTP side has written to a temporary file of its own.
struct SpooledFile {
  std::string fieldName;
  std::string spoolPath;
  std::string clientFileName;
  std::string contentType;
};

/// The answer to a request for a session's resource, as the resource writes it. Called from a worker thread,
/// which may block in it while the browser is slow. All operations are safe after the browser has gone.
class ResourceResponse
{
public:
  virtual ~ResourceResponse() = default;
  virtual void setStatus(int status) = 0;
  virtual void addHeader(const std::string &name, const std::string &value) = 0;
  virtual void setMimeType(const std::string &mimeType) = 0;
  virtual void setContentLength(std::uint64_t length) = 0;
  /// The body; header fields are sent when it is first used.
  virtual std::ostream &out() = 0;
  /// Ends the response. Without it the destructor does.
  virtual void finish() = 0;
  /// False once the browser has gone.
  virtual bool connected() const = 0;
};

/**
 * What the HTTP side needs of the sessions. Implemented by SessionManager; all operations are called from the
 * network thread, return at once, and are thread safe.
 */
class SessionHost
{
public:
  virtual ~SessionHost() = default;

  /// The small page that an entry point's GET answers with; it loads the runtime, which opens the connection.
  /// Makes no session.
  virtual std::string bootstrapPage(const RequestHead &head) = 0;

  /// A page has opened its connection. The listener lives until its closed() was called.
  virtual std::shared_ptr<TransportListener> connected(const RequestHead &head,
                                                       std::shared_ptr<Transport> transport) = 0;

  /// A request for a resource of a session. Takes everything over; answers by `response` from a worker, with
  /// 404 when session or resource are unknown. For uploads `files` holds the spooled parts, which are removed
  /// by whoever takes them over; `tooLarge` is the body's size when it was over the limit and not read, else
  /// 0.
  virtual void resource(RequestHead head, std::vector<SpooledFile> files, std::uint64_t tooLarge,
                        std::shared_ptr<ResourceResponse> response) = 0;

  /// Whether there is such a session with such a resource, so that a body for it is worth taking in.
  virtual bool hasResource(const RequestHead &head) const = 0;

  /// Progress of an upload that is under way: bytes got of bytes announced.
  virtual void uploadProgress(const RequestHead &head, std::uint64_t got, std::uint64_t total) = 0;

  /// Number of living sessions.
  virtual std::size_t sessionCount() const = 0;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_SESSION_HOST_H_
