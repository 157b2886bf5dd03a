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
  else
    countRows();
}

RecordRows RecordRows::nested(json_t *response, const char *key, const char *list)
{
  RecordRows record(response);
  if (!record.read)
    return record;
  record.list.reset(ZelObj_collapse(response, key, list));
  record.read = record.list != nullptr;
  record.countRows();
  return record;
}

void RecordRows::countRows()
{
  const int count = ZelRspUtil_numEntries(values());
  rows = count > 0 ? static_cast<unsigned int>(count) : 0;
}

void RecordRows::bytes(unsigned int row, const char *parameter, char *buffer, std::size_t size) const
{
  ZelRspUtil_getIndexedBinaryParam(values(), row, parameter, buffer, size);
}

unsigned int RecordRows::number(unsigned int row, const char *parameter) const
{
  return static_cast<unsigned int>(ZelRspUtil_getIndexedIntegerParam(values(), row, parameter));
}

std::string RecordRows::text(unsigned int row, const char *parameter) const
{
  const char *value = ZelRspUtil_getIndexedStringParam(values(), row, parameter);
  return value ? value : "";
}

std::optional<std::string> RecordRows::textIfAny(unsigned int row, const char *parameter) const
{
  const char *value = ZelRspUtil_getIndexedStringParam(values(), row, parameter);
  return value ? std::optional<std::string>(value) : std::nullopt;
}

json_t *RecordRows::row(unsigned int row) const
{
  return ZelObj_getRow(values(), row);
}
