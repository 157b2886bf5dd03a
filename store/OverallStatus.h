// SPDX-License-Identifier: MIT
#ifndef STORE_OVERALL_STATUS_H_
#define STORE_OVERALL_STATUS_H_

#include "Info.h"

#include <string>

/// The status of a device as one text for people, worked out of what the store tells of it.

/// Of a receiver or a transmitter.
struct DeviceState {
  Info_DeviceStatus status = Info_DeviceStatus_Offline;
  Info_DeviceUpgradeStatus upgradeStatus = Info_DeviceUpgradeStatus_Idle;
  Info_DeviceUsage usage = Info_DeviceUsage_Usable;
  unsigned int upgradePercent = 0;
};

/// Whether the text has the percentage in it.
bool OverallStatus_tellsPercentage(Info_DeviceStatus status, Info_DeviceUpgradeStatus upgradeStatus);

std::string OverallStatus_ofReceiver(const DeviceState &state, bool userIsLoggedIn);
/// `mode` counts while it is connected.
std::string OverallStatus_ofTransmitter(const DeviceState &state, bool isConnected, Info_ConnectionMode mode);
std::string OverallStatus_ofSwitch(Info_SwxStatus status, Info_DeviceUpgradeStatus upgradeStatus,
                                   Info_SwxUsage usage);

#endif // STORE_OVERALL_STATUS_H_
