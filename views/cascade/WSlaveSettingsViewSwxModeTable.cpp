// SPDX-License-Identifier: MIT
#include "WSlaveSettingsViewSwxModeTable.h"

#include "Text.h"
#include "WCascadeMode.h"
#include "WEid.h"
#include "WTextCascadeRole.h"

WSlaveSettingsViewSwxModeTable::WSlaveSettingsViewSwxModeTable(Wt::WContainerWidget *parent)
    : WSettingsTable("swx", WritesFieldwise, {text("Setting"), text("Value")}, parent)
{
  mode = add<WCascadeMode>(text("Cascade Participation"), "mode");
  masterEid =
      addField(text("Master Switch EID"), new WEid("systemGlobals", "masterSwitchEid", false), Wt::WString());
  addReadOnly<WTextCascadeRole>(tr("cascade.info.table.cascadeRole"), "cascadeRole");
}

bool WSlaveSettingsViewSwxModeTable::isAllValid()
{
  return masterEid->isValid();
}
