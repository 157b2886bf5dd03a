// SPDX-License-Identifier: MIT
// The tables of settings of all views: what is entered arrives in the store, and nothing else changes.
#include "SettingsTablesPage.h"
#include "WCascadeViewInfoTable.h"
#include "WDevViewRxAttribsTable.h"
#include "WDevViewRxSettingsTable1.h"
#include "WDevViewRxSettingsTable2.h"
#include "WDevViewRxStatusTable.h"
#include "WDevViewSwxAttribsTable.h"
#include "WDevViewSwxIpV4SettingsTable.h"
#include "WDevViewSwxIpV6SettingsTable.h"
#include "WDevViewSwxModeTable.h"
#include "WDevViewSwxNtpTable.h"
#include "WDevViewSwxStatusTable.h"
#include "WDevViewTxAttribsTable.h"
#include "WDevViewTxSettingsTable1.h"
#include "WDevViewTxSettingsTable2.h"
#include "WDevViewTxStatusTable.h"
#include "WManagedViewSwxModeTable.h"
#include "WPeriphViewMonAttribsTable.h"
#include "WSlaveSettingsViewSwxModeTable.h"
#include "WSysSettingsViewDefaultsTable.h"
#include "WSysSettingsViewEventsTable.h"
#include "WSysSettingsViewMgrTable.h"
#include "WSysSettingsViewNevoTable.h"
#include "WSysSettingsViewOsdTable.h"
#include "WSysSettingsViewOtherTable.h"
#include "WSysSettingsViewRapTable.h"
#include "WUsrViewAttribsTable.h"
#include "WUsrViewOsdFxTable.h"
#include "WUsrViewOsdHotkeyTable.h"
#include "WUsrViewPermissionsTable.h"

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{

template <class Table> WSettingsTable *make()
{
  return new Table();
}
WSettingsTable *makeMonitors()
{
  return new WPeriphViewMonAttribsTable(0);
}

// One change of one field, and what the store holds for it afterwards.
struct Change {
  const char *test;
  WSettingsTable *(*table)();
  Indexes records;
  const char *label;
  bool isChoice;
  const char *entered;
  const char *resource;
  unsigned int index;
  const char *param;
  const char *held;
};

const Change kChanges[] = {
    {"userName",
     make<WUsrViewAttribsTable>,
     {2},
     "Full Name",
     false,
     "Ada L",
     "user",
     2,
     "fullName",
     "Ada L"},
    {"userRole",
     make<WUsrViewPermissionsTable>,
     {2},
     "USB Mode",
     true,
     "All devices",
     "user",
     2,
     "usbMode",
     "all_devices"},
    {"userHotkey",
     make<WUsrViewOsdHotkeyTable>,
     {2},
     "OSD Hotkey",
     true,
     "Alt + Alt",
     "user",
     2,
     "keySettings",
     "\"alt_alt\""},
    {"userOsdTimeout",
     make<WUsrViewOsdHotkeyTable>,
     {2},
     "OSD Inactivity Timeout (minutes, 0 means never)",
     false,
     "77",
     "user",
     2,
     "osdInactivityTimeout",
     "77"},
    {"rxName",
     make<WDevViewRxAttribsTable>,
     {1},
     "Receiver Name",
     false,
     "Desk X",
     "rx",
     1,
     "name",
     "Desk X"},
    {"rxNotes",
     make<WDevViewRxAttribsTable>,
     {1},
     "Notes",
     false,
     "two\nlines",
     "rx",
     1,
     "notes",
     "two\nlines"},
    {"rxUsbMode",
     make<WDevViewRxSettingsTable1>,
     {1},
     "USB Mode",
     true,
     "Disabled",
     "rx",
     1,
     "usbMode",
     "disabled"},
    {"rxTimeout",
     make<WDevViewRxSettingsTable2>,
     {1},
     "Session Timeout (minutes, 0 means never)",
     false,
     "1440",
     "rx",
     1,
     "sessionInactivityTimeout",
     "1440"},
    {"rxLogLevel",
     make<WDevViewRxSettingsTable2>,
     {1},
     "USB Log Level",
     true,
     "Debugging",
     "rx",
     1,
     "usbLogLevel",
     "debug"},
    {"txLocation",
     make<WDevViewTxAttribsTable>,
     {1},
     "Location",
     false,
     "cellar",
     "tx",
     1,
     "location",
     "cellar"},
    {"txUsbMode",
     make<WDevViewTxSettingsTable1>,
     {1},
     "USB Mode",
     true,
     "Disabled",
     "tx",
     1,
     "usbMode",
     "disabled"},
    {"txAccess",
     make<WDevViewTxSettingsTable2>,
     {1},
     "Allowed Access",
     true,
     "Private only",
     "tx",
     1,
     "modeAllowed",
     "private_mode"},
    {"swxName", make<WDevViewSwxAttribsTable>, {1}, "Switch Name", false, "Main", "swx", 1, "name", "Main"},
    {"swxIpV4",
     make<WDevViewSwxIpV4SettingsTable>,
     {1},
     "Configuration Method",
     true,
     "Zeroconf",
     "swx",
     1,
     "network",
     "\"zeroconf\""},
    {"swxIpV6",
     make<WDevViewSwxIpV6SettingsTable>,
     {1},
     "Configuration Method",
     true,
     "Static",
     "swx",
     1,
     "network",
     "\"static\""},
    {"swxNtp", make<WDevViewSwxNtpTable>, {1}, "NTP", true, "Enabled", "swx", 1, "ntpEnable", "enabled"},
    {"monitor", makeMonitors, {2}, "Description", false, "wall", "edid", 2, "description", "wall"},
    {"managerPort",
     make<WSysSettingsViewMgrTable>,
     {},
     "Switch API Server TCP Port",
     false,
     "8443",
     "systemGlobals",
     0,
     "switchApiPort",
     "8443"},
    {"nevoTimeout",
     make<WSysSettingsViewNevoTable>,
     {},
     "NEVO Inactivity Timeout (minutes, 0 means never)",
     false,
     "33",
     "systemGlobals",
     0,
     "nevoInactivityTimeout",
     "33"},
    {"helpUrl",
     make<WSysSettingsViewNevoTable>,
     {},
     "NEVO Help URL",
     false,
     "https://help.example/",
     "systemGlobals",
     0,
     "nevoCustomHelpLink",
     "https://help.example/"},
    {"osdHotkey",
     make<WSysSettingsViewOsdTable>,
     {},
     "Receiver OSD Hotkey",
     true,
     "Alt + Alt",
     "systemGlobals",
     0,
     "rxOsdHotKey",
     "alt_alt"},
    {"defaultTimeout",
     make<WSysSettingsViewDefaultsTable>,
     {},
     "OSD Inactivity Timeout (minutes, 0 means never)",
     false,
     "9",
     "cfgDefaults",
     0,
     "rxDefaultOsdInactivityTimeout",
     "9"},
    {"flashTime",
     make<WSysSettingsViewOtherTable>,
     {},
     "Default Time to Flash LCD Backlight (seconds)",
     false,
     "12",
     "systemGlobals",
     0,
     "backlightFlashDuration",
     "12"},
    {"telnetAccess",
     make<WSysSettingsViewRapTable>,
     {},
     "Telnet Access",
     true,
     "Enabled",
     "systemGlobals",
     0,
     "rapParameters",
     "\"telnetAccess\":\"enabled\""},
    {"syslog",
     make<WSysSettingsViewEventsTable>,
     {},
     "Syslog Server IP Address",
     false,
     "10.1.2.3",
     "systemGlobals",
     0,
     "syslogDest",
     "10.1.2.3"},
    {"loggedWarnings",
     make<WSysSettingsViewEventsTable>,
     {},
     "Log Warning Events",
     true,
     "Disabled",
     "eventLogControl",
     0,
     "warning",
     "disabled"},
};

class SettingsChange : public SettingsTables, public testing::WithParamInterface<Change>
{
};
INSTANTIATE_TEST_SUITE_P(Table, SettingsChange, testing::ValuesIn(kChanges),
                         [](const auto &change) { return std::string(change.param.test); });

} // namespace

