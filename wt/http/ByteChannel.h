// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_BYTE_CHANNEL_H_
#define WT_HTTP_BYTE_CHANNEL_H_

#include <cstddef>
#include <string>

namespace Wt
{
namespace Net
{

/// The road from a connection to its peer: a socket, plain or TLS, or a text in memory. Network thread only.
/// None of these calls back into the connection before it returns.
class ByteChannel
{
public:
  virtual ~ByteChannel() = default;

  /// Queues bytes. The connection is told by sent() whenever the queue has become short.
  virtual void send(std::string bytes) = 0;
  /// Bytes queued and not yet taken by the system.
  virtual std::size_t queued() const = 0;
  /// Whether the connection wants to be given bytes; it does at first.
  virtual void setReading(bool reading) = 0;
  /// Sends what is queued, says that no more comes, and closes once the peer has closed or some time has
  /// passed.
  virtual void closeAfterSending() = 0;
  /// Closes at once.
  virtual void abort() = 0;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_BYTE_CHANNEL_H_
