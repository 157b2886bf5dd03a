// SPDX-License-Identifier: MIT
#include "base/Pattern.h"

#include "base/RepeatCounts.h"

#include <map>
#include <mutex>
#include <re2/re2.h>
#include <utility>

namespace Wt
{
namespace Engine
{

namespace
{

/// What one pattern may take, in bytes. The longest of a settings page take a tenth of it.
const int kMostMemory = 2 << 20;

re2::RE2::Options options(bool caseInsensitive)
{
  re2::RE2::Options options;
  options.set_case_sensitive(!caseInsensitive);
  options.set_dot_nl(true);
  options.set_log_errors(false);
  options.set_max_mem(kMostMemory);
  return options;
}

} // namespace

Pattern::Pattern(const std::string &pattern, bool caseInsensitive)
    : expression_(std::make_unique<re2::RE2>(withSmallRepeatCounts(pattern), options(caseInsensitive)))
{
  if (!expression_->ok())
    error_ = expression_->error();
}

Pattern::~Pattern() = default;

std::shared_ptr<const Pattern> Pattern::shared(const std::string &pattern, bool caseInsensitive)
{
  static std::mutex mutex;
  static auto *const known = new std::map<std::pair<std::string, bool>, std::weak_ptr<const Pattern>>;
  const std::lock_guard<std::mutex> held(mutex);
  std::weak_ptr<const Pattern> &place = (*known)[{pattern, caseInsensitive}];
  std::shared_ptr<const Pattern> result = place.lock();
  if (!result) {
    result = std::make_shared<const Pattern>(pattern, caseInsensitive);
    place = result;
  }
  return result;
}

bool Pattern::matches(std::string_view text) const
{
  return valid() && re2::RE2::FullMatch(re2::StringPiece(text.data(), text.size()), *expression_);
}

} // namespace Engine
} // namespace Wt
