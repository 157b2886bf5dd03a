// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_ALERTS_H_
#define ZEL_SIM_RULES_ALERTS_H_

#include "data/AlertKinds.h"
#include "life/World.h"

#include <string>

namespace zelsim
{

/// Raises an alert now, if its kind is enabled: it goes to the history and to the unacknowledged ones, each
/// of which drops its oldest when full. `first` and `second` fill the text. Returns the instance, or 0.
unsigned raiseAlert(World &world, AlertKind kind, const std::string &originatorEid,
                    const std::string &first = {}, const std::string &second = {});

/// The same, after the request that is under way. Whatever a refused request does is taken back; the alert
/// that tells of the refusal must not be.
void raiseAlertLater(World &world, AlertKind kind, const std::string &originatorEid,
                     const std::string &first = {}, const std::string &second = {});

/// Raises an alert of the past, for a fleet's history. `acknowledged` keeps it out of the other list.
void recordAlert(World &world, AlertKind kind, const std::string &originatorEid, const std::string &message,
                 std::int64_t date, bool acknowledged);

} // namespace zelsim

#endif // ZEL_SIM_RULES_ALERTS_H_
