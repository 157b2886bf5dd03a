// SPDX-License-Identifier: MIT
#include "server/Writer.h"

#include "data/JsonText.h"
#include "rules/Validate.h"

#include <charconv>

namespace zelsim
{

namespace
{

// An index as a client may write it; false for anything that can be none.
bool readIndex(const json_t *value, unsigned &index)
{
  json_int_t number = json_integer_value(value);
  if (json_is_string(value)) {
    std::string_view digits(json_string_value(value), json_string_length(value));
    auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size())
      return false;
  } else if (!json_is_integer(value)) {
    return false;
  }
  index = static_cast<unsigned>(number);
  return number >= 0 && number <= 0xffffffff;
}

// The request's params as those of the whole record: without "index", and wrapped in the objects of the
// path that the request names.
Json recordParams(const Request &request)
{
  Json params(request.params ? json_copy(const_cast<json_t *>(request.params)) : json_object());
  json_object_del(params.get(), "index");
  for (auto step = request.path.rbegin(); step != request.path.rend(); ++step) {
    Json outer(json_object());
    json_object_set_new(outer.get(), (*step)->name, params.release());
    params = std::move(outer);
  }
  return params;
}

} // namespace

void keepKnownDetails(std::vector<Problem> &problems)
{
  for (Problem &problem : problems)
    if (!isDataName(problem.detail))
      problem.detail.clear();
}

void appendErrors(std::string &out, const std::vector<Problem> &problems)
{
  out += "{\"errors\":[";
  for (const Problem &problem : problems) {
    if (out.back() == '}')
      out += ',';
    out += "{\"errno\":" + std::to_string(problem.number);
    if (!problem.detail.empty()) {
      out += ",\"detail\":";
      appendJsonText(out, problem.detail);
    }
    out += '}';
  }
  out += "]}";
}

std::vector<Problem> Writer::findRecord(const Request &request, const json_t *params, unsigned &index) const
{
  const Resource &resource = *request.resource;
  index = 0;
  const json_t *given = json_object_get(request.params, "index");
  if (!given)
    given = json_object_get(request.query, "index");
  if (given && !readIndex(given, index))
    return {{kInvalidFormat, "index"}};
  if (resource.single || (request.method == Method::Create)) {
    index = resource.single ? 0 : index;
    return {};
  }
  if (given)
    return world_.store.exists(resource.name, index) ? std::vector<Problem>{}
                                                     : std::vector<Problem>{kNotFound};
  for (std::size_t i = 0; i < resource.parameterCount; ++i) {
    const Parameter &row = resource.parameters[i];
    const char *key = row.is(kLookup) ? json_string_value(json_object_get(params, row.name)) : nullptr;
    if (!key)
      continue;
    index = world_.store.findText(resource.name, row.name, key);
    return index != 0 ? std::vector<Problem>{} : std::vector<Problem>{kNotFound};
  }
  return {kMissingKey};
}

Problem Writer::checkUnique(const Resource &resource, int position, const json_t *given, unsigned index) const
{
  const Parameter &row = resource.parameters[position];
  if (!row.is(kUnique))
    return {};
  Value wanted = toValue(row, given, Value());
  if (wanted.kind() == Value::Kind::Text && wanted.text().empty())
    return {};
  for (const auto &[other, record] : world_.store.records(resource))
    if (other != index && world_.store.value(resource, record, position) == wanted)
      return {kNotUnique, row.name};
  return {};
}

std::vector<Problem> Writer::validateParams(const Request &request, const json_t *params,
                                            unsigned index) const
{
  const Resource &resource = *request.resource;
  std::vector<Problem> problems;
  const char *name;
  json_t *given;
  json_object_foreach(const_cast<json_t *>(params), name, given)
  {
    int position = resource.position(name);
    if (position < 0) {
      problems.emplace_back(kUnknownParameter, name);
      continue;
    }
    const Parameter &row = resource.parameters[position];
    // A key that found its record stands in the request as what it is.
    if (index != 0 && row.is(kLookup) && json_is_string(given) &&
        world_.store.value(resource, index, position)->text() == json_string_value(given))
      continue;
    std::size_t before = problems.size();
    if (row.is(kFixed) && request.method == Method::Set)
      problems.emplace_back(kInvalidParameter, name);
    else
      validate(row, given, problems);
    if (Problem unique = problems.size() == before ? checkUnique(resource, position, given, index) : kOk)
      problems.push_back(unique);
  }
  for (std::size_t i = 0; request.method == Method::Create && i < resource.parameterCount; ++i)
    if (resource.parameters[i].is(kRequired) && !json_object_get(params, resource.parameters[i].name))
      problems.emplace_back(kMissingParameter, resource.parameters[i].name);
  return problems;
}

void Writer::storeParams(const Call &call)
{
  for (std::size_t i = 0; i < call.resource.parameterCount; ++i) {
    const Parameter &row = call.resource.parameters[i];
    const json_t *given = json_object_get(call.params, row.name);
    if (!given || row.is(kCommand) || row.is(kReadOnly) || row.is(kComputed))
      continue;
    int position = static_cast<int>(i);
    Value value = toValue(row, given, *world_.store.value(call.resource, call.index, position));
    world_.store.set(call.resource, call.index, position, std::move(value));
  }
}

Problem Writer::setRecord(Call &call)
{
  if (Problem problem = world_.rules.runChecks(world_, call))
    return problem;
  storeParams(call);
  if (Problem problem = world_.rules.runParameterActions(world_, call))
    return problem;
  return world_.rules.runActions(world_, call);
}

Problem Writer::createRecord(Call &call, unsigned wantedIndex)
{
  // A check may make room.
  if (Problem problem = world_.rules.runChecks(world_, call))
    return problem;
  if (world_.store.count(call.resource.name) >= call.resource.capacity)
    return kCapacityReached;
  call.index = world_.store.create(call.resource.name, wantedIndex);
  if (call.index == 0)
    return {kNotUnique, "index"};
  json_object_set_new(call.answer, "index", json_integer(call.index));
  storeParams(call);
  if (Problem problem = world_.rules.runParameterActions(world_, call))
    return problem;
  return world_.rules.runActions(world_, call);
}

Problem Writer::deleteRecord(Call &call)
{
  if (Problem problem = world_.rules.runChecks(world_, call))
    return problem;
  if (Problem problem = world_.rules.runActions(world_, call))
    return problem;
  world_.store.remove(call.resource.name, call.index);
  return {};
}

std::vector<Problem> Writer::carryOut(const Request &request, std::uint64_t client, std::string &out,
                                      int &delayMs)
{
  if (!request.params && request.method != Method::Delete)
    return {kMissingParameter};
  Json params = recordParams(request);
  Json answer(json_object());
  unsigned index = 0;
  if (std::vector<Problem> problems = findRecord(request, params.get(), index); !problems.empty())
    return problems;
  if (request.method != Method::Delete) {
    unsigned present = request.method == Method::Set ? index : 0;
    if (std::vector<Problem> problems = validateParams(request, params.get(), present); !problems.empty())
      return problems;
  }
  Call call{request.method, *request.resource, index, params.get(), answer.get(), client, 0};
  Store::Mark mark = world_.store.mark();
  Problem problem;
  if (request.method == Method::Create) {
    call.index = 0;
    problem = createRecord(call, index);
  } else {
    problem = request.method == Method::Set ? setRecord(call) : deleteRecord(call);
  }
  delayMs += call.takesMs;
  if (problem) {
    world_.store.rollback(mark);
    return {problem};
  }
  out += "{\"data\":";
  appendJson(out, Value::nested(answer.get()));
  out += '}';
  return {};
}

} // namespace zelsim
