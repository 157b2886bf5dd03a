// SPDX-License-Identifier: MIT
#ifndef STORE_USER_SESSION_RECORD_H_
#define STORE_USER_SESSION_RECORD_H_

#include <optional>
#include <vector>

/// A login at a receiver.
struct UserSessionRecord {
  unsigned int index = 0;
  unsigned int rxIndex = 0;
  unsigned int userIndex = 0;
  unsigned int startTime = 0; ///< seconds since 1970

  /// All logins in the store's order. None, as opposed to an empty list, if they cannot be read.
  [[nodiscard]] static std::optional<std::vector<UserSessionRecord>> readAll();
  /// The same without their users, which is the request of the dashboard.
  [[nodiscard]] static std::optional<std::vector<UserSessionRecord>> readWithoutUsers();
};

#endif // STORE_USER_SESSION_RECORD_H_
