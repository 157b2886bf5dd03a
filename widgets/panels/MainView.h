// SPDX-License-Identifier: MIT
#ifndef WIDGETS_MAIN_VIEW_H_
#define WIDGETS_MAIN_VIEW_H_

#include <Wt/WEvent>
#include <Wt/WTimer>

/**
 * What the page knows of each of its main views. A view derives from it beside its widget class.
 *
 * A view keeps itself current while its tab shows: a timer of 5 seconds reads it anew. The timer rests until
 * enableAutoRefresh().
 */
class MainView
{
public:
  MainView();
  virtual ~MainView() = default;

  /// Reads the view anew and keeps its unsaved edits: when its tab comes to the front, and at each tick.
  virtual void readAnew() = 0;

  /// Start and stop the timer; a timer that runs already goes on as it is.
  void enableAutoRefresh();
  void disableAutoRefresh();

  /// Whether there are unsaved edits in the view.
  virtual bool hasChanged() const { return false; }

  /// Lets go of what was begun and not saved: the user has said so on the way out.
  virtual void discardChanges() {}

private:
  void refreshTimerTimeout();

  Wt::WTimer refreshTimer;
};

#endif // WIDGETS_MAIN_VIEW_H_
