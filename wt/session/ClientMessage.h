// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_CLIENT_MESSAGE_H_
#define WT_SESSION_CLIENT_MESSAGE_H_

#include "base/RawEvent.h"
#include "dom/Element.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Wt
{
namespace Engine
{

/// A message of the browser's runtime, as PROTOCOL.md has them.
struct ClientMessage {
  enum Kind { Hello, Resume, Events, Seen, Visibility };

  struct Event {
    Dom::Element::Id element = 0;
    RawEvent data;
  };

  Kind kind = Seen;

  /// Hello
  std::string query; ///< of the page's URL, without "?"
  std::string language;
  int timeZone = 0; ///< minutes east of UTC
  int screenWidth = 0;
  int screenHeight = 0;

  std::string token;   ///< Resume
  bool visible = true; ///< Visibility: somebody sees the page

  std::uint64_t number = 0; ///< Events
  std::uint64_t seen = 0;   ///< Resume, Events, Seen
  bool hasFocus = false;    ///< whether `focus` was told
  Dom::Element::Id focus = 0;
  std::vector<std::pair<Dom::Element::Id, std::string>> values;
  std::vector<Event> events;

  /// False if the text is no such message. Never throws (but for lack of memory), whatever the text is.
  static bool decode(std::string_view text, ClientMessage &message);
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_CLIENT_MESSAGE_H_
