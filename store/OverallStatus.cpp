// SPDX-License-Identifier: MIT
#include "OverallStatus.h"

#include "Text.h"

#include <cstdio>

namespace
{

struct UpgradeText {
  Info_DeviceUpgradeStatus status;
  const char *key;
};

// What each state but "idle" is to a reader. Where the percentage is known, it follows "upgrading".
constexpr UpgradeText kUpgradeTexts[] = {
    {Info_DeviceUpgradeStatus_Upgrading, "[RSnnn]Updating firmware"},
    {Info_DeviceUpgradeStatus_Failed, "[RSnnn]Firmware update failed"},
    {Info_DeviceUpgradeStatus_FailedFileGet, "[RSnnn]Firmware update failed - file transfer"},
    {Info_DeviceUpgradeStatus_FailedFileContent, "[RSnnn]Firmware update failed - bad file"},
    {Info_DeviceUpgradeStatus_FailedDevType, "[RSnnn]Firmware update failed - incorrect file"},
    {Info_DeviceUpgradeStatus_FailedFilePush, "[RSnnn]Firmware update failed - target communication"},
    {Info_DeviceUpgradeStatus_FailedFlash, "[RSnnn]Firmware update failed - reflash"},
    {Info_DeviceUpgradeStatus_Complete, "[RSnnn]Firmware updated, needs reboot"},
};

Wt::WString upgradeText(Info_DeviceUpgradeStatus status)
{
  for (const UpgradeText &row : kUpgradeTexts) {
    if (row.status == status)
      return Wt::WString::tr(row.key);
  }
  return text("Unknown");
}

// " (37%)"
std::string percentage(unsigned int percent)
{
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, " (%u%%)", percent);
  return buffer;
}

// The status of a receiver or a transmitter; `idleText` is its text while it is up and not updating.
std::string deviceText(const DeviceState &state, const Wt::WString &idleText)
{
  switch (state.status) {
  case Info_DeviceStatus_Offline:
    return text("Offline").toUTF8();
  case Info_DeviceStatus_Configuring:
    return text("Configuring").toUTF8();
  case Info_DeviceStatus_InRecovery:
    return text("In recovery").toUTF8();
  case Info_DeviceStatus_Ready:
  case Info_DeviceStatus_ResetPending:
    break;
  default:
    return text("Unknown").toUTF8();
  }
  if (state.upgradeStatus == Info_DeviceUpgradeStatus_Idle) {
    const bool isResetPending = state.status == Info_DeviceStatus_ResetPending;
    return isResetPending ? text("Reboot pending").toUTF8() : idleText.toUTF8();
  }
  const std::string upgrade = upgradeText(state.upgradeStatus).toUTF8();
  return OverallStatus_tellsPercentage(state.status, state.upgradeStatus)
             ? upgrade + percentage(state.upgradePercent)
             : upgrade;
}

Wt::WString readyText(Info_DeviceUsage usage)
{
  return usage == Info_DeviceUsage_NotUsableSwxCapacity ? text("ReadyInSwitchExceedingCapacity")
                                                        : text("Ready");
}

Wt::WString connectedText(Info_ConnectionMode mode)
{
  switch (mode) {
  case Info_ConnectionMode_Share:
    return text("In use (shared)");
  case Info_ConnectionMode_Private:
    return text("In use (private)");
  }
  return text("In use");
}

Wt::WString switchText(Info_SwxStatus status, Info_DeviceUpgradeStatus upgradeStatus, Info_SwxUsage usage)
{
  const bool exceedsCapacity = usage == Info_SwxUsage_ExceedsUnmanagedCapacity;
  switch (status) {
  case Info_SwxStatus_Offline:
    return exceedsCapacity ? text("OfflineExceedsUnmanagedCapacity") : text("Offline");
  case Info_SwxStatus_DcConnected:
    return text("Connected");
  case Info_SwxStatus_ConflictIsMaster:
    return text("Conflict (Mode is Master)");
  case Info_SwxStatus_ConflictOtherMaster:
    return text("Conflict (another Switch is Master)");
  case Info_SwxStatus_IscFailure:
    return text("Network communication error");
  case Info_SwxStatus_Ready:
    if (upgradeStatus != Info_DeviceUpgradeStatus_Idle)
      return upgradeText(upgradeStatus);
    return exceedsCapacity ? text("ReadyExceedsUnmanagedCapacity") : text("Ready");
  case Info_SwxStatus_Resetting:
    return text("Resetting");
  }
  return text("Unknown");
}

} // namespace

bool OverallStatus_tellsPercentage(Info_DeviceStatus status, Info_DeviceUpgradeStatus upgradeStatus)
{
  return (status == Info_DeviceStatus_Ready || status == Info_DeviceStatus_ResetPending) &&
         upgradeStatus == Info_DeviceUpgradeStatus_Upgrading;
}

std::string OverallStatus_ofReceiver(const DeviceState &state, bool userIsLoggedIn)
{
  return deviceText(state, userIsLoggedIn ? text("In use") : readyText(state.usage));
}

std::string OverallStatus_ofTransmitter(const DeviceState &state, bool isConnected, Info_ConnectionMode mode)
{
  return deviceText(state, isConnected ? connectedText(mode) : readyText(state.usage));
}

std::string OverallStatus_ofSwitch(Info_SwxStatus status, Info_DeviceUpgradeStatus upgradeStatus,
                                   Info_SwxUsage usage)
{
  return switchText(status, upgradeStatus, usage).toUTF8();
}
