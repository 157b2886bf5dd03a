// SPDX-License-Identifier: MIT
#ifndef PLATFORM_CLOCK_H_
#define PLATFORM_CLOCK_H_

#include <ctime>

/// The time by which lockouts, idle logouts and durations are measured, in seconds since the epoch.
time_t Clock_now();

/// Replaces where Clock_now takes the time from; null brings the system's clock back. The function may be
/// called from any thread.
void Clock_setSource(time_t (*source)());

#endif // PLATFORM_CLOCK_H_
