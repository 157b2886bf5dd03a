// SPDX-License-Identifier: MIT
#ifndef STORE_USER_RECORD_H_
#define STORE_USER_RECORD_H_

#include "Info.h"

#include <optional>
#include <string>
#include <vector>

/// A user account.
struct UserRecord {
  unsigned int index = 0;
  std::string name;
  std::string managerName; ///< what an external manager calls a user that it owns
  std::string fullName;
  Info_UserRole role = static_cast<Info_UserRole>(0);
  Info_AccessMode modeAllowed = static_cast<Info_AccessMode>(0);

  /// All users in the store's order, with what the list of users shows: everything but the allowed mode.
  /// None, as opposed to an empty list, if they cannot be read.
  [[nodiscard]] static std::optional<std::vector<UserRecord>> readAll();
  /// The same with names and allowed mode only.
  [[nodiscard]] static std::optional<std::vector<UserRecord>> readWithAllowedMode();

  /// The name, or the manager's one for a user without.
  const std::string &shownName() const { return name.empty() ? managerName : name; }
};

#endif // STORE_USER_RECORD_H_
