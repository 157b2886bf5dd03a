// SPDX-License-Identifier: MIT
#include "NevoSession.h"

#include <Wt/WApplication>

NevoSession *NevoSession::current()
{
  return dynamic_cast<NevoSession *>(Wt::WApplication::instance());
}
