// SPDX-License-Identifier: MIT
#include "RecordRows.h"

#include "Db.h"
#include "DbExchange.h"

RecordRows::RecordRows(json_t *received) : response(received), read(received != nullptr), rows(0)
{
  if (!read)
    return;
  Db::Errors errors;
  if (DbExchange_failed(received, errors, DbExchange_NoEntries::AreNone))
    read = errors.empty();
  else if (const int count = ZelRspUtil_numEntries(received); count > 0)
    rows = static_cast<unsigned int>(count);
}

unsigned int RecordRows::number(unsigned int row, const char *parameter) const
{
  return static_cast<unsigned int>(ZelRspUtil_getIndexedIntegerParam(response.get(), row, parameter));
}

std::string RecordRows::text(unsigned int row, const char *parameter) const
{
  const char *value = ZelRspUtil_getIndexedStringParam(response.get(), row, parameter);
  return value ? value : "";
}

std::optional<std::string> RecordRows::textIfAny(unsigned int row, const char *parameter) const
{
  const char *value = ZelRspUtil_getIndexedStringParam(response.get(), row, parameter);
  return value ? std::optional<std::string>(value) : std::nullopt;
}

json_t *RecordRows::row(unsigned int row) const
{
  return ZelObj_getRow(response.get(), row);
}
