// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_LINE_BUDGET_H_
#define WT_SESSION_LINE_BUDGET_H_

#include "session/Scheduler.h"

#include <string>
#include <string_view>

namespace Wt
{
namespace Engine
{

/// Log lines that a page can cause as often as it likes: some in a minute are written, of the others the
/// number. Not thread safe.
class LineBudget
{
public:
  /// Writes the line as information, or counts it.
  void write(const std::string &line, Scheduler::TimePoint now);

  /// A text of the browser's own, no longer than a name has to be.
  static std::string cut(std::string_view text);

private:
  Scheduler::TimePoint minute_{};
  unsigned written_ = 0;
  unsigned left_ = 0; ///< not written in this minute
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_LINE_BUDGET_H_
