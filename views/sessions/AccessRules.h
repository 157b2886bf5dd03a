// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_ACCESS_RULES_H_
#define VIEWS_SESSIONS_ACCESS_RULES_H_

#include "Info.h"

#include <string>

struct DeviceRecord;

/// What decides whether a device is offered for a new session. Modes that users and devices allow are the
/// store's words.

/// Whether this is one of the words for a mode.
bool AccessRules_isMode(const std::string &allowed);

/// Whether a user or a device that allows this takes part in a session of that mode.
bool AccessRules_admits(Info_AccessMode session, const std::string &allowed);

/// Whether user and device allow nothing in common: one only private sessions, the other only shared ones.
bool AccessRules_clash(const std::string &user, const std::string &device);

/// Whether a device is in service.
bool AccessRules_inService(const DeviceRecord &device);

#endif // VIEWS_SESSIONS_ACCESS_RULES_H_
