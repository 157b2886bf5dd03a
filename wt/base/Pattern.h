// SPDX-License-Identifier: MIT
#ifndef WT_BASE_PATTERN_H_
#define WT_BASE_PATTERN_H_

#include <bitset>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Wt
{
namespace Engine
{

/// A regular expression over bytes: literals, classes, groups, alternatives, repeats, ^ and $; look-around
/// and back-references are not part of it. Matching walks all alternatives at once, so its time is the length
/// of the text times the size of the pattern, whatever either holds. Never throws.
class Pattern
{
public:
  explicit Pattern(const std::string &pattern, bool caseInsensitive = false);

  /// One that all users of the same pattern share.
  static std::shared_ptr<const Pattern> shared(const std::string &pattern, bool caseInsensitive = false);

  /// False if the pattern is not well-formed or too large; then nothing matches.
  bool valid() const { return error_.empty(); }
  /// What is wrong with a pattern that is not valid.
  const std::string &error() const { return error_; }
  /// Whether the text as a whole matches.
  bool matches(std::string_view text) const;

  typedef std::bitset<256> ByteSet;

  enum class Operation : unsigned char { Bytes, Split, Jump, Begin, End, Match };

  /// One step of the matching machine: `first` is a set of bytes or a place to go on, `second` another place.
  struct Instruction {
    Operation operation;
    unsigned first;
    unsigned second;
  };

private:
  std::vector<Instruction> program_;
  std::vector<ByteSet> sets_;
  std::string error_;
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_PATTERN_H_
