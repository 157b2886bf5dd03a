// SPDX-License-Identifier: MIT
#include "session/Scheduler.h"

#include <ctime>

namespace Wt
{
namespace Engine
{

std::chrono::nanoseconds Scheduler::processorTime() const
{
  timespec used = {};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
  return std::chrono::seconds(used.tv_sec) + std::chrono::nanoseconds(used.tv_nsec);
}

} // namespace Engine
} // namespace Wt
