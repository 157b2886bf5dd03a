// SPDX-License-Identifier: MIT
#include "DemoTables.h"

#include "WAccessMode.h"
#include "WAnchorZel.h"
#include "WAutoConnMode.h"
#include "WCascadeMode.h"
#include "WCascadeRole.h"
#include "WCheckBoxZel.h"
#include "WComboBoxZel.h"
#include "WComboBoxZelDynamic.h"
#include "WEid.h"
#include "WEnableDisable.h"
#include "WFwUpdateFileSrc.h"
#include "WHostAddr.h"
#include "WIpAddr.h"
#include "WIpV4Addr.h"
#include "WIpV4ConfigMethod.h"
#include "WIpV6Addr.h"
#include "WIpV6ConfigMethod.h"
#include "WKeyCode.h"
#include "WKeyCodeSelector.h"
#include "WLanguage.h"
#include "WLineEditUInt32Zel.h"
#include "WLineEditZel.h"
#include "WMacAddr.h"
#include "WMouseDelta.h"
#include "WNtpStatus.h"
#include "WNtpTime.h"
#include "WOsdActivateHotkey.h"
#include "WOsdActivateHotkeyCustom.h"
#include "WOsdHotkeyFunc.h"
#include "WSesMode.h"
#include "WSettingsTable.h"
#include "WTarget.h"
#include "WTargetAny.h"
#include "WTextAreaZel.h"
#include "WTextZel.h"
#include "WTrafficPriority.h"
#include "WUInt32Zel.h"
#include "WUsbLogLevel.h"
#include "WUsbMode.h"
#include "WUsr.h"
#include "WUsrRole.h"
#include "WVideoResolution.h"
#include "WVideoSyncPolarity.h"
#include "WWakeOnConnect.h"
#include "WWakeOnConnectKeyCode.h"

namespace
{

const int kPixelsOfFields = 250;

constexpr WComboBoxPlus::Triplet kUsbLogLevels[] = {
    {"none", "[RSnnn]None", 0}, {"info", "[RSnnn]Information", 1}, {"debug", "[RSnnn]Events", 2}};

// A table whose rows are added from outside.
class DemoTable : public WSettingsTable
{
public:
  DemoTable(const char *resource, int options) : WSettingsTable(resource, options, {"Widget", "Value"})
  {
    setFieldWidth(kPixelsOfFields);
  }
  using WSettingsTable::addField;
  using WSettingsTable::addReadOnlyField;
  using WSettingsTable::bindTo;

  template <class Field> void edited(const char *label, const char *param)
  {
    add<Field>(label, param, Wt::WString());
  }
  // A widget that its owner drives, and not the table.
  void unbound(const char *label, Wt::WWidget *widget)
  {
    addRow(label, widget, "nevo-attribute-table-read-write-cell");
  }
  template <class Field> void shown(const char *label, const char *param)
  {
    addReadOnly<Field>(label, param);
  }
};

DemoTable *receivers(int options)
{
  DemoTable *table = new DemoTable("rx", options);
  table->edited<WLineEditZel>("WLineEditZel name", "name");
  table->edited<WTextAreaZel>("WTextAreaZel notes", "notes");
  table->edited<WLineEditUInt32Zel>("WLineEditUInt32Zel sessionInactivityTimeout",
                                    "sessionInactivityTimeout");
  table->edited<WCheckBoxZel>("WCheckBoxZel audioControl", "audioControl");
  table->addField("WComboBoxZel usbLogLevel", new WComboBoxZel("rx", "usbLogLevel", true, kUsbLogLevels, 3),
                  Wt::WString(), "usbLogLevel");
  table->shown<WTextZel>("WTextZel eid", "eid");
  table->shown<WUInt32Zel>("WUInt32Zel sharingInactivityTimeout", "sharingInactivityTimeout");
  table->shown<WAnchorZel>("WAnchorZel location", "location");
  return table;
}

} // namespace

WSettingsTable *DemoTables_receivers()
{
  return receivers(WSettingsTable::Plain);
}

WSettingsTable *DemoTables_receiversAtOnce()
{
  return receivers(WSettingsTable::ReadsAtOnce);
}

WSettingsTable *DemoTables_system()
{
  DemoTable *table = new DemoTable("systemGlobals", WSettingsTable::SingleRecord);
  table->edited<WTextAreaZel>("WTextAreaZel nevoBannerText", "nevoBannerText");
  table->edited<WCheckBoxZel>("WCheckBoxZel nevoBannerEnable", "nevoBannerEnable");
  table->edited<WLineEditUInt32Zel>("WLineEditUInt32Zel nevoInactivityTimeout", "nevoInactivityTimeout");
  table->edited<WLineEditZel>("WLineEditZel nevoCustomHelpLink", "nevoCustomHelpLink");
  return table;
}

