// SPDX-License-Identifier: MIT
#ifndef WT_WANIMATION_H_
#define WT_WANIMATION_H_

#include <Wt/WFlags>

namespace Wt
{

/// How the browser shows a widget appearing or going; the server's state changes at once.
class WAnimation
{
public:
  enum AnimationEffect {
    SlideInFromLeft = 1,
    SlideInFromRight = 2,
    SlideInFromBottom = 3,
    SlideInFromTop = 4,
    Pop = 5,
    Fade = 0x100
  };
  enum TimingFunction { Ease, Linear, EaseIn, EaseOut, EaseInOut, CubicBezier };

  WAnimation();
  /// `duration` is in milliseconds.
  WAnimation(WFlags<AnimationEffect> effects, TimingFunction timing = Linear, int duration = 250);

  void setEffects(WFlags<AnimationEffect> effects) { effects_ = effects; }
  WFlags<AnimationEffect> effects() const { return effects_; }
  void setDuration(int milliseconds) { duration_ = milliseconds; }
  int duration() const { return duration_; }
  void setTimingFunction(TimingFunction function) { timing_ = function; }
  TimingFunction timingFunction() const { return timing_; }
  bool empty() const { return effects_.value() == 0; }

  bool operator==(const WAnimation &other) const;
  bool operator!=(const WAnimation &other) const { return !(*this == other); }

private:
  WFlags<AnimationEffect> effects_;
  TimingFunction timing_;
  int duration_;
};

W_DECLARE_OPERATORS_FOR_FLAGS(WAnimation::AnimationEffect)

} // namespace Wt

#endif // WT_WANIMATION_H_
