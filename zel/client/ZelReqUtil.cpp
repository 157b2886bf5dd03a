// SPDX-License-Identifier: MIT
#include "ZelReqUtil.h"

#include "SharedValue.h"
#include "ZelObj.h"

namespace
{

json_t *newRequest(const char *method, const char *resource)
{
  json_t *request = json_object();
  if (ZelReqUtil_setMethod(request, method) == 0 && ZelReqUtil_setResource(request, resource) == 0)
    return request;
  json_decref(request);
  return nullptr;
}

// The object `name` of the request, made if it is not there; owned by the request, or null.
json_t *section(json_t *request, const char *name)
{
  json_t *found = json_object_get(request, name);
  if (found)
    return json_is_object(found) ? found : nullptr;
  if (json_object_set_new(request, name, json_object()) != 0)
    return nullptr;
  return json_object_get(request, name);
}

} // namespace

json_t *ZelReqUtil_newGetResource(const char *resource)
{
  return newRequest("GET", resource);
}

json_t *ZelReqUtil_newSetResource(const char *resource)
{
  return newRequest("SET", resource);
}

json_t *ZelReqUtil_newCreateResource(const char *resource)
{
  return newRequest("CREATE", resource);
}

json_t *ZelReqUtil_newDeleteResource(const char *resource)
{
  return newRequest("DELETE", resource);
}

int ZelReqUtil_setResource(json_t *request, const char *resource)
{
  return ZelObj_setString(request, "resource", resource);
}

int ZelReqUtil_setMethod(json_t *request, const char *method)
{
  return ZelObj_setString(request, "method", method);
}

int ZelReqUtil_setStringParam(json_t *request, const char *name, const char *value)
{
  return ZelObj_setString(section(request, "params"), name, value);
}

int ZelReqUtil_setIntegerParam(json_t *request, const char *name, unsigned int value)
{
  return ZelObj_setUInt32(section(request, "params"), name, value);
}

int ZelReqUtil_setBooleanParam(json_t *request, const char *name, int value)
{
  return ZelObj_setBool32(section(request, "params"), name, value);
}

int ZelReqUtil_setObjectParam(json_t *request, const char *name, json_t *object)
{
  return ZelObj_setObject(section(request, "params"), name, object);
}

int ZelReqUtil_setIntegerQuery(json_t *request, const char *name, unsigned int value)
{
  json_t *query = section(request, "query");
  json_t *present = query && name ? json_object_get(query, name) : nullptr;
  if (!present)
    return ZelObj_setUInt32(query, name, value);
  if (json_is_array(present))
    return json_array_append_new(present, json_integer(value));
  json_t *values = json_array();
  if (json_array_append(values, present) != 0 || json_array_append_new(values, json_integer(value)) != 0) {
    json_decref(values);
    return -1;
  }
  return json_object_set_new(query, name, values);
}

int ZelReqUtil_setSelect(json_t *request, const char *parameter)
{
  return ZelObj_setSelect(request, parameter);
}

json_t *ZelReqUtil_submit(json_t *request, ZelClient_s *client)
{
  return ZelClient_getResponse(client, request);
}

void ZelReqUtil_free(json_t *request)
{
  zelclient::release(request);
}
