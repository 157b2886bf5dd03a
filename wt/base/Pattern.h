// SPDX-License-Identifier: MIT
#ifndef WT_BASE_PATTERN_H_
#define WT_BASE_PATTERN_H_

#include <memory>
#include <string>
#include <string_view>

namespace re2
{
class RE2;
}

namespace Wt
{
namespace Engine
{

/// A regular expression over characters: literals, classes, groups, alternatives, repeats, ^ and $, with the
/// verdicts of a browser's own (flags "u" and "s") on the same pattern; look-around and back-references are
/// not part of it. Its time is linear in the length of the text. Never throws.
class Pattern
{
public:
  explicit Pattern(const std::string &pattern, bool caseInsensitive = false);
  ~Pattern();

  /// One that all users of the same pattern share.
  static std::shared_ptr<const Pattern> shared(const std::string &pattern, bool caseInsensitive = false);

  /// False if the pattern is not well-formed or too large; then nothing matches.
  bool valid() const { return error_.empty(); }
  /// What is wrong with a pattern that is not valid.
  const std::string &error() const { return error_; }
  /// Whether the text (UTF-8) as a whole matches.
  bool matches(std::string_view text) const;

private:
  std::unique_ptr<re2::RE2> expression_;
  std::string error_;
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_PATTERN_H_
