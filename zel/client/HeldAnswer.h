// SPDX-License-Identifier: MIT
#ifndef ZEL_CLIENT_HELD_ANSWER_H_
#define ZEL_CLIENT_HELD_ANSWER_H_

#include "ServerPage.h"

#include <cstddef>
#include <forward_list>
#include <jansson.h>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace zelclient
{

/// An answer that may be handed out again: many callers share its value, so nobody may change it. All but
/// the columns is constant; any thread may use it.
class HeldAnswer
{
public:
  /// Takes a reference of its own to `value`. `tag` and `epoch` tell by what it can be seen to be right;
  /// `bytes` is its size as text.
  HeldAnswer(std::string request, json_t *value, std::string tag, Epoch epoch, std::size_t bytes);
  ~HeldAnswer();
  HeldAnswer(const HeldAnswer &) = delete;
  HeldAnswer &operator=(const HeldAnswer &) = delete;

  const std::string &request() const { return request_; }
  json_t *value() const { return value_; }
  const std::string &tag() const { return tag_; }
  const Epoch &epoch() const { return epoch_; }
  std::size_t bytes() const { return bytes_; }

  /// The integers of one parameter in all rows of a list, made at the first call; null for what is no long
  /// list, or when too many parameters have been asked for. Lives as long as the answer.
  using Column = std::vector<int>;
  const Column *column(std::string_view name) const;

private:
  struct Named {
    std::string name;
    Column values;
  };

  std::string request_;
  json_t *value_;
  std::string tag_;
  Epoch epoch_;
  std::size_t bytes_;
  mutable std::mutex mutex_; // of the columns
  mutable std::forward_list<Named> columns_;
};

/// The integer that a JSON value stands for; 0 for what is none.
int integerOf(const json_t *value);

/// What this thread has lately been handed out: a caller who runs over the rows of a list finds its columns
/// here. `answer` is kept alive until others have come.
void rememberHeld(const std::shared_ptr<const HeldAnswer> &answer);

/// The column that this thread has looked into last, for a caller who runs over the rows.
struct LastColumn {
  static constexpr std::size_t kLongestName = 31;

  const json_t *response;
  const int *values;
  std::size_t rows;
  char name[kLongestName + 1];
};
/// For its speed without the check whether it is initialised: it is so from the start.
extern __thread LastColumn lastColumn;

/// Makes the column of a parameter the last one. False if the response is none of those that this thread
/// has lately been handed out, or has no such column.
bool findColumn(const json_t *response, const char *name);

inline bool isLastColumn(const json_t *response, const char *name)
{
  if (response != lastColumn.response)
    return false;
  const char *known = lastColumn.name;
  while (*known && *known == *name)
    ++known, ++name;
  return *known == *name;
}

} // namespace zelclient

#endif // ZEL_CLIENT_HELD_ANSWER_H_
