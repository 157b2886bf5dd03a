// SPDX-License-Identifier: MIT
#include "NevoApplication.h"
#include "NevoUtil.h"

// What has not been saved yet, and the marks that tell of it.

Wt::WMenuItem *NevoApplication::menuItemOf(ChangeTracker::SectionId id) const
{
  Wt::WMenuItem *const items[ChangeTracker::sectionCount] = {usrMenuItem, devMenuItem, periphMenuItem,
                                                             sysSettingsMenuItem, eventMenuItem};
  return items[id];
}

bool NevoApplication::sectionChanged(ChangeTracker::SectionId id) const
{
  return changeTracker.sectionChanged(id);
}

void NevoApplication::sectionChanged(ChangeTracker::SectionId id, bool changed)
{
  changeTracker.sectionChanged(id, changed);
  if (id != ChangeTracker::SectionSysSettings)
    NevoUtil_indicateChange(menuItemOf(id), changed);
}

void NevoApplication::subsectionChanged(ChangeTracker::SubsectionId id, bool changed)
{
  changeTracker.subsectionChanged(id, changed);
  const ChangeTracker::SectionId section = changeTracker.subsectionIdToSectionId(id);
  NevoUtil_indicateChange(menuItemOf(section), changeTracker.sectionChanged(section));
}

bool NevoApplication::parentSectionChanged(ChangeTracker::SubsectionId id) const
{
  return changeTracker.sectionChanged(changeTracker.subsectionIdToSectionId(id));
}

bool NevoApplication::anythingChanged() const
{
  // A slave's page has edits of its own and none of these tabs; it offers none to edit yet.
  return !showingSlaveUi && changeTracker.anythingChanged();
}

void NevoApplication::discardChanges()
{
  for (const MainTab &tab : mainTabs)
    if (tab.discardChanges)
      tab.discardChanges();
}
