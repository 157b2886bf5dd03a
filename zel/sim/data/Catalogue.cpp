// SPDX-License-Identifier: MIT
#include "data/Catalogue.h"

#include "data/JsonText.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace zelsim
{

namespace
{

void describeParameter(std::string &out, const Parameter &row, int indent);

void describeMembers(std::string &out, const Parameter *rows, std::size_t count, int indent)
{
  for (std::size_t i = 0; i < count; ++i)
    describeParameter(out, rows[i], indent);
}

std::string limitsOf(const Parameter &row)
{
  std::string range = std::to_string(row.min) + " to " + std::to_string(row.max);
  switch (row.type) {
  case Type::Text:
    return "text, " + range + " characters";
  case Type::Integer:
    return "integer, " + range;
  case Type::Boolean:
    return "boolean";
  case Type::Word:
    return std::string("word: ") + row.words;
  case Type::Object:
    return "object";
  case Type::List:
    return "list, at most " + std::to_string(row.max) + " entries";
  case Type::Binary:
    return "binary, " + range + " bytes";
  }
  return {};
}

struct FlagName {
  Flag flag;
  const char *name;
};

constexpr FlagName kFlagNames[] = {{kReadOnly, "read only"},
                                   {kUnique, "unique"},
                                   {kSecret, "never in an answer"},
                                   {kVolatile, "not kept over a restart"},
                                   {kRequired, "required by CREATE"},
                                   {kLookup, "finds the record"},
                                   {kCommand, "command"},
                                   {kComputed, "computed"},
                                   {kAlways, "in every answer"},
                                   {kUncounted, "moves no change counter"},
                                   {kFixed, "set by CREATE only"},
                                   {kSelected, "only in answers that select it"},
                                   {kArchived, "in settings archives"},
                                   {kSealed, "sealed in settings archives"}};

void describeParameter(std::string &out, const Parameter &row, int indent)
{
  out.append(static_cast<std::size_t>(indent), ' ');
  out += row.name;
  out += ": " + limitsOf(row);
  bool nested = row.type == Type::Object || row.type == Type::List;
  if (!nested && *row.standard)
    out += std::string("; default ") + row.standard;
  for (const FlagName &known : kFlagNames)
    if (row.is(known.flag))
      out += std::string("; ") + known.name;
  if (*row.about)
    out += std::string(" - ") + row.about;
  out += '\n';
  describeMembers(out, row.members, row.memberCount, indent + 2);
}

std::string methodsOf(const Resource &resource)
{
  std::string out;
  const std::pair<MethodBit, const char *> names[] = {
      {kGet, "GET"}, {kSet, "SET"}, {kCreate, "CREATE"}, {kDelete, "DELETE"}};
  for (const auto &[bit, name] : names)
    if (resource.methods & bit)
      out += (out.empty() ? "" : " ") + std::string(name);
  return out;
}

// Positions of a resource's parameters by name, built once.
using Positions = std::unordered_map<std::string_view, int>;

const std::unordered_map<const Resource *, Positions> &positions()
{
  static const auto all = [] {
    std::unordered_map<const Resource *, Positions> built;
    for (std::size_t i = 0; i < kCatalogueSize; ++i)
      for (std::size_t k = 0; k < kCatalogue[i].parameterCount; ++k)
        built[&kCatalogue[i]].emplace(kCatalogue[i].parameters[k].name, static_cast<int>(k));
    return built;
  }();
  return all;
}

void addNames(const Parameter *rows, std::size_t count, std::unordered_set<std::string_view> &names)
{
  for (std::size_t i = 0; i < count; ++i) {
    names.insert(rows[i].name);
    addNames(rows[i].members, rows[i].memberCount, names);
  }
}

} // namespace

int Resource::position(std::string_view parameter) const
{
  auto resource = positions().find(this);
  if (resource == positions().end())
    return -1;
  auto found = resource->second.find(parameter);
  return found == resource->second.end() ? -1 : found->second;
}

const Resource *findResource(std::string_view name)
{
  static const auto byName = [] {
    std::unordered_map<std::string_view, const Resource *> built;
    for (std::size_t i = 0; i < kCatalogueSize; ++i)
      built.emplace(kCatalogue[i].name, &kCatalogue[i]);
    return built;
  }();
  auto found = byName.find(name);
  return found == byName.end() ? nullptr : found->second;
}

const Parameter *findMember(const Parameter &parameter, std::string_view member)
{
  for (std::size_t i = 0; i < parameter.memberCount; ++i)
    if (member == parameter.members[i].name)
      return &parameter.members[i];
  return nullptr;
}

bool hasWord(const char *words, std::string_view word)
{
  std::string_view rest = words;
  while (!rest.empty()) {
    std::string_view next = rest.substr(0, rest.find(' '));
    if (next == word)
      return true;
    rest.remove_prefix(std::min(rest.size(), next.size() + 1));
  }
  return false;
}

std::string defaultJson(const Parameter &parameter)
{
  std::string out;
  switch (parameter.type) {
  case Type::Integer:
  case Type::Boolean:
  case Type::List:
    return parameter.standard;
  case Type::Text:
  case Type::Word:
  case Type::Binary:
    appendJsonText(out, parameter.standard);
    return out;
  case Type::Object:
    break;
  }
  if (std::string_view(parameter.standard) != "{}")
    return parameter.standard;
  out = "{";
  for (std::size_t i = 0; i < parameter.memberCount; ++i) {
    const Parameter &member = parameter.members[i];
    if (member.is(kSecret) || member.is(kCommand))
      continue;
    appendJsonName(out, member.name);
    out += defaultJson(member);
  }
  return out + '}';
}

bool hasSecrets(const Parameter &parameter)
{
  for (std::size_t i = 0; i < parameter.memberCount; ++i)
    if (parameter.members[i].is(kSecret) || hasSecrets(parameter.members[i]))
      return true;
  return false;
}

bool isDataName(std::string_view name)
{
  static const auto all = [] {
    std::unordered_set<std::string_view> names = {"index"};
    for (std::size_t i = 0; i < kCatalogueSize; ++i)
      if (kCatalogue[i].methods != 0)
        addNames(kCatalogue[i].parameters, kCatalogue[i].parameterCount, names);
    return names;
  }();
  return all.count(name) != 0;
}

std::string describeResource(const Resource &resource)
{
  std::string out = std::string(resource.name) + " (" + methodsOf(resource) + "; ";
  out += resource.single ? "one record" : "at most " + std::to_string(resource.capacity) + " records";
  for (const std::uint8_t id : resource.changeIds)
    if (id != 0)
      out += "; change number " + std::to_string(id);
  out += std::string(")") + (*resource.about ? " - " : "") + resource.about + '\n';
  describeMembers(out, resource.parameters, resource.parameterCount, 2);
  return out;
}

std::string describeCatalogue()
{
  std::string out;
  for (std::size_t i = 0; i < kCatalogueSize; ++i)
    out += describeResource(kCatalogue[i]) + '\n';
  return out;
}

} // namespace zelsim
