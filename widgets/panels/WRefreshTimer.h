// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WREFRESH_TIMER_H_
#define WIDGETS_WREFRESH_TIMER_H_

#include <Wt/WEvent>
#include <Wt/WTimer>
#include <functional>

/// What keeps a view current while it shows: a timer of 5 seconds, at rest until it is enabled. A member of
/// its view.
class WRefreshTimer
{
public:
  /// Connects the timer to the view's handler, which reads anew by locked().
  template <class View, class Base> WRefreshTimer(View *view, void (Base::*timeoutHandler)())
  {
    setUp();
    timer.timeout().connect(view, timeoutHandler);
  }

  /// Does nothing to a timer that runs already.
  void enable();
  void disable();

  /// Runs `read` under the update lock of the session whose code is running, if that can be had.
  static void locked(const std::function<void()> &read);

private:
  void setUp();

  Wt::WTimer timer;
};

#endif // WIDGETS_WREFRESH_TIMER_H_
