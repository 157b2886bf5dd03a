// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WSETTINGS_TAB_BASE_H_
#define WIDGETS_WSETTINGS_TAB_BASE_H_

#include "ChangeTracker.h"
#include "Info.h"

#include <Wt/WContainerWidget>
#include <Wt/WSignal>
#include <string>
#include <vector>

namespace Wt
{
class WBoxLayout;
class WMenuItem;
class WPushButton;
} // namespace Wt

class WAutoSizeTableView;

/**
 * A tab of a details panel whose fields are edited and then saved by the view that it belongs to, through
 * SettingsEditing. It knows whether it holds unsaved edits, and shows it: its label and its main tab's carry
 * a
 * "*", and the list whose selection it edits is disabled.
 *
 * It remembers which records its fields show. Nothing is written to any others: an edit that the user had
 * begun when another record was selected brings the selection back.
 */
class WSettingsTabBase : public Wt::WContainerWidget
{
public:
  explicit WSettingsTabBase(ChangeTracker::SubsectionId subsectionId, Wt::WContainerWidget *parent = 0);

  /// The tab's own entry in its details panel, which is marked.
  void registerDetailsMenuItem(Wt::WMenuItem *menuItem);

  /// The list whose selection the tab edits; without one nothing is disabled.
  void registerTableView(WAutoSizeTableView *tableView);

  /// Whether the tab holds unsaved edits.
  bool hasChanged() const;

  /// The tab holds unsaved edits from now on, or none any more. The list comes back when no tab of the main
  /// tab holds any.
  void indicateChangedContent(bool changed);

  /// Marks any other menu item, or takes its mark away.
  void changed(Wt::WMenuItem *item, bool changed);

  /// Writes what the user changed, for the records with these store indexes. True on failure, the store's
  /// messages appended to `errors`.
  virtual bool writeToDatabase(std::vector<unsigned int> indexes, std::vector<std::string> &errors) = 0;

  /// Shows the records with these store indexes.
  ///
  /// Of the records that the tab shows already, nothing is read while the user is in a field, and, unless
  /// `force` or `selectionChanged`, nothing that the store has nothing new for. Unsaved edits stay as long as
  /// the tab is marked as changed; where it is not, `force` puts the store's values back into every field.
  /// Other records are always read, wherever the user is, but not while the tab holds unsaved edits of those
  /// that it shows.
  virtual void readFromDatabase(bool force, std::vector<unsigned int> indexes, bool selectionChanged) = 0;

  /// Writes as writeToDatabase(), but after a failure what was edited still counts as edited.
  virtual bool writeOrKeep(const std::vector<unsigned int> &indexes, std::vector<std::string> &errors);

  /// Gives up all edits and shows the records' values, wherever the user is.
  void discardEdits(const std::vector<unsigned int> &indexes);

  /// The next read does not ask whether the store has something new.
  void readAgain() { isUnread = true; }

  /// Whether what is entered may be saved to one record, or to several.
  virtual bool isAllValid() { return true; }
  virtual bool isAnyValid() { return true; }

  /// Whether there is something to be saved; asked after each change. A tab that can tell that the user has
  /// put everything back by hand says so, and is clean again.
  virtual bool holdsEdits() const { return true; }

  /// Whether the user is in one of the fields.
  virtual bool anyWidgetHasFocus() const { return false; }

  /// Whether the fields show these records and no others, in whatever order.
  bool shows(const std::vector<unsigned int> &indexes) const;

  /// Takes notice of what the user has typed just now.
  virtual void noticeEdits() {}

  /// Emitted when the user changes something.
  Wt::Signal<> &contentChanged() { return contentChangedSignal; }

  Wt::WPushButton *saveButton;   ///< disabled at first; null before layOut()
  Wt::WPushButton *cancelButton; ///< likewise

protected:
  /// What a read has to do.
  enum Reading {
    NoReading,    ///< nothing
    KeepingEdits, ///< fields that hold an edit stay as they are
    PuttingBack,  ///< every field shows the store's value, except one that the user is in
    OverTheUser   ///< every field without exception
  };

  /// Lays the content out above the buttons "Cancel" and "Save". Takes the layout over.
  void layOut(Wt::WBoxLayout *content);

  /// The kinds of data on which the tab depends.
  void watch(const std::vector<InfoMgr_InfoID> &ids);

  /// What readFromDatabase() has to do; afterwards it tells endReading() how it went.
  Reading readingFor(bool force, const std::vector<unsigned int> &indexes, bool selectionChanged);
  /// The fields show these records now, or, `failed`, what could not be read. It is read again soon.
  void endReading(const std::vector<unsigned int> &indexes, bool failed);

  /// Whether the user has typed something that was not noticed yet.
  virtual bool hasUnnoticedEdit() const { return false; }
  /// Takes from all fields what marks them as edited.
  virtual void forgetEdits() {}

private:
  struct Watch {
    InfoMgr_InfoID id;
    unsigned int lastChange;
  };

  bool newDataIsAvailable();
  void selectionChangedHandler();
  void keepSelection();
  std::vector<unsigned int> selectedRecords() const;
  void enableTableView(bool enabled);

  Wt::WMenuItem *detailsMenuItem;
  ChangeTracker::SubsectionId subsectionId;
  WAutoSizeTableView *tableView;
  bool holdsChanges;
  bool isKeepingSelection;
  bool isUnread; ///< the fields do not show what the store holds
  bool isDiscarding;
  std::vector<unsigned int> shown; ///< the records that the fields show
  std::vector<Watch> watches;
  Wt::Signal<> contentChangedSignal;
};

#endif // WIDGETS_WSETTINGS_TAB_BASE_H_
