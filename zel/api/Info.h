// SPDX-License-Identifier: MIT
#ifndef ZEL_API_INFO_H_
#define ZEL_API_INFO_H_

/// The store's enumerations. The comment beside a value is the word that the store uses for it.

typedef enum {
  Info_DeviceStatus_Offline = 1,      // "offline"
  Info_DeviceStatus_Configuring = 2,  // "configuring"
  Info_DeviceStatus_Ready = 3,        // "ready"
  Info_DeviceStatus_ResetPending = 4, // "reset_pending"
  Info_DeviceStatus_InRecovery = 5    // "in_recovery"
} Info_DeviceStatus;

typedef enum {
  Info_DeviceUsage_Usable = 1,                 // "usable"
  Info_DeviceUsage_NotUsableSwxCapacity = 2,   // "not_usable_swx_capacity"
  Info_DeviceUsage_NotUsableSwxMaintenance = 3 // "not_usable_swx_maintenance"
} Info_DeviceUsage;

typedef enum {
  Info_DeviceUpgradeStatus_Idle = 1,              // "idle"
  Info_DeviceUpgradeStatus_Upgrading = 2,         // "upgrading"
  Info_DeviceUpgradeStatus_Failed = 3,            // "failed"
  Info_DeviceUpgradeStatus_FailedFileGet = 4,     // "failed_file_get"
  Info_DeviceUpgradeStatus_FailedFileContent = 5, // "failed_file_content"
  Info_DeviceUpgradeStatus_FailedDevType = 6,     // "failed_dev_type"
  Info_DeviceUpgradeStatus_FailedFilePush = 7,    // "failed_file_push"
  Info_DeviceUpgradeStatus_FailedFlash = 8,       // "failed_flash"
  Info_DeviceUpgradeStatus_Complete = 9           // "complete"
} Info_DeviceUpgradeStatus;

typedef enum {
  Info_SwxStatus_Offline = 1,             // "offline"
  Info_SwxStatus_DcConnected = 2,         // "dc_connected"
  Info_SwxStatus_ConflictIsMaster = 3,    // "conflict_is_master"
  Info_SwxStatus_ConflictOtherMaster = 4, // "conflict_other_master"
  Info_SwxStatus_IscFailure = 5,          // "isc_failure"
  Info_SwxStatus_Ready = 6,               // "ready"
  Info_SwxStatus_Resetting = 7            // "resetting"
} Info_SwxStatus;

typedef enum {
  Info_SwxUsage_Usable = 1,                   // "usable"
  Info_SwxUsage_ExceedsUnmanagedCapacity = 2, // "exceeds_unmanaged_capacity"
  Info_SwxUsage_Maintenance = 3               // "maintenance"
} Info_SwxUsage;

typedef enum {
  Info_SwxMode_Master = 1, // "master"
  Info_SwxMode_Slave = 2   // "slave"
} Info_SwxMode;

typedef enum {
  Info_FunctionKey_None = 1, // "none"
  Info_FunctionKey_F1 = 2,   // "f1", and so on
  Info_FunctionKey_F2 = 3,
  Info_FunctionKey_F3 = 4,
  Info_FunctionKey_F4 = 5,
  Info_FunctionKey_F5 = 6,
  Info_FunctionKey_F6 = 7,
  Info_FunctionKey_F7 = 8,
  Info_FunctionKey_F8 = 9,
  Info_FunctionKey_F9 = 10,
  Info_FunctionKey_F10 = 11,
  Info_FunctionKey_F11 = 12,
  Info_FunctionKey_F12 = 13 // "f12"
} Info_FunctionKey;

typedef enum {
  Info_OsdCommonAction_None = 1,                      // "none"
  Info_OsdCommonAction_ConnectLastTarget = 2,         // "connect_last_target"
  Info_OsdCommonAction_ConnectPreviousTarget = 3,     // "connect_previous_target"
  Info_OsdCommonAction_ConnectNextTarget = 4,         // "connect_next_target"
  Info_OsdCommonAction_ConnectToTargetX = 5,          // "connect_to_target_x"
  Info_OsdCommonAction_LogoutAndDisconnect = 6,       // "logout_and_disconnect"
  Info_OsdCommonAction_EnumerateKeyboard = 7,         // "enumerate_keyboard"
  Info_OsdCommonAction_EnumerateMouse = 8,            // "enumerate_mouse"
  Info_OsdCommonAction_EnumerateKeyboardAndMouse = 9, // "enumerate_keyboard_and_mouse"
  Info_OsdCommonAction_EnumerateAllUsbDevices = 10    // "enumerate_all_usb_devices"
} Info_OsdCommonAction;

typedef enum {
  Info_WakeOnConnectAction_None = 1,     // "none"
  Info_WakeOnConnectAction_Keypress = 2, // "keypress"
  Info_WakeOnConnectAction_MouseMove = 3 // "mouse_move"
} Info_WakeOnConnectAction;

/// What a user or a device allows.
typedef enum {
  Info_AccessMode_Share = 1,         // "share_mode"
  Info_AccessMode_Private = 2,       // "private_mode"
  Info_AccessMode_ShareOrPrivate = 3 // "share_or_private_mode"
} Info_AccessMode;

/// What a KVM session is.
typedef enum {
  Info_ConnectionMode_Share = 1,  // "share_mode"
  Info_ConnectionMode_Private = 2 // "private_mode"
} Info_ConnectionMode;

typedef enum {
  Info_UserRole_User = 1, // "user"
  Info_UserRole_Admin = 2 // "admin"
} Info_UserRole;

typedef enum {
  Info_DeviceType_None = 1, // "none"; also a mixed selection
  Info_DeviceType_Rx = 2,   // "rx"
  Info_DeviceType_Tx = 3,   // "tx"
  Info_DeviceType_Swx = 4   // "swx"
} Info_DeviceType;

typedef enum {
  Info_DetailedDeviceType_None = 1,    // no or a mixed selection
  Info_DetailedDeviceType_RxDviI = 2,  // "rx_dvi_i", first generation
  Info_DetailedDeviceType_TxDviD = 3,  // "tx_dvi_d"
  Info_DetailedDeviceType_TxVga = 4,   // "tx_vga"
  Info_DetailedDeviceType_Swx = 5,     // "swx"
  Info_DetailedDeviceType_RxDviI16 = 6 // "rx_dvi_i_16", second generation
} Info_DetailedDeviceType;

/// Record numbers of "changeStatus": whose data a counter stands for.
typedef enum {
  InfoMgr_InfoID_Swx = 1,
  InfoMgr_InfoID_User = 6,
  InfoMgr_InfoID_Rx = 7,
  InfoMgr_InfoID_Tx = 8,
  InfoMgr_InfoID_UserTarget = 10,   // the targets that users may reach
  InfoMgr_InfoID_UserSession = 13,  // logins at receivers
  InfoMgr_InfoID_AdminSession = 14, // logins at this interface
  InfoMgr_InfoID_Connection = 17    // KVM sessions
} InfoMgr_InfoID;

#endif // ZEL_API_INFO_H_
