// SPDX-License-Identifier: MIT
#include "WDevViewSwxNtpTable.h"

#include "SwxConflict.h"
#include "Text.h"
#include "WEnableDisable.h"
#include "WHostAddr.h"
#include "WNtpStatus.h"
#include "WNtpTime.h"

WDevViewSwxNtpTable::WDevViewSwxNtpTable(Wt::WContainerWidget *parent)
    : WSettingsTable("swx", CountsEnabledOnly, {text("Item"), text("Value")}, parent), isEditable(true)
{
  control = add<WEnableDisable>(text("NTP"), "ntpEnable", tr("tt.dev.swx.ntp.enable"));
  Wt::WWidget *primary = add<WHostAddr>(text("Primary NTP Server IP Address"), "primaryNtpIpAddress",
                                        tr("tt.dev.swx.ntp.primaryAddress"));
  Wt::WWidget *secondary = add<WHostAddr>(text("Secondary NTP Server IP Address"), "secondaryNtpIpAddress",
                                          tr("tt.dev.swx.ntp.secondaryAddress"));
  status = addReadOnly<WNtpStatus>(text("NTP Status"), "ntpStatus");
  Wt::WWidget *time = addReadOnly<WNtpTime>(text("Time"), "currentSysTime");
  enableWhile(control, [this] { return isEditable; });
  for (Wt::WWidget *address : {primary, secondary})
    enableWhile(address, [this] { return isEditable && control->isChosenEnabled(); });
  status->setDisabled(true);
  time->setDisabled(true);
}

void WDevViewSwxNtpTable::readFromDatabase(std::vector<unsigned int> indexes, bool force)
{
  isEditable = !SwxConflict_isAmong(indexes);
  WSettingsTable::readFromDatabase(indexes, force);
  if (!control->isChosenEnabled())
    status->setText(text("Inactive"));
}

void WDevViewSwxNtpTable::clearStatus()
{
  status->setText(Wt::WString());
}
