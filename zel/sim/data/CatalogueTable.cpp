// SPDX-License-Identifier: MIT
#include "data/Catalogue.h"

#include <iterator>

namespace zelsim
{

namespace
{

// Word lists that several parameters share, in the order of their numbers.
constexpr char kAccessModes[] = "share_mode private_mode share_or_private_mode";
constexpr char kConnectionModes[] = "share_mode private_mode";
constexpr char kUsbModes[] = "disabled keyboard_mouse_only all_except_mass_storage all_devices";
constexpr char kTrafficPriorities[] = "usb_priority video_priority";
constexpr char kDeviceStates[] = "offline configuring ready reset_pending in_recovery";
constexpr char kDeviceUsages[] = "usable not_usable_swx_capacity not_usable_swx_maintenance";
constexpr char kSwitchStates[] =
    "offline dc_connected conflict_is_master conflict_other_master isc_failure ready resetting";
constexpr char kUpgradeStates[] = "idle upgrading failed failed_file_get failed_file_content failed_dev_type "
                                  "failed_file_push failed_flash complete";
constexpr char kResetWords[] = "none cold_reboot factory_default factory_default_partial";
constexpr char kPolarities[] = "negative_polarity positive_polarity";
constexpr char kHotKeys[] = "print_screen control_control control_control_left control_control_right alt_alt "
                            "alt_alt_left alt_alt_right shift_shift shift_shift_left shift_shift_right "
                            "scroll_lock_scroll_lock custom none";
constexpr char kFunctionKeys[] = "none f1 f2 f3 f4 f5 f6 f7 f8 f9 f10 f11 f12";
constexpr char kOsdActions[] =
    "none connect_last_target connect_previous_target connect_next_target connect_to_target_x "
    "logout_and_disconnect enumerate_keyboard enumerate_mouse enumerate_keyboard_and_mouse "
    "enumerate_all_usb_devices";
constexpr char kNtpStates[] =
    "unknown inactive bad_configuration pending network_unreachable server_unresponsive success";
constexpr char kPortStates[] =
    "no_device idle in_use upgrading loopback_detected self_detected invalid_device "
    "device_error device_not_added";
constexpr char kManagedSettings[] = "non_managed enrolling managed verified unenrolling";
constexpr char kDesignations[] = "none primary auxiliary";
constexpr char kSeverities[] = "info warning error";

constexpr std::int64_t kAnyNumber = 0xffffffff;
constexpr std::int64_t kEidLength = 13;

constexpr Parameter eid(const char *name)
{
  return text(name, 0, kEidLength);
}

// Nested objects ------------------------------------------------------------------------------------------

constexpr Parameter kCustomKeyRows[] = {
    binary("sequence", 2, 2).byDefault("AAA=").that("two key codes"),
    integer("length", 0, 2).that("how many of them count"),
};
constexpr char kCustomKeysStandard[] = R"({"sequence":"AAA=","length":0})";

constexpr Parameter kTimingRows[] = {
    integer("horizontalResolution", 0, 65535),
    integer("verticalResolution", 0, 65535),
    integer("pixelClockFrequency", 0, kAnyNumber).that("kHz"),
    word("horizontalSyncPolarity", kPolarities, "negative_polarity"),
    integer("horizontalFrontPorch", 0, 65535),
    integer("horizontalSyncWidth", 0, 65535),
    integer("horizontalBackPorch", 0, 65535),
    word("verticalSyncPolarity", kPolarities, "negative_polarity"),
    integer("verticalFrontPorch", 0, 65535),
    integer("verticalSyncWidth", 0, 65535),
    integer("verticalBackPorch", 0, 65535),
};

constexpr Parameter kIpV4Rows[] = {
    word("ipv4ConfMethod", "dhcp dhcp_plus_zeroconf zeroconf static", "dhcp"),
    text("ipAddress", 0, 57),
    text("subnetMask", 0, 57),
    text("gatewayAddress", 0, 57),
    text("ipv4PrimaryDnsServer", 0, 57).with(kReadOnly),
    text("ipv4SecondaryDnsServer", 0, 57).with(kReadOnly),
};
constexpr Parameter kIpV6Rows[] = {
    word("ipv6ConfMethod", "stateless_only dhcp dhcp_info_only static", "stateless_only"),
    text("ipAddress", 0, 57),
    integer("prefixLength", 1, 128).byDefault("64"),
    text("gatewayAddress", 0, 57),
    text("ipv6PrimaryDnsServer", 0, 57).with(kReadOnly),
    text("ipv6SecondaryDnsServer", 0, 57).with(kReadOnly),
};
constexpr Parameter kNetworkRows[] = {object("ipv4", kIpV4Rows), object("ipv6", kIpV6Rows)};
constexpr char kNetworkStandard[] =
    R"({"ipv4":{"ipv4ConfMethod":"dhcp","ipAddress":"","subnetMask":"","gatewayAddress":"",)"
    R"("ipv4PrimaryDnsServer":"","ipv4SecondaryDnsServer":""},)"
    R"("ipv6":{"ipv6ConfMethod":"stateless_only","ipAddress":"","prefixLength":64,"gatewayAddress":"",)"
    R"("ipv6PrimaryDnsServer":"","ipv6SecondaryDnsServer":""}})";

constexpr Parameter kRapRows[] = {
    enableDisable("telnetAccess", "disabled"),
    integer("telnetPort", 1024, 65535).byDefault("2323"),
    enableDisable("sshAccess", "disabled"),
    integer("sshPort", 1024, 65535).byDefault("2222"),
    text("sshPassword", 0, 64).with(kSecret),
    integer("sessionInactivityTimeout", 0, 1440).byDefault("10").that("minutes, 0 is never"),
};
constexpr char kRapStandard[] = R"({"telnetAccess":"disabled","telnetPort":2323,"sshAccess":"disabled",)"
                                R"("sshPort":2222,"sessionInactivityTimeout":10})";

constexpr Parameter kLevelRows[] = {
    enableDisable("error", "enabled"),
    enableDisable("warning", "enabled"),
    enableDisable("info", "enabled"),
};

constexpr Parameter kTargetRows[] = {integer("txIndex", 1, kAnyNumber)};

constexpr Parameter kOsdHotKeyRows[] = {
    word("hotKey", kHotKeys, "print_screen"),
    object("customKeys", kCustomKeyRows).byDefault(kCustomKeysStandard),
};
constexpr Parameter kShortCutRows[] = {
    word("functionKey", kFunctionKeys, "none"),
    word("action", kOsdActions, "none"),
    eid("txEID"),
};
constexpr Parameter kKeySettingRows[] = {
    object("osdHotKey", kOsdHotKeyRows),
    list("osdShortCuts", 12, kShortCutRows),
};
constexpr char kKeySettingsStandard[] =
    R"({"osdHotKey":{"hotKey":"print_screen","customKeys":{"sequence":"AAA=","length":0}},)"
    R"("osdShortCuts":[]})";

constexpr Parameter kPortRows[] = {
    integer("portIndex", 1, 65535),
    integer("remotePort", 0, 65535),
    word("deviceType", "none rx tx swx", "none"),
    eid("eid"),
    word("portState", kPortStates, "no_device"),
};

// Settings of the system
// -------------------------------------------------------------------------------------

constexpr Parameter kSystemGlobalsRows[] = {
    text("auxiliaryManagerIpAddress", 0, 57),
    integer("backlightFlashDuration", 1, 86400).byDefault("60").that("seconds"),
    word("cascadeController", "this peer", "this").with(kReadOnly).that("which switch of a pair has control"),
    word("commStatusRestClientAuxiliary", "down up", "down").with(kReadOnly),
    word("commStatusRestClientPrimary", "down up", "down").with(kReadOnly),
    word("commStatusRestServerAuxiliary", "down up", "down").with(kReadOnly),
    word("commStatusRestServerPrimary", "down up", "down").with(kReadOnly),
    word("currentManager", kDesignations, "none").with(kReadOnly),
    object("customKeys", kCustomKeyRows).byDefault(kCustomKeysStandard),
    object("eventLogControl", kLevelRows).with(kCommand).that("another way to set the resource of that name"),
    enableDisable("fullNevoWhenManaged", "disabled"),
    word("managedSetting", kManagedSettings, "non_managed"),
    integer("managerApiPort", 0, 65535).byDefault("8443"),
    text("managerIpAddress", 0, 57),
    eid("masterSwitchEid"),
    enableDisable("nevoBannerEnable", "disabled"),
    text("nevoBannerText", 0, 1024),
    text("nevoCustomHelpLink", 0, 1024),
    integer("nevoInactivityTimeout", 0, 1440).byDefault("10").that("minutes, 0 is never"),
    eid("peerControllerSwitchEid").with(kReadOnly),
    word("preferredManager", kDesignations, "none").with(kReadOnly),
    object("rapParameters", kRapRows).byDefault(kRapStandard),
    enableDisable("resetAfterUpgrade", "enabled"),
    enableDisable("rxOsdBannerEnable", "disabled"),
    text("rxOsdBannerText", 0, 450),
    word("rxOsdHotKey", kHotKeys, "print_screen"),
    integer("switchApiPort", 0, 65535).byDefault("8444"),
    text("syslogDest", 0, 57),
    text("settingsKey", 0, 64)
        .with(kReadOnly | kSecret | kUncounted)
        .that("seals what a settings archive must not tell"),
    text("pendingSettings", 0, 16 << 20)
        .with(kReadOnly | kSecret | kUncounted)
        .that("loaded settings that the next reboot installs"),
};

constexpr Parameter kCfgDefaultsRows[] = {
    integer("rxDefaultOsdInactivityTimeout", 0, 1440).byDefault("5").that("minutes, 0 is never"),
    integer("rxDefaultSessionInactivityTimeout", 0, 1440).that("minutes, 0 is never"),
    word("txDefaultTrafficPriority", kTrafficPriorities, "usb_priority"),
    word("txDefaultUsbMode", kUsbModes, "all_devices"),
};

constexpr Parameter kAlertLogControlRows[] = {
    enableDisable("enableAlertSwitchPortsSelfConnected", "enabled"),
    enableDisable("enableAlertLoopbackDetectedOnSwitchPort", "enabled"),
    enableDisable("enableAlertMoreThanOneMasterSwitch", "enabled"),
    enableDisable("enableAlertSlaveConnectedToTwoMasterSwitches", "enabled"),
    enableDisable("enableAlertConnectedSlaveSwitchHasOtherMaster", "enabled"),
    enableDisable("enableAlertFirmwareUpdateFailed", "enabled"),
    enableDisable("enableAlertFirmwareUpdateSucceeded", "enabled"),
    enableDisable("enableAlertPrivateKvmSessionEstablished", "enabled"),
    enableDisable("enableAlertSharedKvmSessionEstablished", "enabled"),
    enableDisable("enableAlertKvmSessionDisconnected", "enabled"),
    enableDisable("enableAlertKvmSessionDisconnectedLinkDown", "enabled"),
    enableDisable("enableAlertKvmSessionConnectionFailure", "enabled"),
    enableDisable("enableAlertUserLogin", "enabled"),
    enableDisable("enableAlertFailedUserLogin", "enabled"),
    enableDisable("enableAlertUserAutoLogin", "enabled"),
    enableDisable("enableAlertUserLogout", "enabled"),
    enableDisable("enableAlertSetupPortAdminLogin", "enabled"),
    enableDisable("enableAlertSetupPortFailedAdminLogin", "enabled"),
    enableDisable("enableAlertSetupPortAdminLogout", "enabled"),
    enableDisable("enableAlertNevoAdminLogin", "enabled"),
    enableDisable("enableAlertNevoFailedAdminLogin", "enabled"),
    enableDisable("enableAlertNevoAdminLogout", "enabled"),
    enableDisable("enableAlertRapAdminLogin", "enabled"),
    enableDisable("enableAlertRapFailedAdminLogin", "enabled"),
    enableDisable("enableAlertRapAdminLogout", "enabled"),
    enableDisable("enableAlertFanFault", "enabled"),
    enableDisable("enableAlertFanFaultCleared", "enabled"),
    enableDisable("enableAlertVoltageFault", "enabled"),
    enableDisable("enableAlertVoltageFaultCleared", "enabled"),
    enableDisable("enableAlertPowerSupplyFault", "enabled"),
    enableDisable("enableAlertPowerSupplyFaultCleared", "enabled"),
    enableDisable("enableAlertTemperatureFault", "enabled"),
    enableDisable("enableAlertTemperatureFaultCleared", "enabled"),
    enableDisable("enableAlertSwitchExceedsUnmanagedCapacity", "enabled"),
    enableDisable("enableAlertReceiverInExceededCapacitySwitch", "enabled"),
    enableDisable("enableAlertTransmitterInExceededCapacitySwitch", "enabled"),
    enableDisable("enableAlertDeviceReportedInvalidParameter", "enabled"),
    enableDisable("enableAlertSwitchDetectedInvalidParameter", "enabled"),
    enableDisable("enableAlertSwitchFirmwareVersionDifference", "enabled"),
    enableDisable("enableAlertSwitchWatchdogReset", "enabled"),
    enableDisable("enableAlertDeviceReportedError", "enabled"),
    enableDisable("enableAlertDeviceReportedInfo", "enabled"),
};

constexpr Parameter kChangeStatusRows[] = {
    integer("lastChange", 1, kAnyNumber).byDefault("1").with(kReadOnly),
};

// Devices
// ----------------------------------------------------------------------------------------------------

// What receivers, transmitters and switches have in common, row by row.
constexpr Parameter kEidRow = eid("eid").with(kReadOnly | kUnique | kLookup);
constexpr Parameter kNameRow = text("name", 0, 40);
constexpr Parameter kLocationRow = text("location", 0, 64);
constexpr Parameter kDescriptionRow = text("description", 0, 64);
constexpr Parameter kNotesRow = text("notes", 0, 64);
constexpr Parameter kSerialNumberRow = text("serialNumber", 0, 32).with(kReadOnly);
constexpr Parameter kPartNumberRow = text("partNumber", 0, 32).with(kReadOnly);
constexpr Parameter kFirmwareVersionRow = text("firmwareVersion", 0, 32).with(kReadOnly);
constexpr Parameter kNextFirmwareRow =
    text("nextFirmware", 0, 32).with(kReadOnly).that("runs after the next reboot; empty if no other");
constexpr Parameter kUpgradeStatusRow = word("upgradeStatus", kUpgradeStates, "idle").with(kReadOnly);
constexpr Parameter kUpgradePercentRow = integer("upgradePercent", 0, 100).with(kReadOnly);
constexpr Parameter kUpgradeIndexRow =
    integer("upgradeIndex", 0, kAnyNumber).that("writing an \"upgrade\" record's index starts an update");
constexpr Parameter kResetRow =
    word("reset", kResetWords, "none").with(kCommand).that("a word other than none resets the device");
constexpr Parameter kReturnsAtRow =
    integer("returnsAt", 0, kAnyNumber)
        .with(kReadOnly | kUncounted)
        .that("when the device takes its next step of a reset; 0 is no reset");
constexpr Parameter kPendingResetRow = word("pendingReset", kResetWords, "none")
                                           .with(kReadOnly | kUncounted)
                                           .that("what the reset under way restores when it ends");
constexpr Parameter kAttachedSwxRow = integer("attachedSwx", 0, kAnyNumber).with(kReadOnly);
constexpr Parameter kAttachedPortRow = integer("attachedPort", 0, 65535).with(kReadOnly);
constexpr Parameter kMonitorRow = integer("monitor", 0, kAnyNumber)
                                      .with(kReadOnly | kUncounted)
                                      .that("which of the simulated monitors is attached; 0 is none");

constexpr Parameter kRxRows[] = {
    kEidRow,
    kNameRow,
    word("detailedDeviceType", "rx_dvi_i rx_dvi_i_16", "rx_dvi_i_16").with(kReadOnly),
    word("status", kDeviceStates, "offline").with(kReadOnly),
    word("usage", kDeviceUsages, "usable").with(kReadOnly),
    kLocationRow,
    kDescriptionRow,
    kNotesRow,
    kSerialNumberRow,
    kPartNumberRow,
    kFirmwareVersionRow,
    kNextFirmwareRow,
    kUpgradeStatusRow,
    kUpgradePercentRow,
    kUpgradeIndexRow,
    kResetRow,
    kReturnsAtRow,
    kPendingResetRow,
    kAttachedSwxRow,
    kAttachedPortRow,
    kMonitorRow,
    enableDisable("audioControl", "enabled"),
    enableDisable("autoConnectControl", "disabled"),
    word("autoConnectMode", kConnectionModes, "share_mode"),
    eid("autoConnectTxEid"),
    enableDisable("autoEnumerateKeyboard", "enabled"),
    enableDisable("autoEnumerateMouse", "enabled"),
    enableDisable("autoLoginControl", "disabled"),
    integer("autoLoginUserIndex", 0, kAnyNumber),
    text("keyboardLayout", 0, 32).byDefault("en").with(kReadOnly),
    enableDisable("lcdBacklightControl", "enabled"),
    enableDisable("microphoneControl", "disabled"),
    word("modeAllowed", kAccessModes, "share_or_private_mode"),
    integer("sessionInactivityTimeout", 0, 1440).that("minutes, 0 is never"),
    integer("sharingInactivityTimeout", 0, 25).byDefault("2").that("seconds"),
    word("usbLogLevel", "none info debug", "none"),
    word("usbMode", kUsbModes, "all_devices"),
    enableDisable("videoScaling", "enabled"),
    object("inputVideoTiming", kTimingRows).with(kComputed | kReadOnly | kSelected),
    object("outputVideoTiming", kTimingRows).with(kComputed | kReadOnly | kSelected),
    object("monPrefVideoTiming", kTimingRows).with(kComputed | kReadOnly | kSelected),
};

constexpr Parameter kTxRows[] = {
    kEidRow,
    kNameRow,
    word("detailedDeviceType", "tx_dvi_d tx_vga", "tx_dvi_d").with(kReadOnly),
    word("status", kDeviceStates, "offline").with(kReadOnly),
    word("usage", kDeviceUsages, "usable").with(kReadOnly),
    kLocationRow,
    kDescriptionRow,
    kNotesRow,
    kSerialNumberRow,
    kPartNumberRow,
    kFirmwareVersionRow,
    kNextFirmwareRow,
    kUpgradeStatusRow,
    kUpgradePercentRow,
    kUpgradeIndexRow,
    kResetRow,
    kReturnsAtRow,
    kPendingResetRow,
    kAttachedSwxRow,
    kAttachedPortRow,
    enableDisable("audioControl", "enabled"),
    binary("edidData", 0, 256)
        .with(kReadOnly | kUncounted | kArchived)
        .that("pushed monitor data; empty is built in"),
    integer("iconIndex", 0, 99).byDefault("1"),
    enableDisable("lcdBacklightControl", "enabled"),
    enableDisable("microphoneControl", "disabled"),
    word("modeAllowed", kAccessModes, "share_or_private_mode"),
    word("trafficSetting", kTrafficPriorities, "usb_priority"),
    word("usbMode", kUsbModes, "all_devices"),
    enableDisable("wakeOnLan", "disabled"),
    text("wakeOnLanMacAddress", 0, 23),
};

constexpr Parameter kSwxRows[] = {
    kEidRow,
    kNameRow,
    word("detailedDeviceType", "swx", "swx").with(kReadOnly),
    word("status", kSwitchStates, "offline").with(kReadOnly),
    word("usage", "usable exceeds_unmanaged_capacity maintenance", "usable").with(kReadOnly),
    word("mode", "master slave", "slave"),
    word("cascadeRole", "not_present controller slave backup", "slave").with(kReadOnly),
    kLocationRow,
    kDescriptionRow,
    kNotesRow,
    kSerialNumberRow,
    kPartNumberRow,
    kFirmwareVersionRow,
    kNextFirmwareRow,
    kUpgradeStatusRow,
    kUpgradePercentRow,
    kUpgradeIndexRow,
    kResetRow,
    kReturnsAtRow,
    kPendingResetRow,
    integer("portCount", 0, 65535).with(kReadOnly),
    integer("currentSysTime", 0, kAnyNumber)
        .with(kComputed | kReadOnly | kSelected)
        .that("seconds since 1970"),
    object("network", kNetworkRows).byDefault(kNetworkStandard),
    enableDisable("ntpEnable", "disabled"),
    word("ntpStatus", kNtpStates, "inactive").with(kReadOnly),
    text("primaryNtpIpAddress", 0, 255),
    text("secondaryNtpIpAddress", 0, 255),
};

// A flash duration of 1 stops flashing.
constexpr Parameter kFlashRow =
    integer("lcdBacklightFlashDuration", 0, 86400).with(kCommand).that("seconds; 0 and 1 stop it");
constexpr Parameter kFlashingUntilRow =
    integer("flashingUntil", 0, kAnyNumber).with(kReadOnly | kVolatile).that("0: the display doesn't flash");

constexpr Parameter kDeviceControlRows[] = {kEidRow, kFlashRow, kFlashingUntilRow};

constexpr Parameter kSwxControlRows[] = {
    kEidRow,
    kFlashRow,
    kFlashingUntilRow,
    word("cascadeRoleAction", "promote_peer unlink_peer force_role_switch link_peer", "unlink_peer")
        .with(kCommand),
    word("settingsAction", "zip unzip", "zip").with(kCommand),
    text("settingsFilename", 0, 4096).with(kCommand),
    text("settingsPassword", 0, 50).with(kCommand),
};

constexpr Parameter counter(const char *name, std::int64_t highest)
{
  return integer(name, 0, highest).with(kComputed | kReadOnly);
}

constexpr Parameter kRxUsbDiagRows[] = {
    counter("scpBulkHeldCount", 255),
    counter("scpConnectActive", 255),
    counter("scpConnectReq", 255),
    counter("scpCtlHeldCount", 255),
    counter("scpDisconnectStatus", 255),
    counter("scpError", 255),
    counter("scpExtensionActive", 255),
    counter("scpFlags", kAnyNumber),
    counter("scpMemResetReq", 255),
    counter("scpOsdActive", 255),
    counter("scpPerDropCount", kAnyNumber),
    counter("scpPerHeldCount", 255),
    counter("scpPSHeldCount", 255),
    counter("scpRetryHeldCount", 255),
    counter("scpUCount", 65535),
    counter("srpFlags", 255),
    counter("srpStatus", 255),
    counter("srpVersion", 65535),
};

constexpr Parameter kTxUsbDiagRows[] = {
    counter("hcpCount", 255),     counter("hcpEState", 255),       counter("hcpFlags", 255),
    counter("hcpGFlags", 255),    counter("hcpHid", 255),          counter("hcpHub1", 255),
    counter("hcpHub2", 255),      counter("hcpLastDevEndPt", 255), counter("hcpLastDevNum", 255),
    counter("hcpStatus", 255),    counter("hcpTFlags", 255),       counter("hcpTxState", 255),
    counter("hcpVersion", 65535), counter("hrpStatus", 255),       counter("hrpVersion", 65535),
    counter("hspStatus", 255),    counter("hspVersion", 65535),
};

constexpr Parameter kPortStatusRows[] = {
    integer("swxIndex", 1, kAnyNumber).with(kReadOnly | kAlways),
    list("ports", 65535, kPortRows).with(kReadOnly | kVolatile),
};

// Sessions and users
// -----------------------------------------------------------------------------------------

constexpr Parameter kConnectionRows[] = {
    integer("rxIndex", 1, kAnyNumber).with(kRequired | kFixed),
    integer("txIndex", 1, kAnyNumber).with(kRequired | kFixed),
    word("mode", kConnectionModes, "share_mode").with(kFixed),
    eid("rxEid").with(kReadOnly),
    eid("txEid").with(kReadOnly),
    integer("sessionStartTime", 0, kAnyNumber).with(kReadOnly),
};

constexpr Parameter kUserSessionRows[] = {
    integer("userIndex", 1, kAnyNumber).with(kRequired | kFixed),
    integer("rxIndex", 1, kAnyNumber).with(kRequired | kFixed),
    integer("sessionStartTime", 0, kAnyNumber).with(kReadOnly),
};

constexpr Parameter kAdminSessionRows[] = {
    text("username", 0, 64).with(kFixed),
    text("password", 0, 64).with(kCommand),
    word("sessionType", "nevo rap setup_port", "nevo").with(kFixed),
    text("ipAddress", 0, 64).with(kFixed),
    integer("userIndex", 0, kAnyNumber).with(kReadOnly),
    integer("sessionStartTime", 0, kAnyNumber).with(kReadOnly),
    integer("client", 0, INT64_MAX)
        .with(kReadOnly | kVolatile | kUncounted)
        .that("the connection that its person works over"),
    integer("process", 0, INT32_MAX)
        .with(kReadOnly | kUncounted)
        .that("the process that this connection belongs to"),
    integer("leftAt", 0, kAnyNumber)
        .with(kReadOnly | kUncounted)
        .that("when the connection ended; 0 while it stands"),
};

constexpr Parameter kUserRows[] = {
    text("name", 0, 20).with(kUnique | kLookup | kRequired),
    text("mgrName", 0, 64).with(kReadOnly).that("set for a user that an external manager owns"),
    text("fullName", 0, 40),
    text("password", 0, 20).with(kSecret),
    word("passwordIsInitialized", "is_false is_true", "is_false"),
    word("role", "user admin", "user"),
    enableDisable("accountEnable", "enabled"),
    enableDisable("allowBlankPassword", "disabled"),
    enableDisable("allowPasswordChange", "disabled"),
    enableDisable("allTargetAccess", "disabled"),
    word("modeAllowed", kAccessModes, "share_or_private_mode"),
    word("usbMode", kUsbModes, "all_devices"),
    integer("osdInactivityTimeout", 0, 1440).byDefault("5").that("minutes, 0 is never"),
    object("keySettings", kKeySettingRows).byDefault(kKeySettingsStandard),
    list("favorite", 32, kTargetRows),
    enableDisable("enableClearEventHistoryWarning", "enabled"),
    enableDisable("enableDeleteMonitorWarning", "enabled"),
    enableDisable("enableDeleteUserWarning", "enabled"),
    enableDisable("enableDisconnectSessionWarning", "enabled"),
    enableDisable("enableLogoutUnsavedChangesWarning", "enabled"),
    enableDisable("enableLogoutUserWarning", "enabled"),
    enableDisable("enableRemoveDevicesWarning", "enabled"),
    enableDisable("enableRemoveOfflineDevicesWarning", "enabled"),
    enableDisable("enableResetDevicesWarning", "enabled"),
    enableDisable("enableRestoreFactoryDefaultsWarning", "enabled"),
};

constexpr Parameter kUserTargetListRows[] = {list("target", 5000, kTargetRows)};

// Monitors, alerts, firmware
// -----------------------------------------------------------------------------------

constexpr Parameter kEdidRows[] = {
    text("name", 1, 40).with(kUnique | kLookup),
    text("description", 0, 64),
    binary("data", 256, 256).with(kReadOnly),
    word("isProtected", "is_false is_true", "is_false").with(kReadOnly),
};

constexpr Parameter kEdidControlRows[] = {
    word("edidAction", "push pull", "pull").with(kCommand),
    text("edidName", 0, 40).with(kCommand),
    text("edidDescription", 0, 128).with(kCommand),
    integer("edidIndex", 1, kAnyNumber).with(kCommand),
    integer("rxIndex", 1, kAnyNumber).with(kCommand),
    integer("txIndex", 1, kAnyNumber).with(kCommand),
};

constexpr Parameter kAlertRows[] = {
    integer("instanceId", 1, kAnyNumber).with(kReadOnly | kAlways),
    integer("date", 0, kAnyNumber).with(kReadOnly).that("seconds since 1970"),
    word("severity", kSeverities, "info").with(kReadOnly),
    eid("originatorEid").with(kReadOnly),
    text("alertMsg", 0, 1024).with(kReadOnly),
};

constexpr Parameter kAlertsControlRows[] = {
    word("alertsAction", "clear_history ack_all ack_specific", "ack_all").with(kCommand),
    integer("alertInstanceId", 1, kAnyNumber).with(kCommand),
    integer("lastInstanceId", 0, kAnyNumber).with(kReadOnly),
};

constexpr Parameter kUpgradeRows[] = {
    word("protocol", "ftp http https tftp file", "ftp"),
    text("location", 0, 255),
    text("filename", 1, 1024).with(kRequired),
    text("username", 0, 64),
    text("password", 0, 64).with(kSealed),
    word("deviceType", "none rx tx swx", "none").with(kReadOnly),
    text("version", 0, 32).with(kReadOnly),
};

// What is to happen after a while. Nobody's business but the switch's own.
constexpr Parameter kPendingStepRows[] = {
    text("step", 1, 32).with(kReadOnly),
    text("about", 0, 4096).with(kReadOnly),
    integer("at", 0, INT64_MAX).with(kReadOnly).that("milliseconds since 1970"),
};

// What is wrong with ports, until it is put right.
constexpr Parameter kPortFaultRows[] = {
    integer("swx", 1, kAnyNumber).with(kReadOnly),
    integer("port", 1, 65535).with(kReadOnly),
    word("state", kPortStates, "no_device").with(kReadOnly),
};

// Resources
// --------------------------------------------------------------------------------------------------

constexpr unsigned kCapacityOfDevices = 5000;
constexpr unsigned kCapacityOfSwitches = 50;

template <std::size_t N>
constexpr Resource many(const char *name, unsigned methods, unsigned capacity, const Parameter (&rows)[N],
                        const char *about)
{
  Resource resource;
  resource.name = name;
  resource.about = about;
  resource.methods = methods;
  resource.capacity = capacity;
  resource.parameters = rows;
  resource.parameterCount = N;
  return resource;
}

template <std::size_t N>
constexpr Resource one(const char *name, unsigned methods, const Parameter (&rows)[N], const char *about)
{
  Resource resource = many(name, methods, 1, rows, about);
  resource.single = true;
  return resource;
}

constexpr Resource counted(Resource resource, std::uint8_t changeId)
{
  resource.changeIds[0] = changeId;
  return resource;
}

} // namespace

const Resource kCatalogue[] = {
    counted(one("systemGlobals", kGet | kSet, kSystemGlobalsRows, "settings of the whole system"), 2),
    counted(one("cfgDefaults", kGet | kSet, kCfgDefaultsRows, "what new users and devices start with"), 3),
    counted(one("eventLogControl", kGet | kSet, kLevelRows, "which events are logged"), 15),
    counted(one("alertLogControl", kGet | kSet, kAlertLogControlRows, "which kinds of alert are raised"), 16),
    many("changeStatus", kGet, 32, kChangeStatusRows, "counters that move when data change"),
    counted(
        many("swx", kGet | kSet | kDelete, kCapacityOfSwitches, kSwxRows, "switches; record 1 is this one"),
        1),
    many("swxControl", kGet | kSet, kCapacityOfSwitches, kSwxControlRows,
         "commands to switches, by index or eid"),
    counted(many("rx", kGet | kSet | kDelete, kCapacityOfDevices, kRxRows, "receivers"), 7),
    many("rxControl", kGet | kSet, kCapacityOfDevices, kDeviceControlRows, "commands to receivers"),
    many("rxUsbDiag", kGet, kCapacityOfDevices, kRxUsbDiagRows, "USB state of a receiver"),
    counted(many("tx", kGet | kSet | kDelete, kCapacityOfDevices, kTxRows, "transmitters"), 8),
    many("txControl", kGet | kSet, kCapacityOfDevices, kDeviceControlRows, "commands to transmitters"),
    many("txUsbDiag", kGet, kCapacityOfDevices, kTxUsbDiagRows, "USB state of a transmitter"),
    counted(
        many("portStatus", kGet, kCapacityOfSwitches, kPortStatusRows, "ports of the switch of that number"),
        12),
    counted(many("connection", kGet | kCreate | kDelete, kCapacityOfDevices, kConnectionRows, "KVM sessions"),
            17),
    counted(many("userSession", kGet | kCreate | kDelete, kCapacityOfDevices, kUserSessionRows,
                 "logins at receivers"),
            13),
    counted(
        many("adminSession", kGet | kCreate | kDelete, 512, kAdminSessionRows, "logins of administrators"),
        14),
    counted(many("user", kGet | kSet | kCreate | kDelete, 1024, kUserRows, "accounts"), 6),
    counted(
        many("userTargetList", kGet | kSet, 1024, kUserTargetListRows, "transmitters that a user may reach"),
        10),
    counted(many("edid", kGet | kSet | kDelete, 128, kEdidRows, "monitor library"), 9),
    one("edidControl", kSet, kEdidControlRows, "copies monitor data from and to devices"),
    one("alertsControl", kGet | kSet, kAlertsControlRows, "acknowledges and clears alerts"),
    counted(many("historicalAlerts", kGet, 2000, kAlertRows, "alerts of the past, oldest first"), 5),
    counted(many("unacknowledgedAlerts", kGet, 500, kAlertRows, "alerts that nobody has acknowledged"), 4),
    many("portFault", 0, 1000, kPortFaultRows, "what is wrong with ports; for the switch itself only"),
    many("pendingStep", 0, 20000, kPendingStepRows, "what the switch is about to do; for itself only"),
    counted(many("upgrade", kGet | kSet | kCreate | kDelete, 8, kUpgradeRows, "sources of firmware"), 11),
};

const std::size_t kCatalogueSize = std::size(kCatalogue);

} // namespace zelsim
