// SPDX-License-Identifier: MIT
#include "CatalogueTable.h"

namespace zelsim {

namespace {

// Word lists that several parameters share, in the order of their numbers.
const char accessModes[] = "share_mode|private_mode|share_or_private_mode";
const char connectionModes[] = "share_mode|private_mode";
const char usbModes[] = "disabled|keyboard_mouse_only|all_except_mass_storage|all_devices";
const char trafficPriorities[] = "usb_priority|video_priority";
const char deviceStates[] = "offline|configuring|ready|reset_pending|in_recovery";
const char deviceUsages[] = "usable|not_usable_swx_capacity|not_usable_swx_maintenance";
const char upgradeStates[] = "idle|upgrading|failed|failed_file_get|failed_file_content|failed_dev_type|"
                             "failed_file_push|failed_flash|complete";
const char resetWords[] = "none|cold_reboot|factory_default|factory_default_partial";
const char polarities[] = "negative_polarity|positive_polarity";
const char hotKeys[] = "print_screen|control_control|control_control_left|control_control_right|alt_alt|"
                       "alt_alt_left|alt_alt_right|shift_shift|shift_shift_left|shift_shift_right|"
                       "scroll_lock_scroll_lock|custom|none";
const char functionKeys[] = "none|f1|f2|f3|f4|f5|f6|f7|f8|f9|f10|f11|f12";
const char osdActions[] = "none|connect_last_target|connect_previous_target|connect_next_target|"
                          "connect_to_target_x|logout_and_disconnect|enumerate_keyboard|enumerate_mouse|"
                          "enumerate_keyboard_and_mouse|enumerate_all_usb_devices";
const char managedSettings[] = "non_managed|enrolling|managed|verified|unenrolling";
const char designations[] = "none|primary|auxiliary";

constexpr unsigned anyNumber = 0xffffffffu;
constexpr unsigned eidLength = 13;

Parameters customKeys()
{
  return {binary("sequence", 2), number("length", 0, 2, 0)};
}

Parameters videoTiming()
{
  return {number("horizontalResolution", 0, 65535, 0), number("verticalResolution", 0, 65535, 0),
          number("pixelClockFrequency", 0, anyNumber, 0), words("horizontalSyncPolarity", polarities, ""),
          number("horizontalFrontPorch", 0, 65535, 0), number("horizontalSyncWidth", 0, 65535, 0),
          number("horizontalBackPorch", 0, 65535, 0), words("verticalSyncPolarity", polarities, ""),
          number("verticalFrontPorch", 0, 65535, 0), number("verticalSyncWidth", 0, 65535, 0),
          number("verticalBackPorch", 0, 65535, 0)};
}

Parameters ipV4()
{
  return {text("gatewayAddress", 57, "").as(Form::IpV4), text("ipAddress", 57, "").as(Form::IpV4),
          words("ipv4ConfMethod", "dhcp|dhcp_plus_zeroconf|zeroconf|static", "dhcp"),
          text("ipv4PrimaryDnsServer", 57, "").readOnly(), text("ipv4SecondaryDnsServer", 57, "").readOnly(),
          text("subnetMask", 57, "").as(Form::IpV4)};
}

Parameters ipV6()
{
  return {text("gatewayAddress", 57, "").as(Form::IpV6), text("ipAddress", 57, "").as(Form::IpV6),
          words("ipv6ConfMethod", "stateless_only|dhcp|dhcp_info_only|static", "stateless_only"),
          text("ipv6PrimaryDnsServer", 57, "").readOnly(), text("ipv6SecondaryDnsServer", 57, "").readOnly(),
          number("prefixLength", 1, 128, 64)};
}

Parameters network()
{
  return {object("ipv4", ipV4()), object("ipv6", ipV6())};
}

Parameters rapParameters()
{
  return {number("sessionInactivityTimeout", 0, 1440, 10), flag("sshAccess", "disabled"),
          text("sshPassword", 64, "").writeOnly(), number("sshPort", 1024, 65535, 2222),
          flag("telnetAccess", "disabled"), number("telnetPort", 1024, 65535, 2323)};
}

Parameters targetEntry()
{
  return {number("txIndex", 1, anyNumber, 0)};
}

Parameters keySettings()
{
  const Parameters hotKey = {words("hotKey", hotKeys, "print_screen"), object("customKeys", customKeys())};
  const Parameters shortCut = {words("functionKey", functionKeys, "none"), words("action", osdActions, "none"),
                               text("txEID", eidLength, "").as(Form::EidOrEmpty)};
  return {object("osdHotKey", hotKey), array("osdShortCuts", shortCut, 12)};
}

// What every attached device has.
Parameters commonDevice()
{
  return {text("eid", eidLength, "").as(Form::Eid).readOnly().unique(),
          text("name", 40, "").as(Form::Printable),
          text("location", 64, "").as(Form::PrintableLines),
          text("description", 64, "").as(Form::PrintableLines),
          text("notes", 64, "").as(Form::PrintableLines),
          text("serialNumber", 32, "").readOnly(),
          text("partNumber", 32, "").readOnly(),
          text("firmwareVersion", 32, "").readOnly(),
          words("upgradeStatus", upgradeStates, "idle").readOnly(),
          number("upgradePercent", 0, 100, 0).readOnly(),
          number("upgradeIndex", 0, anyNumber, 0).command(),
          words("reset", resetWords, "none").command()};
}

Parameters receiver()
{
  Parameters all = commonDevice();
  append(all, {words("detailedDeviceType", "rx_dvi_i_16|rx_dvi_i", "rx_dvi_i_16").readOnly(),
               words("status", deviceStates, "offline").readOnly(),
               words("usage", deviceUsages, "usable").readOnly(),
               flag("audioControl", "enabled"),
               flag("autoConnectControl", "disabled"),
               words("autoConnectMode", connectionModes, "share_mode"),
               text("autoConnectTxEid", eidLength, "").as(Form::EidOrEmpty),
               flag("autoEnumerateKeyboard", "enabled"),
               flag("autoEnumerateMouse", "enabled"),
               flag("autoLoginControl", "disabled"),
               number("autoLoginUserIndex", 0, anyNumber, 0),
               text("keyboardLayout", 32, "en").readOnly(),
               flag("lcdBacklightControl", "enabled"),
               flag("microphoneControl", "disabled"),
               words("modeAllowed", accessModes, "share_or_private_mode"),
               number("sessionInactivityTimeout", 0, 1440, 0),
               number("sharingInactivityTimeout", 0, 25, 2),
               words("usbLogLevel", "none|info|debug", "none"),
               words("usbMode", usbModes, "all_devices"),
               flag("videoScaling", "enabled"),
               object("inputVideoTiming", videoTiming()).computed(),
               object("outputVideoTiming", videoTiming()).computed(),
               object("monPrefVideoTiming", videoTiming()).computed()});
  return all;
}

Parameters transmitter()
{
  Parameters all = commonDevice();
  append(all, {words("detailedDeviceType", "tx_dvi_d|tx_vga", "tx_dvi_d").readOnly(),
               words("status", deviceStates, "offline").readOnly(),
               words("usage", deviceUsages, "usable").readOnly(),
               flag("audioControl", "enabled"),
               number("iconIndex", 0, 99, 1),
               flag("lcdBacklightControl", "enabled"),
               flag("microphoneControl", "disabled"),
               words("modeAllowed", accessModes, "share_or_private_mode"),
               words("trafficSetting", trafficPriorities, "usb_priority"),
               words("usbMode", usbModes, "all_devices"),
               flag("wakeOnLan", "disabled"),
               text("wakeOnLanMacAddress", 23, "").as(Form::MacOrEmpty)});
  return all;
}

Parameters networkSwitch()
{
  Parameters all = commonDevice();
  append(all, {words("detailedDeviceType", "swx", "swx").readOnly(),
               words("status", "offline|dc_connected|conflict_is_master|conflict_other_master|isc_failure|"
                               "ready|resetting", "offline").readOnly(),
               words("usage", "usable|exceeds_unmanaged_capacity|maintenance", "usable").readOnly(),
               words("cascadeRole", "not_present|controller|slave|backup", "slave").readOnly(),
               number("currentSysTime", 0, anyNumber, 0).computed(),
               words("mode", "master|slave", "slave"),
               object("network", network()),
               flag("ntpEnable", "disabled"),
               words("ntpStatus", "unknown|inactive|bad_configuration|pending|network_unreachable|"
                                  "server_unresponsive|success", "inactive").readOnly(),
               text("primaryNtpIpAddress", 255, "").as(Form::HostOrEmpty),
               text("secondaryNtpIpAddress", 255, "").as(Form::HostOrEmpty)});
  return all;
}

Parameters systemGlobals()
{
  return {text("auxiliaryManagerIpAddress", 57, "").as(Form::AddressOrEmpty),
          number("backlightFlashDuration", 1, 86400, 60),
          words("cascadeController", "this|peer", "this").readOnly(),
          words("commStatusRestClientAuxiliary", "down|up", "down").readOnly(),
          words("commStatusRestClientPrimary", "down|up", "down").readOnly(),
          words("commStatusRestServerAuxiliary", "down|up", "down").readOnly(),
          words("commStatusRestServerPrimary", "down|up", "down").readOnly(),
          words("currentManager", designations, "none").readOnly(),
          object("customKeys", customKeys()),
          object("eventLogControl", eventLevels()).command(),
          flag("fullNevoWhenManaged", "disabled"),
          words("managedSetting", managedSettings, "non_managed"),
          number("managerApiPort", 0, 65535, 8443),
          text("managerIpAddress", 57, "").as(Form::AddressOrEmpty),
          text("masterSwitchEid", eidLength, "").as(Form::EidOrEmpty),
          flag("nevoBannerEnable", "disabled"),
          text("nevoBannerText", 1024, "").as(Form::PrintableLines),
          text("nevoCustomHelpLink", 1024, "").as(Form::LinkOrEmpty),
          number("nevoInactivityTimeout", 0, 1440, 10),
          text("peerControllerSwitchEid", eidLength, "").as(Form::EidOrEmpty).readOnly(),
          words("preferredManager", designations, "none").readOnly(),
          object("rapParameters", rapParameters()),
          flag("resetAfterUpgrade", "enabled"),
          flag("rxOsdBannerEnable", "disabled"),
          text("rxOsdBannerText", 450, "").as(Form::PrintableLines),
          words("rxOsdHotKey", hotKeys, "print_screen"),
          number("switchApiPort", 0, 65535, 8444),
          text("syslogDest", 57, "").as(Form::AddressOrEmpty)};
}

Parameters user()
{
  return {text("name", 20, "").as(Form::Alphanumeric).unique().required(),
          text("mgrName", 64, "").readOnly(),
          text("fullName", 40, "").as(Form::Printable),
          text("password", 20, "").as(Form::Visible).writeOnly(),
          words("passwordIsInitialized", "is_false|is_true", "is_false"),
          words("role", "user|admin", "user"),
          flag("accountEnable", "enabled"),
          flag("allowBlankPassword", "disabled"),
          flag("allowPasswordChange", "disabled"),
          flag("allTargetAccess", "disabled"),
          words("modeAllowed", accessModes, "share_or_private_mode"),
          words("usbMode", usbModes, "all_devices"),
          number("osdInactivityTimeout", 0, 1440, 5),
          object("keySettings", keySettings()),
          array("favorite", targetEntry(), 32),
          flag("enableClearEventHistoryWarning", "enabled"),
          flag("enableDeleteMonitorWarning", "enabled"),
          flag("enableDeleteUserWarning", "enabled"),
          flag("enableDisconnectSessionWarning", "enabled"),
          flag("enableLogoutUnsavedChangesWarning", "enabled"),
          flag("enableLogoutUserWarning", "enabled"),
          flag("enableRemoveDevicesWarning", "enabled"),
          flag("enableRemoveOfflineDevicesWarning", "enabled"),
          flag("enableResetDevicesWarning", "enabled"),
          flag("enableRestoreFactoryDefaultsWarning", "enabled")};
}

} // namespace
}
