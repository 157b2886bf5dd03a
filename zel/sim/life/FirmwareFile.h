// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_LIFE_FIRMWARE_FILE_H_
#define ZEL_SIM_LIFE_FIRMWARE_FILE_H_

#include <string>

namespace zelsim
{

/// What a firmware file's name tells.

/// "rx", "tx" or "swx"; empty if the name names no device.
std::string deviceTypeOfFile(const std::string &path);

/// The first run of digits with at least one dot between them, such as "4.3.0"; empty if there is none.
std::string versionOfFile(const std::string &path);

/// The word of "upgradeStatus" with which an update from this file fails, or an empty text.
std::string failureOfFile(const std::string &path);

} // namespace zelsim

#endif // ZEL_SIM_LIFE_FIRMWARE_FILE_H_
