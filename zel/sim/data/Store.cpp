// SPDX-License-Identifier: MIT
#include "data/Store.h"

#include "data/Journal.h"
#include "data/JsonText.h"

#include <algorithm>
#include <charconv>
#include <set>

namespace zelsim
{

namespace
{

// "changeStatus" has a record for each number that an interface may ask for.
constexpr unsigned kChangeCounters = 20;
constexpr const char *kChangeStatus = "changeStatus";
constexpr std::size_t kKeptUndo = 4096;
// Making a lookup costs about as much as so many searches.
constexpr unsigned kSearchesBeforeLookup = 8;
constexpr const char *kLastChange = "lastChange";

std::size_t positionOf(const Resource &resource)
{
  return static_cast<std::size_t>(&resource - kCatalogue);
}

Value defaultOf(const Parameter &parameter)
{
  std::string_view text = parameter.standard;
  switch (parameter.type) {
  case Type::Integer: {
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return Value::integer(number);
  }
  case Type::Boolean:
    return Value::boolean(text == "true");
  case Type::Object:
  case Type::List:
    return Value::nested(defaultJson(parameter));
  case Type::Text:
  case Type::Word:
  case Type::Binary:
    break;
  }
  return Value::text(text);
}

bool isKept(const Parameter &parameter)
{
  return (parameter.flags & (kVolatile | kComputed | kCommand)) == 0;
}

const Parameter *findParameter(std::string_view resource, std::string_view parameter)
{
  const Resource *found = findResource(resource);
  const int position = found ? found->position(parameter) : -1;
  return position < 0 ? nullptr : &found->parameters[position];
}

// The first `most` characters of a UTF-8 text.
std::string_view firstCharacters(std::string_view text, std::int64_t most)
{
  std::size_t end = 0;
  for (; end < text.size(); ++end)
    if ((text[end] & 0xc0) != 0x80 && most-- == 0)
      break;
  return text.substr(0, end);
}

// The value of a kept parameter, as bodyOf() wrote it; None for what it would not have written.
Value fromBody(const Parameter &parameter, const json_t *json)
{
  switch (parameter.type) {
  case Type::Integer:
    return json_is_integer(json) ? Value::integer(json_integer_value(json)) : Value();
  case Type::Boolean:
    return json_is_boolean(json) ? Value::boolean(json_is_true(json)) : Value();
  case Type::Object:
    return json_is_object(json) ? Value::nested(json) : Value();
  case Type::List:
    return json_is_array(json) ? Value::nested(json) : Value();
  case Type::Text:
  case Type::Word:
  case Type::Binary:
    break;
  }
  return json_is_string(json) ? Value::text({json_string_value(json), json_string_length(json)}) : Value();
}

} // namespace

Store::Store(std::unique_ptr<Journal> journal)
    : journal_(std::move(journal)), tables_(kCatalogueSize), defaults_(kCatalogueSize)
{
  for (std::size_t i = 0; i < kCatalogueSize; ++i)
    for (std::size_t k = 0; k < kCatalogue[i].parameterCount; ++k)
      defaults_[i].push_back(defaultOf(kCatalogue[i].parameters[k]));
}

Store::~Store() = default;

bool Store::load(std::string &problem)
{
  auto take = [this](std::string_view resource, unsigned index, std::string_view body) {
    wasEmpty_ = false;
    return loadRecord(resource, index, body);
  };
  if (journal_ && !journal_->load(take, problem))
    return false;
  makeStandingRecords();
  return true;
}

bool Store::loadRecord(std::string_view name, unsigned index, std::string_view body)
{
  const Resource *resource = findResource(name);
  // What an earlier catalogue knew and this one doesn't is left where it is.
  if (!resource)
    return true;
  Json json(json_loadb(body.data(), body.size(), 0, nullptr));
  if (!json_is_object(json.get()))
    return false;
  Record record;
  record.values.resize(resource->parameterCount);
  const char *key;
  json_t *value;
  json_object_foreach(json.get(), key, value)
  {
    int position = resource->position(key);
    if (position >= 0 && isKept(resource->parameters[position]))
      record.values[static_cast<std::size_t>(position)] = fromBody(resource->parameters[position], value);
  }
  table(*resource).records[index] = std::move(record);
  return true;
}

void Store::makeStandingRecords()
{
  for (std::size_t i = 0; i < kCatalogueSize; ++i)
    if (kCatalogue[i].single)
      tables_[i].records[0].values.resize(kCatalogue[i].parameterCount);
  if (const Resource *counters = findResource(kChangeStatus))
    for (unsigned id = 1; id <= kChangeCounters; ++id)
      table(*counters).records[id].values.resize(counters->parameterCount);
}

Store::Table &Store::table(const Resource &resource)
{
  return tables_[positionOf(resource)];
}

const Store::Table &Store::table(const Resource &resource) const
{
  return tables_[positionOf(resource)];
}

const Store::Records &Store::records(const Resource &resource) const
{
  return table(resource).records;
}

std::uint64_t Store::revision(const Resource &resource) const
{
  return table(resource).revision;
}

const Value &Store::value(const Resource &resource, const Record &record, int position) const
{
  const Value &value = record.values[static_cast<std::size_t>(position)];
  return value.isNone() ? defaults_[positionOf(resource)][static_cast<std::size_t>(position)] : value;
}

const Value *Store::value(const Resource &resource, unsigned index, int position) const
{
  const Records &all = records(resource);
  auto record = all.find(index);
  return record == all.end() ? nullptr : &value(resource, record->second, position);
}

const Value *Store::find(std::string_view resource, unsigned index, std::string_view parameter,
                         const Parameter **row) const
{
  const Resource *found = findResource(resource);
  int position = found ? found->position(parameter) : -1;
  if (position < 0)
    return nullptr;
  *row = &found->parameters[position];
  return value(*found, index, position);
}

bool Store::exists(std::string_view resource, unsigned index) const
{
  const Resource *found = findResource(resource);
  return found && records(*found).count(index) != 0;
}

std::size_t Store::count(std::string_view resource) const
{
  const Resource *found = findResource(resource);
  return found ? records(*found).size() : 0;
}

std::vector<unsigned> Store::indexes(std::string_view resource) const
{
  std::vector<unsigned> result;
  if (const Resource *found = findResource(resource))
    for (const auto &[index, record] : records(*found))
      result.push_back(index);
  return result;
}

std::string Store::text(std::string_view resource, unsigned index, std::string_view parameter) const
{
  const Parameter *row = nullptr;
  const Value *found = find(resource, index, parameter, &row);
  return found ? std::string(found->text()) : std::string();
}

std::int64_t Store::number(std::string_view resource, unsigned index, std::string_view parameter) const
{
  const Parameter *row = nullptr;
  const Value *found = find(resource, index, parameter, &row);
  return found ? found->number() : 0;
}

bool Store::flag(std::string_view resource, unsigned index, std::string_view parameter) const
{
  const Parameter *row = nullptr;
  const Value *found = find(resource, index, parameter, &row);
  return found &&
         (found->kind() == Value::Kind::Text ? found->text() == "enabled" || found->text() == "is_true"
                                             : found->number() != 0);
}

Json Store::nested(std::string_view resource, unsigned index, std::string_view parameter) const
{
  const Parameter *row = nullptr;
  const Value *found = find(resource, index, parameter, &row);
  if (!found || found->kind() != Value::Kind::Nested)
    return nullptr;
  return Json(json_loadb(found->text().data(), found->text().size(), 0, nullptr));
}

Store::Lookup *Store::lookup(const Resource &resource, int position) const
{
  const Table &rows = table(resource);
  Lookup &made = lookups_[{&resource, position}];
  if (made.revision != rows.revision) {
    made = Lookup();
    made.revision = rows.revision;
  }
  if (++made.searches < kSearchesBeforeLookup)
    return nullptr;
  if (made.searches == kSearchesBeforeLookup)
    for (const auto &[index, record] : rows.records) {
      const Value &present = value(resource, record, position);
      // The texts stay where they are for as long as the revision stands.
      made.texts.emplace(present.text(), index);
      made.numbers.emplace(present.number(), index);
    }
  return &made;
}

unsigned Store::findText(std::string_view resource, std::string_view parameter, std::string_view text) const
{
  const Resource *found = findResource(resource);
  int position = found ? found->position(parameter) : -1;
  if (position < 0)
    return 0;
  if (const Lookup *made = lookup(*found, position)) {
    const auto hit = made->texts.find(text);
    return hit == made->texts.end() ? 0 : hit->second;
  }
  for (const auto &[index, record] : records(*found))
    if (value(*found, record, position).text() == text)
      return index;
  return 0;
}

unsigned Store::findNumber(std::string_view resource, std::string_view parameter, std::int64_t number) const
{
  const Resource *found = findResource(resource);
  int position = found ? found->position(parameter) : -1;
  if (position < 0)
    return 0;
  if (const Lookup *made = lookup(*found, position)) {
    const auto hit = made->numbers.find(number);
    return hit == made->numbers.end() ? 0 : hit->second;
  }
  for (const auto &[index, record] : records(*found))
    if (value(*found, record, position).number() == number)
      return index;
  return 0;
}

void Store::set(const Resource &resource, unsigned index, int position, Value value)
{
  Records &all = table(resource).records;
  auto record = all.find(index);
  if (record == all.end() || position < 0)
    return;
  std::size_t at = static_cast<std::size_t>(position);
  if (value.isNone() || value == this->value(resource, record->second, position)) {
    if (!value.isNone() || record->second.values[at].isNone())
      return;
  }
  if (!value.isNone() && value == defaults_[positionOf(resource)][at])
    value = Value();
  std::swap(record->second.values[at], value);
  undo_.push_back(Undo{Undo::What::Set, &resource, index, position, std::move(value), {}});
  changed(resource, &resource.parameters[position]);
}

void Store::assign(std::string_view resource, unsigned index, std::string_view parameter, Value value)
{
  if (const Resource *found = findResource(resource))
    set(*found, index, found->position(parameter), std::move(value));
}

void Store::setText(std::string_view resource, unsigned index, std::string_view parameter,
                    std::string_view text)
{
  const Parameter *row = findParameter(resource, parameter);
  const bool isBounded = row && row->type == Type::Text && !row->is(kSecret);
  assign(resource, index, parameter, Value::text(isBounded ? firstCharacters(text, row->max) : text));
}

void Store::setNumber(std::string_view resource, unsigned index, std::string_view parameter,
                      std::int64_t number)
{
  const Parameter *row = findParameter(resource, parameter);
  const bool isBounded = row && row->type == Type::Integer;
  assign(resource, index, parameter,
         Value::integer(isBounded ? std::clamp(number, row->min, row->max) : number));
}

void Store::setFlag(std::string_view resource, unsigned index, std::string_view parameter, bool flag)
{
  assign(resource, index, parameter, Value::boolean(flag));
}

void Store::setNested(std::string_view resource, unsigned index, std::string_view parameter,
                      const json_t *json)
{
  assign(resource, index, parameter, Value::nested(json));
}

void Store::reset(std::string_view resource, unsigned index, const std::vector<std::string_view> &keep)
{
  const Resource *found = findResource(resource);
  if (!found)
    return;
  for (std::size_t i = 0; i < found->parameterCount; ++i)
    if (std::find(keep.begin(), keep.end(), found->parameters[i].name) == keep.end())
      set(*found, index, static_cast<int>(i), Value());
}

unsigned Store::create(std::string_view resource, unsigned index)
{
  const Resource *found = findResource(resource);
  if (!found)
    return 0;
  Records &all = table(*found).records;
  if (all.size() >= found->capacity || (index != 0 && all.count(index) != 0))
    return 0;
  if (index == 0) {
    index = 1;
    for (auto record = all.begin(); record != all.end() && record->first == index; ++record)
      ++index;
  }
  all[index].values.resize(found->parameterCount);
  undo_.push_back(Undo{Undo::What::Create, found, index, -1, {}, {}});
  changed(*found, nullptr);
  return index;
}

void Store::remove(std::string_view resource, unsigned index)
{
  const Resource *found = findResource(resource);
  if (!found)
    return;
  Records &all = table(*found).records;
  auto record = all.find(index);
  if (record == all.end())
    return;
  undo_.push_back(Undo{Undo::What::Remove, found, index, -1, {}, std::move(record->second)});
  all.erase(record);
  changed(*found, nullptr);
}

void Store::changed(const Resource &resource, const Parameter *parameter)
{
  ++table(resource).revision;
  if (parameter && parameter->is(kUncounted))
    return;
  for (std::uint8_t id : resource.changeIds)
    if (id != 0)
      touch(id);
}

void Store::touch(unsigned changeId)
{
  if (std::find(touched_.begin(), touched_.end(), changeId) != touched_.end())
    return;
  touched_.push_back(changeId);
  setNumber(kChangeStatus, changeId, kLastChange, number(kChangeStatus, changeId, kLastChange) + 1);
}

void Store::take(const Undo &undo)
{
  Table &rows = table(*undo.resource);
  switch (undo.what) {
  case Undo::What::Set:
    rows.records[undo.index].values[static_cast<std::size_t>(undo.position)] = undo.value;
    break;
  case Undo::What::Create:
    rows.records.erase(undo.index);
    break;
  case Undo::What::Remove:
    rows.records[undo.index] = undo.record;
    break;
  }
  // Forwards, too: an answer may have been built from what is taken back.
  ++rows.revision;
}

void Store::rollback(Mark mark)
{
  if (undo_.size() <= mark)
    return;
  while (undo_.size() > mark) {
    take(undo_.back());
    undo_.pop_back();
  }
  // A counter may just have gone back; the next change moves it again.
  touched_.clear();
}

std::string Store::bodyOf(const Resource &resource, const Record &record) const
{
  std::string body = "{";
  for (std::size_t i = 0; i < resource.parameterCount; ++i) {
    if (record.values[i].isNone() || !isKept(resource.parameters[i]))
      continue;
    appendJsonName(body, resource.parameters[i].name);
    appendJson(body, record.values[i]);
  }
  return body + '}';
}

bool Store::settle(std::string &problem)
{
  return !journal_ || journal_->checkpoint(problem);
}

bool Store::commit(std::string &problem)
{
  std::set<std::pair<const Resource *, unsigned>> dirty;
  for (const Undo &undo : undo_)
    if (undo.position < 0 || isKept(undo.resource->parameters[undo.position]))
      dirty.emplace(undo.resource, undo.index);
  std::vector<Journal::Change> changes;
  for (const auto &[resource, index] : dirty) {
    auto record = records(*resource).find(index);
    bool removed = record == records(*resource).end();
    changes.push_back({resource->name, index, removed, removed ? "" : bodyOf(*resource, record->second)});
  }
  if (journal_ && !changes.empty() && !journal_->write(changes, problem)) {
    rollback(0);
    return false;
  }
  // A new fleet writes a hundred thousand values before its first commit; nothing after it comes near that.
  if (undo_.capacity() > kKeptUndo)
    std::vector<Undo>().swap(undo_);
  undo_.clear();
  touched_.clear();
  return true;
}

} // namespace zelsim
