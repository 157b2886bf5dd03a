// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_LIFE_UPGRADE_LIFE_H_
#define ZEL_SIM_LIFE_UPGRADE_LIFE_H_

#include "rules/Device.h"

#include <string>

namespace zelsim
{

/// Firmware updates. The switch fetches the file (to 20 percent), looks at it (30), pushes it to the device
/// (60) and flashes it (100), at 5 percent per second. Each of these can fail, with the word of
/// "upgradeStatus" that belongs to it. Updates go on after a restart.
///
/// What is in the file's name decides, as far as nobody has ordered a failure (failNextUpdate):
/// "missing", "corrupt", "wrong-device", "push-error", "flash-error" and "unknown-error" make it fail; "rx-",
/// "tx-" or "swx-" say which devices it is for; "1.2.3" anywhere is its version. A local file must exist
/// and not be empty.

/// Whether the device can start an update from that "upgrade" record.
Problem mayUpdate(const World &world, const Device &device, unsigned upgradeIndex);

void beginUpdate(World &world, const Device &device, unsigned upgradeIndex);

/// The device's next update is to fail so; `word` is one of the "failed..." words.
void failNextUpdate(World &world, const Device &device, const std::string &word);

/// A device that was updated restarts, as a step (Steps.h); `about` is such as "rx 3".
void restartUpdated(World &world, const std::string &about);

/// Goes on with every update that a stop interrupted.
void resumeUpdates(World &world);

} // namespace zelsim

#endif // ZEL_SIM_LIFE_UPGRADE_LIFE_H_
