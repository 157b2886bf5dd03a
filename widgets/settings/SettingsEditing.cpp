// SPDX-License-Identifier: MIT
#include "SettingsEditing.h"

#include "WMsgBoxDbErr.h"
#include "WSettingsTab.h"

#include <Wt/WPushButton>
#include <string>

SettingsEditing::SettingsEditing(WSettingsTab *settingsTab, const View &owner, AfterFailure whatThen)
    : tab(settingsTab), view(owner), afterFailure(whatThen)
{
}

std::vector<unsigned int> SettingsEditing::indexes() const
{
  return view.selectedIndexes ? view.selectedIndexes() : std::vector<unsigned int>();
}

void SettingsEditing::contentChangedHandler()
{
  const std::size_t selected = indexes().size();
  if (view.selectedIndexes && selected == 0)
    return;
  tab->saveButton->setEnabled(selected > 1 ? tab->isAnyValid() : tab->isAllValid());
  tab->indicateChangedContent(true);
  tab->cancelButton->enable();
}

void SettingsEditing::saveButtonClickedHandler()
{
  std::vector<std::string> errors;
  const bool failed = afterFailure == KeepsEdits ? tab->writeOrKeep(indexes(), errors)
                                                 : tab->writeToDatabase(indexes(), errors);
  if (failed) {
    WMsgBoxDbErr box(WMsgBoxDbErr::AccessWrite, errors);
    box.exec();
    if (afterFailure == KeepsEdits)
      return;
  }
  endEditing();
  view.refresh();
}

void SettingsEditing::cancelButtonClickedHandler()
{
  const std::vector<unsigned int> selected = indexes();
  endEditing();
  tab->readFromDatabase(true, selected, true);
  view.refresh();
}

void SettingsEditing::endEditing()
{
  tab->saveButton->disable();
  tab->cancelButton->disable();
  tab->indicateChangedContent(false);
}
