// SPDX-License-Identifier: MIT
#include "data/Value.h"

#include <cstdlib>
#include <utility>

namespace zelsim
{

Value::Value(Kind kind, std::string_view text)
    : kind_(kind), size_(static_cast<std::uint32_t>(text.size())), text_(new char[text.size() + 1])
{
  std::memcpy(text_, text.data(), text.size());
}

Value Value::integer(std::int64_t number)
{
  Value value;
  value.kind_ = Kind::Integer;
  value.number_ = number;
  return value;
}

Value Value::boolean(bool flag)
{
  Value value = integer(flag ? 1 : 0);
  value.kind_ = Kind::Boolean;
  return value;
}

Value Value::text(std::string_view text)
{
  return Value(Kind::Text, text);
}

Value Value::nested(std::string_view json)
{
  return Value(Kind::Nested, json);
}

Value Value::nested(const json_t *json)
{
  std::unique_ptr<char, decltype(&std::free)> text(json_dumps(json, JSON_COMPACT), &std::free);
  return text ? nested(std::string_view(text.get())) : Value();
}

Value::Value(const Value &other) : kind_(other.kind_), size_(other.size_)
{
  if (kind_ == Kind::Text || kind_ == Kind::Nested) {
    text_ = new char[size_ + 1];
    std::memcpy(text_, other.text_, size_);
  } else {
    number_ = other.number_;
  }
}

Value::Value(Value &&other) noexcept : kind_(std::exchange(other.kind_, Kind::None)), size_(other.size_)
{
  if (kind_ == Kind::Text || kind_ == Kind::Nested)
    text_ = other.text_;
  else
    number_ = other.number_;
}

Value &Value::operator=(Value other) noexcept
{
  std::swap(kind_, other.kind_);
  std::swap(size_, other.size_);
  static_assert(sizeof(number_) >= sizeof(text_), "the number spans the union");
  std::swap(number_, other.number_);
  return *this;
}

Value::~Value()
{
  if (kind_ == Kind::Text || kind_ == Kind::Nested)
    delete[] text_;
}

std::int64_t Value::number() const
{
  return kind_ == Kind::Integer || kind_ == Kind::Boolean ? number_ : 0;
}

std::string_view Value::text() const
{
  return kind_ == Kind::Text || kind_ == Kind::Nested ? std::string_view(text_, size_) : std::string_view();
}

bool Value::operator==(const Value &other) const
{
  return kind_ == other.kind_ && number() == other.number() && text() == other.text();
}

} // namespace zelsim
