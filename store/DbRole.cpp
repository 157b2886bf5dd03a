// SPDX-License-Identifier: MIT
#include "Db.h"
#include "EventLog.h"

namespace
{

constexpr unsigned int kThisSwitch = 1; // its record in "swx"

bool thisSwxHas(const char *parameter, const char *word)
{
  std::string value;
  Db::Errors errors;
  return Db_db.readString("swx", kThisSwitch, parameter, value, errors) == 0 && value == word;
}

} // namespace

bool Db::newDataIsAvailable(InfoMgr_InfoID id, unsigned int &lastChange)
{
  unsigned int current = 0;
  Errors errors;
  if (readUInt32("changeStatus", static_cast<unsigned int>(id), "lastChange", current, errors))
    return true;
  if (lastChange >= current)
    return false;
  lastChange = current;
  return true;
}

bool Db::thisSwxIsManaged()
{
  std::string value;
  Errors errors;
  if (readString("systemGlobals", 0, "managedSetting", value, errors)) {
    EventLog_write(1, 7, "thisSwxIsManaged", "Unable to read Managed setting.");
    return false;
  }
  return value != "non_managed";
}

bool Db::thisSwxIsCascadeController()
{
  return thisSwxHas("cascadeRole", "controller");
}

bool Db::thisSwxIsBackupCascadeController()
{
  return thisSwxHas("cascadeRole", "backup");
}

bool Db::thisSwxIsMaster()
{
  return thisSwxHas("mode", "master");
}
