// SPDX-License-Identifier: MIT
#include "KitDemo.h"

#include "Db.h"
#include "DemoTables.h"
#include "Main.h"
#include "WSettingsTab.h"
#include "WSettingsTable.h"
#include "ZelReq.h"
#include "ZelRsp.h"
#include "ZelValue.h"

#include <Wt/WCheckBox>
#include <Wt/WEnvironment>
#include <Wt/WMessageResourceBundle>
#include <Wt/WPushButton>
#include <Wt/WText>
#include <Wt/WTimer>

namespace
{

const unsigned int kRecordCount = 3;
const int kRefreshMilliseconds = 1000;

// The transmitters of the store.
std::vector<TargetItem> targets()
{
  std::vector<TargetItem> found;
  ZelClient_s *client = 0;
  if (Db_db.getZelClient(client) != 0)
    return found;
  const ZelResponse response(ZelReq_txRetrieve(client, "[\"index\",\"eid\",\"name\"]"));
  for (int i = 0; i < ZelRspUtil_numEntries(response.get()); ++i) {
    json_t *row = ZelObj_getRow(response.get(), static_cast<unsigned int>(i));
    const char *eid = ZelRsp_txGetEid(row);
    const char *name = ZelRsp_txGetName(row);
    found.push_back({ZelRsp_txGetIndex(row), false, eid ? eid : "", name ? name : ""});
  }
  return found;
}

} // namespace

KitDemo::KitDemo(const Wt::WEnvironment &environment)
    : Wt::WApplication(environment), page(new Wt::WContainerWidget(root())), refreshTimer(new Wt::WTimer())
{
  setTitle("Bound widgets");
  messageResourceBundle().use(std::string(Main_docRoot) + "/resources/msgs-general");
  const std::string *theme = environment.getParameter("theme");
  setCssTheme(theme ? *theme : "unknown");
  enableUpdates(true);
  page->setAttributeValue("role", "main");
  new Wt::WText("<h1>Bound widgets</h1>", page);
  addRecordChoice();
  addSection("Receivers", {DemoTables_receivers(), DemoTables_receiversAtOnce()});
  addSection("Choices of receivers", {DemoTables_receiverChoices(), DemoTables_receiverVideo()});
  addSection("Targets", {DemoTables_targets(targets())});
  addSection("Transmitters", {DemoTables_transmitters()});
  addSection("Switches", {DemoTables_switches()});
  addSection("Network", {DemoTables_network()});
  addSection("Users", {DemoTables_users()});
  addSection("System", {DemoTables_system()});
  addSection("Addresses of the system", {DemoTables_systemAddresses(), DemoTables_unbound()});
  new Wt::WText("End of the kit", page);
  selectionChangedHandler();
  refreshTimer->setInterval(kRefreshMilliseconds);
  refreshTimer->timeout().connect(this, &KitDemo::refreshTimerTimeout);
  refreshTimer->start();
}

KitDemo::~KitDemo()
{
  // The widgets go before what they reach the store through.
  root()->clear();
}

void KitDemo::addRecordChoice()
{
  for (unsigned int index = 1; index <= kRecordCount; ++index) {
    Wt::WCheckBox *box = new Wt::WCheckBox("Record " + std::to_string(index), page);
    box->setChecked(index == 1);
    box->changed().connect(this, &KitDemo::selectionChangedHandler);
    records.push_back(box);
  }
}

void KitDemo::addSection(const char *title, const std::vector<WSettingsTable *> &tables)
{
  Wt::WContainerWidget *section = new Wt::WContainerWidget(page);
  section->setAttributeValue("role", "region");
  section->setAttributeValue("aria-label", title);
  new Wt::WText(std::string("<h2>") + title + "</h2>", section);
  WSettingsTab *tab = new WSettingsTab(ChangeTracker::DevRxSettings, {}, tables, section);
  SettingsEditing::View view;
  view.selectedIndexes = [this] { return selectedIndexes(); };
  view.refresh = [this] { refreshTimerTimeout(); };
  editings.emplace_back(new SettingsEditing(tab, view));
  tabs.push_back(tab);
}

std::vector<unsigned int> KitDemo::selectedIndexes() const
{
  std::vector<unsigned int> indexes;
  for (std::size_t i = 0; i < records.size(); ++i)
    if (records[i]->isChecked())
      indexes.push_back(static_cast<unsigned int>(i + 1));
  return indexes;
}

void KitDemo::selectionChangedHandler()
{
  for (WSettingsTab *tab : tabs)
    tab->readFromDatabase(true, selectedIndexes(), true);
}

void KitDemo::refreshTimerTimeout()
{
  for (WSettingsTab *tab : tabs)
    tab->readFromDatabase(true, selectedIndexes(), false);
}
