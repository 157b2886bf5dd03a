// SPDX-License-Identifier: MIT
#include "http/ByteRange.h"

#include <algorithm>
#include <charconv>

namespace Wt
{
namespace Net
{

namespace
{

bool parseNumber(std::string_view text, std::uint64_t &number)
{
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  return !text.empty() && result.ec == std::errc() && result.ptr == text.data() + text.size();
}

} // namespace

std::string ByteRange::contentRange(std::uint64_t size) const
{
  const std::string whole = "/" + std::to_string(size);
  if (kind != Kind::Part)
    return "bytes *" + whole;
  return "bytes " + std::to_string(first) + "-" + std::to_string(last) + whole;
}

ByteRange ByteRange::parse(std::string_view header, std::uint64_t size)
{
  static constexpr std::string_view unit = "bytes=";
  ByteRange range;
  if (header.substr(0, unit.size()) != unit || header.find(',') != std::string_view::npos)
    return range;
  header.remove_prefix(unit.size());
  const std::size_t dash = header.find('-');
  if (dash == std::string_view::npos)
    return range;
  const std::string_view from = header.substr(0, dash);
  const std::string_view to = header.substr(dash + 1);
  std::uint64_t first = 0;
  std::uint64_t last = 0;
  if ((!from.empty() && !parseNumber(from, first)) || (!to.empty() && !parseNumber(to, last)) ||
      (from.empty() && to.empty()) || (!from.empty() && !to.empty() && last < first))
    return range;
  if (from.empty()) {
    first = size - std::min(size, last);
    last = last == 0 ? 0 : size;
  }
  if (first >= size || (from.empty() && last == 0)) {
    range.kind = Kind::Unsatisfiable;
    return range;
  }
  range.kind = Kind::Part;
  range.first = first;
  range.last = to.empty() ? size - 1 : std::min(last, size - 1);
  return range;
}

} // namespace Net
} // namespace Wt
