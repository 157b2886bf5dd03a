// SPDX-License-Identifier: MIT
#include "HeldAnswer.h"

#include <cstring>
#include <iterator>

namespace zelclient
{

namespace
{

// Looking into so few rows is as quick as finding their column.
constexpr std::size_t kFewestRows = 16;
constexpr std::ptrdiff_t kMostColumns = 4;

struct Lately {
  std::shared_ptr<const HeldAnswer> answer;
  std::string name; // of `column`
  const HeldAnswer::Column *column = nullptr;
};

// A caller holds a list and, for each of its rows, looks into another one.
constexpr std::size_t kLately = 2;
thread_local Lately lately[kLately];
thread_local std::size_t nextLately = 0;

Lately *findLately(const json_t *response)
{
  for (Lately &one : lately)
    if (one.answer && one.answer->value() == response)
      return &one;
  return nullptr;
}

} // namespace

HeldAnswer::HeldAnswer(std::string request, json_t *value, std::string tag, Epoch epoch, std::size_t bytes)
    : request_(std::move(request)), value_(json_incref(value)), tag_(std::move(tag)), epoch_(epoch),
      bytes_(bytes)
{
}

HeldAnswer::~HeldAnswer()
{
  json_decref(value_);
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

void rememberHeld(const std::shared_ptr<const HeldAnswer> &answer)
{
  if (json_array_size(answer->value()) < kFewestRows || findLately(answer->value()))
    return;
  lately[nextLately] = Lately{answer, {}, nullptr};
  nextLately = (nextLately + 1) % kLately;
}

bool findInColumn(const json_t *response, std::size_t row, const char *name, int &value)
{
  Lately *found = findLately(response);
  if (!found)
    return false;
  if (!found->column || std::strcmp(found->name.c_str(), name) != 0) {
    found->column = found->answer->column(name);
    found->name = name;
  }
  if (!found->column)
    return false;
  value = row < found->column->size() ? (*found->column)[row] : 0;
  return true;
}

} // namespace zelclient
