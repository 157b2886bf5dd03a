// SPDX-License-Identifier: MIT
#include "StoreSession.h"

#include <Wt/WApplication>
#include <Wt/WEnvironment>

StoreSession *StoreSession::current()
{
  return dynamic_cast<StoreSession *>(Wt::WApplication::instance());
}

std::string StoreSession::currentClientAddress()
{
  Wt::WApplication *application = Wt::WApplication::instance();
  return application ? application->environment().clientAddress() : std::string();
}
