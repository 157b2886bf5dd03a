// SPDX-License-Identifier: MIT
#include "Convert.h"

#include <cstddef>
#include <cstring>

namespace
{

template <typename Enum> struct Word {
  const char *word;
  Enum value;
};

constexpr Word<Info_DeviceStatus> kDeviceStatuses[] = {
    {"offline", Info_DeviceStatus_Offline},
    {"configuring", Info_DeviceStatus_Configuring},
    {"ready", Info_DeviceStatus_Ready},
    {"reset_pending", Info_DeviceStatus_ResetPending},
    {"in_recovery", Info_DeviceStatus_InRecovery},
};

constexpr Word<Info_DeviceUsage> kDeviceUsages[] = {
    {"usable", Info_DeviceUsage_Usable},
    {"not_usable_swx_capacity", Info_DeviceUsage_NotUsableSwxCapacity},
    {"not_usable_swx_maintenance", Info_DeviceUsage_NotUsableSwxMaintenance},
};

constexpr Word<Info_DeviceUpgradeStatus> kDeviceUpgradeStatuses[] = {
    {"idle", Info_DeviceUpgradeStatus_Idle},
    {"upgrading", Info_DeviceUpgradeStatus_Upgrading},
    {"failed", Info_DeviceUpgradeStatus_Failed},
    {"failed_file_get", Info_DeviceUpgradeStatus_FailedFileGet},
    {"failed_file_content", Info_DeviceUpgradeStatus_FailedFileContent},
    {"failed_dev_type", Info_DeviceUpgradeStatus_FailedDevType},
    {"failed_file_push", Info_DeviceUpgradeStatus_FailedFilePush},
    {"failed_flash", Info_DeviceUpgradeStatus_FailedFlash},
    {"complete", Info_DeviceUpgradeStatus_Complete},
};

constexpr Word<Info_SwxStatus> kSwxStatuses[] = {
    {"offline", Info_SwxStatus_Offline},
    {"dc_connected", Info_SwxStatus_DcConnected},
    {"conflict_is_master", Info_SwxStatus_ConflictIsMaster},
    {"conflict_other_master", Info_SwxStatus_ConflictOtherMaster},
    {"isc_failure", Info_SwxStatus_IscFailure},
    {"ready", Info_SwxStatus_Ready},
    {"resetting", Info_SwxStatus_Resetting},
};

constexpr Word<Info_SwxUsage> kSwxUsages[] = {
    {"usable", Info_SwxUsage_Usable},
    {"exceeds_unmanaged_capacity", Info_SwxUsage_ExceedsUnmanagedCapacity},
    {"maintenance", Info_SwxUsage_Maintenance},
};

constexpr Word<Info_FunctionKey> kFunctionKeys[] = {
    {"none", Info_FunctionKey_None}, {"f1", Info_FunctionKey_F1},   {"f2", Info_FunctionKey_F2},
    {"f3", Info_FunctionKey_F3},     {"f4", Info_FunctionKey_F4},   {"f5", Info_FunctionKey_F5},
    {"f6", Info_FunctionKey_F6},     {"f7", Info_FunctionKey_F7},   {"f8", Info_FunctionKey_F8},
    {"f9", Info_FunctionKey_F9},     {"f10", Info_FunctionKey_F10}, {"f11", Info_FunctionKey_F11},
    {"f12", Info_FunctionKey_F12},
};

constexpr Word<Info_OsdCommonAction> kOsdCommonActions[] = {
    {"none", Info_OsdCommonAction_None},
    {"connect_last_target", Info_OsdCommonAction_ConnectLastTarget},
    {"connect_previous_target", Info_OsdCommonAction_ConnectPreviousTarget},
    {"connect_next_target", Info_OsdCommonAction_ConnectNextTarget},
    {"connect_to_target_x", Info_OsdCommonAction_ConnectToTargetX},
    {"logout_and_disconnect", Info_OsdCommonAction_LogoutAndDisconnect},
    {"enumerate_keyboard", Info_OsdCommonAction_EnumerateKeyboard},
    {"enumerate_mouse", Info_OsdCommonAction_EnumerateMouse},
    {"enumerate_keyboard_and_mouse", Info_OsdCommonAction_EnumerateKeyboardAndMouse},
    {"enumerate_all_usb_devices", Info_OsdCommonAction_EnumerateAllUsbDevices},
};

constexpr Word<Info_WakeOnConnectAction> kWakeOnConnectActions[] = {
    {"none", Info_WakeOnConnectAction_None},
    {"keypress", Info_WakeOnConnectAction_Keypress},
    {"mouse_move", Info_WakeOnConnectAction_MouseMove},
};

constexpr Word<Info_AccessMode> kAccessModes[] = {
    {"share_mode", Info_AccessMode_Share},
    {"private_mode", Info_AccessMode_Private},
    {"share_or_private_mode", Info_AccessMode_ShareOrPrivate},
};

template <typename Enum, std::size_t Count>
Enum valueOf(const Word<Enum> (&table)[Count], const char *word, Enum unknown)
{
  for (const Word<Enum> &row : table) {
    if (word && std::strcmp(row.word, word) == 0)
      return row.value;
  }
  return unknown;
}

template <typename Enum, std::size_t Count>
const char *wordOf(const Word<Enum> (&table)[Count], Enum value, const char *unknown)
{
  for (const Word<Enum> &row : table) {
    if (row.value == value)
      return row.word;
  }
  return unknown;
}

} // namespace

Info_DeviceStatus Convert_deviceStatusStringToEnum(const char *word)
{
  return valueOf(kDeviceStatuses, word, Info_DeviceStatus_Offline);
}

Info_DeviceUsage Convert_deviceUsageStringToEnum(const char *word)
{
  return valueOf(kDeviceUsages, word, Info_DeviceUsage_Usable);
}

Info_DeviceUpgradeStatus Convert_deviceUpgradeStatusStringToEnum(const char *word)
{
  return valueOf(kDeviceUpgradeStatuses, word, Info_DeviceUpgradeStatus_Idle);
}

Info_SwxStatus Convert_swxStatusStringToEnum(const char *word)
{
  return valueOf(kSwxStatuses, word, Info_SwxStatus_Offline);
}

Info_SwxUsage Convert_swxUsageStringToEnum(const char *word)
{
  return valueOf(kSwxUsages, word, Info_SwxUsage_Usable);
}

Info_FunctionKey Convert_functionKeyStringToEnum(const char *word)
{
  return valueOf(kFunctionKeys, word, Info_FunctionKey_None);
}

Info_OsdCommonAction Convert_osdCommonActionStringToEnum(const char *word)
{
  return valueOf(kOsdCommonActions, word, Info_OsdCommonAction_None);
}

Info_WakeOnConnectAction Convert_wakeOnConnectActionStringToEnum(const char *word)
{
  return valueOf(kWakeOnConnectActions, word, Info_WakeOnConnectAction_None);
}

Info_AccessMode Convert_accessModeDbStringToEnum(const std::string &word)
{
  return valueOf(kAccessModes, word.c_str(), Info_AccessMode_ShareOrPrivate);
}

const char *Convert_functionKeyEnumToZelString(Info_FunctionKey key)
{
  return wordOf(kFunctionKeys, key, "none");
}

std::string Convert_osdCommonActionEnumToZelString(Info_OsdCommonAction action)
{
  return wordOf(kOsdCommonActions, action, "");
}
