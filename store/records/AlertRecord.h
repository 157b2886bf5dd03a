// SPDX-License-Identifier: MIT
#ifndef STORE_ALERT_RECORD_H_
#define STORE_ALERT_RECORD_H_

#include <optional>
#include <string>
#include <vector>

/// One alert, as the store's lists of unacknowledged and of past alerts give it.
struct AlertRecord {
  unsigned int instanceId = 0;
  long date = 0; ///< seconds since 1970
  std::string severity;
  std::optional<std::string> originatorEid; ///< missing in a record that is not whole
  std::string message;

  /// The alerts that nobody has acknowledged, or those of the past, in the store's order. None, as opposed to
  /// an empty list, if they cannot be read.
  [[nodiscard]] static std::optional<std::vector<AlertRecord>> readUnacknowledged();
  [[nodiscard]] static std::optional<std::vector<AlertRecord>> readHistory();

  /// The date in local time, at most 63 characters.
  std::string dateText() const;
  /// The word for the severity that people read.
  std::string severityText() const;
};

#endif // STORE_ALERT_RECORD_H_
