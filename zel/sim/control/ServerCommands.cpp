// SPDX-License-Identifier: MIT
#include "control/ServerCommands.h"

#include "control/FaultCommands.h"
#include "control/Names.h"
#include "data/JsonText.h"
#include "life/Jump.h"
#include "rules/ErrorText.h"
#include "rules/Validate.h"

namespace zelsim
{

namespace
{

using Words = std::vector<std::string>;

constexpr std::int64_t kLongestJump = 30LL * 24 * 3600;

// A parameter of a record by the words of a command.
struct Place {
  const Resource *resource = nullptr;
  unsigned index = 0;
  int position = -1;
};

// Fills `place`; the text says what is wrong, empty if nothing is.
std::string findPlace(const World &world, const Words &words, Place &place)
{
  place.resource = findResource(words[0]);
  if (!place.resource)
    return "unknown resource \"" + words[0] + "\"";
  std::string wrong;
  if (!findRecord(world, *place.resource, words[1], place.index, wrong))
    return wrong;
  if (words.size() < 3)
    return {};
  place.position = place.resource->position(words[2]);
  return place.position < 0 ? words[0] + " has no parameter \"" + words[2] + "\"" : std::string();
}

std::string shown(const World &world, const Place &place, int position)
{
  const Parameter &row = place.resource->parameters[position];
  if (row.is(kSecret))
    return "(secret)";
  Value value = *world.store.value(*place.resource, place.index, position);
  const Rules::Reader *reader =
      row.is(kComputed) ? world.rules.reader(place.resource->name, row.name) : nullptr;
  if (reader)
    value = (*reader)(world, place.index);
  if (value.kind() == Value::Kind::Text)
    return std::string(value.text());
  std::string out;
  appendJson(out, value);
  return out;
}

Outcome get(World &world, const Words &words)
{
  Place place;
  if (std::string wrong = findPlace(world, words, place); !wrong.empty())
    return {true, wrong};
  if (place.position >= 0)
    return {false, shown(world, place, place.position) + "\n"};
  std::string out;
  for (std::size_t i = 0; i < place.resource->parameterCount; ++i)
    out += std::string(place.resource->parameters[i].name) + " = " +
           shown(world, place, static_cast<int>(i)) + "\n";
  return {false, out};
}

Outcome set(World &world, const Words &words)
{
  Place place;
  if (std::string wrong = findPlace(world, words, place); !wrong.empty())
    return {true, wrong};
  // Whoever holds the control channel may write what clients may not.
  Parameter row = place.resource->parameters[place.position];
  row.flags &= ~(kReadOnly | kComputed);
  Json given;
  if (row.type == Type::Object || row.type == Type::List)
    given.reset(json_loadb(words[3].data(), words[3].size(), 0, nullptr));
  else
    given.reset(json_stringn(words[3].data(), words[3].size()));
  std::vector<Problem> problems;
  validate(row, given.get(), problems);
  if (!given || !problems.empty())
    return {true, "\"" + words[3] + "\" is not allowed: " +
                      describeProblem(problems.empty() ? Problem(kInvalidSyntax) : problems[0])};
  world.store.set(
      *place.resource, place.index, place.position,
      toValue(row, given.get(), *world.store.value(*place.resource, place.index, place.position)));
  return {};
}

Outcome listRecords(World &world, const Words &words)
{
  if (!findResource(words[0]))
    return {true, "unknown resource \"" + words[0] + "\""};
  std::string out;
  for (unsigned index : world.store.indexes(words[0]))
    out += std::to_string(index) + "\n";
  return {false, out};
}

Outcome jump(World &world, const Words &words)
{
  std::int64_t seconds = 0;
  if (!readNumber(words[0], seconds) || seconds < 0 || seconds > kLongestJump)
    return {true, "\"" + words[0] + "\" is no number of seconds up to " + std::to_string(kLongestJump)};
  jumpAhead(world, seconds * 1000);
  return {};
}

} // namespace

void addServerCommands(Commands &commands, Faults &faults)
{
  commands.add("get", "RESOURCE INDEX [PARAMETER]",
               "show a record or one parameter (index 0: the only record)", 2, 3, get);
  commands.add("set", "RESOURCE INDEX PARAMETER VALUE", "write a parameter, read-only ones as well", 4, 4,
               set);
  commands.add("list", "RESOURCE", "show the indexes of a resource's records", 1, 1, listRecords);
  commands.add("describe", "", "show all resources with types, limits and defaults", 0, 0,
               [](World &, const Words &) {
                 return Outcome{false, describeCatalogue()};
               });
  addFaultCommands(commands, faults);
  commands.add("jump", "SECONDS", "have happen now what would within so much time", 1, 1, jump);
  commands.add("quit", "", "end the store", 0, 0, [&faults](World &, const Words &) {
    faults.quit = true;
    return Outcome{};
  });
}

} // namespace zelsim
