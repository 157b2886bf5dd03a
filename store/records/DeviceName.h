// SPDX-License-Identifier: MIT
#ifndef STORE_DEVICE_NAME_H_
#define STORE_DEVICE_NAME_H_

#include "Info.h"

#include <optional>
#include <string>
#include <vector>

/// What people know a receiver, a transmitter or a switch by. Each kind has indexes of its own.
struct DeviceName {
  unsigned int index = 0;
  std::string eid;
  std::string name;

  /// All devices of a kind in the store's order. None, as opposed to an empty list, if they cannot be read,
  /// or for Info_DeviceType_None.
  [[nodiscard]] static std::optional<std::vector<DeviceName>> readAll(Info_DeviceType type);

  /// The name, or "EID - " and the EID for a device without a name.
  std::string nameOrEid() const { return name.empty() ? "EID - " + eid : name; }
};

#endif // STORE_DEVICE_NAME_H_
