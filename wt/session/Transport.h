// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_TRANSPORT_H_
#define WT_SESSION_TRANSPORT_H_

#include <memory>
#include <string>

namespace Wt
{
namespace Engine
{

/// The server's end of one connection to a page: whole text messages, in order, to the browser.
/// All operations may be called from any thread and never block; after the connection is gone they do
/// nothing.
class Transport
{
public:
  virtual ~Transport() = default;

  /// Queues a message. A peer that does not take its messages (too much queued) is dropped by the transport.
  virtual void send(std::string message) = 0;

  /// Closes after what was queued has gone out. `reason` is a short word for the peer.
  virtual void close(const std::string &reason) = 0;
};

/// The session's end: told of what the browser sends. Called one at a time, from the network thread; must not
/// block.
class TransportListener
{
public:
  virtual ~TransportListener() = default;

  /// A whole text message; its size is within the limit for frames, its content is anything.
  virtual void received(std::string message) = 0;

  /// The connection is gone. Last call. `goodbye` is true when the page itself said that it closes for good.
  virtual void closed(bool goodbye) = 0;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_TRANSPORT_H_
