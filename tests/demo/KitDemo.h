// SPDX-License-Identifier: MIT
#ifndef TESTS_KIT_DEMO_H_
#define TESTS_KIT_DEMO_H_

#include "ClientSession.h"
#include "SettingsEditing.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <memory>
#include <vector>

namespace Wt
{
class WCheckBox;
class WTimer;
} // namespace Wt

class WSettingsTab;
class WSettingsTable;

/// The page: boxes that choose records, and a section for each part of the store with tables of all bound
/// widgets, "Save" and "Cancel". It reads itself anew every second.
class KitDemo : public Wt::WApplication, public ClientSession
{
public:
  explicit KitDemo(const Wt::WEnvironment &environment);
  ~KitDemo() override;

private:
  void addRecordChoice();
  /// Takes the tables over.
  void addSection(const char *title, const std::vector<WSettingsTable *> &tables);
  void selectionChangedHandler();
  void refreshTimerTimeout();
  std::vector<unsigned int> selectedIndexes() const;

  Wt::WContainerWidget *page;
  std::vector<Wt::WCheckBox *> records;
  std::vector<WSettingsTab *> tabs;
  std::vector<std::unique_ptr<SettingsEditing>> editings;
  std::unique_ptr<Wt::WTimer> refreshTimer;
};

#endif // TESTS_KIT_DEMO_H_