TEST_P(SettingsChange, isWrittenAndShownAgain)
{
  const Change &change = GetParam();
  show(change.table, change.records);
  if (change.isChoice)
    choose(change.label, change.entered);
  else
    type(change.label, change.entered);
  EXPECT_TRUE(table_->hasChangedContent());
  EXPECT_FALSE(write());
  EXPECT_THAT(errors_, IsEmpty());
  EXPECT_THAT(store_.get(change.resource, change.index, change.param), HasSubstr(change.held));
  read();
  EXPECT_TRUE(allValid());
  const std::string again = value(change.label);
  show(change.table, change.records);
  EXPECT_EQ(value(change.label), again);
  if (!change.isChoice) {
    EXPECT_EQ(again, change.entered);
  }
}

// ---- receivers and transmitters

TEST_F(SettingsTables, receiverStatusShowsWhatIsStoredAndWhatIsDerived)
{
  showTable<WDevViewRxStatusTable>({1});
  EXPECT_EQ(shown("EID"), store_.get("rx", 1, "eid"));
  EXPECT_EQ(shown("Firmware"), store_.get("rx", 1, "firmwareVersion"));
  EXPECT_THAT(shown("Status"), Not(IsEmpty()));
  EXPECT_THAT(shown("Attached Switch"), Not(IsEmpty()));
  readOf({1, 2});
  EXPECT_EQ(shown("EID"), "");
}

