// SPDX-License-Identifier: MIT
#ifndef STORE_MONITOR_RECORD_H_
#define STORE_MONITOR_RECORD_H_

#include <optional>
#include <string>
#include <vector>

/// A monitor of the library, as its list shows it.
struct MonitorRecord {
  unsigned int index = 0;
  std::string name;
  std::string description;
  std::string manufacturer; ///< what the monitor's data says of itself, as Db::getEdidInfo() gives it
  std::string productCode;
  std::string typeKey; ///< key of the text for its type
  bool isProtected = false;

  /// All monitors in the store's order. None, as opposed to an empty list, if they cannot be read.
  [[nodiscard]] static std::optional<std::vector<MonitorRecord>> readAll();
};

#endif // STORE_MONITOR_RECORD_H_
