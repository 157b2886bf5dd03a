// SPDX-License-Identifier: MIT
#include "dom/RichText.h"

#include "dom/JsonText.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace Wt {
namespace Dom {

namespace {

const char *const allowedElements[] = {
    "a",      "abbr",   "address", "b",    "bdi",   "bdo",     "big",   "blockquote", "br",     "caption", "center",
    "cite",   "code",   "col",     "colgroup", "dd", "del",    "dfn",   "div",        "dl",     "dt",      "em",
    "figcaption", "figure", "font", "h1",  "h2",    "h3",      "h4",    "h5",         "h6",     "hr",      "i",
    "img",    "ins",    "kbd",     "li",   "mark",  "nobr",    "ol",    "p",          "pre",    "q",       "s",
    "samp",   "small",  "span",    "strike", "strong", "sub",  "sup",   "table",      "tbody",  "td",      "tfoot",
    "th",     "thead",  "tr",      "tt",   "u",     "ul",      "var",   "wbr"};

const char *const forbiddenElements[] = {"applet", "base", "body",   "embed", "frame",    "frameset", "head",
                                         "html",   "iframe", "link", "math",  "meta",     "noscript", "object",
                                         "script", "style", "svg",   "template", "title"};

const char *const allowedAttributes[] = {
    "align", "alt",   "bgcolor", "border", "cellpadding", "cellspacing", "class", "color",  "colspan", "dir",
    "face",  "height", "href",   "hspace", "lang",        "nowrap",      "rel",   "role",   "rowspan", "scope",
    "size",  "src",   "start",   "style",  "target",      "title",       "valign", "vspace", "width"};

const char *const allowedSchemes[] = {"http", "https", "mailto", "tel", "ftp"};

const char *const dangerousStyles[] = {"expression", "url", "javascript", "behavior", "binding", "import", "\\", "/*", "position"};

struct NamedCharacter {
  const char *name;
  std::uint32_t code;
};
const NamedCharacter namedCharacters[] = {
    {"amp", '&'},       {"lt", '<'},        {"gt", '>'},        {"quot", '"'},      {"apos", '\''},
    {"nbsp", 0xA0},     {"copy", 0xA9},     {"reg", 0xAE},      {"deg", 0xB0},      {"plusmn", 0xB1},
    {"micro", 0xB5},    {"middot", 0xB7},   {"laquo", 0xAB},    {"raquo", 0xBB},    {"frac12", 0xBD},
    {"times", 0xD7},    {"divide", 0xF7},   {"auml", 0xE4},     {"ouml", 0xF6},     {"uuml", 0xFC},
    {"Auml", 0xC4},     {"Ouml", 0xD6},     {"Uuml", 0xDC},     {"szlig", 0xDF},    {"eacute", 0xE9},
    {"egrave", 0xE8},   {"ndash", 0x2013},  {"mdash", 0x2014},  {"lsquo", 0x2018},  {"rsquo", 0x2019},
    {"ldquo", 0x201C},  {"rdquo", 0x201D},  {"bull", 0x2022},   {"hellip", 0x2026}, {"euro", 0x20AC},
    {"trade", 0x2122},  {"larr", 0x2190},   {"uarr", 0x2191},   {"rarr", 0x2192},   {"darr", 0x2193},
    {"harr", 0x2194},   {"infin", 0x221E},  {"ne", 0x2260},     {"le", 0x2264},     {"ge", 0x2265},
    {"shy", 0xAD},      {"ensp", 0x2002},   {"emsp", 0x2003},   {"thinsp", 0x2009}, {"check", 0x2713}};

template <std::size_t N> bool contains(const char *const (&list)[N], std::string_view name)
{
  return std::any_of(std::begin(list), std::end(list), [name](const char *entry) { return name == entry; });
}

void appendUtf8(std::string &out, std::uint32_t code)
{
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | (code >> 12));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (code >> 18));
    out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

bool blank(char c)
{
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool nameCharacter(char c)
{
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '_' ||
         c == ':' || c == '.' || static_cast<unsigned char>(c) >= 0x80;
}

bool nameStart(char c)
{
  return nameCharacter(c) && c != '-' && c != '.' && (c < '0' || c > '9');
}

std::string lower(std::string_view text)
{
  std::string result(text);
  for (char &c : result)
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c + 32);
  return result;
}

/// Relative addresses, and those of a few schemes. Browsers skip control characters and blanks in a scheme.
bool harmlessUrl(std::string_view url)
{
  std::string scheme;
  for (const char c : url) {
    if (static_cast<unsigned char>(c) <= 0x20)
      continue;
    if (c == ':')
      return contains(allowedSchemes, lower(scheme));
    if (c == '/' || c == '?' || c == '#')
      return true;
    scheme += c;
  }
  return true;
}

bool harmlessStyle(std::string_view style)
{
  const std::string text = lower(style);
  return std::none_of(std::begin(dangerousStyles), std::end(dangerousStyles),
                      [&](const char *word) { return text.find(word) != text.npos; });
}

bool harmlessAttribute(const std::string &name, std::string_view value, bool trusted)
{
  if (name.rfind("aria-", 0) == 0 || (trusted && (name == "id" || name == "name")))
    return true;
  if (!contains(allowedAttributes, name))
    return false;
  if (name == "href" || name == "src")
    return harmlessUrl(value);
  return name != "style" || trusted || harmlessStyle(value);
}

} // namespace