TEST_F(SettingsTables, transmitterAndSwitchStatusLikewise)
{
  showTable<WDevViewTxStatusTable>({1});
  EXPECT_EQ(shown("EID"), store_.get("tx", 1, "eid"));
  EXPECT_THAT(shown("Status"), Not(IsEmpty()));
  showTable<WDevViewSwxStatusTable>({1});
  EXPECT_EQ(shown("EID"), store_.get("swx", 1, "eid"));
  EXPECT_THAT(shown("Status"), Not(IsEmpty()));
}

TEST_F(SettingsTables, aNewLocationReachesAllReceiversAndTheirNamesStay)
{
  showTable<WDevViewRxAttribsTable>({1, 2, 3});
  const std::string name = store_.get("rx", 2, "name");
  type("Location", "hall");
  EXPECT_FALSE(write());
  for (const unsigned int index : {1U, 2U, 3U})
    EXPECT_EQ(store_.get("rx", index, "location"), "hall");
  EXPECT_EQ(store_.get("rx", 2, "name"), name);
}

TEST_F(SettingsTables, autoLoginNeedsAUserForOneReceiver)
{
  showTable<WDevViewRxSettingsTable1>({1});
  choose("Auto Login", "Disabled");
  EXPECT_FALSE(isEnabled("Auto Login Username"));
  EXPECT_TRUE(allValid());
  choose("Auto Login", "Enabled");
  EXPECT_TRUE(isEnabled("Auto Login Username"));
  choose("Auto Login Username", "");
  EXPECT_FALSE(allValid());
  EXPECT_TRUE(anyValid());
  choose("Auto Login Username", "operator");
  EXPECT_TRUE(allValid());
}

TEST_F(SettingsTables, autoConnectEnablesItsTargetAndMode)
{
  showTable<WDevViewRxSettingsTable1>({1});
  for (const bool on : {true, false}) {
    choose("Auto Connect", on ? "Enabled" : "Disabled");
    EXPECT_EQ(isEnabled("Auto Connect Target"), on);
    EXPECT_EQ(isEnabled("Auto Connect Mode"), on);
  }
}

TEST_F(SettingsTables, receiverTimeoutsHaveBounds)
{
  showTable<WDevViewRxSettingsTable2>({1});
  type("Session Timeout (minutes, 0 means never)", "1441");
  EXPECT_FALSE(allValid());
  type("Session Timeout (minutes, 0 means never)", "0");
  EXPECT_TRUE(allValid());
  type("Share Control Timeout (seconds)", "26");
  EXPECT_FALSE(allValid());
  EXPECT_TRUE(anyValid());
}

TEST_F(SettingsTables, aLineEndIsForReceiversPlacesOnly)
{
  showTable<WDevViewRxAttribsTable>({1});
  type("Location", "a\nb");
  EXPECT_TRUE(allValid());
  showTable<WDevViewTxAttribsTable>({1});
  type("Location", "a\nb");
  EXPECT_FALSE(allValid());
}

TEST_F(SettingsTables, wakeOnLanNeedsAnAddressWhileItIsOn)
{
  showTable<WDevViewTxSettingsTable1>({1});
  choose("Wake on LAN", "Enabled");
  EXPECT_TRUE(isEnabled("Wake on LAN MAC Address"));
  type("Wake on LAN MAC Address", "00:11");
  EXPECT_FALSE(allValid());
  choose("Wake on LAN", "Disabled");
  EXPECT_TRUE(allValid());
  EXPECT_FALSE(isEnabled("Wake on LAN MAC Address"));
}

// ---- switches

