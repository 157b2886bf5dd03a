// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_CONTROL_NAMES_H_
#define ZEL_SIM_CONTROL_NAMES_H_

#include "rules/Device.h"

#include <string>
#include <string_view>

namespace zelsim
{

/// The whole of a word as a number; false if it is none or doesn't fit.
bool readNumber(std::string_view word, std::int64_t &number);
bool readNumber(std::string_view word, unsigned &number);
bool readNumber(std::string_view word, int &number);

/// The record that a word of a command names: an index, an EID, or a name (of a user, a device, a monitor).
/// Upper and lower case are the same in a name. Where nothing is found, or a name fits several records,
/// false, and `wrong` says so to a person.
bool findRecord(const World &world, const Resource &resource, std::string_view word, unsigned &index,
                std::string &wrong);

/// The device that two words name, such as "rx" and "Desk 3 Traffic"; the same when it fails.
bool findDevice(const World &world, std::string_view kind, std::string_view word, Device &device,
                std::string &wrong);

} // namespace zelsim

#endif // ZEL_SIM_CONTROL_NAMES_H_
