// SPDX-License-Identifier: MIT
#include "SettingsEditing.h"

#include "WMsgBoxDbErr.h"
#include "WSettingsTabBase.h"

#include <Wt/WEvent>
#include <Wt/WPushButton>
#include <string>

SettingsEditing::SettingsEditing(WSettingsTabBase *settingsTab, const View &owner, AfterFailure whatThen)
    : tab(settingsTab), view(owner), afterFailure(whatThen)
{
  tab->contentChanged().connect(this, &SettingsEditing::contentChangedHandler);
  tab->saveButton->clicked().connect(this, &SettingsEditing::saveButtonClickedHandler);
  tab->cancelButton->clicked().connect(this, &SettingsEditing::cancelButtonClickedHandler);
}

std::vector<unsigned int> SettingsEditing::indexes() const
{
  return view.selectedIndexes ? view.selectedIndexes() : std::vector<unsigned int>();
}

void SettingsEditing::contentChangedHandler()
{
  const std::vector<unsigned int> selected = indexes();
  if (view.selectedIndexes && selected.empty())
    return;
  if (!tab->hasChanged() && !tab->shows(selected)) {
    tab->readFromDatabase(true, selected, true);
    return;
  }
  if (!tab->holdsEdits()) {
    endEditing();
    return;
  }
  tab->saveButton->setEnabled(selected.size() > 1 ? tab->isAnyValid() : tab->isAllValid());
  tab->indicateChangedContent(true);
  tab->cancelButton->enable();
  if (view.edited)
    view.edited();
}

void SettingsEditing::saveButtonClickedHandler()
{
  const std::vector<unsigned int> selected = indexes();
  std::vector<std::string> errors;
  // The records that the user saw are the ones to be written, or none.
  const bool failed =
      !tab->shows(selected) || (afterFailure == KeepsEdits ? tab->writeOrKeep(selected, errors)
                                                           : tab->writeToDatabase(selected, errors));
  if (failed) {
    WMsgBoxDbErr box(WMsgBoxDbErr::AccessWrite, errors);
    box.exec();
    if (afterFailure == KeepsEdits)
      return;
  } else if (view.saved) {
    view.saved();
  }
  endEditing();
  if (failed)
    tab->discardEdits(selected);
  // What the store has made of the values is to be seen, also where it says of no failure.
  tab->readAgain();
  if (view.refresh)
    view.refresh();
}

void SettingsEditing::cancelButtonClickedHandler()
{
  const std::vector<unsigned int> selected = indexes();
  endEditing();
  tab->discardEdits(selected);
  if (view.refresh)
    view.refresh();
}

void SettingsEditing::endEditing()
{
  tab->saveButton->disable();
  tab->cancelButton->disable();
  tab->indicateChangedContent(false);
}
