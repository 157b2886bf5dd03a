// SPDX-License-Identifier: MIT
#include "Db.h"
#include "NevoUtil.h"
#include "Text.h"

namespace
{

unsigned int sessionMode(const char *key, unsigned int keyValue, std::string &mode, Db::Errors &errors)
{
  unsigned int connectionIndex = 0;
  std::string word;
  if (Db_db.findIndexOfUInt32Key("connection", key, keyValue, connectionIndex, errors) ||
      Db_db.readString("connection", connectionIndex, "mode", word, errors))
    return 1;
  if (word == "share_mode")
    mode = text("Shared only").toUTF8();
  else if (word == "private_mode")
    mode = text("Private only").toUTF8();
  return 0;
}

unsigned int durationSinceStart(const char *resource, const char *key, unsigned int keyValue,
                                std::string &duration, Db::Errors &errors)
{
  unsigned int index = 0;
  unsigned int start = 0;
  if (Db_db.findIndexOfUInt32Key(resource, key, keyValue, index, errors) ||
      Db_db.readUInt32(resource, index, "sessionStartTime", start, errors))
    return 1;
  duration = NevoUtil_durationSince(start);
  return 0;
}

} // namespace

unsigned int Db::getSessionModeFromTxIndex(unsigned int txIndex, std::string &mode, Errors &errors)
{
  return sessionMode("txIndex", txIndex, mode, errors);
}

unsigned int Db::getSessionModeFromRxIndex(unsigned int rxIndex, std::string &mode, Errors &errors)
{
  return sessionMode("rxIndex", rxIndex, mode, errors);
}

unsigned int Db::getSessionDurationFromTxIndex(unsigned int txIndex, std::string &duration, Errors &errors)
{
  return durationSinceStart("connection", "txIndex", txIndex, duration, errors);
}

unsigned int Db::getSessionDurationFromRxIndex(unsigned int rxIndex, std::string &duration, Errors &errors)
{
  return durationSinceStart("connection", "rxIndex", rxIndex, duration, errors);
}

unsigned int Db::getLoginDurationFromRxIndex(unsigned int rxIndex, std::string &duration, Errors &errors)
{
  return durationSinceStart("userSession", "rxIndex", rxIndex, duration, errors);
}

unsigned int Db::getLoggedInUserIndexFromRxIndex(unsigned int rxIndex, unsigned int &userIndex,
                                                 Errors &errors)
{
  unsigned int sessionIndex = 0;
  if (findIndexOfUInt32Key("userSession", "rxIndex", rxIndex, sessionIndex, errors))
    return 1;
  return readUInt32("userSession", sessionIndex, "userIndex", userIndex, errors);
}

bool Db::userIsLoggedInToRx(unsigned int userIndex, Errors &errors)
{
  unsigned int sessionIndex = 0;
  return findIndexOfUInt32Key("userSession", "userIndex", userIndex, sessionIndex, errors) == 0;
}

bool Db::userIsLoggedInToNevo(unsigned int userIndex, Errors &errors)
{
  unsigned int sessionIndex = 0;
  return findIndexOfUInt32Key("adminSession", "userIndex", userIndex, sessionIndex, errors) == 0;
}
