// SPDX-License-Identifier: MIT
#include "base/PatternCompiler.h"

#include <cctype>
#include <charconv>
#include <cstring>

namespace Wt
{
namespace Engine
{

namespace
{

const int kDeepestNesting = 100;
const int kHighestCount = 10000;
const int kUnbounded = -1;
const std::size_t kLongestProgram = 30000;
const std::size_t kMostSteps = 200000;

typedef Pattern::ByteSet ByteSet;
typedef Pattern::Operation Operation;

template <typename Test> ByteSet setOf(Test test)
{
  ByteSet set;
  for (int byte = 0; byte < 128; ++byte)
    set[static_cast<std::size_t>(byte)] = test(byte);
  return set;
}

bool isWordByte(int byte)
{
  return std::isalnum(byte) || byte == '_';
}

struct NamedClass {
  const char *name;
  int (*test)(int byte);
};

const NamedClass kNamedClasses[] = {
    {"alnum", std::isalnum}, {"alpha", std::isalpha}, {"blank", std::isblank}, {"cntrl", std::iscntrl},
    {"digit", std::isdigit}, {"graph", std::isgraph}, {"lower", std::islower}, {"print", std::isprint},
    {"punct", std::ispunct}, {"space", std::isspace}, {"upper", std::isupper}, {"xdigit", std::isxdigit},
};

/// The set that \d, \w, \s or their capitals stand for.
bool setOfEscape(char letter, ByteSet &set)
{
  switch (std::tolower(static_cast<unsigned char>(letter))) {
  case 'd':
    set = setOf([](int byte) { return std::isdigit(byte) != 0; });
    break;
  case 'w':
    set = setOf(isWordByte);
    break;
  case 's':
    set = setOf([](int byte) { return std::isspace(byte) != 0; });
    break;
  default:
    return false;
  }
  if (std::isupper(static_cast<unsigned char>(letter)))
    set.flip();
  return true;
}

} // namespace

struct PatternCompiler::Node {
  enum Kind { Empty, Bytes, Begin, End, Sequence, Alternatives, Repeat };

  explicit Node(Kind kind_) : kind(kind_) {}

