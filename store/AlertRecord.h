// SPDX-License-Identifier: MIT
#ifndef STORE_ALERT_RECORD_H_
#define STORE_ALERT_RECORD_H_

#include <jansson.h>
#include <optional>
#include <string>
#include <vector>

/// One alert, as the store's lists of unacknowledged and of past alerts give it.
struct AlertRecord {
  /// What to select of either list; the instance comes all the same.
  static const char *const kSelect;

  unsigned int instanceId = 0;
  long date = 0; // seconds since 1970
  std::string severity;
  std::optional<std::string> originatorEid; // missing in a record that is not whole
  std::string message;

  /// The alerts of a response, in its order.
  static std::vector<AlertRecord> readAll(const json_t *response);

  /// The date in local time, at most 63 characters.
  std::string dateText() const;
  /// The word for the severity that people read.
  std::string severityText() const;
};

#endif // STORE_ALERT_RECORD_H_
