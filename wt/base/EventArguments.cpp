// SPDX-License-Identifier: MIT
#include "base/EventArguments.h"

#include <charconv>
#include <cmath>
#include <type_traits>

namespace Wt
{
namespace Engine
{

const std::string *ArgumentReader::next()
{
  return position_ < event_.args.size() ? &event_.args[position_++] : nullptr;
}

template <typename T> bool ArgumentReader::readNumber(T &value)
{
  const std::string *text = next();
  if (!text || text->empty())
    return false;
  const char *end = text->data() + text->size();
  const auto [last, error] = std::from_chars(text->data(), end, value);
  if (error != std::errc() || last != end)
    return false;
  if constexpr (std::is_floating_point_v<T>)
    return std::isfinite(value);
  return true;
}

bool ArgumentReader::read(int &value)
{
  return readNumber(value);
}

bool ArgumentReader::read(unsigned &value)
{
  return readNumber(value);
}

bool ArgumentReader::read(long &value)
{
  return readNumber(value);
}

bool ArgumentReader::read(long long &value)
{
  return readNumber(value);
}

bool ArgumentReader::read(double &value)
{
  return readNumber(value);
}

bool ArgumentReader::read(bool &value)
{
  const std::string *text = next();
  if (!text)
    return false;
  value = *text == "true" || *text == "1";
  return value || *text == "false" || *text == "0";
}

bool ArgumentReader::read(std::string &value)
{
  const std::string *text = next();
  if (text)
    value = *text;
  return text != nullptr;
}

bool ArgumentReader::read(WString &value)
{
  const std::string *text = next();
  if (text)
    value = WString::fromUTF8(*text, true);
  return text != nullptr;
}

bool ArgumentReader::read(WMouseEvent &value)
{
  value = EventAccess::make<WMouseEvent>(event_);
  return true;
}

bool ArgumentReader::read(WKeyEvent &value)
{
  value = EventAccess::make<WKeyEvent>(event_);
  return true;
}

} // namespace Engine
} // namespace Wt
