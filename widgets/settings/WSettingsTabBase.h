// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WSETTINGS_TAB_BASE_H_
#define WIDGETS_WSETTINGS_TAB_BASE_H_

#include "ChangeTracker.h"

#include <Wt/WContainerWidget>
#include <string>
#include <vector>

namespace Wt
{
class WMenuItem;
}

class WAutoSizeTableView;

/**
 * A tab of a details panel whose fields are edited and then saved by the view that it belongs to. It knows
 * whether it holds unsaved edits, and shows it: its label and its main tab's carry a "*", and the list whose
 * selection it edits is disabled.
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

  /// Shows the records with these store indexes. Unless forced or after a change of the selection, only
  /// where the store has something new.
  virtual void readFromDatabase(bool force, std::vector<unsigned int> indexes, bool selectionChanged) = 0;

private:
  void enableTableView(bool enabled);

  Wt::WMenuItem *detailsMenuItem;
  ChangeTracker::SubsectionId subsectionId;
  WAutoSizeTableView *tableView;
  bool holdsChanges;
};

#endif // WIDGETS_WSETTINGS_TAB_BASE_H_
