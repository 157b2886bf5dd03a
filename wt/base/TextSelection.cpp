// SPDX-License-Identifier: MIT
#include "base/TextSelection.h"

#include <algorithm>
#include <charconv>

namespace Wt
{
namespace Engine
{

namespace
{

bool readPosition(const std::string &text, int &position)
{
  const char *const end = text.data() + text.size();
  const auto parsed = std::from_chars(text.data(), end, position);
  return parsed.ec == std::errc() && parsed.ptr == end && position >= 0;
}

struct Place {
  std::size_t byte = 0;
  int character = 0;
};

/// The place in UTF-8 text of a position in UTF-16 units; the end if it lies beyond.
Place placeOf(const std::string &text, int units)
{
  Place place;
  for (int seen = 0; place.byte < text.size() && seen < units; ++place.character) {
    const unsigned char lead = static_cast<unsigned char>(text[place.byte]);
    seen += lead >= 0xf0 ? 2 : 1;
    ++place.byte;
    while (place.byte < text.size() && (static_cast<unsigned char>(text[place.byte]) & 0xc0) == 0x80)
      ++place.byte;
  }
  return place;
}

} // namespace

bool TextSelection::read(const RawEvent &event)
{
  int start = 0;
  int end = 0;
  if (event.name != "sel" || event.args.size() != 2 || !readPosition(event.args[0], start) ||
      !readPosition(event.args[1], end))
    return false;
  start_ = std::min(start, end);
  end_ = std::max(start, end);
  return true;
}

int TextSelection::start(const std::string &text) const
{
  const Place from = placeOf(text, start_);
  return placeOf(text, end_).byte > from.byte ? from.character : -1;
}

std::string TextSelection::selected(const std::string &text) const
{
  const std::size_t from = placeOf(text, start_).byte;
  return text.substr(from, placeOf(text, end_).byte - from);
}

int TextSelection::cursor(const std::string &text) const
{
  return placeOf(text, end_).character;
}

} // namespace Engine
} // namespace Wt
