// SPDX-License-Identifier: MIT
#include "ZelClient.h"

#include "AnswerCache.h"
#include "ClientOptions.h"
#include "Connection.h"
#include "Frame.h"
#include "RequestText.h"
#include "SharedValue.h"

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

bool isGet(const json_t *request)
{
  const char *method = json_string_value(json_object_get(request, "method"));
  return method && std::string_view(method) == "GET";
}

// The epoch that an answer frame names, [slot, number]; of run 0 if it names none that means anything.
zelclient::Epoch epochOf(const json_t *frame, const zelclient::ServerPage *page)
{
  const json_t *pair = json_object_get(frame, "epoch");
  const json_t *slot = json_array_get(pair, 0);
  const json_t *number = json_array_get(pair, 1);
  if (!page || !json_is_integer(slot) || !json_is_integer(number) || json_integer_value(slot) < 0 ||
      json_integer_value(slot) >= static_cast<json_int_t>(zelwire::EpochPage::kSlots))
    return {};
  return page->epochOf(static_cast<std::uint32_t>(json_integer_value(slot)),
                       static_cast<std::uint64_t>(json_integer_value(number)));
}

// What the caller gets of an answer frame, or null for a frame that is none of the three answers. `held`
// is the answer that the tag in the request stood for, or null.
json_t *takeAnswer(ZelClient_s &client, std::string_view text, bool mayKeep, const AnswerCache::Answer &held)
{
  json_t *frame = zelwire::parseJson(text);
  json_t *result = nullptr;
  json_t *data = json_object_get(frame, "data");
  if (json_is_array(json_object_get(frame, "errors"))) {
    result = json_incref(frame);
  } else if (json_is_object(data) || json_is_array(data)) {
    result = zelclient::retain(data);
    const char *tag = json_string_value(json_object_get(frame, "tag"));
    const zelclient::Epoch epoch = epochOf(frame, client.connection.page());
    if (mayKeep && (tag || epoch.run != 0))
      AnswerCache::instance().keep(std::make_shared<const zelclient::HeldAnswer>(
          client.request, data, tag ? tag : "", epoch, text.size()));
  } else if (held && json_is_true(json_object_get(frame, "unchanged"))) {
    result = zelclient::retain(held->value());
  }
  zelclient::release(frame);
  return result;
}

// The end of a request's text, with the tag of the held answer; empty if there is none to tell.
void writeHave(const std::string &tag, std::string &have)
{
  have.clear();
  if (tag.empty())
    return;
  // The tag was a JSON text of the server's; written as one again it needs the same escapes.
  json_t *tagText = json_stringn(tag.data(), tag.size());
  have = ",\"have\":";
  if (tagText && zelclient::appendJson(tagText, have))
    have += '}';
  else
    have.clear();
  json_decref(tagText);
}

json_t *exchange(ZelClient_s &client, const json_t *request)
{
  if (!zelclient::writeRequest(request, client.request))
    return nullptr;
  bool mayKeep = isGet(request);
  AnswerCache::Answer held = mayKeep ? AnswerCache::instance().find(client.request) : nullptr;
  const zelclient::ServerPage *page = client.connection.page();
  // The page of a server that has ended says nothing of the one in its place, so the connection has to
  // stand; and that has to be seen after the request began.
  if (held && page && page->stands(held->epoch()) && client.connection.isUsable()) {
    zelclient::rememberHeld(held);
    return zelclient::retain(held->value());
  }
  writeHave(held ? held->tag() : std::string(), client.have);
  std::string_view body = client.request;
  if (!client.have.empty())
    body.remove_suffix(1);
  std::string_view answer;
  if (!client.connection.exchange(body, client.have, answer))
    return nullptr;
  json_t *result = takeAnswer(client, answer, mayKeep, held);
  if (!result)
    client.connection.close();
  else if (held && result == held->value())
    zelclient::rememberHeld(held);
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
