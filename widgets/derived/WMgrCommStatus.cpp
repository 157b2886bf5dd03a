// SPDX-License-Identifier: MIT
#include "WMgrCommStatus.h"

#include "Db.h"
#include "Text.h"

#include <string>

namespace
{

/// What cannot be read is not up.
bool isUp(const char *param)
{
  std::string word;
  Db::Errors dropped;
  return Db_db.readString("systemGlobals", 0, param, word, dropped) == 0 && word == "up";
}

} // namespace

WMgrCommStatus::WMgrCommStatus(MgrInstance manager, Wt::WContainerWidget *parent)
    : Wt::WText("", Wt::PlainText, parent), instance(manager)
{
}

void WMgrCommStatus::readFromDatabase()
{
  setText(::text("Down"));
  if (!Db_db.thisSwxIsManaged())
    return;
  const bool server =
      isUp(instance == Primary ? "commStatusRestServerPrimary" : "commStatusRestServerAuxiliary");
  const bool client =
      isUp(instance == Primary ? "commStatusRestClientPrimary" : "commStatusRestClientAuxiliary");
  if (server && client)
    setText(::text("Normal"));
  else if (server)
    setText(::text("Server up, client down"));
  else if (client)
    setText(::text("Client up, server down"));
}
