// SPDX-License-Identifier: MIT
#ifndef WIDGETS_SETTINGS_EDITING_H_
#define WIDGETS_SETTINGS_EDITING_H_

#include <Wt/WObject>
#include <functional>
#include <vector>

class WSettingsTab;

/**
 * What a view does for one of its settings tabs: it lets the user save or put back what was edited, and shows
 * that there is something to be saved. The view owns it, and the tab, and calls it from its own handlers.
 */
class SettingsEditing : public Wt::WObject
{
public:
  /// The view's side.
  struct View {
    /// Store indexes of the records that the tab stands for; empty for a tab that needs no selection.
    std::function<std::vector<unsigned int>()> selectedIndexes;
    /// Reads the view anew, edits of other tabs kept.
    std::function<void()> refresh;
  };

  /// What becomes of edits that the store has not taken.
  enum AfterFailure {
    KeepsEdits, ///< they stay, marked, to be corrected
    DropsEdits  ///< the store's values come back with the next read
  };

  SettingsEditing(WSettingsTab *tab, const View &view, AfterFailure afterFailure = KeepsEdits);

  /// The user has changed a field. Nothing happens while no record is selected.
  void contentChangedHandler();

  /// Writes the edits; a failure is shown in a box, and waits for it.
  void saveButtonClickedHandler();

  /// Puts the store's values back.
  void cancelButtonClickedHandler();

private:
  std::vector<unsigned int> indexes() const;
  void endEditing();

  WSettingsTab *tab;
  View view;
  AfterFailure afterFailure;
};

#endif // WIDGETS_SETTINGS_EDITING_H_
