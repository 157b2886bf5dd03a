// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_FLEET_NAMES_H_
#define ZEL_SIM_DATA_FLEET_NAMES_H_

#include <cstddef>
#include <string>

namespace zelsim
{

/// One account of a new switch. The password is what its person types; an external manager's user has an
/// empty name.
struct Account {
  const char *name;
  const char *managerName;
  const char *fullName;
  const char *password;
  bool administrator;
  bool passwordIsInitialized;
  bool enabled;
  bool allTargets;
  const char *modeAllowed;
};

/// The accounts of every new switch, the first one being "admin". Static.
const Account *fleetAccounts(std::size_t &count);

/// Names of the small lab's devices, numbered from 1; beyond the list, a general name with the number.
std::string receiverName(unsigned number);
std::string transmitterName(unsigned number);
std::string switchName(unsigned number);

/// Somebody at a desk of a large fleet, numbered from 0. People far apart in number may have the same login.
struct Person {
  std::string login;
  std::string fullName;
};
Person personOf(unsigned number);

/// The EID of a device: `family` tells the kinds of device apart, `number` counts from 1.
std::string fleetEid(unsigned family, unsigned number);

} // namespace zelsim

#endif // ZEL_SIM_DATA_FLEET_NAMES_H_
