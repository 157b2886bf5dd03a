// SPDX-License-Identifier: MIT
#include "WTextManagerServer.h"

#include "Text.h"

WTextManagerServer::WTextManagerServer(const char *resourceName, const char *parameterName, bool isIndexed,
                                       Wt::WContainerWidget *parent)
    : WTextZel(resourceName, parameterName, isIndexed, parent)
{
}

Wt::WString WTextManagerServer::textOfRead(const std::string &word) const
{
  return textOfWord("manager.designation.", word);
}