  Kind kind;
  unsigned set = 0;
  int least = 0;
  int most = 0;
  std::vector<NodePtr> children;
};

PatternCompiler::PatternCompiler(const std::string &pattern, bool caseInsensitive)
    : pattern_(pattern), caseInsensitive_(caseInsensitive)
{
  const NodePtr root = parseAlternatives(0);
  if (!root)
    return;
  if (!atEnd()) {
    fail("unmatched )");
    return;
  }
  if (!write(*root))
    fail("too large");
  add(Operation::Match);
}

PatternCompiler::NodePtr PatternCompiler::fail(const char *problem)
{
  if (error_.empty())
    error_ = std::string(problem) + " at " + std::to_string(position_);
  return nullptr;
}

bool PatternCompiler::take(char expected)
{
  if (atEnd() || peek() != expected)
    return false;
  ++position_;
  return true;
}

PatternCompiler::NodePtr PatternCompiler::parseAlternatives(int depth)
{
  if (depth > kDeepestNesting)
    return fail("nested too deeply");
  auto result = std::make_unique<Node>(Node::Alternatives);
  do {
    NodePtr sequence = parseSequence(depth);
    if (!sequence)
      return nullptr;
    result->children.push_back(std::move(sequence));
  } while (take('|'));
  return result;
}

PatternCompiler::NodePtr PatternCompiler::parseSequence(int depth)
{
  auto result = std::make_unique<Node>(Node::Sequence);
  while (!atEnd() && peek() != '|' && peek() != ')') {
    NodePtr item = parseAtom(depth);
    if (item)
      item = parseRepeats(std::move(item));
    if (!item)
      return nullptr;
    result->children.push_back(std::move(item));
  }
  return result;
}

PatternCompiler::NodePtr PatternCompiler::parseAtom(int depth)
{
  const char c = pattern_[position_++];
  switch (c) {
  case '(':
    return parseGroup(depth);
  case '[':
    return parseClass();
  case '\\':
    return parseEscapedAtom();
  case '.':
    return bytes(ByteSet().set());
  case '^':
    return std::make_unique<Node>(Node::Begin);
  case '$':
    return std::make_unique<Node>(Node::End);
  case '*':
  case '+':
  case '?':
  case '{':
    return fail("nothing to repeat");
  default:
    return byte(static_cast<unsigned char>(c));
  }
}

PatternCompiler::NodePtr PatternCompiler::parseGroup(int depth)
{
  if (take('?') && !take(':'))
    return fail("unknown kind of group");
  NodePtr inside = parseAlternatives(depth + 1);
  if (inside && !take(')'))
    return fail("missing )");
  return inside;
}

PatternCompiler::NodePtr PatternCompiler::parseRepeats(NodePtr atom)
{
  // A possessive or a repeated repeat is not well-formed; the lazy mark makes no difference to a whole match.
  int least = 0;
  int most = kUnbounded;
  if (take('*')) {
  } else if (take('+')) {
    least = 1;
  } else if (take('?')) {
    most = 1;
  } else if (take('{')) {
    if (!parseCount(least, most))
      return fail("bad count");
  } else {
    return atom;
  }
  take('?');
  if (!atEnd() && (peek() == '*' || peek() == '+' || peek() == '?' || peek() == '{'))
    return fail("nothing to repeat");
  auto result = std::make_unique<Node>(Node::Repeat);
  result->least = least;
  result->most = most;
  result->children.push_back(std::move(atom));
  return result;
}

bool PatternCompiler::parseNumber(int &number)
{
  const char *begin = pattern_.data() + position_;
  const auto [end, error] = std::from_chars(begin, pattern_.data() + pattern_.size(), number);
  if (error != std::errc() || number < 0 || number > kHighestCount)
    return false;
  position_ += static_cast<std::size_t>(end - begin);
  return true;
}

bool PatternCompiler::parseCount(int &least, int &most)
{
  if (!parseNumber(least))
    return false;
  most = least;
  if (take(',')) {
    most = kUnbounded;
    if (!atEnd() && peek() != '}' && (!parseNumber(most) || most < least))
      return false;
  }
  return take('}');
}

PatternCompiler::NodePtr PatternCompiler::bytes(ByteSet set)
{
  if (caseInsensitive_) {
    for (std::size_t lower = 'a'; lower <= 'z'; ++lower) {
      const std::size_t upper = lower - 'a' + 'A';
      set[lower] = set[upper] = set[lower] || set[upper];
    }
  }
  auto result = std::make_unique<Node>(Node::Bytes);
  result->set = setNumber(set);
  return result;
}

PatternCompiler::NodePtr PatternCompiler::byte(unsigned char value)
{
  return bytes(ByteSet().set(value));
}

PatternCompiler::NodePtr PatternCompiler::parseEscapedAtom()
{
  if (!atEnd() && peek() == 'A')
    return ++position_, std::make_unique<Node>(Node::Begin);
  if (!atEnd() && (peek() == 'z' || peek() == 'Z'))
    return ++position_, std::make_unique<Node>(Node::End);
  ByteSet set;
  int single = 0;
  if (!parseEscape(set, single))
    return nullptr;
  return bytes(set);
}

/// Reads what follows a backslash: a set, or `byte` is the only one in it (else -1).
bool PatternCompiler::parseEscape(ByteSet &set, int &byte)
{
  if (atEnd())
    return fail("lone backslash"), false;
  const char c = pattern_[position_++];
  byte = -1;
  if (setOfEscape(c, set))
    return true;
  static const char letters[] = "ntrfva0";
  static const char values[] = {'\n', '\t', '\r', '\f', '\v', '\a', '\0'};
  if (const char *found = std::strchr(letters, c); found && c) {
    byte = values[found - letters];
  } else if (c == 'x') {
    const char *begin = pattern_.data() + position_;
    const std::size_t digits = std::min<std::size_t>(2, pattern_.size() - position_);
    const auto [end, error] = std::from_chars(begin, begin + digits, byte, 16);
    if (error != std::errc() || end != begin + 2 || byte < 0)
      return fail("bad \\x"), false;
    position_ += 2;
  } else if (isWordByte(static_cast<unsigned char>(c))) {
    return fail("unknown escape"), false;
  } else {
    byte = static_cast<unsigned char>(c);
  }
  set.set(static_cast<std::size_t>(byte));
  return true;
}

PatternCompiler::NodePtr PatternCompiler::parseClass()
{
  const bool inverse = take('^');
  ByteSet set;
  bool first = true;
  while (first || atEnd() || peek() != ']') {
    if (atEnd())
      return fail("missing ]");
    if (!parseClassItem(set))
      return nullptr;
    first = false;
  }
  ++position_;
  NodePtr result = bytes(set);
  if (inverse)
    result->set = setNumber(~sets_[result->set]);
  return result;
}

bool PatternCompiler::parseNamedClass(ByteSet &set)
{
  const std::size_t end = pattern_.find(":]", position_);
  const std::string name =
      end == std::string::npos ? "" : pattern_.substr(position_ + 1, end - position_ - 1);
  for (const NamedClass &known : kNamedClasses) {
    if (name == known.name) {
      set |= setOf([&known](int byte) { return known.test(byte) != 0; });
      position_ = end + 2;
      return true;
    }
  }
  return fail("unknown class name"), false;
}

bool PatternCompiler::parseClassItem(ByteSet &set)
{
  const auto readOne = [this](ByteSet &one, int &byte) {
    const char c = pattern_[position_++];
    if (c == '\\')
      return parseEscape(one, byte);
    byte = static_cast<unsigned char>(c);
    one.set(static_cast<std::size_t>(byte));
    return true;
  };
  if (pattern_.compare(position_, 2, "[:") == 0)
    return ++position_, parseNamedClass(set);
  ByteSet one;
  int from = 0;
  if (!readOne(one, from))
    return false;
  const bool range =
      from >= 0 && position_ + 1 < pattern_.size() && peek() == '-' && pattern_[position_ + 1] != ']';
  if (range) {
    ++position_;
    ByteSet last;
    int to = 0;
    if (!readOne(last, to))
      return false;
    if (to < from)
      return fail("bad range"), false;
    for (int byte = from; byte <= to; ++byte)
      one.set(static_cast<std::size_t>(byte));
  }
  set |= one;
  return true;
}

unsigned PatternCompiler::setNumber(const ByteSet &set)
{
  for (std::size_t i = 0; i < sets_.size(); ++i)
    if (sets_[i] == set)
      return static_cast<unsigned>(i);
  sets_.push_back(set);
  return static_cast<unsigned>(sets_.size() - 1);
}

unsigned PatternCompiler::add(Operation operation, unsigned first, unsigned second)
{
  program_.push_back({operation, first, second});
  return static_cast<unsigned>(program_.size() - 1);
}

bool PatternCompiler::write(const Node &node)
{
  if (program_.size() > kLongestProgram || ++steps_ > kMostSteps)
    return false;
  switch (node.kind) {
  case Node::Empty:
    return true;
  case Node::Bytes:
    add(Operation::Bytes, node.set);
    return true;
  case Node::Begin:
    add(Operation::Begin);
    return true;
  case Node::End:
    add(Operation::End);
    return true;
  case Node::Alternatives:
    return writeAlternatives(node);
  case Node::Repeat:
    return writeRepeat(node);
  case Node::Sequence:
    break;
  }
  for (const NodePtr &child : node.children)
    if (!write(*child))
      return false;
  return true;
}

bool PatternCompiler::writeAlternatives(const Node &node)
{
  std::vector<unsigned> jumps;
  for (std::size_t i = 0; i < node.children.size(); ++i) {
    const bool last = i + 1 == node.children.size();
    const unsigned split = last ? 0 : add(Operation::Split);
    if (!write(*node.children[i]))
      return false;
    if (last)
      break;
    jumps.push_back(add(Operation::Jump));
    program_[split].first = split + 1;
    program_[split].second = static_cast<unsigned>(program_.size());
  }
  for (unsigned jump : jumps)
    program_[jump].first = static_cast<unsigned>(program_.size());
  return true;
}

bool PatternCompiler::writeRepeat(const Node &node)
{
  const Node &child = *node.children.front();
  for (int i = 0; i < node.least; ++i)
    if (!write(child))
      return false;
  std::vector<unsigned> splits;
  const int optional = node.most == kUnbounded ? 1 : node.most - node.least;
  for (int i = 0; i < optional; ++i) {
    const unsigned split = add(Operation::Split);
    program_[split].first = split + 1;
    splits.push_back(split);
    if (!write(child))
      return false;
    if (node.most == kUnbounded)
      add(Operation::Jump, split);
  }
  for (unsigned split : splits)
    program_[split].second = static_cast<unsigned>(program_.size());
  return true;
}

} // namespace Engine
} // namespace Wt
