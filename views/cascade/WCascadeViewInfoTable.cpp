// SPDX-License-Identifier: MIT
#include "WCascadeViewInfoTable.h"

#include "Db.h"
#include "Text.h"
#include "WAnchorZel.h"
#include "WTextCascadeMode.h"
#include "WTextCascadeRole.h"
#include "WTextSwxStatus.h"
#include "WTextZel.h"

namespace
{

/// The switch whose EID a parameter of the system holds; none if there is no such switch. True if the
/// parameter cannot be read.
bool findSwitch(const char *param, std::vector<unsigned int> &records)
{
  std::string eid;
  unsigned int index = 0;
  Db::Errors dropped;
  records.clear();
  if (Db_db.readString("systemGlobals", 0, param, eid, dropped) != 0)
    return true;
  if (!eid.empty() && Db_db.findIndexOfStringKey("swx", "index", "eid", eid.c_str(), index, dropped) == 0)
    records.push_back(index);
  return false;
}

} // namespace

WCascadeViewInfoTable::WCascadeViewInfoTable(Wt::WContainerWidget *parent)
    : WSettingsTable("swx", Plain, {text("Item"), text("Value")}, parent), switchedRole(false)
{
  addHeading(tr("cascade.info.table.masterSwitch"));
  beginGroup([this](Indexes &records) { return findController(records); });
  addSwitch();
  addHeading();
  addHeading(tr("cascade.info.table.peerSwitch"));
  beginGroup([](Indexes &records) { return findSwitch("peerControllerSwitchEid", records); });
  addSwitch();
}

void WCascadeViewInfoTable::addSwitch()
{
  bindTo("swx");
  addReadOnly<WTextZel>(tr("cascade.info.table.name"), "name");
  addReadOnly<WTextZel>(tr("cascade.info.table.EID"), "eid");
  addDerived<WTextSwxStatus>(tr("cascade.info.table.status"));
  bindTo("swx/network/ipv4");
  addReadOnly<WAnchorZel>(tr("cascade.info.table.ipv4"), "ipAddress")->addStyleClass("nevo-link");
  bindTo("swx/network/ipv6");
  addReadOnly<WAnchorZel>(tr("cascade.info.table.ipv6"), "ipAddress")->addStyleClass("nevo-link");
  bindTo("swx");
  addReadOnly<WTextCascadeMode>(tr("cascade.info.table.cascadeMode"), "mode");
  addReadOnly<WTextCascadeRole>(tr("cascade.info.table.cascadeRole"), "cascadeRole");
}

/// While there is no controller, the last one stays on the screen.
bool WCascadeViewInfoTable::findController(Indexes &records)
{
  if (findSwitch("masterSwitchEid", records) || records.empty())
    return true;
  switchedRole = records.front() != 1;
  return false;
}
