// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WSETTINGS_TAB_H_
#define WIDGETS_WSETTINGS_TAB_H_

#include "Info.h"
#include "WSettingsTabBase.h"

#include <Wt/WSignal>

namespace Wt
{
class WPushButton;
}

class WSettingsTable;

/// A tab of one or more tables of settings, side by side, over the buttons "Cancel" and "Save". What the
/// buttons do is the business of SettingsEditing.
class WSettingsTab : public WSettingsTabBase
{
public:
  /// `watched` are the kinds of data that the tables depend on. The tables become the tab's.
  WSettingsTab(ChangeTracker::SubsectionId subsectionId, const std::vector<InfoMgr_InfoID> &watched,
               const std::vector<WSettingsTable *> &tables, Wt::WContainerWidget *parent = 0);

  /// Writes all tables in order, whatever fails.
  bool writeToDatabase(std::vector<unsigned int> indexes, std::vector<std::string> &errors) override;

  /// The same, but what was edited counts as edited still if it fails, so that it can be written once more.
  bool writeOrKeep(const std::vector<unsigned int> &indexes, std::vector<std::string> &errors);

  /// Reads the tables, unless the user is in one of the fields. Nothing is read that the store has nothing
  /// new for, except at `force`, as when the tab comes to the front or the selection has changed, and at
  /// `discardEdits`. Edits stay unless they are discarded, or the tab holds none that it knows of.
  void readFromDatabase(bool force, std::vector<unsigned int> indexes, bool discardEdits) override;

  virtual bool anyWidgetHasFocus() const;

  /// Whether what is entered may be saved to one record, or to several.
  virtual bool isAllValid();
  virtual bool isAnyValid();

  /// Emitted when the user changes a field.
  Wt::Signal<> &contentChanged() { return contentChangedSignal; }

  Wt::WPushButton *const saveButton;   ///< disabled at first
  Wt::WPushButton *const cancelButton; ///< disabled at first

private:
  struct Watch {
    InfoMgr_InfoID id;
    unsigned int lastChange;
  };

  bool newDataIsAvailable();
  void tableChangedHandler();

  std::vector<Watch> watches;
  std::vector<WSettingsTable *> tables;
  Wt::Signal<> contentChangedSignal;
};

#endif // WIDGETS_WSETTINGS_TAB_H_
