// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_CONTROL_COMMANDS_H_
#define ZEL_SIM_CONTROL_COMMANDS_H_

#include "life/World.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zelsim
{

/// What a control command came to: text for stdout, or for stderr with `failed` set.
struct Outcome {
  bool failed = false;
  std::string text;
};

/// The commands of the control channel, by name. A command is a line of words: the name, then arguments.
class Commands
{
public:
  using Handler = std::function<Outcome(World &, const std::vector<std::string> &arguments)>;

  /// `usage` shows the arguments ("RESOURCE INDEX PARAMETER"); `least` and `most` bound their number.
  void add(std::string_view name, std::string_view usage, std::string_view about, std::size_t least,
           std::size_t most, Handler handler);

  /// Runs a command; an unknown name or wrong number of arguments is a failed outcome that says so.
  Outcome run(World &world, const std::vector<std::string> &words) const;

  /// One line per command.
  std::string help() const;

private:
  struct Command {
    std::string name;
    std::string usage;
    std::string about;
    std::size_t least;
    std::size_t most;
    Handler handler;
  };

  std::vector<Command> commands_;
};

/// LifeCommands.cpp: devices, fail-update, alert, liveliness and whatever else the life understands.
void addLifeCommands(Commands &commands);

/// RoleCommands.cpp: the part that this switch plays.
void addRoleCommands(Commands &commands);

/// StateCommands.cpp: states of devices, ports and monitors.
void addStateCommands(Commands &commands);

} // namespace zelsim

#endif // ZEL_SIM_CONTROL_COMMANDS_H_
