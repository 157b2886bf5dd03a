// SPDX-License-Identifier: MIT
#include "AnswerCache.h"

#include "ClientOptions.h"

namespace zelclient
{

namespace
{

// A list of 5,000 devices is made of four answers for each.
constexpr std::size_t kMaxEntries = 40960;
constexpr std::size_t kMaxBytes = 16 * 1024 * 1024;

// What an answer counts for: both texts, and what even the shortest one costs beside them.
std::size_t sizeOf(const HeldAnswer &answer)
{
  return answer.request().size() + answer.bytes() + 256;
}

} // namespace

AnswerCache &AnswerCache::instance()
{
  static AnswerCache cache;
  return cache;
}

AnswerCache::Answer AnswerCache::find(std::string_view request)
{
  std::lock_guard<std::mutex> lock(mutex_);
  auto found = byRequest_.find(request);
  if (found == byRequest_.end())
    return nullptr;
  entries_.splice(entries_.begin(), entries_, found->second);
  return *found->second;
}

void AnswerCache::keep(Answer answer)
{
  std::lock_guard<std::mutex> lock(mutex_);
  auto found = byRequest_.find(answer->request());
  if (found != byRequest_.end())
    drop(found->second);
  if (sizeOf(*answer) > kMaxBytes / 4)
    return;
  entries_.push_front(std::move(answer));
  byRequest_.emplace(entries_.front()->request(), entries_.begin());
  bytes_ += sizeOf(*entries_.front());
  while (entries_.size() > kMaxEntries || bytes_ > kMaxBytes)
    drop(std::prev(entries_.end()));
}

void AnswerCache::drop(Entries::iterator entry)
{
  bytes_ -= sizeOf(**entry);
  byRequest_.erase((*entry)->request());
  entries_.erase(entry);
}

std::size_t AnswerCache::entries() const
{
  std::lock_guard<std::mutex> lock(mutex_);
  return entries_.size();
}

std::size_t AnswerCache::bytes() const
{
  std::lock_guard<std::mutex> lock(mutex_);
  return bytes_;
}

AnswerCacheUse answerCacheUse()
{
  return {AnswerCache::instance().entries(), AnswerCache::instance().bytes()};
}

} // namespace zelclient
