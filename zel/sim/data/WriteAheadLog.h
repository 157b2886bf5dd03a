// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_WRITE_AHEAD_LOG_H_
#define ZEL_SIM_DATA_WRITE_AHEAD_LOG_H_

#include <string>

namespace zelsim
{

/// What is wrong with the write-ahead log that SQLite left at `path`, for a person to read; empty if nothing
/// is, or if there is none. SQLite itself takes what it can read and says nothing of the rest.
std::string damageOfLog(const std::string &path);

} // namespace zelsim

#endif // ZEL_SIM_DATA_WRITE_AHEAD_LOG_H_
