// SPDX-License-Identifier: MIT
#include "Db.h"

namespace
{

unsigned int nameOrEid(const char *resource, unsigned int index, std::string &name, Db::Errors &errors)
{
  std::string found;
  if (Db_db.readString(resource, index, "name", found, errors) == 0 && !found.empty()) {
    name = found;
    return 0;
  }
  std::string eid;
  if (Db_db.readString(resource, index, "eid", eid, errors))
    return 1;
  name = "EID - " + eid;
  return 0;
}

} // namespace

unsigned int Db::getRxNameFromRxIndex(unsigned int rxIndex, std::string &name, Errors &errors)
{
  return readString("rx", rxIndex, "name", name, errors);
}

unsigned int Db::getTxNameFromTxIndex(unsigned int txIndex, std::string &name, Errors &errors)
{
  return readString("tx", txIndex, "name", name, errors);
}

unsigned int Db::getTxEidFromTxIndex(unsigned int txIndex, std::string &eid, Errors &errors)
{
  return readString("tx", txIndex, "eid", eid, errors);
}

unsigned int Db::getSwxEidFromSwxIndex(unsigned int swxIndex, std::string &eid, Errors &errors)
{
  return readString("swx", swxIndex, "eid", eid, errors);
}

unsigned int Db::getUsernameFromUserIndex(unsigned int userIndex, std::string &name, Errors &errors)
{
  return readString("user", userIndex, "name", name, errors);
}

unsigned int Db::getUserFullNameFromUserIndex(unsigned int userIndex, std::string &name, Errors &errors)
{
  return readString("user", userIndex, "fullName", name, errors);
}

unsigned int Db::getRxNameOrEidFromRxIndex(unsigned int rxIndex, std::string &name, Errors &errors)
{
  return nameOrEid("rx", rxIndex, name, errors);
}

unsigned int Db::getTxNameOrEidFromTxIndex(unsigned int txIndex, std::string &name, Errors &errors)
{
  return nameOrEid("tx", txIndex, name, errors);
}

unsigned int Db::getSwxNameOrEidFromSwxIndex(unsigned int swxIndex, std::string &name, Errors &errors)
{
  return nameOrEid("swx", swxIndex, name, errors);
}

unsigned int Db::getTxNameOrEidFromUsrSesIndex(unsigned int userSessionIndex, std::string &name,
                                               Errors &errors)
{
  unsigned int rxIndex = 0;
  unsigned int connectionIndex = 0;
  unsigned int txIndex = 0;
  if (readUInt32("userSession", userSessionIndex, "rxIndex", rxIndex, errors) ||
      findIndexOfUInt32Key("connection", "rxIndex", rxIndex, connectionIndex, errors) ||
      readUInt32("connection", connectionIndex, "txIndex", txIndex, errors))
    return 1;
  return getTxNameOrEidFromTxIndex(txIndex, name, errors);
}

unsigned int Db::getKeyboardLayoutFromRxIndex(unsigned int rxIndex, std::string &layout, Errors &errors)
{
  if (readString("rx", rxIndex, "keyboardLayout", layout, errors))
    layout = "unknown";
  return 0;
}

unsigned int Db::getLoggedInUsernameFromRxIndex(unsigned int rxIndex, std::string &name, Errors &errors)
{
  unsigned int userIndex = 0;
  std::string found;
  if (getLoggedInUserIndexFromRxIndex(rxIndex, userIndex, errors) ||
      getUsernameFromUserIndex(userIndex, found, errors))
    return 1;
  if (found.empty() && readString("user", userIndex, "mgrName", found, errors))
    return 1;
  name = found;
  return 0;
}

unsigned int Db::getConnectedUsernameFromTxIndex(unsigned int txIndex, std::string &name, Errors &errors)
{
  unsigned int connectionIndex = 0;
  unsigned int rxIndex = 0;
  if (findIndexOfUInt32Key("connection", "txIndex", txIndex, connectionIndex, errors) ||
      readUInt32("connection", connectionIndex, "rxIndex", rxIndex, errors))
    return 1;
  return getLoggedInUsernameFromRxIndex(rxIndex, name, errors);
}
