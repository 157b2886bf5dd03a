// SPDX-License-Identifier: MIT
#include "AnswerCache.h"

#include "ClientOptions.h"

namespace zelclient
{

namespace
{
constexpr std::size_t kMaxEntries = 128;
constexpr std::size_t kMaxBytes = 4 * 1024 * 1024;
} // namespace

AnswerCache &AnswerCache::instance()
{
  static AnswerCache cache;
  return cache;
}

AnswerCache::~AnswerCache()
{
  for (Entry &entry : entries_)
    json_decref(entry.value);
}

std::string AnswerCache::find(std::string_view request, json_t **value)
{
  std::lock_guard<std::mutex> lock(mutex_);
  *value = nullptr;
  auto found = byRequest_.find(request);
  if (found == byRequest_.end())
    return {};
  entries_.splice(entries_.begin(), entries_, found->second);
  *value = json_incref(found->second->value);
  return found->second->tag;
}

void AnswerCache::keep(std::string_view request, std::string tag, json_t *value, std::size_t bytes)
{
  std::lock_guard<std::mutex> lock(mutex_);
  auto found = byRequest_.find(request);
  if (found != byRequest_.end())
    drop(found->second);
  if (bytes > kMaxBytes / 4)
    return;
  entries_.push_front(Entry{std::string(request), std::move(tag), json_incref(value), bytes});
  byRequest_.emplace(entries_.front().request, entries_.begin());
  bytes_ += bytes;
  while (entries_.size() > kMaxEntries || bytes_ > kMaxBytes)
    drop(std::prev(entries_.end()));
}

void AnswerCache::drop(Entries::iterator entry)
{
  bytes_ -= entry->bytes;
  byRequest_.erase(entry->request);
  json_decref(entry->value);
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
