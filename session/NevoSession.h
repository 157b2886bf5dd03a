// SPDX-License-Identifier: MIT
#ifndef SESSION_NEVO_SESSION_H_
#define SESSION_NEVO_SESSION_H_

#include "ChangeTracker.h"

/// What the views and their kit may ask of the session's application object, which derives from it beside
/// Wt::WApplication: they lie below it and do not see its class.
class NevoSession
{
public:
  virtual ~NevoSession() = default;

  /// The session whose code is running; null outside of any.
  static NevoSession *current();

  virtual bool userIsLoggedIn() const = 0;

  /// Whether a main tab has unsaved edits.
  virtual bool sectionChanged(ChangeTracker::SectionId id) const = 0;

  /// Records that all of a main tab has unsaved edits, or none, and marks its label; that of the system
  /// settings is left to their view.
  virtual void sectionChanged(ChangeTracker::SectionId id, bool changed) = 0;

  /// Records that a tab has unsaved edits, or none any more. Its main tab's label keeps the mark as long as
  /// any of its tabs has some.
  virtual void subsectionChanged(ChangeTracker::SubsectionId id, bool changed) = 0;

  /// Whether the main tab that a tab belongs to has unsaved edits.
  virtual bool parentSectionChanged(ChangeTracker::SubsectionId id) const = 0;

  /// Whether anything of the page has unsaved edits.
  virtual bool anythingChanged() const = 0;

  /// The inactivity limit has been saved anew: minutes, 0 for none.
  virtual void updateNevoInactivityTimeout(unsigned int minutes) = 0;

  /// Empties the dashboard's list of events.
  virtual void dashViewEventLogClear() = 0;
};

#endif // SESSION_NEVO_SESSION_H_
