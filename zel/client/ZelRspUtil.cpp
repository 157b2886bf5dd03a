// SPDX-License-Identifier: MIT
#include "ZelRspUtil.h"

#include "Base64.h"
#include "HeldAnswer.h"
#include "Rows.h"
#include "SharedValue.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace
{

json_t *memberOf(const json_t *record, const char *name)
{
  return record && name ? json_object_get(record, name) : nullptr;
}

// A member of a response; of the first row of a list.
json_t *firstMember(const json_t *response, const char *name)
{
  return memberOf(json_is_array(response) ? json_array_get(response, 0) : response, name);
}

json_t *rowMember(const json_t *response, unsigned int row, const char *name)
{
  return memberOf(zelclient::rowOf(response, row), name);
}

int toBoolean(const json_t *value)
{
  const char *word = json_string_value(value);
  if (word)
    return std::strcmp(word, "enabled") == 0 || std::strcmp(word, "is_true") == 0 ? 1 : 0;
  return json_is_true(value) || json_integer_value(value) != 0 ? 1 : 0;
}

int copyBinary(const json_t *value, void *buffer, std::size_t size)
{
  if (!buffer || size == 0)
    return 0;
  std::memset(buffer, 0, size);
  try {
    bool ok = false;
    std::string bytes;
    if (json_is_string(value))
      bytes = zelwire::decodeBase64({json_string_value(value), json_string_length(value)}, ok);
    if (!ok)
      return 0;
    std::size_t length = std::min(size, bytes.size());
    std::memcpy(buffer, bytes.data(), length);
    return static_cast<int>(length);
  } catch (const std::bad_alloc &) {
    return 0;
  }
}

} // namespace

int ZelRspUtil_numEntries(const json_t *response)
{
  return static_cast<int>(zelclient::countRows(response));
}

const char *ZelRspUtil_getStringParam(const json_t *response, const char *name)
{
  return json_string_value(firstMember(response, name));
}

int ZelRspUtil_getIntegerParam(const json_t *response, const char *name)
{
  return zelclient::integerOf(firstMember(response, name));
}

int ZelRspUtil_getBooleanParam(const json_t *response, const char *name)
{
  return toBoolean(firstMember(response, name));
}

int ZelRspUtil_getBinaryParam(const json_t *response, const char *name, void *buffer, size_t size)
{
  return copyBinary(firstMember(response, name), buffer, size);
}

json_t *ZelRspUtil_getObjectParam(const json_t *response, const char *name)
{
  return firstMember(response, name);
}

const char *ZelRspUtil_getIndexedStringParam(const json_t *response, unsigned int row, const char *name)
{
  return json_string_value(rowMember(response, row, name));
}

int ZelRspUtil_getIndexedIntegerParam(const json_t *response, unsigned int row, const char *name)
{
  using zelclient::lastColumn;
  if (response && name && (zelclient::isLastColumn(response, name) || zelclient::findColumn(response, name)))
    return row < lastColumn.rows ? lastColumn.values[row] : 0;
  return zelclient::integerOf(rowMember(response, row, name));
}

int ZelRspUtil_getIndexedBinaryParam(const json_t *response, unsigned int row, const char *name, void *buffer,
                                     size_t size)
{
  return copyBinary(rowMember(response, row, name), buffer, size);
}

json_t *ZelRspUtil_getIndexedObjectParam(const json_t *response, unsigned int row, const char *name)
{
  return rowMember(response, row, name);
}

void ZelRspUtil_free(json_t *response)
{
  zelclient::release(response);
}
