// SPDX-License-Identifier: MIT
#ifndef STORE_CONNECTION_RECORD_H_
#define STORE_CONNECTION_RECORD_H_

#include "Info.h"

#include <optional>
#include <string>
#include <vector>

/// A KVM session: a receiver that is connected to a transmitter.
struct ConnectionRecord {
  unsigned int index = 0;
  unsigned int rxIndex = 0;
  unsigned int txIndex = 0;
  Info_ConnectionMode mode = static_cast<Info_ConnectionMode>(0); ///< 0 for a word that is not known
  unsigned int startTime = 0;                                     ///< seconds since 1970

  /// All sessions in the store's order. None, as opposed to an empty list, if they cannot be read.
  [[nodiscard]] static std::optional<std::vector<ConnectionRecord>> readAll();
  /// The same by a request for these values only, which is the one of the dashboard.
  [[nodiscard]] static std::optional<std::vector<ConnectionRecord>> readSelected();

  /// The text for the mode, "Unknown" for one that is not known.
  std::string modeText() const;
};

#endif // STORE_CONNECTION_RECORD_H_
