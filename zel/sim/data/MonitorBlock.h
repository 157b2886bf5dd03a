// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_MONITOR_BLOCK_H_
#define ZEL_SIM_DATA_MONITOR_BLOCK_H_

#include <array>
#include <cstddef>
#include <cstdint>

namespace zelsim
{

constexpr std::size_t kMonitorBlockSize = 256;
using MonitorBlock = std::array<unsigned char, kMonitorBlockSize>;

/// What distinguishes one simulated monitor from another.
struct MonitorModel {
  const char *maker; // three capital letters
  unsigned product;  // 16 bits
  const char *name;  // at most 13 characters
  bool digital;
  unsigned timing; // row of videoTimings()
  unsigned widthCm, heightCm;
};

/// The models that the fleet has. The pointer is static.
const MonitorModel *monitorModels(std::size_t &count);

/// The EDID data of one piece of a model: a base block with right checksum and, for digital monitors, an
/// extension block with its own; otherwise the second half is zero.
MonitorBlock monitorBlock(const MonitorModel &model, std::uint32_t serial);

} // namespace zelsim

#endif // ZEL_SIM_DATA_MONITOR_BLOCK_H_
