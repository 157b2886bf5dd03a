// SPDX-License-Identifier: MIT
#include "rules/Rule.h"

#include <charconv>

namespace zelsim
{

std::string Call::text(const char *parameter) const
{
  const json_t *value = json_object_get(params, parameter);
  return json_is_string(value) ? std::string(json_string_value(value), json_string_length(value))
                               : std::string();
}

std::int64_t Call::number(const char *parameter) const
{
  const json_t *value = json_object_get(params, parameter);
  if (!json_is_string(value))
    return json_integer_value(value);
  std::int64_t number = 0;
  const char *digits = json_string_value(value);
  std::from_chars(digits, digits + json_string_length(value), number);
  return number;
}

bool Call::flag(const char *parameter) const
{
  const json_t *value = json_object_get(params, parameter);
  std::string word = text(parameter);
  return json_is_true(value) || json_integer_value(value) != 0 || word == "enabled" || word == "is_true";
}

std::string Rules::key(std::string_view resource, Method method)
{
  return std::string(resource) + '#' + std::to_string(static_cast<int>(method));
}

std::string Rules::key(std::string_view resource, std::string_view parameter)
{
  return std::string(resource) + '/' + std::string(parameter);
}

void Rules::check(std::string_view resource, Method method, Check check)
{
  checks_[key(resource, method)].push_back(std::move(check));
}

void Rules::act(std::string_view resource, Method method, Action action)
{
  actions_[key(resource, method)].push_back(std::move(action));
}

void Rules::onParameter(std::string_view resource, std::string_view parameter, Action action)
{
  parameterActions_[key(resource, parameter)].push_back(std::move(action));
}

void Rules::read(std::string_view resource, std::string_view parameter, Reader reader)
{
  readers_[key(resource, parameter)] = std::move(reader);
}

Problem Rules::runChecks(World &world, const Call &call) const
{
  auto found = checks_.find(key(call.resource.name, call.method));
  if (found == checks_.end())
    return {};
  for (const Check &check : found->second)
    if (Problem problem = check(world, call))
      return problem;
  return {};
}

Problem Rules::runActions(World &world, Call &call) const
{
  auto found = actions_.find(key(call.resource.name, call.method));
  if (found == actions_.end())
    return {};
  for (const Action &action : found->second)
    if (Problem problem = action(world, call))
      return problem;
  return {};
}

Problem Rules::runParameterActions(World &world, Call &call) const
{
  // In the order of the catalogue, not of the request: what a request does can't hang on its order.
  for (std::size_t i = 0; i < call.resource.parameterCount; ++i) {
    const char *name = call.resource.parameters[i].name;
    if (!call.has(name))
      continue;
    auto found = parameterActions_.find(key(call.resource.name, std::string_view(name)));
    if (found == parameterActions_.end())
      continue;
    for (const Action &action : found->second)
      if (Problem problem = action(world, call))
        return problem;
  }
  return {};
}

const Rules::Reader *Rules::reader(std::string_view resource, std::string_view parameter) const
{
  auto found = readers_.find(key(resource, parameter));
  return found == readers_.end() ? nullptr : &found->second;
}

} // namespace zelsim
