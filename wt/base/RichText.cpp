// SPDX-License-Identifier: MIT
#include "base/RichText.h"

#include "base/Entities.h"
#include "base/RichTextPolicy.h"
#include "base/Utf8.h"

#include <algorithm>
#include <cctype>

namespace Wt
{
namespace Engine
{

namespace
{

const std::size_t kLongestText = 512 * 1024;
const std::size_t kDeepestNesting = 64;
const std::size_t kMostAttributes = 64;

bool isBlank(char c)
{
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool isNameByte(char c, bool first)
{
  const auto byte = static_cast<unsigned char>(c);
  return std::isalpha(byte) || c == '_' || byte >= 0x80 ||
         (!first && (std::isdigit(byte) || c == '-' || c == '.' || c == ':'));
}

std::string lowerCase(std::string_view text)
{
  std::string result(text);
  for (char &c : result)
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return result;
}

bool hasAttribute(const RichNode &node, std::string_view name)
{
  return std::any_of(node.attributes.begin(), node.attributes.end(),
                     [name](const auto &attribute) { return attribute.first == name; });
}

/// Reads the markup from left to right; every method that can fail returns false then.
class Parser
{
public:
  Parser(std::string_view text, RichText::Trust trust) : text_(text), trust_(trust) { open_.emplace_back(); }

  bool run()
  {
    while (position_ < text_.size())
      if (!(text_[position_] == '<' ? parseMarkup() : parseText()))
        return false;
    return open_.size() == 1;
  }

  std::vector<RichNode> takeNodes() { return std::move(open_.front().node.children); }

private:
  /// An element whose end has not come; the first stands for the whole text.
  struct Open {
    std::string name;
    RichNode node;
    bool removed = false;
  };

  bool startsWith(std::string_view start) const { return text_.substr(position_, start.size()) == start; }

  bool parseMarkup()
  {
    if (startsWith("<!--"))
      return skipComment();
    if (startsWith("<![CDATA["))
      return parseCharacterData();
    if (startsWith("</"))
      return parseEnd();
    return parseStart();
  }

  bool skipComment()
  {
    const std::size_t dashes = text_.find("--", position_ + 4);
    if (dashes == std::string_view::npos || text_.substr(dashes, 3) != "-->")
      return false;
    position_ = dashes + 3;
    return true;
  }

  bool parseCharacterData()
  {
    const std::size_t begin = position_ + 9;
    const std::size_t end = text_.find("]]>", begin);
    if (end == std::string_view::npos)
      return false;
    addText(std::string(text_.substr(begin, end - begin)));
    position_ = end + 3;
    return true;
  }

  bool parseText()
  {
    std::string text;
    while (position_ < text_.size() && text_[position_] != '<') {
      if (text_[position_] != '&')
        text += text_[position_++];
      else if (!takeEntity(text_, position_, text))
        return false;
    }
    addText(text);
    return true;
  }

  void addText(std::string text)
  {
    Open &parent = open_.back();
    if (parent.removed || text.empty())
      return;
    std::vector<RichNode> &siblings = parent.node.children;
    if (!siblings.empty() && siblings.back().isText()) {
      siblings.back().text += text;
      return;
    }
    siblings.emplace_back();
    siblings.back().text = std::move(text);
  }

  std::string_view parseName()
  {
    const std::size_t begin = position_;
    while (position_ < text_.size() && isNameByte(text_[position_], position_ == begin))
      ++position_;
    return text_.substr(begin, position_ - begin);
  }

  void skipBlanks()
  {
    while (position_ < text_.size() && isBlank(text_[position_]))
      ++position_;
  }

  bool take(std::string_view expected)
  {
    if (!startsWith(expected))
      return false;
    position_ += expected.size();
    return true;
  }

  bool parseEnd()
  {
    position_ += 2;
    const std::string_view name = parseName();
    skipBlanks();
    if (!take(">") || open_.size() == 1 || open_.back().name != name)
      return false;
    close();
    return true;
  }

  void close()
  {
    Open done = std::move(open_.back());
    open_.pop_back();
    if (isVoidElement(done.node.tag))
      done.node.children.clear();
    if (!done.removed)
      open_.back().node.children.push_back(std::move(done.node));
  }

  bool parseStart()
  {
    ++position_;
    const std::string_view name = parseName();
    if (name.empty() || open_.size() > kDeepestNesting)
      return false;
    Open element;
    element.name = name;
    element.node.tag = lowerCase(name);
    element.removed = open_.back().removed || !isAllowedElement(element.node.tag);
    if (!parseAttributes(element.node))
      return false;
    const bool empty = take("/");
    if (!take(">"))
      return false;
    open_.push_back(std::move(element));
    if (empty)
      close();
    return true;
  }

  bool parseAttributes(RichNode &node)
  {
    std::vector<std::string_view> seen;
    for (;;) {
      const std::size_t before = position_;
      skipBlanks();
      if (startsWith(">") || startsWith("/"))
        return true;
      const bool separated = position_ != before;
      const std::string_view name = parseName();
      std::string value;
      if (!separated || name.empty() || seen.size() == kMostAttributes ||
          std::find(seen.begin(), seen.end(), name) != seen.end() || !parseValue(value))
        return false;
      seen.push_back(name);
      const std::string lower = lowerCase(name);
      if (isAllowedAttribute(lower, value, trust_) && !hasAttribute(node, lower))
        node.attributes.emplace_back(lower, std::move(value));
    }
  }

  bool parseValue(std::string &value)
  {
    skipBlanks();
    if (!take("="))
      return false;
    skipBlanks();
    if (position_ >= text_.size() || (text_[position_] != '"' && text_[position_] != '\''))
      return false;
    const char quote = text_[position_++];
    while (position_ < text_.size() && text_[position_] != quote) {
      if (text_[position_] == '<')
        return false;
      if (text_[position_] != '&')
        value += text_[position_++];
      else if (!takeEntity(text_, position_, value))
        return false;
    }
    return position_++ < text_.size();
  }

  const std::string_view text_;
  const RichText::Trust trust_;
  std::size_t position_ = 0;
  std::vector<Open> open_;
};

/// XML has no control characters but blanks.
bool hasControlCharacter(std::string_view text)
{
  return std::any_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < ' ' && !isBlank(c); });
}

void writeMarkup(const std::vector<RichNode> &nodes, std::string &out)
{
  for (const RichNode &node : nodes) {
    if (node.isText()) {
      out += escapeMarkup(node.text);
      continue;
    }
    out += "<" + node.tag;
    for (const auto &[name, value] : node.attributes)
      out += " " + name + "=\"" + escapeMarkup(value) + "\"";
    if (isVoidElement(node.tag)) {
      out += " />";
      continue;
    }
    out += ">";
    writeMarkup(node.children, out);
    out += "</" + node.tag + ">";
  }
}

void writeText(const std::vector<RichNode> &nodes, std::string &out)
{
  for (const RichNode &node : nodes) {
    out += node.text;
    if (node.tag == "br")
      out += '\n';
    writeText(node.children, out);
  }
}

} // namespace

std::optional<RichText> RichText::parse(const std::string &markup, Trust trust)
{
  if (markup.size() > kLongestText || hasControlCharacter(markup))
    return std::nullopt;
  const std::string valid = validUtf8(markup);
  Parser parser(valid, trust);
  if (!parser.run())
    return std::nullopt;
  RichText result;
  result.nodes_ = parser.takeNodes();
  return result;
}

std::string RichText::markup() const
{
  std::string result;
  writeMarkup(nodes_, result);
  return result;
}

std::string RichText::plainText() const
{
  std::string result;
  writeText(nodes_, result);
  return result;
}

} // namespace Engine
} // namespace Wt
