// SPDX-License-Identifier: MIT
#include "JsonParser.h"

#include "Frame.h"

#include <charconv>

namespace zelwire
{

namespace
{

bool isDigit(char c)
{
  return c >= '0' && c <= '9';
}

bool isContinuation(const char *at, const char *end)
{
  return at < end && (static_cast<unsigned char>(*at) & 0xc0) == 0x80;
}

// Length of the UTF-8 sequence at `at`, whose first byte is not ASCII; 0 if it is none.
std::size_t sequenceLength(const char *at, const char *end)
{
  unsigned char first = static_cast<unsigned char>(at[0]);
  if (first < 0xc2 || first > 0xf4 || !isContinuation(at + 1, end))
    return 0;
  if (first < 0xe0)
    return 2;
  unsigned char second = static_cast<unsigned char>(at[1]);
  // Overlong forms, surrogates, and what lies beyond the last code point.
  if ((first == 0xe0 && second < 0xa0) || (first == 0xed && second > 0x9f) ||
      (first == 0xf0 && second < 0x90) || (first == 0xf4 && second > 0x8f) || !isContinuation(at + 2, end))
    return 0;
  if (first < 0xf0)
    return 3;
  return isContinuation(at + 3, end) ? 4 : 0;
}

// Runs over the plain characters of a text; false if they are not valid UTF-8 or hold a control.
bool skipPlain(const char *&at, const char *end)
{
  while (at < end) {
    unsigned char c = static_cast<unsigned char>(*at);
    if (c == '"' || c == '\\')
      return true;
    if (c < 0x20)
      return false;
    std::size_t length = c < 0x80 ? 1 : sequenceLength(at, end);
    if (length == 0)
      return false;
    at += length;
  }
  return false;
}

} // namespace

json_t *JsonParser::parse()
{
  Owned result = value();
  skipBlanks();
  return at_ == end_ ? result.release() : nullptr;
}

void JsonParser::skipBlanks()
{
  while (at_ < end_ && (*at_ == ' ' || *at_ == '\n' || *at_ == '\t' || *at_ == '\r'))
    ++at_;
}

bool JsonParser::take(char wanted)
{
  skipBlanks();
  if (at_ == end_ || *at_ != wanted)
    return false;
  ++at_;
  return true;
}

JsonParser::Owned JsonParser::value()
{
  skipBlanks();
  if (at_ == end_)
    return nullptr;
  std::string_view string;
  switch (*at_) {
  case '{':
    return object();
  case '[':
    return array();
  case '"':
    ++at_;
    return Owned(text(string) ? json_stringn_nocheck(string.data(), string.size()) : nullptr);
  case 't':
    return word("true", json_true());
  case 'f':
    return word("false", json_false());
  case 'n':
    return word("null", json_null());
  default:
    return number();
  }
}

JsonParser::Owned JsonParser::word(std::string_view word, json_t *meaning)
{
  if (std::string_view(at_, static_cast<std::size_t>(end_ - at_)).substr(0, word.size()) != word)
    return nullptr;
  at_ += word.size();
  return Owned(meaning);
}

JsonParser::Owned JsonParser::object()
{
  ++at_;
  Owned result(++depth_ > kMaxDepth ? nullptr : json_object());
  std::size_t members = 0;
  if (!result)
    return nullptr;
  if (!take('}')) {
    do {
      std::string_view key;
      if (!take('"') || !text(key))
        return nullptr;
      // The key's place may be the buffer that its value needs: keep it where that happens.
      std::string kept;
      if (key.data() == unescaped_.data()) {
        kept = key;
        key = kept;
      }
      Owned member = take(':') ? value() : nullptr;
      if (!member ||
          json_object_setn_new_nocheck(result.get(), key.data(), key.size(), member.release()) != 0 ||
          json_object_size(result.get()) != ++members)
        return nullptr;
    } while (take(','));
    if (!take('}'))
      return nullptr;
  }
  --depth_;
  return result;
}

JsonParser::Owned JsonParser::array()
{
  ++at_;
  Owned result(++depth_ > kMaxDepth ? nullptr : json_array());
  if (!result)
    return nullptr;
  if (!take(']')) {
    do {
      Owned entry = value();
      if (!entry || json_array_append_new(result.get(), entry.release()) != 0)
        return nullptr;
    } while (take(','));
    if (!take(']'))
      return nullptr;
  }
  --depth_;
  return result;
}

JsonParser::Owned JsonParser::number()
{
  const char *from = at_;
  if (at_ < end_ && *at_ == '-')
    ++at_;
  const char *digits = at_;
  while (at_ < end_ && isDigit(*at_))
    ++at_;
  if (at_ == digits || (*digits == '0' && at_ - digits > 1))
    return nullptr;
  if (at_ == end_ || (*at_ != '.' && *at_ != 'e' && *at_ != 'E')) {
    json_int_t whole = 0;
    return Owned(std::from_chars(from, at_, whole).ec == std::errc() ? json_integer(whole) : nullptr);
  }
  if (*at_ == '.' && (at_ + 1 == end_ || !isDigit(at_[1])))
    return nullptr;
  double real = 0;
  auto [after, error] = std::from_chars(from, end_, real);
  if (error != std::errc() || after <= at_)
    return nullptr;
  at_ = after;
  return Owned(json_real(real));
}

bool JsonParser::text(std::string_view &out)
{
  const char *from = at_;
  if (!skipPlain(at_, end_))
    return false;
  if (*at_ == '\\')
    return escapedText(from, out);
  out = std::string_view(from, static_cast<std::size_t>(at_ - from));
  ++at_;
  return true;
}

bool JsonParser::escapedText(const char *from, std::string_view &out)
{
  unescaped_.assign(from, at_);
  while (*at_ == '\\') {
    ++at_;
    if (!escape())
      return false;
    from = at_;
    if (!skipPlain(at_, end_))
      return false;
    unescaped_.append(from, at_);
  }
  ++at_;
  out = unescaped_;
  return true;
}

bool JsonParser::escape()
{
  constexpr std::string_view names = "\"\\/bfnrt";
  constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
  if (at_ == end_)
    return false;
  char c = *at_++;
  if (c != 'u') {
    std::size_t known = names.find(c);
    if (known == std::string_view::npos)
      return false;
    unescaped_ += meanings[known];
    return true;
  }
  unsigned unit = 0;
  if (!codeUnit(unit) || unit == 0 || (unit >= 0xdc00 && unit <= 0xdfff))
    return false;
  if (unit >= 0xd800 && unit <= 0xdbff) {
    unsigned low = 0;
    if (end_ - at_ < 2 || at_[0] != '\\' || at_[1] != 'u')
      return false;
    at_ += 2;
    if (!codeUnit(low) || low < 0xdc00 || low > 0xdfff)
      return false;
    unit = 0x10000 + ((unit - 0xd800) << 10) + (low - 0xdc00);
  }
  append(unit);
  return true;
}

bool JsonParser::codeUnit(unsigned &unit)
{
  if (end_ - at_ < 4)
    return false;
  auto [after, error] = std::from_chars(at_, at_ + 4, unit, 16);
  if (error != std::errc() || after != at_ + 4)
    return false;
  at_ += 4;
  return true;
}

void JsonParser::append(unsigned codePoint)
{
  auto put = [this](unsigned byte) { unescaped_ += static_cast<char>(byte); };
  if (codePoint < 0x80) {
    put(codePoint);
  } else if (codePoint < 0x800) {
    put(0xc0 | codePoint >> 6);
    put(0x80 | (codePoint & 0x3f));
  } else if (codePoint < 0x10000) {
    put(0xe0 | codePoint >> 12);
    put(0x80 | (codePoint >> 6 & 0x3f));
    put(0x80 | (codePoint & 0x3f));
  } else {
    put(0xf0 | codePoint >> 18);
    put(0x80 | (codePoint >> 12 & 0x3f));
    put(0x80 | (codePoint >> 6 & 0x3f));
    put(0x80 | (codePoint & 0x3f));
  }
}

} // namespace zelwire
