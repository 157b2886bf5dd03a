// SPDX-License-Identifier: MIT
#ifndef WT_BASE_RAW_EVENT_H_
#define WT_BASE_RAW_EVENT_H_

#include <string>
#include <vector>

namespace Wt
{
namespace Engine
{

/// One event as the browser told it; fields that it did not give stay at their defaults.
struct RawEvent {
  struct Point {
    int x = 0;
    int y = 0;
  };

  std::string name;

  Point document;
  Point window;
  Point screen;
  Point widget;
  Point dragDelta;
  int button = 0;    ///< WMouseEvent::Button
  int modifiers = 0; ///< KeyboardModifier bits
  int wheel = 0;     ///< steps, away from the user is positive
  int keyCode = 0;
  int charCode = 0;
  std::string text; ///< UTF-8 of the character that a key press gives

  std::vector<std::string> args; ///< arguments of a JSignal
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_RAW_EVENT_H_
