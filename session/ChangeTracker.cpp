// SPDX-License-Identifier: MIT
#include "ChangeTracker.h"

ChangeTracker::ChangeTracker()
    : ranges{{{UsrAttribs, UsrTargets},
              {DevSwxMode, DevTxSettings},
              {PeriphMonAttribs, PeriphMonAttribs},
              {SysSettings, SysSettings},
              {Events, Events}}}
{
}

void ChangeTracker::subsectionChanged(SubsectionId id, bool changed)
{
  changes[id] = changed;
}

bool ChangeTracker::subsectionChanged(SubsectionId id) const
{
  return changes[id];
}

void ChangeTracker::sectionChanged(SectionId id, bool changed)
{
  for (int i = ranges[id].first; i <= ranges[id].last; ++i)
    changes[i] = changed;
}

bool ChangeTracker::sectionChanged(SectionId id) const
{
  for (int i = ranges[id].first; i <= ranges[id].last; ++i)
    if (changes[i])
      return true;
  return false;
}

bool ChangeTracker::anythingChanged() const
{
  return changes.any();
}

ChangeTracker::SectionId ChangeTracker::subsectionIdToSectionId(SubsectionId id) const
{
  for (int section = 0; section < sectionCount; ++section)
    if (id >= ranges[section].first && id <= ranges[section].last)
      return static_cast<SectionId>(section);
  return SectionUsers;
}
