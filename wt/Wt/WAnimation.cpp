// SPDX-License-Identifier: MIT
#include <Wt/WAnimation>

namespace Wt
{

WAnimation::WAnimation() : timing_(Linear), duration_(250) {}

WAnimation::WAnimation(WFlags<AnimationEffect> effects, TimingFunction timing, int duration)
    : effects_(effects), timing_(timing), duration_(duration)
{
}

bool WAnimation::operator==(const WAnimation &other) const
{
  return effects_.value() == other.effects_.value() && timing_ == other.timing_ &&
         duration_ == other.duration_;
}

} // namespace Wt
