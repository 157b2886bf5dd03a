// SPDX-License-Identifier: MIT
#include "WSwxCombinedMode.h"

#include "Db.h"

namespace
{

enum Item { UnmanagedMaster, ManagedSlave, Third };
constexpr unsigned int kThisSwitch = 1;

} // namespace

WSwxCombinedMode::WSwxCombinedMode(Wt::WContainerWidget *parent)
    : Wt::WComboBox(parent), WWidgetZel("", "", false), thirdPresent(false)
{
  addItem(Wt::WString::tr("managedmode.setting.mode.unmanaged_master"));
  addItem(Wt::WString::tr("managedmode.setting.mode.managed.slave"));
  changed().connect(this, &WSwxCombinedMode::contentChangedHandler);
}

bool WSwxCombinedMode::readFromDatabase(std::vector<unsigned int> &, std::vector<std::string> &errors,
                                        bool force)
{
  if (keepsFocus(hasFocus()) || keepsEdit(force))
    return false;
  std::string managed;
  std::string mode;
  if (Db_db.readString("systemGlobals", 0, "managedSetting", managed, errors) != 0 ||
      Db_db.readString("swx", kThisSwitch, "mode", mode, errors) != 0)
    return endRead(Unreadable);
  const bool isAlone = managed == "non_managed" && mode == "master";
  const bool isSlave = managed == "verified" && mode == "slave";
  if (isAlone || isSlave) {
    removeThird();
    setCurrentIndex(isAlone ? UnmanagedMaster : ManagedSlave);
  } else {
    const bool isMaster = managed == "verified" && mode == "master";
    showThird(isMaster ? Wt::WString::tr("managedmode.setting.mode.managed.master") : Wt::WString());
  }
  return endRead(Agreeing);
}

bool WSwxCombinedMode::writeToDatabase(std::vector<unsigned int> &, std::vector<std::string> &errors)
{
  const bool isLeaving = changedContent && currentIndex() == UnmanagedMaster;
  changedContent = false;
  return isLeaving && (Db_db.writeString("systemGlobals", 0, "managedSetting", "non_managed", errors) != 0 ||
                       Db_db.writeString("swx", kThisSwitch, "mode", "master", errors) != 0);
}

void WSwxCombinedMode::getZelParam(json_t *, std::vector<unsigned int> &, bool) {}

void WSwxCombinedMode::contentChangedHandler()
{
  endEdit();
}

void WSwxCombinedMode::showThird(const Wt::WString &text)
{
  if (!thirdPresent)
    addItem(text);
  thirdPresent = true;
  setItemText(Third, text);
  setCurrentIndex(Third);
}

void WSwxCombinedMode::removeThird()
{
  if (thirdPresent)
    removeItem(Third);
  thirdPresent = false;
}
