// SPDX-License-Identifier: MIT
#include "base/Value.h"

#include <Wt/WString>
#include <charconv>
#include <type_traits>
#include <typeinfo>

namespace Wt
{
namespace Engine
{

namespace
{

template <typename T> std::string textOf(const T &value)
{
  if constexpr (std::is_same_v<T, std::string>) {
    return value;
  } else if constexpr (std::is_same_v<T, WString>) {
    return value.toUTF8();
  } else if constexpr (std::is_same_v<T, const char *> || std::is_same_v<T, char *>) {
    return value ? value : "";
  } else if constexpr (std::is_same_v<T, std::wstring>) {
    return WString(value).toUTF8();
  } else if constexpr (std::is_same_v<T, bool>) {
    return value ? "true" : "false";
  } else {
    char digits[64];
    const auto [end, error] = std::to_chars(digits, digits + sizeof digits, value);
    return error == std::errc() ? std::string(digits, end) : std::string();
  }
}

template <typename T> int order(const T &left, const T &right)
{
  if constexpr (std::is_same_v<T, const char *> || std::is_same_v<T, char *>)
    return textOf(left).compare(textOf(right));
  else if constexpr (std::is_same_v<T, std::string>)
    return left.compare(right);
  else
    return left < right ? -1 : right < left ? 1 : 0;
}

/// What can be done with values of one type.
struct Type {
  const std::type_info *type;
  std::string (*text)(const boost::any &value);
  int (*compare)(const boost::any &left, const boost::any &right);
};

template <typename T> Type describe()
{
  return {&typeid(T), [](const boost::any &value) { return textOf(*boost::any_cast<T>(&value)); },
          [](const boost::any &left, const boost::any &right) {
            return order(*boost::any_cast<T>(&left), *boost::any_cast<T>(&right));
          }};
}

// The usual ones first.
const Type kTypes[] = {
    describe<std::string>(),
    describe<WString>(),
    describe<unsigned>(),
    describe<int>(),
    describe<double>(),
    describe<bool>(),
    describe<const char *>(),
    describe<char *>(),
    describe<std::wstring>(),
    describe<long>(),
    describe<unsigned long>(),
    describe<long long>(),
    describe<unsigned long long>(),
    describe<short>(),
    describe<unsigned short>(),
    describe<float>(),
};

const Type *typeOf(const boost::any &value)
{
  const std::type_info &type = value.type();
  for (const Type &known : kTypes)
    if (*known.type == type)
      return &known;
  return nullptr;
}

} // namespace

std::string valueText(const boost::any &value)
{
  const Type *type = value.empty() ? nullptr : typeOf(value);
  return type ? type->text(value) : std::string();
}

int compareValues(const boost::any &left, const boost::any &right)
{
  if (left.empty() || right.empty())
    return left.empty() ? (right.empty() ? 0 : -1) : 1;
  if (left.type() == right.type()) {
    const Type *type = typeOf(left);
    return type ? type->compare(left, right) : 0;
  }
  return valueText(left).compare(valueText(right));
}

} // namespace Engine
} // namespace Wt
