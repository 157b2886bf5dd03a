// SPDX-License-Identifier: MIT
#include "WTextManagerServer.h"

#include "Text.h"

Wt::WString WTextManagerServer::textOfRead(const std::string &word) const
{
  return textOfWord("manager.designation.", word);
}