TEST_F(SettingsTables, theModeOfASwitchIsSetOnThatSwitchAlone)
{
  store_.set("swx", 1, "mode", "slave");
  showTable<WDevViewSwxModeTable>({1});
  EXPECT_TRUE(isEnabled("Cascade Participation"));
  EXPECT_EQ(value("Cascade Participation"), "1");
  readOf({1, 2});
  EXPECT_FALSE(isEnabled("Cascade Participation"));
  readOf({2});
  EXPECT_FALSE(isEnabled("Cascade Participation"));
}

TEST_F(SettingsTables, aSwitchInConflictCannotBeEdited)
{
  showTable<WDevViewSwxAttribsTable>({1});
  EXPECT_TRUE(isEnabled("Switch Name"));
  store_.set("swx", 1, "status", "conflict_other_master");
  read();
  EXPECT_FALSE(isEnabled("Switch Name"));
  EXPECT_FALSE(isEnabled("Notes"));
  showTable<WDevViewSwxNtpTable>({1});
  EXPECT_FALSE(isEnabled("NTP"));
}

TEST_F(SettingsTables, networkSettingsAreEditedForOneSwitchWithAStaticAddress)
{
  showTable<WDevViewSwxIpV4SettingsTable>({1});
  choose("Configuration Method", "DHCP");
  EXPECT_FALSE(isEnabled("IPv4 Address"));
  choose("Configuration Method", "Static");
  for (const char *label : {"IPv4 Address", "Subnet Mask", "Gateway Address"})
    EXPECT_TRUE(isEnabled(label)) << label;
  type("IPv4 Address", "10.0.0");
  EXPECT_FALSE(allValid());
  EXPECT_FALSE(anyValid());
  choose("Configuration Method", "DHCP");
  EXPECT_TRUE(allValid());
  readOf({1, 2});
  for (const char *label : {"Configuration Method", "IPv4 Address", "Subnet Mask", "Gateway Address"})
    EXPECT_FALSE(isEnabled(label)) << label;
}

TEST_F(SettingsTables, aPrefixHasOneToHundredTwentyEightBits)
{
  showTable<WDevViewSwxIpV6SettingsTable>({1});
  choose("Configuration Method", "Static");
  type("IPv6 Address", "fe80::1");
  type("Gateway Address", "fe80::2");
  for (const auto &[text, valid] : std::initializer_list<std::pair<const char *, bool>>{
           {"0", false}, {"1", true}, {"128", true}, {"129", false}}) {
    type("Prefix Length", text);
    EXPECT_EQ(allValid(), valid) << text;
  }
}

TEST_F(SettingsTables, timeServersAreForSwitchesThatUseThem)
{
  auto *table = showTable<WDevViewSwxNtpTable>({1});
  choose("NTP", "Enabled");
  EXPECT_TRUE(isEnabled("Primary NTP Server IP Address"));
  type("Primary NTP Server IP Address", "clock");
  EXPECT_FALSE(allValid());
  EXPECT_TRUE(anyValid());
  choose("NTP", "Disabled");
  EXPECT_FALSE(isEnabled("Primary NTP Server IP Address"));
  EXPECT_TRUE(allValid());
  choose("NTP", "Enabled");
  type("Primary NTP Server IP Address", "10.0.0.1");
  choose("NTP", "Disabled");
  EXPECT_FALSE(write());
  store_.set("swx", 1, "ntpStatus", "success");
  read();
  EXPECT_EQ(shown("NTP Status"), "Inactive");
  page_->act([table] { table->clearStatus(); });
  EXPECT_EQ(shown("NTP Status"), "");
}

// ---- users

TEST_F(SettingsTables, anAdministratorMayConnectInEitherMode)
{
  store_.set("user", 2, "modeAllowed", "share_mode");
  showTable<WUsrViewPermissionsTable>({2});
  choose("Role", "User");
  EXPECT_EQ(value("Access Mode"), "0");
  choose("Role", "Administrator");
  EXPECT_EQ(value("Access Mode"), "2");
  EXPECT_FALSE(write());
  EXPECT_EQ(store_.get("user", 2, "modeAllowed"), "share_or_private_mode");
  EXPECT_EQ(store_.get("user", 2, "role"), "admin");
}

