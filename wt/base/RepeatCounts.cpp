// SPDX-License-Identifier: MIT
#include "base/RepeatCounts.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace Wt
{
namespace Engine
{

namespace
{

const int kHighestOfLibrary = 1000;
const int kHighest = 10000;
const int kUnbounded = -1;
const std::size_t kLongest = 100000; ///< of the result; repeats of repeats multiply

/// "{least,most}"; `length` 0 if there is none.
struct Repeat {
  int least = 0;
  int most = 0;
  std::size_t length = 0;
};

Repeat repeatAt(std::string_view pattern, std::size_t at)
{
  Repeat repeat;
  const char *const end = pattern.data() + pattern.size();
  auto read = std::from_chars(pattern.data() + at + 1, end, repeat.least);
  if (read.ec != std::errc() || read.ptr == end)
    return Repeat();
  repeat.most = repeat.least;
  if (*read.ptr == ',') {
    repeat.most = kUnbounded;
    const char *const after = read.ptr + 1;
    read = std::from_chars(after, end, repeat.most);
    if (read.ptr == after)
      repeat.most = kUnbounded;
  }
  if (read.ptr == end || *read.ptr != '}')
    return Repeat();
  repeat.length = static_cast<std::size_t>(read.ptr + 1 - (pattern.data() + at));
  return repeat;
}

/// The length of the class, escape or character at that place.
std::size_t unitLength(std::string_view pattern, std::size_t at)
{
  std::size_t end = at + 1;
  if (pattern[at] == '\\') {
    end = at + 2;
  } else if (pattern[at] == '[') {
    while (end < pattern.size() && (pattern[end] != ']' || end == at + 1))
      end += pattern[end] == '\\' ? 2 : 1;
    ++end;
  }
  while (end < pattern.size() && (static_cast<unsigned char>(pattern[end]) & 0xc0) == 0x80)
    ++end;
  return std::min(end, pattern.size()) - at;
}

void appendCounted(std::string &out, const std::string &unit, int least, int most)
{
  for (; most > 0; most -= kHighestOfLibrary) {
    out += unit + '{' + std::to_string(std::min(least, kHighestOfLibrary)) + ',' +
           std::to_string(std::min(most, kHighestOfLibrary)) + '}';
    least = std::max(least - kHighestOfLibrary, 0);
  }
}

std::string counted(const std::string &unit, const Repeat &repeat)
{
  std::string out = "(?:";
  appendCounted(out, unit, repeat.least, repeat.least);
  if (repeat.most == kUnbounded)
    out += unit + '*';
  else
    appendCounted(out, unit, 0, repeat.most - repeat.least);
  return out + ')';
}

bool large(const Repeat &repeat)
{
  const int highest = std::max(repeat.least, repeat.most);
  return repeat.length > 0 && highest > kHighestOfLibrary && highest <= kHighest &&
         (repeat.most == kUnbounded || repeat.most >= repeat.least);
}

} // namespace

std::string withSmallRepeatCounts(std::string_view pattern)
{
  std::string out;
  std::vector<std::size_t> groups; // where the open ones begin in `out`
  std::size_t unit = 0;            // where what a repeat is for begins in `out`
  for (std::size_t at = 0; at < pattern.size();) {
    const Repeat repeat = pattern[at] == '{' ? repeatAt(pattern, at) : Repeat();
    if (large(repeat)) {
      const std::string repeated = counted(out.substr(unit), repeat);
      if (unit + repeated.size() > kLongest)
        return std::string(pattern);
      out.resize(unit);
      out += repeated;
      at += repeat.length;
      continue;
    }
    const char c = pattern[at];
    if (c == '(')
      groups.push_back(out.size());
    if (c == ')' && !groups.empty()) {
      unit = groups.back();
      groups.pop_back();
    } else if (repeat.length == 0) {
      unit = out.size();
    }
    const std::size_t length = repeat.length ? repeat.length : unitLength(pattern, at);
    out += pattern.substr(at, length);
    at += length;
  }
  return out;
}

} // namespace Engine
} // namespace Wt
