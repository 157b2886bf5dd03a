// SPDX-License-Identifier: MIT
#include "control/Commands.h"

#include <algorithm>

namespace zelsim
{

void Commands::add(std::string_view name, std::string_view usage, std::string_view about, std::size_t least,
                   std::size_t most, Handler handler)
{
  commands_.push_back(
      Command{std::string(name), std::string(usage), std::string(about), least, most, std::move(handler)});
}

Outcome Commands::run(World &world, const std::vector<std::string> &words) const
{
  if (words.empty())
    return {true, "no command"};
  auto found = std::find_if(commands_.begin(), commands_.end(),
                            [&words](const Command &command) { return command.name == words[0]; });
  if (found == commands_.end())
    return {true, "unknown command \"" + words[0] + "\""};
  std::vector<std::string> arguments(words.begin() + 1, words.end());
  if (arguments.size() < found->least || arguments.size() > found->most)
    return {true, "usage: " + found->name + (found->usage.empty() ? "" : " ") + found->usage};
  return found->handler(world, arguments);
}

std::string Commands::help() const
{
  std::string out;
  for (const Command &command : commands_) {
    std::string line = "  " + command.name + (command.usage.empty() ? "" : " ") + command.usage;
    line.resize(std::max<std::size_t>(line.size() + 2, 44), ' ');
    out += line + command.about + '\n';
  }
  return out;
}

} // namespace zelsim
