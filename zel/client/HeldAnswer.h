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

// An answer that may be handed out again: many callers share its value, so nobody may change it. All but
// the columns is constant; any thread may use it.
class HeldAnswer
{
public:
  // Takes a reference of its own to `value`. `tag` and `epoch` tell by what it can be seen to be right;
  // `bytes` is its size as text.
  HeldAnswer(std::string request, json_t *value, std::string tag, Epoch epoch, std::size_t bytes);
  ~HeldAnswer();
  HeldAnswer(const HeldAnswer &) = delete;
  HeldAnswer &operator=(const HeldAnswer &) = delete;

  const std::string &request() const { return request_; }
  json_t *value() const { return value_; }
  const std::string &tag() const { return tag_; }
  const Epoch &epoch() const { return epoch_; }
  std::size_t bytes() const { return bytes_; }

  // The integers of one parameter in all rows of a list, made at the first call; null for what is no long
  // list, or when too many parameters have been asked for. Lives as long as the answer.
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

// The integer that a JSON value stands for; 0 for what is none.
int integerOf(const json_t *value);

// What this thread has lately been handed out: a caller who runs over the rows of a list finds its columns
// here. `answer` is kept alive until others have come.
void rememberHeld(const std::shared_ptr<const HeldAnswer> &answer);

// The integer of a row of a response that this thread has lately been handed out. False if it is none of
// those, or has no column of that name.
bool findInColumn(const json_t *response, std::size_t row, const char *name, int &value);

} // namespace zelclient

#endif
