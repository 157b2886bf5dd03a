// SPDX-License-Identifier: MIT
#include "data/AlertKinds.h"

#include <iterator>

namespace zelsim
{

namespace
{

const AlertKindInfo kKinds[] = {
    {"enableAlertSwitchPortsSelfConnected", "error", "Switch ports %1 and %2 are connected to each other."},
    {"enableAlertLoopbackDetectedOnSwitchPort", "error", "Loopback detected on switch port %1."},
    {"enableAlertMoreThanOneMasterSwitch", "error", "More than one master switch detected: %1."},
    {"enableAlertSlaveConnectedToTwoMasterSwitches", "error", "Slave switch %1 is connected to two masters."},
    {"enableAlertConnectedSlaveSwitchHasOtherMaster", "warning",
     "Connected slave switch %1 has another master."},
    {"enableAlertFirmwareUpdateFailed", "error", "Firmware update of %1 failed: %2."},
    {"enableAlertFirmwareUpdateSucceeded", "info", "Firmware update of %1 to version %2 succeeded."},
    {"enableAlertPrivateKvmSessionEstablished", "info", "Private KVM session established: %1 to %2."},
    {"enableAlertSharedKvmSessionEstablished", "info", "Shared KVM session established: %1 to %2."},
    {"enableAlertKvmSessionDisconnected", "info", "KVM session disconnected: %1 from %2."},
    {"enableAlertKvmSessionDisconnectedLinkDown", "warning", "KVM session of %1 ended: link to %2 is down."},
    {"enableAlertKvmSessionConnectionFailure", "warning", "KVM session of %1 to %2 could not be connected."},
    {"enableAlertUserLogin", "info", "User %1 logged in at receiver %2."},
    {"enableAlertFailedUserLogin", "warning", "Failed login of user %1 at receiver %2."},
    {"enableAlertUserAutoLogin", "info", "User %1 was logged in automatically at receiver %2."},
    {"enableAlertUserLogout", "info", "User %1 logged out at receiver %2."},
    {"enableAlertSetupPortAdminLogin", "info", "Administrator %1 logged in at the setup port."},
    {"enableAlertSetupPortFailedAdminLogin", "warning", "Failed administrator login at the setup port."},
    {"enableAlertSetupPortAdminLogout", "info", "Administrator %1 logged out at the setup port."},
    {"enableAlertNevoAdminLogin", "info", "Administrator %1 logged in from %2."},
    {"enableAlertNevoFailedAdminLogin", "warning", "Failed administrator login of %1 from %2."},
    {"enableAlertNevoAdminLogout", "info", "Administrator %1 logged out."},
    {"enableAlertRapAdminLogin", "info", "Administrator %1 logged in by remote access."},
    {"enableAlertRapFailedAdminLogin", "warning", "Failed administrator login by remote access."},
    {"enableAlertRapAdminLogout", "info", "Administrator %1 logged out of remote access."},
    {"enableAlertFanFault", "error", "Fan %1 has failed."},
    {"enableAlertFanFaultCleared", "info", "Fan %1 is running again."},
    {"enableAlertVoltageFault", "error", "Voltage of rail %1 is out of range."},
    {"enableAlertVoltageFaultCleared", "info", "Voltage of rail %1 is back in range."},
    {"enableAlertPowerSupplyFault", "error", "Power supply %1 has failed."},
    {"enableAlertPowerSupplyFaultCleared", "info", "Power supply %1 is working again."},
    {"enableAlertTemperatureFault", "warning", "Temperature at sensor %1 is too high."},
    {"enableAlertTemperatureFaultCleared", "info", "Temperature at sensor %1 is normal again."},
    {"enableAlertSwitchExceedsUnmanagedCapacity", "warning", "Switch %1 exceeds the unmanaged capacity."},
    {"enableAlertReceiverInExceededCapacitySwitch", "warning", "Receiver %1 is in a switch over capacity."},
    {"enableAlertTransmitterInExceededCapacitySwitch", "warning",
     "Transmitter %1 is in a switch over capacity."},
    {"enableAlertDeviceReportedInvalidParameter", "warning", "Device %1 reported an invalid parameter: %2."},
    {"enableAlertSwitchDetectedInvalidParameter", "warning",
     "Switch detected an invalid parameter of %1: %2."},
    {"enableAlertSwitchFirmwareVersionDifference", "warning",
     "Firmware of switch %1 differs from the master's."},
    {"enableAlertSwitchWatchdogReset", "error", "Switch %1 was reset by its watchdog."},
    {"enableAlertDeviceReportedError", "error", "Device %1 reported an error: %2."},
    {"enableAlertDeviceReportedInfo", "info", "Device %1 reports: %2."},
};

static_assert(std::size(kKinds) == static_cast<std::size_t>(AlertKind::DeviceReportedInfo) + 1,
              "one row for each kind");

void fill(std::string &text, const char *place, const std::string &value)
{
  const std::size_t at = text.find(place);
  if (at != std::string::npos)
    text.replace(at, 2, value);
}

} // namespace

const AlertKindInfo &alertKindInfo(AlertKind kind)
{
  return kKinds[static_cast<std::size_t>(kind)];
}

const AlertKindInfo *alertKinds(std::size_t &count)
{
  count = std::size(kKinds);
  return kKinds;
}

std::string alertText(AlertKind kind, const std::string &first, const std::string &second)
{
  std::string text = alertKindInfo(kind).text;
  // The second place first: what fills the first one may itself hold "%2".
  fill(text, "%2", second);
  fill(text, "%1", first);
  return text;
}

} // namespace zelsim