TEST_F(SettingsTables, aPasswordIsWrittenWhenItIsEnteredTwiceAlike)
{
  showTable<WUsrViewAttribsTable>({2});
  EXPECT_FALSE(isEnabled("Password"));
  choose("Change Password", "Enabled");
  EXPECT_TRUE(isEnabled("Password"));
  type("Password", "secret1");
  type("Confirm Password", "secret2");
  EXPECT_FALSE(allValid());
  EXPECT_TRUE(visitor().field("Confirm Password")->hasClass("Wt-invalid"));
  EXPECT_TRUE(write());
  type("Password", "secret1");
  type("Confirm Password", "secret1");
  EXPECT_TRUE(allValid());
  EXPECT_FALSE(write());
}

TEST_F(SettingsTables, theNameOfSeveralUsersCannotBeEdited)
{
  showTable<WUsrViewAttribsTable>({1, 2});
  EXPECT_FALSE(isEnabled("Username"));
  EXPECT_TRUE(isEnabled("Full Name"));
  readOf({2});
  EXPECT_TRUE(isEnabled("Username"));
}

TEST_F(SettingsTables, aSequenceOfKeysIsForTheCustomHotkey)
{
  showTable<WUsrViewOsdHotkeyTable>({2});
  const auto selector = [this] { return visitor().byClass("nevo-attribute-table-read-write-line-edit"); };
  choose("OSD Hotkey", "None");
  EXPECT_TRUE(selector()->has("disabled"));
  choose("OSD Hotkey", "Custom (1 keycode or 2 codes in sequence)");
  EXPECT_FALSE(selector()->has("disabled"));
}

TEST_F(SettingsTables, functionKeysConnectToTargetsAndUsersThatDifferKeepTheirOwn)
{
  const std::string eid = store_.get("tx", 1, "eid");
  const auto make = [eid]() -> WSettingsTable * {
    return new WUsrViewOsdFxTable([eid](const Indexes &) {
      return std::vector<TargetItem>{{1, false, eid, "First"}};
    });
  };
  show(make, {2});
  EXPECT_FALSE(isEnabled("F3 Target"));
  choose("F3", "Connect to target X");
  read(false);
  EXPECT_TRUE(isEnabled("F3 Target"));
  choose("F3 Target", eid + " (First)");
  EXPECT_FALSE(write());
  EXPECT_THAT(store_.get("user", 2, "keySettings"), HasSubstr(eid));
  EXPECT_THAT(store_.get("user", 2, "keySettings"), HasSubstr("print_screen"));
  read();
  EXPECT_EQ(value("F3"), "4");
  readOf({1});
  choose("F3", "Do nothing");
  EXPECT_FALSE(write());
  readOf({1, 2});
  EXPECT_EQ(value("F3"), "10"); // the blank item
  EXPECT_FALSE(isEnabled("F3 Target"));
}

// ---- monitors

TEST_F(SettingsTables, monitorsShowWhatTheirBlocksSayWhereTheyAgree)
{
  show(makeMonitors, {1});
  EXPECT_EQ(value("Name"), store_.get("edid", 1, "name"));
  const auto derived = [this](int i) {
    return visitor().byClass("nevo-attribute-table-read-only-cell", i)->allText();
  };
  EXPECT_THAT(derived(0), Not(IsEmpty()));
  EXPECT_THAT(derived(2), Not(IsEmpty()));
  readOf({});
  EXPECT_EQ(derived(0), "");
  readOf({1, 1});
  EXPECT_THAT(derived(0), Not(IsEmpty()));
}

// ---- the system

TEST_F(SettingsTables, bannersAreEditedWhileTheyAreOn)
{
  showTable<WSysSettingsViewNevoTable>({});
  choose("NEVO Banner", "Enabled");
  EXPECT_TRUE(isEnabled("NEVO Banner Text"));
  choose("NEVO Banner", "Disabled");
  EXPECT_FALSE(isEnabled("NEVO Banner Text"));
  type("NEVO Help URL", "ftp://x/");
  EXPECT_FALSE(allValid());
  type("NEVO Help URL", "");
  EXPECT_TRUE(allValid());
  type("NEVO Inactivity Timeout (minutes, 0 means never)", "");
  EXPECT_FALSE(allValid());
}

