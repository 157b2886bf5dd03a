// SPDX-License-Identifier: MIT
#include "WUsr.h"

#include "Db.h"
#include "NevoUtil.h"
#include "ZelObj.h"

namespace
{

// Returns 0, or 1 on failure. Nobody has no name; to the store, index 0 would mean all users.
unsigned int findName(unsigned int userIndex, std::string &name, std::vector<std::string> &errors)
{
  return userIndex == 0 ? 0 : Db_db.getUsernameFromUserIndex(userIndex, name, errors);
}

unsigned int findIndex(const std::string &name, unsigned int &userIndex, std::vector<std::string> &errors)
{
  return Db_db.findIndexOfStringKey("user", "index", "name", name.c_str(), userIndex, errors);
}

} // namespace

WUsr::WUsr(const char *resourceName, const char *parameterName, bool isIndexed, Wt::WContainerWidget *parent)
    : WComboBoxZelDynamic(resourceName, parameterName, isIndexed, "user", "name", parent)
{
}

std::list<std::string> WUsr::choicesIn(json_t *response) const
{
  std::list<std::string> names = WComboBoxZelDynamic::choicesIn(response);
  names.sort(NevoUtil_lessThan);
  return names;
}

WWidgetZel::Agreement WUsr::readChoice(const std::vector<unsigned int> &indexes, std::string &choice,
                                       std::vector<std::string> &errors) const
{
  unsigned int userIndex = 0;
  const Agreement agreement = readCommon(indexes, userIndex, errors);
  return findName(userIndex, choice, errors) ? Unreadable : agreement;
}

WWidgetZel::Agreement WUsr::extractChoice(json_t *response, const std::vector<unsigned int> &indexes,
                                          std::string &choice) const
{
  unsigned int userIndex = 0;
  std::vector<std::string> unshown;
  const Agreement agreement = extractCommon(response, indexes, userIndex);
  findName(userIndex, choice, unshown);
  return agreement;
}

bool WUsr::writeChoice(const std::vector<unsigned int> &records, const std::string &choice,
                       std::vector<std::string> &errors) const
{
  unsigned int userIndex = 0;
  return findIndex(choice, userIndex, errors) || writeEach(records, userIndex, errors);
}

void WUsr::addChoice(json_t *params, const std::string &choice) const
{
  unsigned int userIndex = 0;
  std::vector<std::string> unshown;
  if (findIndex(choice, userIndex, unshown) == 0)
    ZelObj_setInteger(params, param, userIndex);
}
