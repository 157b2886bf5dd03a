// SPDX-License-Identifier: MIT
#include "Db.h"

#include "EventLog.h"
#include "StoreSession.h"
#include "ZelObj.h"

Db Db_db;

Db::Db() : clientFailureLogged(false) {}

Db::~Db() = default;

unsigned int Db::getZelClient(ZelClient_s *&client)
{
  client = nullptr;
  if (StoreSession *session = StoreSession::current())
    client = session->getZelClient();
  if (ZelClient_isValid(client))
    return 0;
  if (!clientFailureLogged) {
    clientFailureLogged = true;
    EventLog_write(1, 7, "getZelClient", "Failed to get ZEL client.");
  }
  return 1;
}

void Db::closeZelClient()
{
  if (StoreSession *session = StoreSession::current())
    session->closeZelClient();
}

void Db::zelObjFree(json_t *&object)
{
  if (!object)
    return;
  ZelObj_free(object);
  object = nullptr;
}

unsigned int Db::getIndexOfCurrentlyLoggedInNevoUsr()
{
  StoreSession *session = StoreSession::current();
  return session ? session->getIndexOfCurrentlyLoggedInUsr() : 0;
}
