// SPDX-License-Identifier: MIT
#ifndef TESTS_KIT_SESSION_H_
#define TESTS_KIT_SESSION_H_

#include "NevoSession.h"

// The application's side of the views, for pages that have no tabs of their own to mark.
class KitSession : public NevoSession
{
public:
  bool userIsLoggedIn() const override { return true; }
  bool sectionChanged(ChangeTracker::SectionId id) const override { return tracker_.sectionChanged(id); }
  void sectionChanged(ChangeTracker::SectionId id, bool changed) override
  {
    tracker_.sectionChanged(id, changed);
  }
  void subsectionChanged(ChangeTracker::SubsectionId id, bool changed) override
  {
    tracker_.subsectionChanged(id, changed);
  }
  bool parentSectionChanged(ChangeTracker::SubsectionId id) const override
  {
    return tracker_.sectionChanged(tracker_.subsectionIdToSectionId(id));
  }
  bool anythingChanged() const override { return tracker_.anythingChanged(); }
  void updateNevoInactivityTimeout(unsigned int) override {}
  void dashViewEventLogClear() override {}

private:
  ChangeTracker tracker_;
};

#endif // TESTS_KIT_SESSION_H_
