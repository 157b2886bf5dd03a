// SPDX-License-Identifier: MIT
#ifndef WT_WTIMER_H_
#define WT_WTIMER_H_

#include <Wt/WEvent>
#include <Wt/WObject>
#include <Wt/WSignal>
#include <cstdint>

namespace Wt
{

namespace Engine
{
class Session;
}

/// Ticks in its session. It rests before the page has loaded and while the browser is away.
class WTimer : public WObject
{
public:
  explicit WTimer(WObject *parent = nullptr);
  ~WTimer() override;

  /// Milliseconds; takes effect at the next start().
  void setInterval(int milliSeconds) { interval_ = milliSeconds; }
  int interval() const { return interval_; }
  void setSingleShot(bool singleShot) { singleShot_ = singleShot; }
  bool isSingleShot() const { return singleShot_; }

  /// Restarts a running timer with the present interval.
  void start();
  void stop();
  bool isActive() const { return active_; }

  EventSignal<WMouseEvent> &timeout() { return timeout_; }

private:
  friend class Engine::Session;

  void tick();
  void stopAfterShot();

  EventSignal<WMouseEvent> timeout_;
  std::uint64_t ticket_ = 0; ///< the session's number of this run of the timer; 0 if it does not run
  int interval_ = 0;
  bool singleShot_ = false;
  bool active_ = false;
  bool stopConnected_ = false;
};

} // namespace Wt

#endif // WT_WTIMER_H_
