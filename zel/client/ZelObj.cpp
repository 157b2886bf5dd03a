// SPDX-License-Identifier: MIT
#include "ZelObj.h"

#include "Base64.h"
#include "Rows.h"
#include "SharedValue.h"

namespace
{

// json_object_set_new() with the null arguments caught; takes `value` over.
int setMember(json_t *object, const char *name, json_t *value)
{
  if (object && name && value)
    return json_object_set_new(object, name, value);
  json_decref(value);
  return -1;
}

// Adds a copy of `entry` to `rows`, with the record's key beside it.
bool appendCollapsed(json_t *rows, json_t *entry, const char *keyName, json_t *key)
{
  json_t *row = json_copy(entry);
  if (!row)
    return false;
  if (key && !json_object_get(row, keyName) && json_object_set(row, keyName, key) != 0) {
    json_decref(row);
    return false;
  }
  return json_array_append_new(rows, row) == 0;
}

// Adds the nested rows of one record; `found` is set if the record has such a member at all.
bool collapseRecord(json_t *rows, json_t *record, const char *keyName, const char *arrayName, bool &found)
{
  json_t *member = json_object_get(record, arrayName);
  json_t *key = json_object_get(record, keyName);
  if (json_is_object(member)) {
    found = true;
    return appendCollapsed(rows, member, keyName, key);
  }
  if (!json_is_array(member))
    return true;
  found = true;
  std::size_t at;
  json_t *entry;
  json_array_foreach(member, at, entry)
  {
    if (json_is_object(entry) && !appendCollapsed(rows, entry, keyName, key))
      return false;
  }
  return true;
}

} // namespace

json_t *ZelObj_new(void)
{
  return json_object();
}

json_t *ZelObj_newArray(void)
{
  return json_array();
}

int ZelObj_arrayAppendObject(json_t *array, json_t *object)
{
  if (!json_is_array(array) || !object || json_array_append(array, object) != 0)
    return -1;
  json_decref(object);
  return 0;
}

int ZelObj_setObject(json_t *object, const char *name, json_t *value)
{
  return setMember(object, name, value);
}

int ZelObj_setString(json_t *object, const char *name, const char *text)
{
  return text ? setMember(object, name, json_string(text)) : -1;
}

int ZelObj_setInt32(json_t *object, const char *name, int number)
{
  return setMember(object, name, json_integer(number));
}

int ZelObj_setUInt32(json_t *object, const char *name, unsigned int number)
{
  return setMember(object, name, json_integer(number));
}

int ZelObj_setInteger(json_t *object, const char *name, unsigned int number)
{
  return ZelObj_setUInt32(object, name, number);
}

int ZelObj_setBool32(json_t *object, const char *name, int flag)
{
  return setMember(object, name, json_boolean(flag));
}

int ZelObj_setBinary(json_t *object, const char *name, const void *bytes, size_t length)
{
  if (!bytes && length > 0)
    return -1;
  std::string text = zelwire::encodeBase64(bytes, length);
  return setMember(object, name, json_stringn(text.data(), text.size()));
}

int ZelObj_setUInt32Object(json_t *object, const char *outer, const char *inner, unsigned int number)
{
  json_t *value = json_object();
  if (ZelObj_setUInt32(value, inner, number) == 0)
    return setMember(object, outer, value);
  json_decref(value);
  return -1;
}

int ZelObj_setSelect(json_t *request, const char *parameter)
{
  if (!json_is_object(request) || !parameter)
    return -1;
  json_t *select = json_object_get(request, "select");
  if (!select) {
    if (json_object_set_new(request, "select", json_array()) != 0)
      return -1;
    select = json_object_get(request, "select");
  }
  return json_array_append_new(select, json_string(parameter));
}

json_t *ZelObj_getRow(json_t *response, unsigned int row)
{
  return zelclient::rowOf(response, row);
}

json_t *ZelObj_collapse(json_t *response, const char *keyName, const char *arrayName)
{
  if (!response || !keyName || !arrayName)
    return nullptr;
  json_t *rows = json_array();
  bool found = zelclient::isFailure(response);
  std::size_t count = rows ? zelclient::countRows(response) : 0;
  bool complete = rows != nullptr;
  for (std::size_t i = 0; complete && i < count; ++i)
    complete = collapseRecord(rows, zelclient::rowOf(response, i), keyName, arrayName, found);
  // A list without rows has no record that could lack the member.
  if (complete && (found || count == 0))
    return rows;
  json_decref(rows);
  return nullptr;
}

void ZelObj_free(json_t *value)
{
  zelclient::release(value);
}