WSettingsTable *DemoTables_receiverChoices()
{
  DemoTable *table = new DemoTable("rx", WSettingsTable::Plain);
  table->edited<WAccessMode>("WAccessMode modeAllowed", "modeAllowed");
  table->edited<WAutoConnMode>("WAutoConnMode autoConnectMode", "autoConnectMode");
  table->edited<WEnableDisable>("WEnableDisable audioControl", "audioControl");
  table->edited<WUsbMode>("WUsbMode usbMode", "usbMode");
  table->edited<WUsbLogLevel>("WUsbLogLevel usbLogLevel", "usbLogLevel");
  table->edited<WUsr>("WUsr autoLoginUserIndex", "autoLoginUserIndex");
  table->addField("WTargetAny autoConnectTxEid", new WTargetAny(true), Wt::WString(), "autoConnectTxEid");
  table->addField("WComboBoxZelDynamic description",
                  new WComboBoxZelDynamic("rx", "description", true, "edid", "name"), Wt::WString(),
                  "description");
  return table;
}

WSettingsTable *DemoTables_receiverVideo()
{
  DemoTable *table = new DemoTable("rx/inputVideoTiming", WSettingsTable::ReadsAtOnce);
  table->addReadOnlyField("WVideoResolution",
                          new WVideoResolution("rx", "horizontalResolution", "verticalResolution", true), "");
  table->shown<WVideoSyncPolarity>("WVideoSyncPolarity", "horizontalSyncPolarity");
  WUInt32Zel *clock = new WUInt32Zel("rx", "pixelClockFrequency", true);
  clock->setDisplayScaling(0.001);
  table->addReadOnlyField("WUInt32Zel scaled", clock, "pixelClockFrequency");
  return table;
}

WSettingsTable *DemoTables_targets(std::vector<TargetItem> targets)
{
  DemoTable *table = new DemoTable("rx", WSettingsTable::Plain);
  WTarget *target = new WTarget("rx", "autoConnectTxEid", true);
  target->populateChoices(targets);
  table->addField("WTarget autoConnectTxEid", target, Wt::WString(), "autoConnectTxEid");
  return table;
}

WSettingsTable *DemoTables_transmitters()
{
  DemoTable *table = new DemoTable("tx", WSettingsTable::Plain);
  table->edited<WMacAddr>("WMacAddr wakeOnLanMacAddress", "wakeOnLanMacAddress");
  table->edited<WIpV4Addr>("WIpV4Addr location", "location");
  table->edited<WIpV6Addr>("WIpV6Addr description", "description");
  table->edited<WHostAddr>("WHostAddr notes", "notes");
  table->edited<WKeyCode>("WKeyCode iconIndex", "iconIndex");
  table->edited<WTrafficPriority>("WTrafficPriority trafficSetting", "trafficSetting");
  return table;
}

WSettingsTable *DemoTables_switches()
{
  DemoTable *table = new DemoTable("swx", WSettingsTable::Plain);
  table->edited<WCascadeMode>("WCascadeMode mode", "mode");
  table->edited<WCascadeRole>("WCascadeRole cascadeRole", "cascadeRole");
  table->edited<WLanguage>("WLanguage location", "location");
  table->edited<WOsdHotkeyFunc>("WOsdHotkeyFunc description", "description");
  table->edited<WWakeOnConnect>("WWakeOnConnect notes", "notes");
  table->shown<WNtpStatus>("WNtpStatus ntpStatus", "ntpStatus");
  table->shown<WNtpTime>("WNtpTime currentSysTime", "currentSysTime");
  return table;
}

WSettingsTable *DemoTables_network()
{
  DemoTable *table = new DemoTable("swx/network/ipv4", WSettingsTable::ReadsAtOnce);
  table->edited<WIpV4ConfigMethod>("WIpV4ConfigMethod ipv4ConfMethod", "ipv4ConfMethod");
  table->bindTo("swx/network/ipv6");
  table->edited<WIpV6ConfigMethod>("WIpV6ConfigMethod ipv6ConfMethod", "ipv6ConfMethod");
  return table;
}

WSettingsTable *DemoTables_users()
{
  DemoTable *table = new DemoTable("user", WSettingsTable::ReadsAtOnce);
  table->edited<WUsrRole>("WUsrRole role", "role");
  table->bindTo("user/keySettings/osdHotKey");
  table->edited<WOsdActivateHotkey>("WOsdActivateHotkey hotKey", "hotKey");
  table->bindTo("user/keySettings/osdHotKey/customKeys");
  table->edited<WOsdActivateHotkeyCustom>("WOsdActivateHotkeyCustom customKeys", "customKeys");
  return table;
}

WSettingsTable *DemoTables_systemAddresses()
{
  DemoTable *table = new DemoTable("systemGlobals", WSettingsTable::SingleRecord);
  table->edited<WIpAddr>("WIpAddr managerIpAddress", "managerIpAddress");
  table->edited<WEid>("WEid masterSwitchEid", "masterSwitchEid");
  table->edited<WMouseDelta>("WMouseDelta backlightFlashDuration", "backlightFlashDuration");
  return table;
}

WSettingsTable *DemoTables_unbound()
{
  DemoTable *table = new DemoTable("rx", WSettingsTable::Plain);
  table->unbound("WSesMode", new WSesMode());
  table->unbound("WFwUpdateFileSrc", new WFwUpdateFileSrc());
  table->unbound("WKeyCodeSelector", new WKeyCodeSelector());
  table->unbound("WWakeOnConnectKeyCode", new WWakeOnConnectKeyCode("user", "keySettings", true));
  return table;
}
