// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_NETWORK_LOOP_H_
#define WT_HTTP_NETWORK_LOOP_H_

#include <chrono>
#include <functional>

namespace Wt
{
namespace Net
{

/// The network thread as its connections see it; tests drive one by hand.
class NetworkLoop
{
public:
  using TimePoint = std::chrono::steady_clock::time_point;

  virtual ~NetworkLoop() = default;

  /// Runs the function on the network thread, after what it is doing. From any thread.
  virtual void post(std::function<void()> function) = 0;
  virtual TimePoint now() const = 0;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_NETWORK_LOOP_H_
