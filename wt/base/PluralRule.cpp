// SPDX-License-Identifier: MIT
#include "base/PluralRule.h"

#include <charconv>

namespace Wt
{
namespace Engine
{

namespace
{

const int kDeepestNesting = 100;

struct Operator {
  const char *text;
  int level; ///< binds the stronger the higher
  std::uint64_t (*apply)(std::uint64_t left, std::uint64_t right);
};

// Longer ones first, so that "<=" is not taken for "<".
const Operator kOperators[] = {
    {"||", 1, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return l || r; }},
    {"&&", 2, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return l && r; }},
    {"==", 3, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return l == r; }},
    {"!=", 3, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return l != r; }},
    {"<=", 4, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return l <= r; }},
    {">=", 4, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return l >= r; }},
    {"<", 4, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return l < r; }},
    {">", 4, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return l > r; }},
    {"+", 5, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return l + r; }},
    {"-", 5, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return l - r; }},
    {"*", 6, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return l * r; }},
    {"/", 6, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return r ? l / r : 0; }},
    {"%", 6, [](std::uint64_t l, std::uint64_t r) -> std::uint64_t { return r ? l % r : 0; }},
};

/// Evaluates while it reads.
class Evaluation
{
public:
  Evaluation(const std::string &text, std::uint64_t amount) : text_(text), amount_(amount) {}

  bool run(std::uint64_t &result)
  {
    result = choice();
    skipBlanks();
    return !failed_ && position_ == text_.size();
  }

private:
  std::uint64_t choice()
  {
    if (++depth_ > kDeepestNesting)
      failed_ = true;
    std::uint64_t value = failed_ ? 0 : binary(1);
    if (!failed_ && take("?")) {
      const std::uint64_t yes = choice();
      if (!take(":"))
        failed_ = true;
      const std::uint64_t no = failed_ ? 0 : choice();
      value = value ? yes : no;
    }
    --depth_;
    return value;
  }

  std::uint64_t binary(int level)
  {
    std::uint64_t value = unary();
    while (const Operator *next = failed_ ? nullptr : nextOperator(level)) {
      const std::uint64_t right = binary(next->level + 1);
      value = next->apply(value, right);
    }
    return value;
  }

  const Operator *nextOperator(int level)
  {
    for (const Operator &candidate : kOperators) {
      const std::size_t before = position_;
      if (!take(candidate.text))
        continue;
      if (candidate.level >= level)
        return &candidate;
      position_ = before;
      return nullptr;
    }
    return nullptr;
  }

  std::uint64_t unary()
  {
    bool invert = false;
    bool inverted = false;
    while (take("!")) {
      invert = !invert;
      inverted = true;
    }
    const std::uint64_t value = primary();
    if (!inverted)
      return value;
    return invert ? !value : value != 0;
  }

  std::uint64_t primary()
  {
    if (take("n"))
      return amount_;
    if (take("(")) {
      const std::uint64_t value = choice();
      failed_ = failed_ || !take(")");
      return value;
    }
    std::uint64_t value = 0;
    const char *begin = text_.data() + position_;
    const auto [end, error] = std::from_chars(begin, text_.data() + text_.size(), value);
    failed_ = failed_ || error != std::errc();
    position_ += static_cast<std::size_t>(end - begin);
    return value;
  }

  void skipBlanks()
  {
    while (position_ < text_.size() && (text_[position_] == ' ' || text_[position_] == '\t'))
      ++position_;
  }

  bool take(const char *token)
  {
    skipBlanks();
    const std::string expected(token);
    if (text_.compare(position_, expected.size(), expected) != 0)
      return false;
    position_ += expected.size();
    skipBlanks();
    return true;
  }

  const std::string &text_;
  const std::uint64_t amount_;
  std::size_t position_ = 0;
  int depth_ = 0;
  bool failed_ = false;
};

} // namespace

std::uint64_t PluralRule::form(std::uint64_t amount) const
{
  std::uint64_t result = 0;
  return Evaluation(expression_, amount).run(result) ? result : 0;
}

} // namespace Engine
} // namespace Wt
