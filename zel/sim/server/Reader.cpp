// SPDX-License-Identifier: MIT
#include "server/Reader.h"

#include "data/JsonText.h"
#include "server/Publisher.h"

#include <algorithm>
#include <random>
#include <unordered_set>

namespace zelsim
{

namespace
{

// Shorter answers are as quick to send as to call unchanged.
constexpr std::size_t kShortestTagged = 512;

// Leaves out the secret members of a nested value.
void stripSecrets(const Parameter &parameter, json_t *value)
{
  if (json_is_array(value))
    for (std::size_t i = 0; i < json_array_size(value); ++i)
      for (std::size_t k = 0; k < parameter.memberCount; ++k) {
        json_t *entry = json_array_get(value, i);
        if (parameter.members[k].is(kSecret))
          json_object_del(entry, parameter.members[k].name);
      }
  for (std::size_t k = 0; json_is_object(value) && k < parameter.memberCount; ++k) {
    const Parameter &member = parameter.members[k];
    if (member.is(kSecret))
      json_object_del(value, member.name);
    else
      stripSecrets(member, json_object_get(value, member.name));
  }
}

Json parse(std::string_view text)
{
  return Json(json_loadb(text.data(), text.size(), JSON_DECODE_ANY, nullptr));
}

// What a query wants of one parameter: a value, or one of a list of values.
class Wanted
{
public:
  Wanted(int position, const json_t *wanted) : position_(position)
  {
    if (!json_is_array(wanted))
      add(wanted);
    for (std::size_t i = 0; i < json_array_size(wanted); ++i)
      add(json_array_get(wanted, i));
  }

  int position() const { return position_; }

  bool holds(const Value &value) const
  {
    return (!texts_.empty() && texts_.count(value.text()) != 0) ||
           (!flags_.empty() && flags_.count(value.number()) != 0) ||
           (!numbers_.empty() && value.kind() == Value::Kind::Integer && numbers_.count(value.number()) != 0);
  }

private:
  void add(const json_t *wanted)
  {
    if (json_is_string(wanted))
      texts_.emplace(json_string_value(wanted), json_string_length(wanted));
    else if (json_is_boolean(wanted))
      flags_.insert(json_is_true(wanted) ? 1 : 0);
    else if (json_is_integer(wanted))
      numbers_.insert(json_integer_value(wanted));
  }

