// SPDX-License-Identifier: MIT
#include "base/StringResolver.h"
#include "base/Utf8.h"

#include <Wt/WString>
#include <algorithm>
#include <atomic>
#include <charconv>
#include <ostream>

namespace Wt
{

struct WString::Rare {
  std::vector<WString> args;
  std::uint64_t amount = 0;
  bool plural = false;
};

const WString WString::Empty;

namespace
{

std::atomic<CharEncoding> narrowEncoding{DefaultEncoding};

std::string decode(const std::string &value, CharEncoding encoding)
{
  if (encoding == DefaultEncoding)
    encoding = narrowEncoding;
  if (encoding == UTF8 || Engine::isAscii(value))
    return value;
  return Engine::toUtf8(Engine::widen(value, std::locale()));
}

/// Puts the arguments in the places of {1}, {2}, ... What an argument holds is not looked at again.
std::string substitute(const std::string &text, const std::vector<WString> &args)
{
  std::string result;
  std::size_t position = 0;
  while (position < text.size()) {
    const std::size_t open = text.find('{', position);
    if (open == std::string::npos)
      break;
    std::size_t number = 0;
    const char *begin = text.data() + open + 1;
    const auto [end, error] = std::from_chars(begin, text.data() + text.size(), number);
    const bool place = error == std::errc() && end != text.data() + text.size() && *end == '}' &&
                       number >= 1 && number <= args.size();
    result.append(text, position, open - position);
    if (place)
      result += args[number - 1].toUTF8();
    else
      result += '{';
    position = place ? static_cast<std::size_t>(end - text.data()) + 1 : open + 1;
  }
  result.append(text, std::min(position, text.size()), std::string::npos);
  return result;
}

} // namespace

WString::WString(const wchar_t *value)
{
  if (value)
    text_ = Engine::toUtf8(value);
}

WString::WString(const char *value, CharEncoding encoding)
{
  if (value)
    text_ = decode(value, encoding);
}

WString::WString(const std::wstring &value) : text_(Engine::toUtf8(value)) {}

WString::WString(const std::string &value, CharEncoding encoding) : text_(decode(value, encoding)) {}

WString::WString(const WString &other) : text_(other.text_), state_(other.state_ & TranslationBit)
{
  if (const Rare *others = other.existingRare())
    state_ |= reinterpret_cast<std::uintptr_t>(new Rare(*others));
}

WString::WString(WString &&other) noexcept : text_(std::move(other.text_)), state_(other.state_)
{
  other.text_.clear();
  other.state_ = 0;
}

WString::~WString()
{
  delete existingRare();
}

WString &WString::operator=(const WString &other)
{
  return this == &other ? *this : *this = WString(other);
}

WString &WString::operator=(WString &&other) noexcept
{
  std::swap(text_, other.text_);
  std::swap(state_, other.state_);
  return *this;
}

WString WString::fromUTF8(const std::string &value, bool checkValid)
{
  WString result;
  result.text_ = checkValid ? Engine::validUtf8(value) : value;
  return result;
}

WString WString::fromUTF8(const char *value, bool checkValid)
{
  return fromUTF8(std::string(value ? value : ""), checkValid);
}

WString WString::translated(const std::string &key)
{
  WString result;
  result.text_ = key;
  result.state_ = TranslationBit;
  return result;
}

WString WString::tr(const char *key)
{
  return translated(key ? key : "");
}

WString WString::tr(const std::string &key)
{
  return translated(key);
}

WString WString::trn(const char *key, std::uint64_t amount)
{
  return trn(std::string(key ? key : ""), amount);
}

WString WString::trn(const std::string &key, std::uint64_t amount)
{
  WString result = translated(key);
  Rare &rare = result.rare();
  rare.plural = true;
  rare.amount = amount;
  return result;
}

void WString::setDefaultEncoding(CharEncoding encoding)
{
  narrowEncoding = encoding;
}

CharEncoding WString::defaultEncoding()
{
  return narrowEncoding;
}

WString::Rare &WString::rare()
{
  if (!existingRare())
    state_ |= reinterpret_cast<std::uintptr_t>(new Rare());
  return *existingRare();
}

std::string WString::resolved() const
{
  if (literal())
    return text_;
  const Rare *rare = existingRare();
  std::string result;
  const bool known = rare && rare->plural ? Engine::resolvePlural(text_, result, rare->amount)
                                          : Engine::resolveString(text_, result);
  return known ? result : "??" + text_ + "??";
}

std::string WString::toUTF8() const
{
  const Rare *rare = existingRare();
  return rare && !rare->args.empty() ? substitute(resolved(), rare->args) : resolved();
}

std::wstring WString::value() const
{
  return Engine::fromUtf8(toUTF8());
}

std::string WString::narrow(const std::locale &locale) const
{
  const std::string text = toUTF8();
  return Engine::isAscii(text) ? text : Engine::narrow(Engine::fromUtf8(text), locale);
}

bool WString::empty() const
{
  return literal() ? text_.empty() : toUTF8().empty();
}

WString WString::trim() const
{
  const std::string text = toUTF8();
  const char *blanks = " \t\r\n\f\v";
  const std::size_t begin = text.find_first_not_of(blanks);
  if (begin == std::string::npos)
    return WString();
  return fromUTF8(text.substr(begin, text.find_last_not_of(blanks) - begin + 1));
}

const std::string WString::key() const
{
  return literal() ? std::string() : text_;
}

WString &WString::arg(const std::wstring &value)
{
  return arg(WString(value));
}

WString &WString::arg(const std::string &value, CharEncoding encoding)
{
  return arg(WString(value, encoding));
}

WString &WString::arg(const char *value, CharEncoding encoding)
{
  return arg(WString(value, encoding));
}

WString &WString::arg(const WString &value)
{
  WString copy(value);
  rare().args.push_back(std::move(copy));
  return *this;
}

WString &WString::arg(int value)
{
  return arg(fromUTF8(std::to_string(value)));
}

WString &WString::arg(double value)
{
  char text[32];
  const auto [end, error] = std::to_chars(text, text + sizeof text, value);
  return arg(fromUTF8(error == std::errc() ? std::string(text, end) : std::string()));
}

const std::vector<WString> &WString::args() const
{
  static const std::vector<WString> none;
  const Rare *rare = existingRare();
  return rare ? rare->args : none;
}

bool WString::refresh()
{
  bool changed = !literal();
  if (Rare *rare = existingRare())
    for (WString &argument : rare->args)
      changed = argument.refresh() || changed;
  return changed;
}

bool WString::operator==(const WString &other) const
{
  if (!state_ && !other.state_)
    return text_ == other.text_;
  return toUTF8() == other.toUTF8();
}

bool WString::operator<(const WString &other) const
{
  if (!state_ && !other.state_)
    return text_ < other.text_;
  return toUTF8() < other.toUTF8();
}

WString &WString::operator+=(const WString &other)
{
  return *this = fromUTF8(toUTF8() + other.toUTF8());
}

WString operator+(const WString &left, const WString &right)
{
  WString result(left);
  result += right;
  return result;
}

std::ostream &operator<<(std::ostream &out, const WString &text)
{
  return out << text.narrow(out.getloc());
}

std::wostream &operator<<(std::wostream &out, const WString &text)
{
  return out << text.value();
}

} // namespace Wt