/// Reads once from front to back, writing what is let through as it goes.
class RichTextParser
{
public:
  RichTextParser(std::string_view source, bool trusted) : source_(source), trusted_(trusted) {}

  RichText parse()
  {
    RichText result;
    content_ = "[";
    if (!readAll())
      return result;
    endText();
    result.wellFormed_ = true;
    result.plain_ = !anyElement_;
    result.plainText_ = std::move(allText_);
    result.content_ = content_ + "]";
    result.filtered_ = anyDropped_ ? std::move(filtered_) : std::string(source_);
    return result;
  }

private:
  enum class Fate { Kept, Unwrapped, Removed };
  struct Open {
    std::string name;
    Fate fate;
  };

  static const std::size_t maxDepth = 100;

  bool readAll()
  {
    while (at_ < source_.size()) {
      const char c = source_[at_];
      if (c == '<' ? !readMarkup() : c == '&' ? !readReference(text_, true) : !readPlain())
        return false;
    }
    return open_.empty();
  }

  bool ahead(std::string_view text) const { return source_.substr(at_, text.size()) == text; }

  bool readPlain()
  {
    const std::size_t end = std::min(source_.find_first_of("<&", at_), source_.size());
    const std::string_view piece = source_.substr(at_, end - at_);
    at_ = end;
    if (removed_ == 0) {
      text_ += piece;
      filtered_ += piece;
    }
    return true;
  }

  /// Appends the character that the reference at the reading position stands for.
  bool readReference(std::string &to, bool inText)
  {
    const std::size_t end = source_.find(';', at_);
    if (end == source_.npos || end - at_ < 2 || end - at_ > 12)
      return false;
    const std::string_view name = source_.substr(at_ + 1, end - at_ - 1);
    const std::string_view whole = source_.substr(at_, end - at_ + 1);
    std::string decoded;
    if (name[0] == '#') {
      if (!decodeNumber(name.substr(1), decoded))
        return false;
    } else {
      if (!std::all_of(name.begin(), name.end(), nameCharacter))
        return false;
      const auto *known = std::find_if(std::begin(namedCharacters), std::end(namedCharacters),
                                       [name](const NamedCharacter &n) { return name == n.name; });
      if (known == std::end(namedCharacters))
        decoded = whole;
      else
        appendUtf8(decoded, known->code);
    }
    at_ = end + 1;
    if (!inText || removed_ == 0)
      to += decoded;
    if (inText && removed_ == 0)
      filtered_ += whole;
    return true;
  }

  static bool decodeNumber(std::string_view digits, std::string &decoded)
  {
    const bool hexadecimal = !digits.empty() && digits[0] == 'x';
    if (hexadecimal)
      digits.remove_prefix(1);
    std::uint32_t code = 0;
    const char *const end = digits.data() + digits.size();
    const auto parsed = std::from_chars(digits.data(), end, code, hexadecimal ? 16 : 10);
    if (digits.empty() || parsed.ec != std::errc() || parsed.ptr != end)
      return false;
    const bool character = code == 9 || code == 10 || code == 13 || (code >= 0x20 && code < 0xD800) ||
                           (code >= 0xE000 && code <= 0x10FFFF);
    if (character)
      appendUtf8(decoded, code);
    return character;
  }

  bool readMarkup()
  {
    if (ahead("<!--"))
      return skipTo("-->");
    if (ahead("<![CDATA["))
      return readCharacterData();
    if (ahead("</"))
      return readEndTag();
    return readStartTag();
  }

  bool skipTo(std::string_view end)
  {
    const std::size_t found = source_.find(end, at_ + 4);
    if (found == source_.npos)
      return false;
    at_ = found + end.size();
    anyDropped_ = true;
    return true;
  }

  bool readCharacterData()
  {
    const std::size_t begin = at_ + 9;
    const std::size_t end = source_.find("]]>", begin);
    if (end == source_.npos)
      return false;
    if (removed_ == 0) {
      text_ += source_.substr(begin, end - begin);
      filtered_ += source_.substr(at_, end + 3 - at_);
    }
    at_ = end + 3;
    return true;
  }

  bool readName(std::string &name)
  {
    const std::size_t begin = at_;
    if (at_ >= source_.size() || !nameStart(source_[at_]))
      return false;
    while (at_ < source_.size() && nameCharacter(source_[at_]))
      ++at_;
    name = source_.substr(begin, at_ - begin);
    return true;
  }

  void skipBlanks()
  {
    while (at_ < source_.size() && blank(source_[at_]))
      ++at_;
  }

