// SPDX-License-Identifier: MIT
#include <Wt/WEvent>

namespace Wt
{

namespace
{

WFlags<KeyboardModifier> modifiersOf(const Engine::RawEvent &event)
{
  WFlags<KeyboardModifier> result;
  for (KeyboardModifier modifier : {ShiftModifier, ControlModifier, AltModifier, MetaModifier})
    if (event.modifiers & modifier)
      result |= modifier;
  return result;
}

WMouseEvent::Button buttonOf(int button)
{
  switch (button) {
  case WMouseEvent::LeftButton:
  case WMouseEvent::MiddleButton:
  case WMouseEvent::RightButton:
    return static_cast<WMouseEvent::Button>(button);
  default:
    return WMouseEvent::NoButton;
  }
}

Coordinates coordinates(const Engine::RawEvent::Point &point)
{
  return Coordinates(point.x, point.y);
}

} // namespace

WMouseEvent::WMouseEvent() : button_(NoButton), wheelDelta_(0) {}

WMouseEvent::WMouseEvent(const Engine::RawEvent &event)
    : button_(buttonOf(event.button)), modifiers_(modifiersOf(event)), document_(coordinates(event.document)),
      window_(coordinates(event.window)), screen_(coordinates(event.screen)),
      widget_(coordinates(event.widget)), dragDelta_(coordinates(event.dragDelta)), wheelDelta_(event.wheel)
{
}

WKeyEvent::WKeyEvent() : keyCode_(0), charCode_(0) {}

WKeyEvent::WKeyEvent(const Engine::RawEvent &event)
    : keyCode_(event.keyCode), charCode_(event.charCode), modifiers_(modifiersOf(event)),
      text_(WString::fromUTF8(event.text, true))
{
}

Key WKeyEvent::key() const
{
  const int padZero = 96;
  const int padNine = 105;
  int code = keyCode_;
  if (code == 0 && charCode_ >= 'a' && charCode_ <= 'z')
    code = charCode_ - 'a' + 'A';
  else if (code == 0 && ((charCode_ >= 'A' && charCode_ <= 'Z') || (charCode_ >= '0' && charCode_ <= '9')))
    code = charCode_;
  else if (code >= padZero && code <= padNine)
    code = code - padZero + '0';
  const bool known = code == Key_Backspace || code == Key_Tab || code == Key_Enter ||
                     (code >= Key_Shift && code <= Key_Alt) || code == Key_Escape ||
                     (code >= Key_Space && code <= Key_Down) || code == Key_Insert || code == Key_Delete ||
                     (code >= Key_0 && code <= Key_9) || (code >= Key_A && code <= Key_Z) ||
                     (code >= Key_F1 && code <= Key_F12);
  return known ? static_cast<Key>(code) : Key_unknown;
}

} // namespace Wt
