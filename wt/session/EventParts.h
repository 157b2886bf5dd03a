// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_EVENT_PARTS_H_
#define WT_SESSION_EVENT_PARTS_H_

#include <deque>
#include <functional>

namespace Wt
{
namespace Engine
{

/// What one event consists of, in order: a message of the page may tell several things at once. A part that
/// waits for the next event lets the rest run first.
class EventParts
{
public:
  void add(std::function<void()> part) { parts_.push_back(std::move(part)); }
  void clear() { parts_.clear(); }

  void run()
  {
    while (!parts_.empty()) {
      const auto part = std::move(parts_.front());
      parts_.pop_front();
      part();
    }
  }

private:
  std::deque<std::function<void()>> parts_;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_EVENT_PARTS_H_
