// SPDX-License-Identifier: MIT
#include "WEstabSesTxTable.h"

#include "AccessRules.h"
#include "Db.h"
#include "StoreSnapshot.h"
#include "TargetRights.h"
#include "Text.h"

namespace
{

/// Whether a transmitter in a session of mode `present` can be joined in a session of mode `wanted`.
bool canBeJoined(Info_ConnectionMode present, Info_ConnectionMode wanted)
{
  return present != Info_ConnectionMode_Private &&
         !(present == Info_ConnectionMode_Share && wanted == Info_ConnectionMode_Private);
}

bool isFreeFor(Info_ConnectionMode mode, unsigned int txIndex, StoreSnapshot &snapshot)
{
  const ConnectionRecord *connection = snapshot.connectionOfTransmitter(txIndex);
  return !connection || canBeJoined(connection->mode, mode);
}

} // namespace

WEstabSesTxTable::WEstabSesTxTable(Wt::WContainerWidget *parent)
    : WEstabSesDeviceTable(text("Transmitter EID"), text("Transmitter Name"), parent)
{
  records->setClearedText(text("Select a receiver."));
  records->setEmptyText(text("No transmitter is free for this user."));
}

bool WEstabSesTxTable::readFromDatabase(Info_ConnectionMode mode, unsigned int userIndex,
                                        unsigned int rxIndex)
{
  std::string userMode, rxMode;
  Db::Errors errors;
  if (Db_db.getAllowedAccessModeFromUserIndex(userIndex, userMode, errors) != 0 ||
      Db_db.readString("rx", rxIndex, "modeAllowed", rxMode, errors) != 0) {
    records->show(std::nullopt);
    return true;
  }
  const bool sessionCanBe = (mode == Info_ConnectionMode_Share || mode == Info_ConnectionMode_Private) &&
                            AccessRules_isMode(rxMode) && AccessRules_isMode(userMode);
  const Info_AccessMode sessionMode = static_cast<Info_AccessMode>(mode);
  const auto rights = sessionCanBe ? TargetRights::read(userIndex, errors) : std::nullopt;
  StoreSnapshot snapshot;
  // What the receiver allows is not held against what the transmitter allows.
  return showDevices(Info_DeviceType_Tx, [&](const DeviceRecord &tx) {
    return rights && !AccessRules_clash(userMode, tx.modeAllowed) && rights->allow(tx.index) &&
           AccessRules_admits(sessionMode, tx.modeAllowed) && isFreeFor(mode, tx.index, snapshot);
  });
}

void WEstabSesTxTable::clearData()
{
  records->clear();
}
