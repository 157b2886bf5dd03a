// SPDX-License-Identifier: MIT
#include "Db.h"
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

// " (37%)". A percentage that can't be read is shown as 0.
std::string upgradePercentage(const char *resource, unsigned int index, Db::Errors &errors)
{
  unsigned int percent = 0;
  Db_db.readUInt32(resource, index, "upgradePercent", percent, errors);
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, " (%u%%)", percent);
  return buffer;
}

// The status of a receiver or a transmitter; `idleText` is its text while it is up and not updating.
std::string deviceText(const char *resource, unsigned int index, Info_DeviceStatus status,
                       Info_DeviceUpgradeStatus upgradeStatus, const Wt::WString &idleText,
                       Db::Errors &errors)
{
  switch (status) {
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
  if (upgradeStatus == Info_DeviceUpgradeStatus_Idle) {
    const bool isResetPending = status == Info_DeviceStatus_ResetPending;
    return isResetPending ? text("Reboot pending").toUTF8() : idleText.toUTF8();
  }
  const std::string upgrade = upgradeText(upgradeStatus).toUTF8();
  if (upgradeStatus != Info_DeviceUpgradeStatus_Upgrading)
    return upgrade;
  return upgrade + upgradePercentage(resource, index, errors);
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

unsigned int Db::getRxOverallStatus(unsigned int rxIndex, std::string &overall, Errors &errors)
{
  auto status = Info_DeviceStatus_Offline;
  auto upgradeStatus = Info_DeviceUpgradeStatus_Idle;
  auto usage = Info_DeviceUsage_Usable;
  bool userIsLoggedIn = false;
  overall = text("Unknown").toUTF8();
  if (getRxStatus(rxIndex, status, upgradeStatus, usage, userIsLoggedIn, errors))
    return 1;
  const Wt::WString idleText = userIsLoggedIn ? text("In use") : readyText(usage);
  overall = deviceText("rx", rxIndex, status, upgradeStatus, idleText, errors);
  return 0;
}

unsigned int Db::getTxOverallStatus(unsigned int txIndex, std::string &overall, Errors &errors)
{
  auto status = Info_DeviceStatus_Offline;
  auto upgradeStatus = Info_DeviceUpgradeStatus_Idle;
  auto usage = Info_DeviceUsage_Usable;
  bool isConnected = false;
  auto mode = static_cast<Info_ConnectionMode>(0);
  overall = text("Unknown").toUTF8();
  if (getTxStatus(txIndex, status, upgradeStatus, usage, isConnected, mode, errors))
    return 1;
  const Wt::WString idleText = isConnected ? connectedText(mode) : readyText(usage);
  overall = deviceText("tx", txIndex, status, upgradeStatus, idleText, errors);
  return 0;
}

unsigned int Db::getSwxOverallStatus(unsigned int swxIndex, std::string &overall, Errors &errors)
{
  auto status = Info_SwxStatus_Offline;
  auto upgradeStatus = Info_DeviceUpgradeStatus_Idle;
  auto usage = Info_SwxUsage_Usable;
  overall = text("Unknown").toUTF8();
  if (getSwxStatus(swxIndex, status, upgradeStatus, usage, errors))
    return 1;
  overall = switchText(status, upgradeStatus, usage).toUTF8();
  return 0;
}
