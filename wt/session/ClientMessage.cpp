// SPDX-License-Identifier: MIT
#include "session/ClientMessage.h"

#include <charconv>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <jansson.h>
#include <memory>

namespace Wt
{
namespace Engine
{

namespace
{

const std::size_t kMaxEvents = 500;
const std::size_t kMaxArguments = 64;
const int kMaxDepth = 6; // {"e":[[1,"name",{"a":[..]}]]} needs five

struct JsonDeleter {
  void operator()(json_t *value) const { json_decref(value); }
};
using JsonHolder = std::unique_ptr<json_t, JsonDeleter>;

/// The parser recurses; a text that is nested deeper than any message does not get that far.
bool shallow(std::string_view text)
{
  int depth = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quoted) {
      if (c == '\\')
        ++i;
      else if (c == '"')
        quoted = false;
    } else if (c == '"') {
      quoted = true;
    } else if (c == '[' || c == '{') {
      if (++depth > kMaxDepth)
        return false;
    } else if (c == ']' || c == '}') {
      --depth;
    }
  }
  return true;
}

/// The code unit of the escape "\\uXXXX" at that place, or -1 if there is none.
int escapedUnit(std::string_view text, std::size_t at)
{
  if (at + 6 > text.size() || text[at] != '\\' || text[at + 1] != 'u')
    return -1;
  int unit = -1;
  const char *const digits = text.data() + at + 2;
  const auto parsed = std::from_chars(digits, digits + 4, unit, 16);
  return parsed.ptr == digits + 4 ? unit : -1;
}

bool highSurrogate(int unit)
{
  return unit >= 0xd800 && unit < 0xdc00;
}

bool lowSurrogate(int unit)
{
  return unit >= 0xdc00 && unit < 0xe000;
}

/// The text without escapes of characters that no text has: NUL, and one half of a pair of surrogates.
/// Programs that type for their users send such, and a page is not to end for it.
std::string withoutOddCharacters(std::string_view text)
{
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const int unit = escapedUnit(text, i);
    const bool pair = highSurrogate(unit) && lowSurrogate(escapedUnit(text, i + 6));
    // An escaped backslash is no beginning of an escape.
    const std::size_t length = pair ? 12 : unit >= 0 ? 6 : text[i] == '\\' ? 2 : 1;
    if (pair || !(unit == 0 || highSurrogate(unit) || lowSurrogate(unit)))
      result += text.substr(i, length);
    i += length;
  }
  return result;
}

std::string text(const json_t *value)
{
  return std::string(json_string_value(value), json_string_length(value));
}

// Each reader accepts an absent member (null) and leaves the default then.

bool readText(const json_t *value, std::string &result)
{
  if (!value)
    return true;
  if (!json_is_string(value))
    return false;
  result = text(value);
  return true;
}

bool readInt(const json_t *value, int &result)
{
  if (!value)
    return true;
  if (json_is_real(value)) {
    const double real = json_real_value(value);
    if (!(real > -1e9 && real < 1e9))
      return false;
    result = static_cast<int>(real);
    return true;
  }
  if (!json_is_integer(value))
    return false;
  const json_int_t integer = json_integer_value(value);
  if (integer < INT_MIN || integer > INT_MAX)
    return false;
  result = static_cast<int>(integer);
  return true;
}

bool readNumber(const json_t *value, std::uint64_t &result)
{
  if (!value)
    return true;
  if (!json_is_integer(value) || json_integer_value(value) < 0)
    return false;
  result = static_cast<std::uint64_t>(json_integer_value(value));
  return true;
}

bool readId(const json_t *value, Dom::Element::Id &result)
{
  if (!json_is_integer(value) || json_integer_value(value) < 0 || json_integer_value(value) > UINT32_MAX)
    return false;
  result = static_cast<Dom::Element::Id>(json_integer_value(value));
  return true;
}

bool readPoint(const json_t *value, RawEvent::Point &point)
{
  if (!value)
    return true;
  return json_is_array(value) && json_array_size(value) == 2 && readInt(json_array_get(value, 0), point.x) &&
         readInt(json_array_get(value, 1), point.y);
}

bool readArgument(const json_t *value, std::string &result)
{
  if (json_is_string(value)) {
    result = text(value);
  } else if (json_is_integer(value)) {
    result = std::to_string(json_integer_value(value));
  } else if (json_is_real(value)) {
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, json_real_value(value)).ptr;
    result.assign(buffer, end);
  } else if (json_is_boolean(value)) {
    result = json_is_true(value) ? "true" : "false";
  } else if (!json_is_null(value)) {
    return false;
  }
  return true;
}

bool readArguments(const json_t *list, std::vector<std::string> &arguments)
{
  if (!list)
    return true;
  if (!json_is_array(list) || json_array_size(list) > kMaxArguments)
    return false;
  arguments.resize(json_array_size(list));
  for (std::size_t i = 0; i < arguments.size(); ++i)
    if (!readArgument(json_array_get(list, i), arguments[i]))
      return false;
  return true;
}