TEST_F(SettingsTables, aSshPasswordIsSentOnlyWhenItIsEnteredTwiceAlike)
{
  showTable<WSysSettingsViewRapTable>({});
  choose("SSH Access", "Enabled");
  type("SSH Password", "abc");
  type("Confirm SSH Password", "abd");
  type("SSH Port", "1024");
  EXPECT_TRUE(allValid());
  EXPECT_FALSE(write());
  EXPECT_THAT(store_.get("systemGlobals", 0, "rapParameters"), HasSubstr("1024"));
  EXPECT_TRUE(visitor().field("Confirm SSH Password")->hasClass("Wt-invalid"));
  EXPECT_EQ(value("Confirm SSH Password"), "");
  type("Confirm SSH Password", "abc");
  EXPECT_FALSE(write());
  EXPECT_FALSE(visitor().field("Confirm SSH Password")->hasClass("Wt-invalid"));
  type("SSH Port", "1023");
  EXPECT_FALSE(allValid());
}

TEST_F(SettingsTables, theManagersModeIsLeftOnTheMasterOnly)
{
  store_.set("systemGlobals", 0, "managedSetting", "verified");
  showTable<WSysSettingsViewMgrTable>({});
  EXPECT_TRUE(isEnabled("System Mode"));
  EXPECT_EQ(value("System Mode"), "1");
  choose("System Mode", "Unmanaged");
  EXPECT_FALSE(write());
  EXPECT_EQ(store_.get("systemGlobals", 0, "managedSetting"), "unenrolling");
  EXPECT_FALSE(isEnabled("Primary Manager IP Address"));
  store_.set("swx", 1, "mode", "slave");
  showTable<WSysSettingsViewMgrTable>({});
  EXPECT_FALSE(isEnabled("System Mode"));
}

// ---- cascades

TEST_F(SettingsTables, theControllerOfACascadeAndItsPeerAreShownSideBySide)
{
  auto *table = showTable<WCascadeViewInfoTable>({});
  store_.set("systemGlobals", 0, "masterSwitchEid", store_.get("swx", 2, "eid"));
  store_.set("systemGlobals", 0, "peerControllerSwitchEid", store_.get("swx", 1, "eid"));
  read();
  const auto cell = [this](int i) {
    return visitor().byClass("nevo-attribute-table-read-only-cell", i)->allText();
  };
  EXPECT_EQ(cell(0), store_.get("swx", 2, "name"));
  EXPECT_EQ(cell(1), store_.get("swx", 2, "eid"));
  EXPECT_EQ(cell(7), store_.get("swx", 1, "name"));
  EXPECT_EQ(cell(8), store_.get("swx", 1, "eid"));
  EXPECT_TRUE(table->switchedRole);
  store_.set("systemGlobals", 0, "peerControllerSwitchEid", "");
  read();
  EXPECT_EQ(cell(7), "");
  EXPECT_EQ(cell(1), store_.get("swx", 2, "eid"));
}

TEST_F(SettingsTables, aSlaveFollowsTheMasterThatIsEntered)
{
  store_.set("swx", 1, "mode", "slave");
  showTable<WSlaveSettingsViewSwxModeTable>({1});
  EXPECT_EQ(value("Cascade Participation"), "1");
  type("Master Switch EID", "abc");
  EXPECT_FALSE(allValid());
  const std::string eid = store_.get("swx", 2, "eid");
  type("Master Switch EID", eid);
  EXPECT_TRUE(allValid());
  EXPECT_FALSE(write());
  EXPECT_EQ(store_.get("systemGlobals", 0, "masterSwitchEid"), eid);
}

TEST_F(SettingsTables, aManagedControllerShowsItsManagersAndOthersDoNot)
{
  store_.set("swx", 1, "cascadeRole", "controller");
  store_.set("systemGlobals", 0, "managedSetting", "enrolling");
  showTable<WManagedViewSwxModeTable>({1});
  EXPECT_EQ(value("Mode"), "1");
  EXPECT_NE(visitor().field("Primary Manager Communication"), nullptr);
  choose("Mode", "Unmanaged");
  EXPECT_FALSE(write());
  EXPECT_EQ(store_.get("systemGlobals", 0, "managedSetting"), "unenrolling");
  store_.set("swx", 1, "cascadeRole", "slave");
  store_.set("swx", 1, "mode", "slave");
  store_.set("systemGlobals", 0, "managedSetting", "verified");
  showTable<WManagedViewSwxModeTable>({1});
  EXPECT_EQ(visitor().field("Primary Manager Communication"), nullptr);
  EXPECT_EQ(value("Mode"), "1");
  EXPECT_FALSE(isEnabled("Mode"));
  EXPECT_TRUE(isEnabled("Master Switch EID"));
}
