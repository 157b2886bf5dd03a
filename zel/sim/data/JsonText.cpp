// SPDX-License-Identifier: MIT
#include "data/JsonText.h"

#include <charconv>

namespace zelsim
{

namespace
{

bool needsEscape(char c)
{
  return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
}

void appendEscaped(std::string &out, char c)
{
  constexpr char digits[] = "0123456789abcdef";
  switch (c) {
  case '\n':
    out += "\\n";
    return;
  case '\t':
    out += "\\t";
    return;
  case '\r':
    out += "\\r";
    return;
  case '"':
  case '\\':
    out += '\\';
    out += c;
    return;
  default:
    out += "\\u00";
    out += digits[static_cast<unsigned char>(c) >> 4];
    out += digits[static_cast<unsigned char>(c) & 15];
  }
}

} // namespace

void appendJsonText(std::string &out, std::string_view text)
{
  out += '"';
  std::size_t from = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!needsEscape(text[i]))
      continue;
    out.append(text, from, i - from);
    appendEscaped(out, text[i]);
    from = i + 1;
  }
  out.append(text, from);
  out += '"';
}

void appendJson(std::string &out, const Value &value)
{
  switch (value.kind()) {
  case Value::Kind::None:
    out += "null";
    return;
  case Value::Kind::Boolean:
    out += value.number() ? "true" : "false";
    return;
  case Value::Kind::Integer: {
    char digits[24];
    out.append(digits, std::to_chars(digits, digits + sizeof digits, value.number()).ptr);
    return;
  }
  case Value::Kind::Text:
    appendJsonText(out, value.text());
    return;
  case Value::Kind::Nested:
    out += value.text();
  }
}

void appendJsonName(std::string &out, std::string_view name)
{
  if (!out.empty() && out.back() != '{' && out.back() != '[')
    out += ',';
  appendJsonText(out, name);
  out += ':';
}

} // namespace zelsim
