// SPDX-License-Identifier: MIT
#include "SessionRecord.h"

#include "NevoUtil.h"
#include "StoreSnapshot.h"

namespace
{

SessionRecord ofLogin(const UserSessionRecord &login, StoreSnapshot &snapshot)
{
  SessionRecord session;
  session.index = login.index;
  session.user = snapshot.userAt(login.rxIndex);
  session.receiver = snapshot.receiver(login.rxIndex);
  session.startTime = login.startTime;
  if (const ConnectionRecord *connection = snapshot.connectionOfReceiver(login.rxIndex)) {
    session.transmitter = snapshot.transmitter(connection->txIndex);
    session.mode = connection->modeText();
    session.startTime = connection->startTime;
  }
  return session;
}

SessionRecord ofConnection(const ConnectionRecord &connection, StoreSnapshot &snapshot)
{
  SessionRecord session;
  session.index = connection.index;
  session.user = snapshot.userAt(connection.rxIndex);
  session.receiver = snapshot.receiver(connection.rxIndex);
  session.transmitter = snapshot.transmitter(connection.txIndex);
  session.mode = connection.modeText();
  session.startTime = connection.startTime;
  return session;
}

template <class Record>
std::optional<std::vector<SessionRecord>> sessionsOf(const std::optional<std::vector<Record>> &records,
                                                     SessionRecord (*sessionOf)(const Record &,
                                                                                StoreSnapshot &))
{
  if (!records)
    return std::nullopt;
  StoreSnapshot snapshot;
  std::vector<SessionRecord> sessions;
  sessions.reserve(records->size());
  for (const Record &record : *records)
    sessions.push_back(sessionOf(record, snapshot));
  return sessions;
}

} // namespace

std::optional<std::vector<SessionRecord>> SessionRecord::readLogins()
{
  return sessionsOf(UserSessionRecord::readWithoutUsers(), ofLogin);
}

std::optional<std::vector<SessionRecord>> SessionRecord::readConnections()
{
  return sessionsOf(ConnectionRecord::readAll(), ofConnection);
}

std::string SessionRecord::durationText() const
{
  return NevoUtil_durationSince(startTime);
}
