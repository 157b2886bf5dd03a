// SPDX-License-Identifier: MIT
#include "WEstabSesRxTable.h"

#include "AccessRules.h"
#include "Db.h"
#include "StoreSnapshot.h"
#include "Text.h"

WEstabSesRxTable::WEstabSesRxTable(Wt::WContainerWidget *parent)
    : WEstabSesDeviceTable(text("Receiver EID"), text("Receiver Name"), parent)
{
  records->setClearedText(text("Select a user."));
  records->setEmptyText(text("No receiver is free for this user."));
}

bool WEstabSesRxTable::readFromDatabase(Info_AccessMode mode, unsigned int userIndex)
{
  std::string userMode;
  Db::Errors errors;
  if (Db_db.getAllowedAccessModeFromUserIndex(userIndex, userMode, errors) != 0) {
    records->show(std::nullopt);
    return true;
  }
  const bool sessionCanBe =
      mode >= Info_AccessMode_Share && mode <= Info_AccessMode_ShareOrPrivate && AccessRules_isMode(userMode);
  StoreSnapshot snapshot;
  return showDevices(Info_DeviceType_Rx, [&](const DeviceRecord &rx) {
    return sessionCanBe && AccessRules_isMode(rx.modeAllowed) && AccessRules_admits(mode, rx.modeAllowed) &&
           !AccessRules_clash(userMode, rx.modeAllowed) && !snapshot.isUserAt(rx.index);
  });
}

void WEstabSesRxTable::clearData()
{
  records->clear();
}
