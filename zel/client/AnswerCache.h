// SPDX-License-Identifier: MIT
#ifndef ZEL_CLIENT_ANSWER_CACHE_H_
#define ZEL_CLIENT_ANSWER_CACHE_H_

#include "HeldAnswer.h"

#include <cstddef>
#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>

namespace zelclient
{

/// The answers that the server has tagged or tied to its page, by the text of their request; shared by all
/// connections of the process and bounded in number and size, the least recently used going first. Tags and
/// epochs tell servers and runs of a server apart; the cache doesn't.
class AnswerCache
{
public:
  using Answer = std::shared_ptr<const HeldAnswer>;

  static AnswerCache &instance();

  /// The answer that is held for that request, or null.
  Answer find(std::string_view request);

  /// Holds an answer in place of an earlier one to the same request.
  void keep(Answer answer);

  std::size_t entries() const;
  std::size_t bytes() const;

private:
  using Entries = std::list<Answer>;

  AnswerCache() = default;
  void drop(Entries::iterator entry);

  mutable std::mutex mutex_;
  Entries entries_;                                                   // most recently used first
  std::unordered_map<std::string_view, Entries::iterator> byRequest_; // keys are the answers' own
  std::size_t bytes_ = 0;
};

} // namespace zelclient

#endif // ZEL_CLIENT_ANSWER_CACHE_H_
