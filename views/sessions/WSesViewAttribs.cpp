// SPDX-License-Identifier: MIT
#include "WSesViewAttribs.h"

#include "Convert.h"
#include "Db.h"
#include "NevoUtil.h"
#include "Text.h"

#include <string>

namespace
{

enum Row {
  ReceiverSwitchRow = 1,
  ReceiverRow,
  TransmitterSwitchRow,
  TransmitterRow,
  UsernameRow,
  FullNameRow,
  RoleRow,
  ModeRow,
  DurationRow
};

/// What the table tells of one session, or what several sessions have in common: empty or 0 where they
/// differ.
struct Facts {
  std::string receiverSwitch;
  std::string receiver;
  std::string transmitterSwitch;
  std::string transmitter;
  std::string role;
  std::string mode; ///< the store's word
  unsigned int start = 0;
  bool sameStart = false;
  unsigned int user = 0; ///< record of the user at the receiver
};

Facts factsOf(unsigned int connection)
{
  Facts facts;
  Db::Errors errors; // of a panel that is read again in a moment: nobody is told
  unsigned int rx = 0;
  unsigned int tx = 0;
  const bool rxKnown = Db_db.readUInt32("connection", connection, "rxIndex", rx, errors) == 0;
  const bool txKnown = Db_db.readUInt32("connection", connection, "txIndex", tx, errors) == 0;
  Db_db.readString("connection", connection, "mode", facts.mode, errors);
  facts.sameStart = Db_db.readUInt32("connection", connection, "sessionStartTime", facts.start, errors) == 0;
  if (rxKnown) {
    Db_db.getSwxNameOrEidFromRxIndex(rx, facts.receiverSwitch, errors);
    Db_db.getRxNameOrEidFromRxIndex(rx, facts.receiver, errors);
    Db_db.getLoggedInUserIndexFromRxIndex(rx, facts.user, errors);
  }
  if (txKnown) {
    Db_db.getSwxNameOrEidFromTxIndex(tx, facts.transmitterSwitch, errors);
    Db_db.getTxNameOrEidFromTxIndex(tx, facts.transmitter, errors);
  }
  if (facts.user != 0)
    Db_db.getUserRoleFromUserIndex(facts.user, facts.role, errors);
  return facts;
}

/// Blanks in `common` what differs from the first session's value in another one.
void blankDifferences(Facts &common, const Facts &first, const Facts &other)
{
  for (std::string Facts::*fact : {&Facts::receiverSwitch, &Facts::receiver, &Facts::transmitterSwitch,
                                   &Facts::transmitter, &Facts::role, &Facts::mode})
    if (other.*fact != first.*fact)
      (common.*fact).clear();
  if (!other.sameStart || other.start != first.start)
    common.sameStart = false;
  if (other.user != first.user)
    common.user = 0;
}

} // namespace

WSesViewAttribs::WSesViewAttribs(Wt::WContainerWidget *parent)
    : WAttributeTable(text("Attribute"), text("Value"),
                      {text("Receiver Switch"), text("Receiver"), text("Transmitter Switch"),
                       text("Transmitter"), text("Username"), text("Full Name"), text("Role"),
                       text("Session Mode"), text("Session Duration")},
                      parent)
{
}

void WSesViewAttribs::readFromDatabase(std::vector<unsigned int> indexes)
{
  if (indexes.empty()) {
    clearValues();
    return;
  }
  const Facts first = factsOf(indexes.front());
  Facts common = first;
  for (std::size_t i = 1; i < indexes.size(); ++i)
    blankDifferences(common, first, factsOf(indexes[i]));

  Db::Errors errors;
  std::string username, fullName;
  if (common.user != 0) {
    Db_db.getUsernameFromUserIndex(common.user, username, errors);
    Db_db.getUserFullNameFromUserIndex(common.user, fullName, errors);
  }
  setValue(ReceiverSwitchRow, common.receiverSwitch);
  setValue(ReceiverRow, common.receiver);
  setValue(TransmitterSwitchRow, common.transmitterSwitch);
  setValue(TransmitterRow, common.transmitter);
  setValue(UsernameRow, username);
  setValue(FullNameRow, fullName);
  setValue(RoleRow, common.role);
  setValue(ModeRow, common.mode.empty() ? "" : Convert_accessModeDbStringToUiString(common.mode));
  setValue(DurationRow, common.sameStart ? NevoUtil_durationSince(common.start) : "");
}
