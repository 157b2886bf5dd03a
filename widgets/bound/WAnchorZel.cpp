// SPDX-License-Identifier: MIT
#include "WAnchorZel.h"

#include <Wt/WLink>
#include <Wt/WString>
#include <cstring>

WAnchorZel::WAnchorZel(const char *resourceName, const char *parameterName, bool isIndexed,
                       Wt::WContainerWidget *parent)
    : Wt::WAnchor(parent), WWidgetZel(resourceName, parameterName, isIndexed)
{
  setText("");
  setTextFormat(Wt::PlainText);
  setTarget(Wt::TargetNewWindow);
}

bool WAnchorZel::readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                                  bool force)
{
  if (keepsEdit(force))
    return false;
  std::string address;
  const Agreement agreement = readCommon(indexes, address, errors);
  if (agreement == NoRecords || agreement == Unreadable)
    setText("");
  else
    show(address);
  return endRead(agreement);
}

void WAnchorZel::getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force)
{
  if (keepsEdit(force))
    return;
  std::string address;
  const Agreement agreement = extractCommon(response, indexes, address);
  if (agreement == NoRecords)
    setText("");
  else
    show(address);
  endBulkRead(agreement);
}

void WAnchorZel::show(const std::string &address)
{
  // The brackets of an address of version 6 stand in the other case, where they are wanted.
  const bool plain = std::strcmp(param, "ZELKEYS_SWX_NETWORK_IPV6_IP_ADDRESS") == 0;
  setText(Wt::WString::fromUTF8(address));
  setLink(Wt::WLink(plain ? "https://" + address : "https://[" + address + "]"));
  // A new link may bring its own target.
  setTarget(Wt::TargetNewWindow);
}