  int position_; // of the parameter; -1 is "index"
  std::unordered_set<std::string_view> texts_;
  std::unordered_set<std::int64_t> numbers_;
  std::unordered_set<std::int64_t> flags_;
};

// The records that a list of indexes names, ascending and each once.
std::vector<unsigned> namedRecords(const Store::Records &records, const json_t *indexes)
{
  std::vector<unsigned> rows;
  for (std::size_t i = 0; i < json_array_size(indexes); ++i) {
    const json_int_t number = json_integer_value(json_array_get(indexes, i));
    const auto record = records.find(static_cast<unsigned>(number));
    if (json_is_integer(json_array_get(indexes, i)) && record != records.end() && record->first == number)
      rows.push_back(record->first);
  }
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

} // namespace

Reader::Reader(const World &world) : world_(world)
{
  std::random_device device;
  run_ = std::uint64_t{device()} << 32 | device() | 1;
}

std::string Reader::tagOf(const Resource &resource) const
{
  return std::to_string(run_) + '.' + std::to_string(world_.store.revision(resource));
}

Problem Reader::chooseColumns(const Request &request, Columns &columns) const
{
  const Resource &resource = *request.resource;
  auto add = [&](int position) {
    auto same = [position](const Column &column) { return column.position == position; };
    if (std::any_of(columns.begin(), columns.end(), same))
      return;
    Column column{position, nullptr, false};
    if (position >= 0) {
      const Parameter &row = resource.parameters[position];
      if (row.is(kSecret) || row.is(kCommand))
        return;
      column.hasSecrets = hasSecrets(row);
      if (row.is(kComputed))
        column.computed = world_.rules.reader(resource.name, row.name);
    }
    columns.push_back(column);
  };
  for (std::size_t i = 0; i < json_array_size(request.select); ++i) {
    std::string_view name = json_string_value(json_array_get(request.select, i));
    int position = resource.position(name);
    if (position < 0 && name != "index")
      return {kUnknownParameter, std::string(name)};
    add(position);
  }
  bool all = json_array_size(request.select) == 0;
  if (all && !resource.single)
    add(-1);
  for (std::size_t i = 0; i < resource.parameterCount; ++i)
    if ((all && !resource.parameters[i].is(kSelected)) || resource.parameters[i].is(kAlways))
      add(static_cast<int>(i));
  return {};
}

Problem Reader::chooseRows(const Request &request, std::vector<unsigned> &rows, bool &single) const
{
  const Resource &resource = *request.resource;
  const Store::Records &records = world_.store.records(resource);
  single = resource.single;
  if (resource.single) {
    rows.push_back(0);
    return {};
  }
  std::vector<Wanted> wants;
  const char *name;
  json_t *wanted;
  json_object_foreach(const_cast<json_t *>(request.query), name, wanted)
  {
    if (resource.position(name) < 0 && std::string_view(name) != "index")
      return {kUnknownParameter, name};
    wants.emplace_back(resource.position(name), wanted);
  }
  const json_t *index = json_object_get(request.query, "index");
  if (json_is_integer(index) && json_object_size(request.query) == 1) {
    single = true;
    auto record = records.find(static_cast<unsigned>(json_integer_value(index)));
    if (record == records.end() || record->first != json_integer_value(index))
      return kNoEntries;
    rows.push_back(record->first);
    return {};
  }
  if (json_is_array(index) && wants.size() == 1) {
    rows = namedRecords(records, index);
    return rows.empty() ? kNoEntries : kOk;
  }
  for (const auto &[number, record] : records) {
    const auto fits = [&, number = number, &record = record](const Wanted &want) {
      return want.position() < 0 ? want.holds(Value::integer(number))
                                 : want.holds(world_.store.value(resource, record, want.position()));
    };
    if (std::all_of(wants.begin(), wants.end(), fits))
      rows.push_back(number);
  }
  // A key that finds one record is as good as its index.
  single = rows.size() == 1 && json_object_size(request.query) > 0 && !json_is_array(index);
  return rows.empty() ? kNoEntries : kOk;
}

void Reader::appendRow(std::string &out, const Request &request, const Columns &columns, unsigned index) const
{
  const Resource &resource = *request.resource;
  const Store::Record &record = world_.store.records(resource).find(index)->second;
  out += '{';
  for (const Column &column : columns) {
    appendJsonName(out, column.position < 0 ? "index" : resource.parameters[column.position].name);
    if (column.position < 0) {
      appendJson(out, Value::integer(index));
    } else if (column.computed) {
      appendJson(out, (*column.computed)(world_, index));
    } else if (column.hasSecrets) {
      Json value = parse(world_.store.value(resource, record, column.position).text());
      stripSecrets(resource.parameters[column.position], value.get());
      appendJson(out, Value::nested(value.get()));
    } else {
      appendJson(out, world_.store.value(resource, record, column.position));
    }
  }
  out += '}';
}

Problem Reader::checkNestedSelect(const Request &request) const
{
  for (std::size_t i = 0; i < json_array_size(request.select); ++i) {
    std::string_view name = json_string_value(json_array_get(request.select, i));
    if (!findMember(*request.path.back(), name) && name != "index")
      return {kUnknownParameter, std::string(name)};
  }
  return {};
}

void Reader::appendNested(std::string &out, const Request &request, unsigned index) const
{
  const Resource &resource = *request.resource;
  Json whole = parse(world_.store.value(resource, index, resource.position(request.path[0]->name))->text());
  stripSecrets(*request.path[0], whole.get());
  const json_t *inner = whole.get();
  for (std::size_t i = 1; i < request.path.size(); ++i)
    inner = json_object_get(inner, request.path[i]->name);
  Json row(json_object());
  if (!resource.single)
    json_object_set_new(row.get(), "index", json_integer(index));
  const char *name;
  json_t *value;
  json_object_foreach(const_cast<json_t *>(inner), name, value)
  {
    auto isName = [&](std::size_t i) {
      return !std::strcmp(json_string_value(json_array_get(request.select, i)), name);
    };
    bool wanted = json_array_size(request.select) == 0;
    for (std::size_t i = 0; i < json_array_size(request.select); ++i)
      wanted = wanted || isName(i);
    if (wanted)
      json_object_set(row.get(), name, value);
  }
  appendJson(out, Value::nested(row.get()));
}

Problem Reader::answer(const Request &request, std::string &out) const
{
  Columns columns;
  std::vector<unsigned> rows;
  bool single = false;
  if (Problem problem = request.path.empty() ? chooseColumns(request, columns) : checkNestedSelect(request))
    return problem;
  bool repeatable = std::none_of(columns.begin(), columns.end(), [](const Column &c) { return c.computed; });
  std::string tag = tagOf(*request.resource);
  if (repeatable && request.have == tag) {
    out += "{\"unchanged\":true}";
    return {};
  }
  if (Problem problem = chooseRows(request, rows, single))
    return problem;
  std::size_t before = out.size();
  out += single ? "{\"data\":" : "{\"data\":[";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i > 0)
      out += ',';
    if (request.path.empty())
      appendRow(out, request, columns, rows[i]);
    else
      appendNested(out, request, rows[i]);
  }
  if (!single)
    out += ']';
  if (repeatable) {
    const bool isShort = out.size() - before < kShortestTagged;
    out += ",\"epoch\":[" + std::to_string(Publisher::slotOf(*request.resource)) + ',' +
           std::to_string(world_.store.revision(*request.resource)) + ']';
    if (!isShort)
      out += ",\"tag\":\"" + tag + '"';
  }
  out += '}';
  return {};
}

} // namespace zelsim
