// SPDX-License-Identifier: MIT
#include "SourceKeys.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace
{

const std::string kMarker = "[RSnnn]";

bool isNameCharacter(char c)
{
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

// Reads a source from left to right; knows comments, literals and the name before an opening bracket.
class Scanner
{
public:
  explicit Scanner(const std::string &source) : source_(source) {}

  std::set<std::string> keys()
  {
    while (at_ < source_.size()) {
      if (skipComment() || skipCharacter())
        continue;
      if (source_[at_] == '"')
        takeLiteral(joinedLiteral());
      else
        takeOther();
    }
    return keys_;
  }

private:
  bool startsWith(const char *text) const
  {
    return source_.compare(at_, std::string(text).size(), text) == 0;
  }

  bool skipComment()
  {
    const bool isLine = startsWith("//");
    if (!isLine && !startsWith("/*"))
      return false;
    const std::size_t end = source_.find(isLine ? "\n" : "*/", at_ + 2);
    at_ = end == std::string::npos ? source_.size() : end + (isLine ? 1 : 2);
    return true;
  }

  // A character literal, which may hold a quotation mark; an apostrophe within a number is none.
  bool skipCharacter()
  {
    if (source_[at_] != '\'' || (at_ > 0 && isNameCharacter(source_[at_ - 1])))
      return false;
    for (++at_; at_ < source_.size() && source_[at_] != '\''; ++at_)
      at_ += source_[at_] == '\\' ? 1 : 0;
    ++at_;
    return true;
  }

  std::string literal()
  {
    std::string value;
    for (++at_; at_ < source_.size() && source_[at_] != '"'; ++at_) {
      if (source_[at_] == '\\')
        ++at_;
      value += source_[at_];
    }
    ++at_;
    return value;
  }

  // Literals with nothing but blanks and comments between them are one for the compiler.
  std::string joinedLiteral()
  {
    std::string value = literal();
    for (;;) {
      const std::size_t end = at_;
      while (at_ < source_.size() && (std::isspace(static_cast<unsigned char>(source_[at_])) || skipBack()))
        ++at_;
      if (at_ >= source_.size() || source_[at_] != '"') {
        at_ = end;
        return value;
      }
      value += literal();
    }
  }

  bool skipBack()
  {
    if (!skipComment())
      return false;
    --at_;
    return true;
  }

  void takeLiteral(const std::string &value)
  {
    if (value.size() > kMarker.size() && value.rfind(kMarker, 0) == 0)
      keys_.insert(value);
    else if (callee_ == "text")
      keys_.insert(kMarker + value);
    else if (callee_ == "tr" || callee_ == "wholeKey" || callee_ == "textOfWord")
      keys_.insert(value);
    callee_.clear();
  }

  void takeOther()
  {
    const char c = source_[at_++];
    if (isNameCharacter(c)) {
      name_ = nameEnded_ ? std::string(1, c) : name_ + c;
      nameEnded_ = false;
      callee_.clear();
      return;
    }
    if (c == '(')
      callee_ = name_;
    else if (!std::isspace(static_cast<unsigned char>(c)))
      callee_.clear();
    if (!std::isspace(static_cast<unsigned char>(c)))
      name_.clear();
    nameEnded_ = true;
  }

  const std::string &source_;
  std::size_t at_ = 0;
  std::string name_;
  bool nameEnded_ = true;
  std::string callee_; // of the bracket that was just opened
  std::set<std::string> keys_;
};

} // namespace

std::set<std::string> keysInSource(const std::string &source)
{
  return Scanner(source).keys();
}

std::set<std::string> keysInFolder(const std::string &folder)
{
  std::set<std::string> keys;
  for (const auto &entry : std::filesystem::recursive_directory_iterator(NEVO_SOURCE_DIR "/" + folder)) {
    const std::string extension = entry.path().extension();
    if (extension != ".cpp" && extension != ".h")
      continue;
    std::ifstream file(entry.path(), std::ios::binary);
    keys.merge(keysInSource(std::string(std::istreambuf_iterator<char>(file), {})));
  }
  return keys;
}
