// SPDX-License-Identifier: MIT
#include "base/Entities.h"

#include "base/Utf8.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace Wt
{
namespace Engine
{

namespace
{

const std::size_t kLongestEntity = 12;

struct Entity {
  std::string_view name;
  char32_t character;
};

const Entity kEntities[] = {
    {"amp", '&'},      {"lt", '<'},        {"gt", '>'},       {"quot", '"'},      {"apos", '\''},
    {"bull", 0x2022},  {"dagger", 0x2020}, {"darr", 0x2193},  {"ensp", 0x2002},   {"emsp", 0x2003},
    {"euro", 0x20ac},  {"ge", 0x2265},     {"harr", 0x2194},  {"hellip", 0x2026}, {"infin", 0x221e},
    {"larr", 0x2190},  {"ldquo", 0x201c},  {"le", 0x2264},    {"lsquo", 0x2018},  {"mdash", 0x2014},
    {"minus", 0x2212}, {"ndash", 0x2013},  {"ne", 0x2260},    {"permil", 0x2030}, {"prime", 0x2032},
    {"rarr", 0x2192},  {"rdquo", 0x201d},  {"rsquo", 0x2019}, {"thinsp", 0x2009}, {"trade", 0x2122},
    {"uarr", 0x2191},  {"sbquo", 0x201a},  {"bdquo", 0x201e}, {"lsaquo", 0x2039}, {"rsaquo", 0x203a},
    {"OElig", 0x152},  {"oelig", 0x153},   {"Scaron", 0x160}, {"scaron", 0x161},  {"Yuml", 0x178},
    {"zwnj", 0x200c},  {"zwj", 0x200d},    {"lrm", 0x200e},   {"rlm", 0x200f},    {"Omega", 0x3a9},
    {"alpha", 0x3b1},  {"beta", 0x3b2},    {"gamma", 0x3b3},  {"delta", 0x3b4},   {"Delta", 0x394},
    {"mu", 0x3bc},     {"pi", 0x3c0},      {"sigma", 0x3c3},  {"omega", 0x3c9},   {"asymp", 0x2248},
};

/// The characters from U+00A0 on, in order.
const std::string_view kLatinEntities[] = {
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",
    "ordf",   "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",
    "acute",  "micro",  "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12",
    "frac34", "iquest", "Agrave", "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil",
    "Egrave", "Eacute", "Ecirc",  "Euml",   "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde",
    "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",   "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",
    "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute", "acirc",  "atilde", "auml",   "aring",
    "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave", "iacute", "icirc",  "iuml",
    "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide", "oslash", "ugrave",
    "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml",
};

bool numberedCharacter(std::string_view digits, char32_t &character)
{
  const bool hex = !digits.empty() && digits[0] == 'x';
  if (hex)
    digits.remove_prefix(1);
  unsigned value = 0;
  const char *end = digits.data() + digits.size();
  const auto [last, error] = std::from_chars(digits.data(), end, value, hex ? 16 : 10);
  const bool blank = value == '\t' || value == '\n' || value == '\r';
  const bool allowed = (value >= 0x20 || blank) && value <= 0x10ffff &&
                       !(value >= 0xd800 && value <= 0xdfff) && value != 0xfffe && value != 0xffff;
  character = value;
  return error == std::errc() && last == end && allowed;
}

bool namedCharacter(std::string_view name, char32_t &character)
{
  const auto found = std::find_if(std::begin(kEntities), std::end(kEntities),
                                  [name](const Entity &entity) { return entity.name == name; });
  if (found != std::end(kEntities)) {
    character = found->character;
    return true;
  }
  const auto latin = std::find(std::begin(kLatinEntities), std::end(kLatinEntities), name);
  character = 0xa0 + static_cast<char32_t>(latin - std::begin(kLatinEntities));
  return latin != std::end(kLatinEntities);
}

} // namespace

bool takeEntity(std::string_view text, std::size_t &position, std::string &out)
{
  if (position >= text.size() || text[position] != '&')
    return false;
  const std::string_view rest = text.substr(position + 1, kLongestEntity);
  const std::size_t length = rest.find(';');
  if (length == std::string_view::npos || length == 0)
    return false;
  const std::string_view name = rest.substr(0, length);
  char32_t character = 0;
  const bool known =
      name[0] == '#' ? numberedCharacter(name.substr(1), character) : namedCharacter(name, character);
  if (!known)
    return false;
  appendUtf8(out, character);
  position += length + 2;
  return true;
}

std::string decodeEntities(std::string_view text)
{
  std::string result;
  for (std::size_t position = 0; position < text.size();)
    if (!takeEntity(text, position, result))
      result += text[position++];
  return result;
}

std::string escapeMarkup(std::string_view text)
{
  std::string result;
  result.reserve(text.size());
  for (char c : text) {
    switch (c) {
    case '&':
      result += "&amp;";
      break;
    case '<':
      result += "&lt;";
      break;
    case '>':
      result += "&gt;";
      break;
    case '"':
      result += "&quot;";
      break;
    default:
      result += c;
    }
  }
  return result;
}

bool isVoidElement(std::string_view name)
{
  static const std::string_view names[] = {"area", "base",  "br",   "col",  "embed", "hr",
                                           "img",  "input", "link", "meta", "param"};
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

} // namespace Engine
} // namespace Wt
