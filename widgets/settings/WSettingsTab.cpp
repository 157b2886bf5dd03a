// SPDX-License-Identifier: MIT
#include "WSettingsTab.h"

#include "WSettingsTable.h"

#include <Wt/WHBoxLayout>
#include <algorithm>

WSettingsTab::WSettingsTab(ChangeTracker::SubsectionId subsectionId,
                           const std::vector<InfoMgr_InfoID> &watched,
                           const std::vector<WSettingsTable *> &tabTables, Wt::WContainerWidget *parent)
    : WSettingsTabBase(subsectionId, parent), tables(tabTables)
{
  watch(watched);
  Wt::WHBoxLayout *row = new Wt::WHBoxLayout();
  for (WSettingsTable *table : tables) {
    row->addWidget(table, 0, Wt::AlignTop);
    table->contentChanged().connect(this, &WSettingsTab::tableChangedHandler);
  }
  row->addStretch(1);
  layOut(row);
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

void WSettingsTab::readFromDatabase(bool force, std::vector<unsigned int> indexes, bool selectionChanged)
{
  const Reading reading = readingFor(force, indexes, selectionChanged);
  if (reading == NoReading)
    return;
  const bool othersShown = !shows(indexes);
  bool failed = false;
  for (WSettingsTable *table : tables) {
    table->setGivesWay(reading == OverTheUser);
    table->readFromDatabase(indexes, reading != KeepingEdits);
    if (table->isUnread()) {
      failed = true;
      // What belongs to other records must not stand there as if it were of these.
      if (othersShown)
        table->blankUnread();
    }
    table->setGivesWay(false);
  }
  endReading(indexes, failed);
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

bool WSettingsTab::hasUnnoticedEdit() const
{
  return std::any_of(tables.begin(), tables.end(),
                     [](const WSettingsTable *table) { return table->hasUnnoticedEdit(); });
}

void WSettingsTab::noticeEdits()
{
  for (WSettingsTable *table : tables)
    table->noticeEdits();
}

void WSettingsTab::forgetEdits()
{
  for (WSettingsTable *table : tables)
    table->clearContentChanged();
}

void WSettingsTab::tableChangedHandler()
{
  contentChanged().emit();
}
