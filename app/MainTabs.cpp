// SPDX-License-Identifier: MIT
#include "MainTabs.h"

#include "EventLog.h"
#include "MainView.h"
#include "NevoUtil.h"

#include <Wt/WTabWidget>
#include <algorithm>

void MainTabs::build(Wt::WTabWidget &widget, const std::vector<MainTab> &table)
{
  tabWidget = &widget;
  for (const MainTab &row : table) {
    const MainTab::View view = row.maker();
    Wt::WMenuItem *item = widget.addTab(view.widget, row.title, Wt::WTabWidget::LazyLoading);
    tabs.push_back({view, item, row.section});
  }
  widget.currentChanged().connect(this, &MainTabs::mainTabChangedHandler);
  mainTabChangedHandler();
}

void MainTabs::mainTabChangedHandler()
{
  for (const Tab &tab : tabs)
    tab.view.view->disableAutoRefresh();
  const int index = tabWidget->currentIndex();
  if (index < 0 || static_cast<std::size_t>(index) >= tabs.size()) {
    EventLog_write(4, 7, "mainTabChangedHandler", "Unknown index %d.", index);
    return;
  }
  MainView &shown = *tabs[index].view.view;
  shown.readAnew();
  shown.enableAutoRefresh();
}

void MainTabs::sectionChanged(ChangeTracker::SectionId id, bool changed)
{
  changes.sectionChanged(id, changed);
  if (id != ChangeTracker::SectionSysSettings)
    markSection(id, changed);
}

void MainTabs::subsectionChanged(ChangeTracker::SubsectionId id, bool changed)
{
  changes.subsectionChanged(id, changed);
  const ChangeTracker::SectionId section = changes.subsectionIdToSectionId(id);
  markSection(section, changes.sectionChanged(section));
}

bool MainTabs::parentSectionChanged(ChangeTracker::SubsectionId id) const
{
  return changes.sectionChanged(changes.subsectionIdToSectionId(id));
}

void MainTabs::markSection(ChangeTracker::SectionId section, bool changed)
{
  for (const Tab &tab : tabs)
    if (tab.section == section)
      NevoUtil_indicateChange(tab.menuItem, changed);
}

bool MainTabs::anyViewHasChanged() const
{
  return std::any_of(tabs.begin(), tabs.end(), [](const Tab &tab) { return tab.view.view->hasChanged(); });
}

void MainTabs::discardChanges()
{
  for (const Tab &tab : tabs)
    tab.view.view->discardChanges();
}
