// SPDX-License-Identifier: MIT
#include "HeldAnswer.h"

#include "SharedValue.h"

#include <cstring>
#include <iterator>

namespace zelclient
{

namespace
{

// Looking into so few rows is as quick as finding their column.
constexpr std::size_t kFewestRows = 16;
constexpr std::ptrdiff_t kMostColumns = 4;

using Lately = std::shared_ptr<const HeldAnswer>;

// A caller holds a list and, for each of its rows, looks into another one.
constexpr std::size_t kLately = 2;
thread_local Lately lately[kLately];
thread_local std::size_t nextLately = 0;

const HeldAnswer *findLately(const json_t *response)
{
  for (const Lately &answer : lately)
    if (answer && answer->value() == response)
      return answer.get();
  return nullptr;
}

} // namespace

HeldAnswer::HeldAnswer(std::string request, json_t *value, std::string tag, Epoch epoch, std::size_t bytes)
    : request_(std::move(request)), value_(retain(value)), tag_(std::move(tag)), epoch_(epoch), bytes_(bytes)
{
}

HeldAnswer::~HeldAnswer()
{
  release(value_);
}

const HeldAnswer::Column *HeldAnswer::column(std::string_view name) const
{
  if (json_array_size(value_) < kFewestRows)
    return nullptr;
  std::lock_guard<std::mutex> lock(mutex_);
  for (const Named &known : columns_)
    if (known.name == name)
      return &known.values;
  if (std::distance(columns_.begin(), columns_.end()) >= kMostColumns)
    return nullptr;
  Named column{std::string(name), {}};
  column.values.reserve(json_array_size(value_));
  for (std::size_t row = 0; row < json_array_size(value_); ++row)
    column.values.push_back(
        integerOf(json_object_getn(json_array_get(value_, row), name.data(), name.size())));
  columns_.push_front(std::move(column));
  return &columns_.front().values;
}

int integerOf(const json_t *value)
{
  if (json_is_true(value))
    return 1;
  // 32 bits travel; whoever takes them as unsigned gets them all.
  return static_cast<int>(static_cast<unsigned int>(json_integer_value(value)));
}

__thread LastColumn lastColumn{};

void rememberHeld(const std::shared_ptr<const HeldAnswer> &answer)
{
  if (json_array_size(answer->value()) < kFewestRows || findLately(answer->value()))
    return;
  // Its memory may go with what is forgotten.
  lastColumn.response = nullptr;
  lately[nextLately] = answer;
  nextLately = (nextLately + 1) % kLately;
}

bool findColumn(const json_t *response, const char *name)
{
  const HeldAnswer *answer = findLately(response);
  const std::size_t length = answer ? std::strlen(name) : 0;
  const HeldAnswer::Column *column =
      answer && length <= LastColumn::kLongestName ? answer->column({name, length}) : nullptr;
  if (!column)
    return false;
  lastColumn.response = response;
  lastColumn.values = column->data();
  lastColumn.rows = column->size();
  std::memcpy(lastColumn.name, name, length + 1);
  return true;
}

} // namespace zelclient
