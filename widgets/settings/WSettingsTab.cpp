// SPDX-License-Identifier: MIT
#include "WSettingsTab.h"

#include "Db.h"
#include "Text.h"
#include "WSettingsTable.h"

#include <Wt/WHBoxLayout>
#include <Wt/WPushButton>
#include <Wt/WVBoxLayout>
#include <algorithm>

namespace
{

const int kSpacing = 10; ///< pixels

} // namespace

WSettingsTab::WSettingsTab(ChangeTracker::SubsectionId subsectionId,
                           const std::vector<InfoMgr_InfoID> &watched,
                           const std::vector<WSettingsTable *> &tabTables, Wt::WContainerWidget *parent)
    : WSettingsTabBase(subsectionId, parent), saveButton(new Wt::WPushButton(text("Save"))),
      cancelButton(new Wt::WPushButton(text("Cancel"))), tables(tabTables)
{
  for (const InfoMgr_InfoID id : watched)
    watches.push_back({id, 0});
  saveButton->disable();
  cancelButton->disable();

  Wt::WVBoxLayout *layout = new Wt::WVBoxLayout();
  layout->setSpacing(kSpacing);
  Wt::WHBoxLayout *tableRow = new Wt::WHBoxLayout();
  for (WSettingsTable *table : tables) {
    tableRow->addWidget(table, 0, Wt::AlignTop);
    table->contentChanged().connect(this, &WSettingsTab::tableChangedHandler);
  }
  tableRow->addStretch(1);
  layout->addLayout(tableRow);
  Wt::WHBoxLayout *buttonRow = new Wt::WHBoxLayout();
  buttonRow->addWidget(cancelButton);
  buttonRow->addWidget(saveButton);
  buttonRow->addStretch(1);
  layout->addLayout(buttonRow);
  layout->addStretch(1);
  setLayout(layout);
}

bool WSettingsTab::writeToDatabase(std::vector<unsigned int> indexes, std::vector<std::string> &errors)
{
  bool failed = false;
  for (WSettingsTable *table : tables)
    if (table->writeToDatabase(indexes, errors))
      failed = true;
  return failed;
}

bool WSettingsTab::writeOrKeep(const std::vector<unsigned int> &indexes, std::vector<std::string> &errors)
{
  std::vector<std::vector<WWidgetZel *>> edits;
  for (const WSettingsTable *table : tables)
    edits.push_back(table->changedFields());
  if (!writeToDatabase(indexes, errors))
    return false;
  for (std::size_t i = 0; i < tables.size(); ++i)
    tables[i]->setContentChanged(edits[i]);
  return true;
}

void WSettingsTab::readFromDatabase(bool force, std::vector<unsigned int> indexes, bool discardEdits)
{
  if (anyWidgetHasFocus())
    return;
  if (!force && !newDataIsAvailable() && !discardEdits)
    return;
  const bool putBack = discardEdits || (force && !hasChanged());
  for (WSettingsTable *table : tables)
    table->readFromDatabase(indexes, putBack);
}

bool WSettingsTab::newDataIsAvailable()
{
  return std::any_of(watches.begin(), watches.end(),
                     [](Watch &watch) { return Db_db.newDataIsAvailable(watch.id, watch.lastChange); });
}

bool WSettingsTab::anyWidgetHasFocus() const
{
  return std::any_of(tables.begin(), tables.end(),
                     [](const WSettingsTable *table) { return table->anyWidgetHasFocus(); });
}

bool WSettingsTab::isAllValid()
{
  bool valid = true;
  for (WSettingsTable *table : tables)
    valid = table->isAllValid() && valid;
  return valid;
}

bool WSettingsTab::isAnyValid()
{
  bool valid = true;
  for (WSettingsTable *table : tables)
    valid = table->isAnyValid() && valid;
  return valid;
}

void WSettingsTab::tableChangedHandler()
{
  contentChangedSignal.emit();
}
