// SPDX-License-Identifier: MIT
#include "WDevViewSwxModeTable.h"

#include "Text.h"
#include "WCascadeMode.h"
#include "WTextCascadeRole.h"

WDevViewSwxModeTable::WDevViewSwxModeTable(Wt::WContainerWidget *parent)
    : WSettingsTable("swx", WritesFieldwise, {text("Setting"), text("Value")}, parent)
{
  mode = add<WCascadeMode>(text("Cascade Participation"), "mode", tr("tt.dev.swx.mode"));
  addReadOnly<WTextCascadeRole>(tr("swx.deviceDetails.label.CascadeRole"), "cascadeRole",
                                tr("tt.dev.swx.cascadeRole"));
  // The mode of a switch is set on that switch alone, and the one that this runs on is the first.
  enableWhile(mode, [this] { return records() == Indexes(1, 1); });
}
