// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WSETTINGS_TAB_H_
#define WIDGETS_WSETTINGS_TAB_H_

#include "WSettingsTabBase.h"

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
  void readFromDatabase(bool force, std::vector<unsigned int> indexes, bool selectionChanged) override;

  bool writeOrKeep(const std::vector<unsigned int> &indexes, std::vector<std::string> &errors) override;
  /// Each table has to agree.
  bool isAllValid() override;
  bool isAnyValid() override;
  bool anyWidgetHasFocus() const override;
  void noticeEdits() override;

protected:
  bool hasUnnoticedEdit() const override;
  void forgetEdits() override;

private:
  void tableChangedHandler();

  std::vector<WSettingsTable *> tables;
};

#endif // WIDGETS_WSETTINGS_TAB_H_
