// SPDX-License-Identifier: MIT
#ifndef TESTS_SWITCH_SCRIPT_H_
#define TESTS_SWITCH_SCRIPT_H_

#include "ScriptedStore.h"

#include <ctime>
#include <map>
#include <string>

// A store of the test's own that plays a switch on which everything is well: a master, under no manager, with
// one administrator who may log in, two receivers, two transmitters and nobody at work.
class SwitchScript : public ScriptedStore
{
public:
  static constexpr unsigned int kOperator = 2;

  SwitchScript();

  // A value of "systemGlobals", text or number.
  void setGlobal(const std::string &parameter, const std::string &value);
  void setGlobal(const std::string &parameter, int value);
  // What this switch is: words of "mode" and "cascadeRole".
  void setRole(const std::string &mode, const std::string &cascadeRole);
  // Logins succeed, of an account whose password was set or not; or fail.
  void acceptLogins(bool passwordIsInitialized = true);
  void refuseLogins();

  // How often a login was tried here.
  std::size_t loginCount() { return requests("CREATE").size(); }
  // How often a resource was asked for.
  std::size_t readCount(const std::string &resource);

private:
  void giveGlobals();

  std::map<std::string, std::string> globals_; // JSON values by parameter
};

#endif // TESTS_SWITCH_SCRIPT_H_
