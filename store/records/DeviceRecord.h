// SPDX-License-Identifier: MIT
#ifndef STORE_DEVICE_RECORD_H_
#define STORE_DEVICE_RECORD_H_

#include "DeviceName.h"

/// A device, as the lists of devices show it or choose by it. What is a word is one of the store's.
struct DeviceRecord : DeviceName {
  Info_DeviceType type = Info_DeviceType_None;
  std::string detailedType;
  std::string firmwareVersion;
  std::string status;
  std::string upgradeStatus;
  std::string usage;
  unsigned int upgradePercent = 0; ///< while it takes firmware; 0 for a switch
  std::string modeAllowed;         ///< empty for a switch

  /// All devices of a kind in the store's order, with one request. None, as opposed to an empty list, if they
  /// cannot be read, or for Info_DeviceType_None.
  [[nodiscard]] static std::optional<std::vector<DeviceRecord>> readAll(Info_DeviceType type);
};

#endif // STORE_DEVICE_RECORD_H_
