// SPDX-License-Identifier: MIT
#include "control/Commands.h"
#include "control/Names.h"
#include "life/DeviceLife.h"
#include "life/Story.h"
#include "life/UpgradeLife.h"
#include "rules/Alerts.h"
#include "rules/ErrorText.h"
#include "rules/Management.h"

#include <cstring>

namespace zelsim
{

namespace
{

using Words = std::vector<std::string>;

// The device that two words name, such as "rx" and "3"; its index is 0 if there is none.
Device deviceOf(const World &world, const Words &words)
{
  Device device = {&kSwitches, 0};
  std::string wrong;
  return findDevice(world, words[0], words[1], device, wrong) ? device : Device{&kSwitches, 0};
}

Outcome noDevice(const Words &words)
{
  return {true, "there is no device \"" + words[0] + " " + words[1] + "\""};
}

Outcome offline(World &world, const Words &words)
{
  const Device device = deviceOf(world, words);
  unsigned seconds = 0;
  if (!device.index)
    return noDevice(words);
  if (words.size() > 2 && !readNumber(words[2], seconds))
    return {true, "\"" + words[2] + "\" is no number of seconds"};
  if (device.isSelf())
    return {true, "this switch can't go off line; see refuse and reset"};
  takeOffline(world, device, 1000 * static_cast<Clock::Milliseconds>(seconds));
  return {};
}

Outcome online(World &world, const Words &words)
{
  const Device device = deviceOf(world, words);
  if (!device.index)
    return noDevice(words);
  bringUp(world, device);
  return {};
}

Outcome reset(World &world, const Words &words)
{
  const Device device = deviceOf(world, words);
  if (!device.index)
    return noDevice(words);
  const std::string word = words.size() > 2 ? words[2] : "cold_reboot";
  if (!hasWord("cold_reboot factory_default factory_default_partial", word))
    return {true, "\"" + word + "\" is no way to reset"};
  if (const Problem problem = mayReset(world, device, word))
    return {true, "not possible now: " + describeProblem(problem)};
  beginReset(world, device, word);
  return {};
}

Outcome failUpdate(World &world, const Words &words)
{
  const Device device = deviceOf(world, words);
  if (!device.index)
    return noDevice(words);
  const std::string word = words.size() > 2 ? words[2] : "failed_flash";
  if (!hasWord("failed failed_file_get failed_file_content failed_dev_type failed_file_push failed_flash",
               word))
    return {true, "\"" + word + "\" is no way to fail"};
  failNextUpdate(world, device, word);
  return {};
}

Outcome alert(World &world, const Words &words)
{
  std::size_t count = 0;
  const AlertKindInfo *kinds = alertKinds(count);
  for (std::size_t i = 0; i < count; ++i)
    if (kinds[i].enable == "enableAlert" + words[0]) {
      const std::string eid = words.size() > 1 ? words[1] : ownEid(world);
      const unsigned instance =
          raiseAlert(world, static_cast<AlertKind>(i), eid, words.size() > 2 ? words[2] : "1",
                     words.size() > 3 ? words[3] : "2");
      return instance ? Outcome{false, std::to_string(instance) + "\n"}
                      : Outcome{true, "that kind is disabled"};
    }
  std::string known;
  for (std::size_t i = 0; i < count; ++i)
    known += "\n  " + std::string(kinds[i].enable).substr(std::strlen("enableAlert"));
  return {true, "there is no kind of alert \"" + words[0] + "\"; the kinds are" + known};
}

Outcome liveliness(World &world, const Words &words)
{
  unsigned number = 0;
  if (!readNumber(words[0], number) || number > 100)
    return {true, "\"" + words[0] + "\" is no number from 0 to 100"};
  setLiveliness(world, number);
  return {};
}

Outcome happenOften(World &world, const Words &words)
{
  unsigned number = 1;
  if (!words.empty() && (!readNumber(words[0], number) || number > 100000))
    return {true, "\"" + words[0] + "\" is no number of events"};
  for (unsigned i = 0; i < number; ++i)
    happen(world);
  return {};
}

} // namespace

void addLifeCommands(Commands &commands)
{
  commands.add("offline", "rx|tx|swx DEVICE [SECONDS]", "take a device off line, for good or for so long", 2,
               3, offline);
  commands.add("online", "rx|tx|swx DEVICE", "bring a device that is off line up", 2, 2, online);
  commands.add("reset", "rx|tx|swx DEVICE [WORD]", "reset a device: cold_reboot or a factory_default", 2, 3,
               reset);
  commands.add("fail-update", "rx|tx|swx DEVICE [WORD]", "have a device's next firmware update fail", 2, 3,
               failUpdate);
  commands.add("alert", "KIND [EID [TEXT [TEXT]]]", "raise an alert, such as FanFault", 1, 4, alert);
  commands.add("enroll", "ADDRESS", "put the switch under the manager at that address", 1, 1,
               [](World &world, const Words &words) {
                 const Problem problem = enroll(world, words[0]);
                 return problem
                            ? Outcome{true, "not possible now (error " + std::to_string(problem.number) + ")"}
                            : Outcome{};
               });
  commands.add("liveliness", "NUMBER", "how much happens by itself; 0 is nothing", 1, 1, liveliness);
  commands.add("happen", "[COUNT]", "have the next events of the story happen now", 0, 1, happenOften);
}

} // namespace zelsim