  bool readEndTag()
  {
    at_ += 2;
    std::string name;
    if (!readName(name))
      return false;
    skipBlanks();
    if (!ahead(">") || open_.empty() || open_.back().name != name)
      return false;
    ++at_;
    close();
    return true;
  }

  bool readStartTag()
  {
    ++at_;
    std::string name;
    if (!readName(name) || open_.size() >= maxDepth)
      return false;
    const std::string known = lower(name);
    const Fate fate = contains(forbiddenElements, known) ? Fate::Removed
                      : contains(allowedElements, known) ? Fate::Kept
                                                         : Fate::Unwrapped;
    std::string attributes;
    std::string markup;
    if (!readAttributes(attributes, markup))
      return false;
    const bool empty = ahead("/>");
    if (!empty && !ahead(">"))
      return false;
    at_ += empty ? 2 : 1;
    begin(Open{name, fate}, known, attributes, markup, empty);
    if (empty)
      close(true);
    return true;
  }

  /// Reads up to ">" or "/>", gathering what is let through as JSON members and as markup.
  bool readAttributes(std::string &json, std::string &markup)
  {
    std::vector<std::string> seen;
    for (;;) {
      const std::size_t before = at_;
      skipBlanks();
      if (at_ >= source_.size())
        return false;
      if (source_[at_] == '>' || source_[at_] == '/')
        return true;
      std::string name;
      std::string value;
      std::string_view raw;
      if (at_ == before || !readName(name) || !readValue(value, raw))
        return false;
      name = lower(name);
      if (std::find(seen.begin(), seen.end(), name) != seen.end())
        return false;
      seen.push_back(name);
      if (!harmlessAttribute(name, value, trusted_)) {
        anyDropped_ = true;
        continue;
      }
      if (!json.empty())
        json += ',';
      appendJsonString(json, name);
      json += ':';
      appendJsonString(json, value);
      markup += ' ' + name + '=';
      markup += raw;
    }
  }

  bool readValue(std::string &value, std::string_view &raw)
  {
    skipBlanks();
    if (!ahead("="))
      return false;
    ++at_;
    skipBlanks();
    const std::size_t begin = at_;
    if (!ahead("\"") && !ahead("'"))
      return false;
    const char quote = source_[at_++];
    while (at_ < source_.size() && source_[at_] != quote) {
      if (source_[at_] == '<')
        return false;
      if (source_[at_] != '&')
        value += source_[at_++];
      else if (!readReference(value, false))
        return false;
    }
    if (at_ >= source_.size())
      return false;
    ++at_;
    raw = source_.substr(begin, at_ - begin);
    return true;
  }

  void begin(Open element, const std::string &name, const std::string &attributes, const std::string &markup,
             bool empty)
  {
    if (element.fate != Fate::Kept)
      anyDropped_ = true;
    if (element.fate == Fate::Removed) {
      ++removed_;
    } else if (element.fate == Fate::Kept && removed_ == 0) {
      endText();
      anyElement_ = true;
      separate();
      content_ += '[';
      appendJsonString(content_, name);
      content_ += ",{" + attributes + '}';
      filtered_ += '<' + element.name + markup + (empty ? "/>" : ">");
    }
    open_.push_back(std::move(element));
  }

  void close(bool wasEmpty = false)
  {
    const Open element = std::move(open_.back());
    open_.pop_back();
    if (element.fate == Fate::Removed) {
      --removed_;
    } else if (element.fate == Fate::Kept && removed_ == 0) {
      endText();
      content_ += ']';
      if (!wasEmpty)
        filtered_ += "</" + element.name + '>';
    }
  }

  void separate()
  {
    if (content_.size() > 1)
      content_ += ',';
  }

  void endText()
  {
    if (text_.empty())
      return;
    separate();
    appendJsonString(content_, text_);
    allText_ += text_;
    text_.clear();
  }

  std::string_view source_;
  std::size_t at_ = 0;
  std::vector<Open> open_;
  std::string content_;
  std::string filtered_;
  std::string text_;
  std::string allText_;
  int removed_ = 0;
  bool trusted_;
  bool anyElement_ = false;
  bool anyDropped_ = false;
};

RichText RichText::parse(std::string_view xhtml, bool trusted)
{
  // Most texts have no markup at all.
  if (xhtml.find_first_of("<&") == xhtml.npos) {
    RichText result;
    result.wellFormed_ = true;
    result.filtered_ = result.plainText_ = xhtml;
    return result;
  }
  return RichTextParser(xhtml, trusted).parse();
}

std::string RichText::plainContent(std::string_view text)
{
  std::string content = "[";
  for (std::size_t from = 0;;) {
    const std::size_t to = std::min(text.find('\n', from), text.size());
    if (to > from) {
      if (content.size() > 1)
        content += ',';
      appendJsonString(content, text.substr(from, to - from));
    }
    if (to == text.size())
      break;
    content += content.size() > 1 ? ",[\"br\",{}]" : "[\"br\",{}]";
    from = to + 1;
  }
  return content + ']';
}

} // namespace Dom
} // namespace Wt
