// SPDX-License-Identifier: MIT
#include "base/Pattern.h"

#include "base/PatternCompiler.h"

#include <map>
#include <mutex>

namespace Wt
{
namespace Engine
{

namespace
{

/// The places of the machine that are reached after the same part of the text.
class Front
{
public:
  explicit Front(std::size_t size) : reached_(size) {}

  const std::vector<unsigned> &places() const { return places_; }
  bool matched() const { return matched_; }
  void clear()
  {
    for (unsigned place : touched_)
      reached_[place] = false;
    touched_.clear();
    places_.clear();
    matched_ = false;
  }

  /// Adds the place, and all that it leads to without reading a byte.
  void add(const std::vector<Pattern::Instruction> &program, unsigned start, bool begin, bool end)
  {
    open_.push_back(start);
    while (!open_.empty()) {
      const unsigned place = open_.back();
      open_.pop_back();
      if (reached_[place])
        continue;
      reached_[place] = true;
      touched_.push_back(place);
      follow(program[place], place, begin, end);
    }
  }

private:
  void follow(const Pattern::Instruction &instruction, unsigned place, bool begin, bool end)
  {
    switch (instruction.operation) {
    case Pattern::Operation::Bytes:
      places_.push_back(place);
      break;
    case Pattern::Operation::Split:
      open_.push_back(instruction.first);
      open_.push_back(instruction.second);
      break;
    case Pattern::Operation::Jump:
      open_.push_back(instruction.first);
      break;
    case Pattern::Operation::Begin:
      if (begin)
        open_.push_back(place + 1);
      break;
    case Pattern::Operation::End:
      if (end)
        open_.push_back(place + 1);
      break;
    case Pattern::Operation::Match:
      matched_ = true;
      break;
    }
  }

  std::vector<bool> reached_;
  std::vector<unsigned> touched_;
  std::vector<unsigned> places_;
  std::vector<unsigned> open_;
  bool matched_ = false;
};

} // namespace

Pattern::Pattern(const std::string &pattern, bool caseInsensitive)
{
  PatternCompiler compiler(pattern, caseInsensitive);
  error_ = compiler.error();
  if (!error_.empty())
    return;
  program_ = compiler.takeProgram();
  sets_ = compiler.takeSets();
}

bool Pattern::matches(std::string_view text) const
{
  if (!valid())
    return false;
  Front current(program_.size());
  Front following(program_.size());
  current.add(program_, 0, true, text.empty());
  for (std::size_t i = 0; i < text.size() && !current.places().empty(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    following.clear();
    for (unsigned place : current.places())
      if (sets_[program_[place].first][byte])
        following.add(program_, place + 1, false, i + 1 == text.size());
    std::swap(current, following);
    if (i + 1 == text.size())
      return current.matched();
  }
  return text.empty() && current.matched();
}

std::shared_ptr<const Pattern> Pattern::shared(const std::string &pattern, bool caseInsensitive)
{
  static std::mutex mutex;
  static std::map<std::pair<std::string, bool>, std::weak_ptr<const Pattern>> known;
  std::lock_guard<std::mutex> lock(mutex);
  std::weak_ptr<const Pattern> &place = known[{pattern, caseInsensitive}];
  std::shared_ptr<const Pattern> result = place.lock();
  if (!result) {
    for (auto it = known.begin(); it != known.end();)
      it = it->second.expired() && &it->second != &place ? known.erase(it) : std::next(it);
    result = std::make_shared<const Pattern>(pattern, caseInsensitive);
    place = result;
  }
  return result;
}

} // namespace Engine
} // namespace Wt
