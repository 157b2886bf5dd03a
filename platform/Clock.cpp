// SPDX-License-Identifier: MIT
#include "Clock.h"

#include <atomic>

namespace
{

std::atomic<time_t (*)()> sSource{nullptr};

} // namespace

time_t Clock_now()
{
  time_t (*source)() = sSource.load();
  return source ? source() : time(nullptr);
}

void Clock_setSource(time_t (*source)())
{
  sSource.store(source);
}
