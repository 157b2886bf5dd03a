// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_LIFE_STEPS_H_
#define ZEL_SIM_LIFE_STEPS_H_

#include "life/World.h"

#include <string>

namespace zelsim
{

/// What happens a while after something else. A step is a record of "pendingStep", made with whatever leads
/// to it and removed with whatever it does, so a stop or a kill in between loses neither.
enum class Step {
  BecomeBackup,    // the switch of that EID, the peer, is ready to take over
  TakeControl,     // the switch of that EID gets the control of the pair
  ReplacePeer,     // the peer of that EID has control and is lost
  SynchronizeTime, // the switch of that index has an answer of its time servers, or none
  RestartUpdated,  // the device ("rx 3") starts what it was updated to
  Announce,        // a device that was removed announces itself; what it is, as JSON
  EndFault,        // a fault of hardware is over; JSON
};

void takeLater(World &world, Step step, Clock::Milliseconds delay, const std::string &about);

/// Takes up the steps that a stop interrupted, each at its time.
void resumeSteps(World &world);

} // namespace zelsim

#endif // ZEL_SIM_LIFE_STEPS_H_
