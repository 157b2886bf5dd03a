// SPDX-License-Identifier: MIT
#include "ZelClient.h"

#include "AnswerCache.h"
#include "ClientOptions.h"
#include "Connection.h"
#include "Frame.h"

#include <new>
#include <string>

using zelclient::AnswerCache;

struct ZelClient_s {
  explicit ZelClient_s(const std::string &path) : connection(path) {}

  zelclient::Connection connection;
  std::string request; // text of the request under way; kept for its memory
  std::string have;    // the tag that goes with it, as the end of the request's text
};

namespace
{

int appendText(const char *text, std::size_t size, void *target)
{
  static_cast<std::string *>(target)->append(text, size);
  return 0;
}

bool isGet(const json_t *request)
{
  const char *method = json_string_value(json_object_get(request, "method"));
  return method && std::string_view(method) == "GET";
}

// What the caller gets of an answer frame, or null for a frame that is none of the three answers.
// Takes `kept`, the answer that the tag in the request stood for (or null), over.
json_t *takeAnswer(std::string_view text, std::string_view request, bool mayKeep, json_t *kept)
{
  json_t *frame = zelwire::parseJson(text);
  json_t *result = nullptr;
  json_t *data = json_object_get(frame, "data");
  if (json_is_array(json_object_get(frame, "errors"))) {
    result = json_incref(frame);
  } else if (json_is_object(data) || json_is_array(data)) {
    result = json_incref(data);
    const char *tag = json_string_value(json_object_get(frame, "tag"));
    if (mayKeep && tag)
      AnswerCache::instance().keep(request, tag, data, text.size());
  } else if (json_is_true(json_object_get(frame, "unchanged"))) {
    result = json_incref(kept);
  }
  json_decref(kept);
  json_decref(frame);
  return result;
}

json_t *exchange(ZelClient_s &client, const json_t *request)
{
  client.request.clear();
  if (json_dump_callback(request, appendText, &client.request, JSON_COMPACT) != 0)
    return nullptr;
  bool mayKeep = isGet(request);
  json_t *kept = nullptr;
  std::string_view body = client.request;
  client.have.clear();
  if (mayKeep) {
    std::string tag = AnswerCache::instance().find(client.request, &kept);
    if (kept) {
      // The tag was a JSON text of the server's; written as one again it needs the same escapes.
      json_t *tagText = json_stringn(tag.data(), tag.size());
      client.have = ",\"have\":";
      if (json_dump_callback(tagText, appendText, &client.have, JSON_ENCODE_ANY) == 0) {
        client.have += '}';
        body.remove_suffix(1);
      } else {
        client.have.clear();
      }
      json_decref(tagText);
    }
  }
  std::string_view answer;
  if (!client.connection.exchange(body, client.have, answer)) {
    json_decref(kept);
    return nullptr;
  }
  json_t *result = takeAnswer(answer, client.request, mayKeep, kept);
  if (!result)
    client.connection.close();
  return result;
}

} // namespace

ZelClient_s *ZelClient_new(void)
{
  try {
    ZelClient_s *client = new ZelClient_s(zelclient::socketPath());
    if (client->connection.isOpen())
      return client;
    delete client;
  } catch (const std::bad_alloc &) {
  }
  return nullptr;
}

int ZelClient_isValid(const ZelClient_s *client)
{
  return client && client->connection.isUsable() ? 1 : 0;
}

void ZelClient_close(ZelClient_s *client)
{
  delete client;
}

json_t *ZelClient_getResponse(ZelClient_s *client, json_t *request)
{
  if (!client || !json_is_object(request) || json_object_size(request) == 0)
    return nullptr;
  try {
    return exchange(*client, request);
  } catch (const std::bad_alloc &) {
    client->connection.close();
    return nullptr;
  }
}