bool readEventData(const json_t *data, RawEvent &event)
{
  if (!data)
    return true;
  return json_is_object(data) && readInt(json_object_get(data, "b"), event.button) &&
         readInt(json_object_get(data, "m"), event.modifiers) &&
         readPoint(json_object_get(data, "d"), event.document) &&
         readPoint(json_object_get(data, "w"), event.window) &&
         readPoint(json_object_get(data, "s"), event.screen) &&
         readPoint(json_object_get(data, "o"), event.widget) &&
         readPoint(json_object_get(data, "g"), event.dragDelta) &&
         readInt(json_object_get(data, "l"), event.wheel) &&
         readInt(json_object_get(data, "k"), event.keyCode) &&
         readInt(json_object_get(data, "c"), event.charCode) &&
         readText(json_object_get(data, "t"), event.text) &&
         readArguments(json_object_get(data, "a"), event.args);
}

bool readEvents(const json_t *list, std::vector<ClientMessage::Event> &events)
{
  if (!list)
    return true;
  if (!json_is_array(list) || json_array_size(list) > kMaxEvents)
    return false;
  events.resize(json_array_size(list));
  for (std::size_t i = 0; i < events.size(); ++i) {
    const json_t *entry = json_array_get(list, i);
    const std::size_t size = json_array_size(entry);
    if (size < 2 || size > 3 || !readId(json_array_get(entry, 0), events[i].element) ||
        !json_is_string(json_array_get(entry, 1)) ||
        !readText(json_array_get(entry, 1), events[i].data.name) ||
        !readEventData(size == 3 ? json_array_get(entry, 2) : nullptr, events[i].data))
      return false;
  }
  return true;
}

bool readValues(json_t *object, std::vector<std::pair<Dom::Element::Id, std::string>> &values)
{
  if (!object)
    return true;
  if (!json_is_object(object))
    return false;
  const char *key;
  json_t *value;
  json_object_foreach(object, key, value)
  {
    Dom::Element::Id id = 0;
    const char *const end = key + std::strlen(key);
    const auto parsed = std::from_chars(key, end, id);
    if (parsed.ec != std::errc() || parsed.ptr != end || !json_is_string(value))
      return false;
    values.emplace_back(id, text(value));
  }
  return true;
}

bool readHello(const json_t *hello, ClientMessage &message)
{
  message.kind = ClientMessage::Hello;
  return json_is_object(hello) && readText(json_object_get(hello, "query"), message.query) &&
         readText(json_object_get(hello, "lang"), message.language) &&
         readInt(json_object_get(hello, "tz"), message.timeZone) &&
         readInt(json_object_get(hello, "w"), message.screenWidth) &&
         readInt(json_object_get(hello, "h"), message.screenHeight);
}

bool readVisibility(const json_t *value, ClientMessage &message)
{
  message.kind = ClientMessage::Visibility;
  message.visible = json_integer_value(value) == 1;
  return json_is_integer(value) && (message.visible || json_integer_value(value) == 0);
}

bool readBody(json_t *root, ClientMessage &message)
{
  if (const json_t *visible = json_object_get(root, "vis"))
    return json_object_size(root) == 1 && readVisibility(visible, message);
  if (const json_t *hello = json_object_get(root, "hello"))
    return readHello(hello, message);
  if (!readNumber(json_object_get(root, "a"), message.seen))
    return false;
  if (const json_t *token = json_object_get(root, "resume")) {
    message.kind = ClientMessage::Resume;
    return readText(token, message.token);
  }
  const json_t *number = json_object_get(root, "n");
  if (!number) {
    message.kind = ClientMessage::Seen;
    return json_object_get(root, "a") && json_object_size(root) == 1;
  }
  message.kind = ClientMessage::Events;
  if (const json_t *focus = json_object_get(root, "f")) {
    message.hasFocus = true;
    if (!readId(focus, message.focus))
      return false;
  }
  return readNumber(number, message.number) && message.number > 0 &&
         readValues(json_object_get(root, "v"), message.values) &&
         readEvents(json_object_get(root, "e"), message.events);
}

} // namespace

bool ClientMessage::decode(std::string_view textOfMessage, ClientMessage &message)
{
  message = ClientMessage();
  if (!shallow(textOfMessage))
    return false;
  const std::string clean =
      textOfMessage.find("\\u") == textOfMessage.npos ? std::string() : withoutOddCharacters(textOfMessage);
  const std::string_view json = clean.empty() ? textOfMessage : clean;
  json_error_t error;
  const JsonHolder root(json_loadb(json.data(), json.size(), JSON_REJECT_DUPLICATES, &error));
  return root && json_is_object(root.get()) && readBody(root.get(), message);
}

} // namespace Engine
} // namespace Wt
