// SPDX-License-Identifier: MIT
#include "control/ServerCommands.h"

#include "control/FaultCommands.h"
#include "control/Names.h"
#include "control/SessionCommands.h"
#include "data/JsonText.h"
#include "life/Jump.h"
#include "rules/ErrorText.h"
#include "rules/Validate.h"

#include <algorithm>

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
  Parameter row = place.resource->parameters[place.position];
  if (row.is(kComputed) || row.is(kCommand))
    return {true, std::string(row.name) + (row.is(kComputed) ? " is computed: nothing keeps a value of it"
                                                             : " is a command: only a client can give it")};
  // Whoever holds the control channel may write what clients may not.
  row.flags &= ~kReadOnly;
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
  // Of these, something would follow.
  constexpr char kStates[] = "status usage cascadeRole cascadeController managedSetting monitor attachedSwx";
  if (hasWord(kStates, words[2]))
    return {false, "Only the word was written. For a state with all that follows from it, see state, usage, "
                   "plug, monitor, cascade and manager.\n"};
  return {};
}

// Rows of texts in columns; the first column is of numbers.
std::string columnsOf(const std::vector<Words> &rows)
{
  std::vector<std::size_t> widths;
  for (const Words &row : rows)
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths.resize(std::max(widths.size(), i + 1));
      widths[i] = std::max(widths[i], row[i].size());
    }
  std::string out;
  for (const Words &row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      line += row[i];
      if (i + 1 < row.size())
        line.append(widths[i] - row[i].size() + 2, ' ');
    }
    out += line + '\n';
  }
  return out;
}

Outcome listColumns(const World &world, const Resource &resource, const Words &parameters)
{
  std::vector<Words> rows = {{"index"}};
  std::vector<int> positions;
  for (const std::string &name : parameters) {
    positions.push_back(resource.position(name));
    if (positions.back() < 0)
      return {true, std::string(resource.name) + " has no parameter \"" + name + "\""};
    rows[0].push_back(name);
  }
  for (const auto &[index, record] : world.store.records(resource)) {
    Words row = {std::to_string(index)};
    for (const int position : positions)
      row.push_back(shown(world, {&resource, index, position}, position));
    rows.push_back(row);
  }
  return {false, columnsOf(rows)};
}

Outcome listRecords(World &world, const Words &words)
{
  const Resource *resource = findResource(words[0]);
  if (!resource)
    return {true, "unknown resource \"" + words[0] + "\""};
  if (words.size() > 1)
    return listColumns(world, *resource, Words(words.begin() + 1, words.end()));
  std::string out;
  for (unsigned index : world.store.indexes(words[0]))
    out += std::to_string(index) + "\n";
  return {false, out};
}

// What tells the records of a resource apart at a glance.
Outcome table(World &world, const Words &words)
{
  const Resource *resource = findResource(words[0]);
  if (!resource)
    return {true, "unknown resource \"" + words[0] + "\""};
  Words telling;
  for (const char *name :
       {"eid", "name", "fullName", "username", "userIndex", "rxIndex", "txIndex", "mode", "status", "usage",
        "firmwareVersion", "location", "severity", "alertMsg", "filename"})
    if (resource->position(name) >= 0)
      telling.emplace_back(name);
  return listColumns(world, *resource, telling);
}

Outcome describe(const Words &words)
{
  if (words.empty())
    return {false, describeCatalogue()};
  const Resource *resource = findResource(words[0]);
  return resource ? Outcome{false, describeResource(*resource)}
                  : Outcome{true, "unknown resource \"" + words[0] + "\""};
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
  commands.add("get", "RESOURCE RECORD [PARAMETER]",
               "show a record or one parameter (record 0: the only one)", 2, 3, get);
  commands.add("set", "RESOURCE RECORD PARAMETER VALUE",
               "write a parameter, read-only ones as well; what follows from it elsewhere does not happen", 4,
               4, set);
  commands.add("list", "RESOURCE [PARAMETER...]",
               "show the records: their indexes, or a column for each parameter", 1, 64, listRecords);
  commands.add("table", "RESOURCE", "show the records with what tells them apart", 1, 1, table);
  commands.add("describe", "[RESOURCE]", "show types, limits and defaults of one resource or all", 0, 1,
               [](World &, const Words &words) { return describe(words); });
  addSessionCommands(commands);
  addFaultCommands(commands, faults);
  commands.add("jump", "SECONDS", "have happen now what would within so much time", 1, 1, jump);
  commands.add("quit", "", "end the store", 0, 0, [&faults](World &, const Words &) {
    faults.quit = true;
    return Outcome{};
  });
}

} // namespace zelsim
