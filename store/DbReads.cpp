// SPDX-License-Identifier: MIT
#include "Db.h"
#include "DbExchange.h"

#include <strings.h>

namespace
{

// Asks for one parameter; the index 0 is none.
unsigned int readParameter(const char *function, const char *resource, unsigned int index,
                           const char *parameter, ZelResponse &response, Db::Errors &errors)
{
  const auto wanted = index == 0 ? std::nullopt : std::optional<unsigned int>(index);
  return DbExchange_read(function, resource, wanted, parameter, response, errors);
}

} // namespace

unsigned int Db::readUInt32(const char *resource, unsigned int index, const char *parameter,
                            unsigned int &value, Errors &errors)
{
  ZelResponse response;
  if (readParameter("readUInt32", resource, index, parameter, response, errors))
    return 1;
  value = static_cast<unsigned int>(ZelRspUtil_getIntegerParam(response.get(), parameter));
  return 0;
}

unsigned int Db::readString(const char *resource, unsigned int index, const char *parameter,
                            std::string &value, Errors &errors)
{
  ZelResponse response;
  if (readParameter("readString", resource, index, parameter, response, errors))
    return 1;
  if (const char *found = ZelRspUtil_getStringParam(response.get(), parameter))
    value = found;
  return 0;
}

unsigned int Db::readEnableDisable(const char *resource, unsigned int index, const char *parameter,
                                   bool &value, Errors &errors)
{
  std::string word;
  if (readString(resource, index, parameter, word, errors))
    return 1;
  value = strcasecmp(word.c_str(), "enabled") == 0;
  return 0;
}

unsigned int Db::extractUInt32(json_t *response, const char *parameter, unsigned int &value)
{
  if (!response)
    return 1;
  value = static_cast<unsigned int>(ZelRspUtil_getIntegerParam(response, parameter));
  return 0;
}

unsigned int Db::extractString(json_t *response, const char *parameter, std::string &value)
{
  const char *found = response ? ZelRspUtil_getStringParam(response, parameter) : nullptr;
  if (!found)
    return 1;
  value = found;
  return 0;
}

unsigned int Db::extractEnableDisable(json_t *response, const char *parameter, bool &value)
{
  std::string word;
  if (extractString(response, parameter, word))
    return 1;
  value = word.compare("enabled") == 0;
  return 0;
}
