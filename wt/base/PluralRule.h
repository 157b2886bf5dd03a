// SPDX-License-Identifier: MIT
#ifndef WT_BASE_PLURAL_RULE_H_
#define WT_BASE_PLURAL_RULE_H_

#include <cstdint>
#include <string>

namespace Wt
{
namespace Engine
{

/// The rule by which a language chooses among its plural forms: an expression in C's manner on the amount n,
/// such as "n==1 ? 0 : 1".
class PluralRule
{
public:
  explicit PluralRule(const std::string &expression) : expression_(expression) {}

  /// The number of the form; 0 if the expression is not well-formed.
  std::uint64_t form(std::uint64_t amount) const;

private:
  std::string expression_;
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_PLURAL_RULE_H_
