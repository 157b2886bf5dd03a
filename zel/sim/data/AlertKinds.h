// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_ALERT_KINDS_H_
#define ZEL_SIM_DATA_ALERT_KINDS_H_

#include <cstddef>
#include <string>

namespace zelsim
{

/// The kinds of alert, in the order of the table of kinds.
enum class AlertKind {
  SwitchPortsSelfConnected,
  LoopbackDetectedOnSwitchPort,
  MoreThanOneMasterSwitch,
  SlaveConnectedToTwoMasterSwitches,
  ConnectedSlaveSwitchHasOtherMaster,
  FirmwareUpdateFailed,
  FirmwareUpdateSucceeded,
  PrivateKvmSessionEstablished,
  SharedKvmSessionEstablished,
  KvmSessionDisconnected,
  KvmSessionDisconnectedLinkDown,
  KvmSessionConnectionFailure,
  UserLogin,
  FailedUserLogin,
  UserAutoLogin,
  UserLogout,
  SetupPortAdminLogin,
  SetupPortFailedAdminLogin,
  SetupPortAdminLogout,
  NevoAdminLogin,
  NevoFailedAdminLogin,
  NevoAdminLogout,
  RapAdminLogin,
  RapFailedAdminLogin,
  RapAdminLogout,
  FanFault,
  FanFaultCleared,
  VoltageFault,
  VoltageFaultCleared,
  PowerSupplyFault,
  PowerSupplyFaultCleared,
  TemperatureFault,
  TemperatureFaultCleared,
  SwitchExceedsUnmanagedCapacity,
  ReceiverInExceededCapacitySwitch,
  TransmitterInExceededCapacitySwitch,
  DeviceReportedInvalidParameter,
  SwitchDetectedInvalidParameter,
  SwitchFirmwareVersionDifference,
  SwitchWatchdogReset,
  DeviceReportedError,
  DeviceReportedInfo
};

/// One kind of alert: the parameter that enables it, its severity word and its text, in which "%1" and
/// "%2" stand for what the one that raises it tells.
struct AlertKindInfo {
  const char *enable;
  const char *severity;
  const char *text;
};

/// The facts of a kind, static.
const AlertKindInfo &alertKindInfo(AlertKind kind);

/// The table of all kinds, static.
const AlertKindInfo *alertKinds(std::size_t &count);

/// The text of an alert with its two places filled.
std::string alertText(AlertKind kind, const std::string &first, const std::string &second);

} // namespace zelsim

#endif // ZEL_SIM_DATA_ALERT_KINDS_H_
