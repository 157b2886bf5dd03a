// SPDX-License-Identifier: MIT
#include "WPasswordZel.h"

WPasswordZel::WPasswordZel(const char *resourceName, const char *parameterName, bool isIndexed,
                           Wt::WContainerWidget *parent)
    : WLineEditZel(resourceName, parameterName, isIndexed, parent)
{
  setEchoMode(Wt::WLineEdit::Password);
  setAttributeValue("autocomplete", "new-password");
}

bool WPasswordZel::readFromDatabase(std::vector<unsigned int> &, std::vector<std::string> &, bool force)
{
  if (keepsEdit(force))
    return false;
  setText("");
  return endRead(NoRecords);
}

void WPasswordZel::getZelParam(json_t *, std::vector<unsigned int> &indexes, bool force)
{
  std::vector<std::string> none;
  readFromDatabase(indexes, none, force);
}
