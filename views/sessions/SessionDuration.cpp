// SPDX-License-Identifier: MIT
#include "SessionDuration.h"

#include "Clock.h"
#include "NevoUtil.h"

std::string SessionDuration_since(unsigned int start)
{
  const unsigned int now = static_cast<unsigned int>(Clock_now());
  // A station's clock may run ahead of this one's.
  return NevoUtil_secsToFormattedTimeString(now > start ? now - start : 0);
}
