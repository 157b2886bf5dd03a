// SPDX-License-Identifier: MIT
#ifndef WIDGETS_SETTINGS_EDITING_H_
#define WIDGETS_SETTINGS_EDITING_H_

#include <Wt/WObject>
#include <functional>
#include <vector>

class WSettingsTabBase;

/**
 * What a view does for one of its settings tabs: it lets the user save or put back what was edited, and shows
 * that there is something to be saved. It connects itself to the tab; the view owns it, and the tab, and
 * forwards nothing.
 */
class SettingsEditing : public Wt::WObject
{
public:
  /// The view's side. What the view does not need stays empty.
  struct View {
    /// Store indexes of the records that the tab stands for; empty for a tab that needs no selection.
    std::function<std::vector<unsigned int>()> selectedIndexes;
    /// Reads the view anew, edits of other tabs kept.
    std::function<void()> refresh;
    /// Called when everything is written, before the tab is clean and the view is read.
    std::function<void()> saved;
    /// Called when an edit is noticed, after the buttons and marks were set.
    std::function<void()> edited;
  };

  /// What becomes of edits that the store has not taken.
  enum AfterFailure {
    KeepsEdits, ///< they stay, marked, to be corrected
    DropsEdits  ///< the store's values come back with the next read
  };

  /// The tab has its buttons by now.
  SettingsEditing(WSettingsTabBase *tab, const View &view, AfterFailure afterFailure = KeepsEdits);

  /// The user has changed a field. Nothing happens while no record is selected, and an edit in a tab that
  /// shows other records than the selected ones is dropped.
  void contentChangedHandler();

  /// Writes the edits to the records that the tab shows; a failure is shown in a box, and waits for it.
  void saveButtonClickedHandler();

  /// Puts the store's values back.
  void cancelButtonClickedHandler();

private:
  std::vector<unsigned int> indexes() const;
  void endEditing();

  WSettingsTabBase *tab;
  View view;
  AfterFailure afterFailure;
};

#endif // WIDGETS_SETTINGS_EDITING_H_
