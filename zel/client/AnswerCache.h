// SPDX-License-Identifier: MIT
#ifndef ZEL_CLIENT_ANSWER_CACHE_H_
#define ZEL_CLIENT_ANSWER_CACHE_H_

#include <cstddef>
#include <jansson.h>
#include <list>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>

namespace zelclient
{

// The answers that the server has tagged, by the text of their request; shared by all connections of the
// process and bounded in number and size, the least recently used going first. The values are handed out
// again and again, so nobody may change them. Tags tell servers and runs of a server apart; the cache
// doesn't.
class AnswerCache
{
public:
  static AnswerCache &instance();

  // The tag of the kept answer and, in `value`, a new reference to it; empty and null if there is none.
  std::string find(std::string_view request, json_t **value);

  // Keeps `value` (a reference of its own) in place of an earlier answer. `bytes` is its size as text.
  void keep(std::string_view request, std::string tag, json_t *value, std::size_t bytes);

  std::size_t entries() const;
  std::size_t bytes() const;

private:
  struct Entry {
    std::string request;
    std::string tag;
    json_t *value;
    std::size_t bytes;
  };
  using Entries = std::list<Entry>;

  AnswerCache() = default;
  ~AnswerCache();
  void drop(Entries::iterator entry);

  mutable std::mutex mutex_;
  Entries entries_; // most recently used first
  std::unordered_map<std::string_view, Entries::iterator> byRequest_;
  std::size_t bytes_ = 0;
};

} // namespace zelclient

#endif
