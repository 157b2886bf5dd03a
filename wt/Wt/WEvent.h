// SPDX-License-Identifier: MIT
#ifndef WT_WEVENT_H_
#define WT_WEVENT_H_

#include "../base/EventAccess.h"

#include <Wt/WGlobal>
#include <Wt/WString>

namespace Wt
{

/// What WApplication::notify is called for.
class WEvent
{
public:
  EventType eventType() const { return type_; }

private:
  friend struct Engine::EventAccess;
  WEvent(EventType type, void *context) : type_(type), context_(context) {}

  EventType type_;
  void *context_;
};

/// A place in pixels.
struct Coordinates {
  int x;
  int y;
  Coordinates() : x(0), y(0) {}
  Coordinates(int x_, int y_) : x(x_), y(y_) {}
};

class WMouseEvent
{
public:
  enum Button { NoButton = 0, LeftButton = 1, MiddleButton = 2, RightButton = 4 };

  WMouseEvent();

  Button button() const { return button_; }
  WFlags<KeyboardModifier> modifiers() const { return modifiers_; }
  Coordinates document() const { return document_; }
  Coordinates window() const { return window_; }
  Coordinates screen() const { return screen_; }
  /// Relative to the widget that emits the event.
  Coordinates widget() const { return widget_; }
  /// Movement since the button went down.
  Coordinates dragDelta() const { return dragDelta_; }
  int wheelDelta() const { return wheelDelta_; }

private:
  friend struct Engine::EventAccess;
  explicit WMouseEvent(const Engine::RawEvent &event);

  Button button_;
  WFlags<KeyboardModifier> modifiers_;
  Coordinates document_;
  Coordinates window_;
  Coordinates screen_;
  Coordinates widget_;
  Coordinates dragDelta_;
  int wheelDelta_;
};

class WKeyEvent
{
public:
  WKeyEvent();

  /// Letters as capitals, digits of the numeric pad as digits.
  Key key() const;
  WFlags<KeyboardModifier> modifiers() const { return modifiers_; }
  /// The Unicode character, of a key press; else 0.
  int charCode() const { return charCode_; }
  WString text() const { return text_; }

private:
  friend struct Engine::EventAccess;
  explicit WKeyEvent(const Engine::RawEvent &event);

  int keyCode_;
  int charCode_;
  WFlags<KeyboardModifier> modifiers_;
  WString text_;
};

} // namespace Wt

#endif // WT_WEVENT_H_
