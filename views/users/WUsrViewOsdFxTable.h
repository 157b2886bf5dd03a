// SPDX-License-Identifier: MIT
#ifndef VIEWS_USERS_WUSR_VIEW_OSD_FX_TABLE_H_
#define VIEWS_USERS_WUSR_VIEW_OSD_FX_TABLE_H_

#include "TargetItem.h"
#include "WSettingsTable.h"

#include <array>
#include <functional>

class WOsdHotkeyFunc;
class WTarget;

/// What the keys F1 to F12 do for users at their stations. A Save writes all twelve, but no action where the
/// users differ.
class WUsrViewOsdFxTable : public WSettingsTable
{
public:
  /// The targets that users may be offered.
  using TargetsOf = std::function<std::vector<TargetItem>(const std::vector<unsigned int> &users)>;

  explicit WUsrViewOsdFxTable(const TargetsOf &targetsOf, Wt::WContainerWidget *parent = 0);

  void readFromDatabase(std::vector<unsigned int> users, bool discardEdits = false) override;
  bool writeToDatabase(std::vector<unsigned int> users, std::vector<std::string> &errors) override;
  bool isAllValid() override { return true; }

private:
  struct Key {
    WOsdHotkeyFunc *action;
    WTarget *target;
  };
  struct Slot {
    int action = 0;  ///< Info_OsdCommonAction; 0 where users differ and where nothing is stored
    std::string eid; ///< empty where users differ
  };
  static constexpr std::size_t kKeyCount = 12;
  using Slots = std::array<Slot, kKeyCount>;

  bool fetch(const std::vector<unsigned int> &users, Slots &slots) const;
  void show(const Key &key, const Slot &slot, std::vector<TargetItem> &targets, bool discardEdits);
  void addTo(json_t *list);

  const TargetsOf targetsOf;
  std::array<Key, kKeyCount> keys;
};

#endif // VIEWS_USERS_WUSR_VIEW_OSD_FX_TABLE_H_
