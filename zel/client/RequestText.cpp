// SPDX-License-Identifier: MIT
#include "RequestText.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace zelclient
{

namespace
{

// Requests are flat. What is nested deeper, or is of a rare kind, is left to the library's own writer,
// which takes many times longer.
constexpr int kDeepest = 8;

bool isPlain(std::string_view text)
{
  return std::none_of(text.begin(), text.end(),
                      [](unsigned char c) { return c < 0x20 || c == '"' || c == '\\' || c >= 0x7f; });
}

bool appendPlainText(std::string_view value, std::string &text)
{
  if (!isPlain(value))
    return false;
  text += '"';
  text += value;
  text += '"';
  return true;
}

void appendNumber(json_int_t number, std::string &text)
{
  char digits[24];
  text.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

bool appendPlain(json_t *value, std::string &text, int depth);

bool appendPlainObject(json_t *object, std::string &text, int depth)
{
  text += '{';
  for (void *at = json_object_iter(object); at; at = json_object_iter_next(object, at)) {
    if (text.back() != '{')
      text += ',';
    if (!appendPlainText(json_object_iter_key(at), text))
      return false;
    text += ':';
    if (!appendPlain(json_object_iter_value(at), text, depth))
      return false;
  }
  text += '}';
  return true;
}

bool appendPlainArray(const json_t *array, std::string &text, int depth)
{
  text += '[';
  for (std::size_t i = 0; i < json_array_size(array); ++i) {
    if (i > 0)
      text += ',';
    if (!appendPlain(json_array_get(array, i), text, depth))
      return false;
  }
  text += ']';
  return true;
}

// False for what is not plain; `text` then ends anywhere.
bool appendPlain(json_t *value, std::string &text, int depth)
{
  if (!value || depth == kDeepest)
    return false;
  switch (json_typeof(value)) {
  case JSON_OBJECT:
    return appendPlainObject(value, text, depth + 1);
  case JSON_ARRAY:
    return appendPlainArray(value, text, depth + 1);
  case JSON_STRING:
    return appendPlainText({json_string_value(value), json_string_length(value)}, text);
  case JSON_INTEGER:
    appendNumber(json_integer_value(value), text);
    return true;
  case JSON_TRUE:
  case JSON_FALSE:
    text += json_is_true(value) ? "true" : "false";
    return true;
  case JSON_REAL:
  case JSON_NULL:
    break;
  }
  return false;
}

int appendPiece(const char *piece, std::size_t size, void *target)
{
  static_cast<std::string *>(target)->append(piece, size);
  return 0;
}

} // namespace

bool appendJson(const json_t *value, std::string &text)
{
  return json_dump_callback(value, appendPiece, &text, JSON_COMPACT | JSON_ENCODE_ANY) == 0;
}

bool writeRequest(const json_t *request, std::string &text)
{
  text.clear();
  // The iterators of the library want an object that could be changed; nothing is.
  if (appendPlain(const_cast<json_t *>(request), text, 0))
    return true;
  text.clear();
  return appendJson(request, text);
}

} // namespace zelclient
