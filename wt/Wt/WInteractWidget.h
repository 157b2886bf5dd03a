// SPDX-License-Identifier: MIT
#ifndef WT_WINTERACTWIDGET_H_
#define WT_WINTERACTWIDGET_H_

#include <Wt/WEvent>
#include <Wt/WWebWidget>

namespace Wt
{

/// A widget that tells of mouse and keyboard. Events bubble: those of a child are also the parent's.
class WInteractWidget : public WWebWidget
{
public:
  explicit WInteractWidget(WContainerWidget *parent = nullptr) : WWebWidget(parent) {}

  EventSignal<WKeyEvent> &keyWentDown() { return eventSignal<WKeyEvent>("keydown"); }
  EventSignal<WKeyEvent> &keyPressed() { return eventSignal<WKeyEvent>("keypress"); }
  EventSignal<WKeyEvent> &keyWentUp() { return eventSignal<WKeyEvent>("keyup"); }
  EventSignal<> &enterPressed() { return eventSignal<NoClass>("enter"); }
  EventSignal<> &escapePressed() { return eventSignal<NoClass>("escape"); }
  EventSignal<WMouseEvent> &clicked() { return eventSignal<WMouseEvent>("click"); }
  EventSignal<WMouseEvent> &doubleClicked() { return eventSignal<WMouseEvent>("dblclick"); }
  EventSignal<WMouseEvent> &mouseWentDown() { return eventSignal<WMouseEvent>("mousedown"); }
  EventSignal<WMouseEvent> &mouseWentUp() { return eventSignal<WMouseEvent>("mouseup"); }
  EventSignal<WMouseEvent> &mouseWentOut() { return eventSignal<WMouseEvent>("mouseleave"); }
  EventSignal<WMouseEvent> &mouseWentOver() { return eventSignal<WMouseEvent>("mouseenter"); }
  EventSignal<WMouseEvent> &mouseMoved() { return eventSignal<WMouseEvent>("mousemove"); }
  /// Movement with a button held.
  EventSignal<WMouseEvent> &mouseDragged() { return eventSignal<WMouseEvent>("drag"); }
  EventSignal<WMouseEvent> &mouseWheel() { return eventSignal<WMouseEvent>("wheel"); }
};

} // namespace Wt

#endif // WT_WINTERACTWIDGET_H_
