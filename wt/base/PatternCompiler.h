// SPDX-License-Identifier: MIT
#ifndef WT_BASE_PATTERN_COMPILER_H_
#define WT_BASE_PATTERN_COMPILER_H_

#include "base/Pattern.h"

#include <memory>
#include <string>
#include <vector>

namespace Wt
{
namespace Engine
{

/// Makes the matching machine of a pattern.
class PatternCompiler
{
public:
  PatternCompiler(const std::string &pattern, bool caseInsensitive);

  /// Empty if all went well.
  const std::string &error() const { return error_; }
  std::vector<Pattern::Instruction> takeProgram() { return std::move(program_); }
  std::vector<Pattern::ByteSet> takeSets() { return std::move(sets_); }

private:
  struct Node;
  typedef std::unique_ptr<Node> NodePtr;

  /// Parsing; null after an error.
  NodePtr parseAlternatives(int depth);
  NodePtr parseSequence(int depth);
  NodePtr parseAtom(int depth);
  NodePtr parseGroup(int depth);
  NodePtr parseRepeats(NodePtr atom);
  bool parseCount(int &least, int &most);
  bool parseNumber(int &number);
  NodePtr parseClass();
  bool parseClassItem(Pattern::ByteSet &set);
  bool parseNamedClass(Pattern::ByteSet &set);
  bool parseEscape(Pattern::ByteSet &set, int &byte);
  NodePtr parseEscapedAtom();
  NodePtr bytes(Pattern::ByteSet set);
  NodePtr byte(unsigned char value);
  NodePtr fail(const char *problem);
  bool atEnd() const { return position_ == pattern_.size(); }
  char peek() const { return pattern_[position_]; }
  bool take(char expected);

  /// Writing the program; false when it grows too large.
  bool write(const Node &node);
  bool writeAlternatives(const Node &node);
  bool writeRepeat(const Node &node);
  unsigned add(Pattern::Operation operation, unsigned first = 0, unsigned second = 0);
  unsigned setNumber(const Pattern::ByteSet &set);

  const std::string &pattern_;
  const bool caseInsensitive_;
  std::size_t position_ = 0;
  std::size_t steps_ = 0;
  std::string error_;
  std::vector<Pattern::Instruction> program_;
  std::vector<Pattern::ByteSet> sets_;
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_PATTERN_COMPILER_H_
