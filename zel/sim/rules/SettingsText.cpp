// SPDX-License-Identifier: MIT
#include "rules/SettingsText.h"

#include "Base64.h"
#include "data/JsonText.h"
#include "rules/SealedBox.h"
#include "rules/Validate.h"

#include <charconv>
#include <cstring>
#include <malloc.h>
#include <string_view>
#include <vector>

namespace zelsim
{

namespace
{

constexpr char kFormatName[] = "switch settings";
constexpr int kFormatVersion = 1;

// How a resource's records are written and found again.
enum class Manner { Single, Whole, ByEid };

struct Section {
  const char *resource;
  Manner manner;
};

constexpr Section kSections[] = {
    {"systemGlobals", Manner::Single},
    {"cfgDefaults", Manner::Single},
    {"eventLogControl", Manner::Single},
    {"alertLogControl", Manner::Single},
    {"user", Manner::Whole},
    {"userTargetList", Manner::Whole},
    {"edid", Manner::Whole},
    {"upgrade", Manner::Whole},
    {"rx", Manner::ByEid},
    {"tx", Manner::ByEid},
    {"swx", Manner::ByEid},
};

const Section *sectionOf(const char *resource)
{
  for (const Section &section : kSections)
    if (std::strcmp(section.resource, resource) == 0)
      return &section;
  return nullptr;
}

// Whether a parameter is part of the settings. Whole records need all that is kept of them.
bool isSetting(const Parameter &row, Manner manner)
{
  const unsigned never = kVolatile | kComputed | kCommand;
  return (row.flags & never) == 0 && (manner == Manner::Whole || row.is(kArchived) || !row.is(kReadOnly)) &&
         std::strcmp(row.name, "upgradeIndex") != 0;
}

// The row without what stands between clients and the value: hashed secrets are kept as they are.
Parameter plainRow(const Parameter &row)
{
  Parameter plain = row;
  plain.flags = 0;
  if (row.is(kSecret) || row.is(kSealed))
    plain.max = 1024;
  return plain;
}

// What stands before a value that only this switch can read.
constexpr std::string_view kSealMark = "sealed:";

std::string sealedText(const World &world, std::string_view plain)
{
  if (plain.empty())
    return {};
  const std::string box = sealBox(std::string(plain), world.store.text("systemGlobals", 0, "settingsKey"), 1);
  return box.empty() ? std::string() : std::string(kSealMark) + zelwire::encodeBase64(box.data(), box.size());
}

// Empty if another switch sealed it: whoever needs it has to type it again.
std::string openedText(const World &world, std::string_view text)
{
  if (text.substr(0, kSealMark.size()) != kSealMark)
    return std::string(text);
  bool isBase64 = false;
  const std::string box = zelwire::decodeBase64(text.substr(kSealMark.size()), isBase64);
  std::string plain;
  return isBase64 && openBox(box, world.store.text("systemGlobals", 0, "settingsKey"), plain, 1)
             ? plain
             : std::string();
}

std::string recordText(const World &world, const Resource &resource, unsigned index, Manner manner)
{
  std::string text = "{";
  const Store::Record &record = world.store.records(resource).find(index)->second;
  for (std::size_t i = 0; i < resource.parameterCount; ++i) {
    if (!isSetting(resource.parameters[i], manner))
      continue;
    const Value &value = world.store.value(resource, record, static_cast<int>(i));
    appendJsonName(text, resource.parameters[i].name);
    if (resource.parameters[i].is(kSealed))
      appendJsonText(text, sealedText(world, value.text()));
    else
      appendJson(text, value);
  }
  return text + '}';
}

std::string keyOf(const World &world, const Section &section, unsigned index)
{
  return section.manner == Manner::ByEid ? world.store.text(section.resource, index, "eid")
                                         : std::to_string(index);
}

unsigned indexOf(const World &world, const Section &section, const char *key)
{
  if (section.manner == Manner::ByEid)
    return world.store.findText(section.resource, "eid", key);
  unsigned index = 0;
  std::from_chars(key, key + std::strlen(key), index);
  return index;
}

bool isIndex(const char *key)
{
  unsigned index = 0;
  const auto parsed = std::from_chars(key, key + std::strlen(key), index);
  return parsed.ec == std::errc() && *parsed.ptr == '\0';
}

// Nested secrets are longer than what a person may type.
Json withoutSecrets(const Parameter &row, const json_t *value)
{
  Json copy(json_deep_copy(value));
  for (std::size_t i = 0; i < row.memberCount; ++i)
    if (row.members[i].is(kSecret) || row.members[i].is(kReadOnly))
      json_object_del(copy.get(), row.members[i].name);
    else if (row.members[i].type == Type::Object)
      json_object_set_new(
          copy.get(), row.members[i].name,
          withoutSecrets(row.members[i], json_object_get(copy.get(), row.members[i].name)).release());
  return copy;
}

bool isGoodValue(const Parameter &row, const json_t *value)
{
  std::vector<Problem> problems;
  if (row.type == Type::Object)
    validate(plainRow(row), withoutSecrets(row, value).get(), problems);
  else
    validate(plainRow(row), value, problems);
  return problems.empty();
}

bool isGoodRecord(const Resource &resource, Manner manner, json_t *record)
{
  const char *name = nullptr;
  json_t *value = nullptr;
  json_object_foreach(record, name, value)
  {
    const int position = resource.position(name);
    if (position < 0 || !isSetting(resource.parameters[position], manner) ||
        !isGoodValue(resource.parameters[position], value))
      return false;
  }
  return json_is_object(record);
}

bool isGoodSection(const char *name, json_t *records)
{
  const Section *section = sectionOf(name);
  const Resource *resource = findResource(name);
  if (!section || !resource || !json_is_object(records) || json_object_size(records) > resource->capacity)
    return false;
  const char *key = nullptr;
  json_t *record = nullptr;
  json_object_foreach(records, key, record)
  {
    if ((section->manner != Manner::ByEid && !isIndex(key)) ||
        !isGoodRecord(*resource, section->manner, record))
      return false;
  }
  return true;
}

std::string_view wordIn(const json_t *record, const char *name)
{
  const char *word = json_string_value(json_object_get(record, name));
  return word ? word : "";
}

bool hasAdministrator(json_t *users)
{
  const char *key = nullptr;
  json_t *record = nullptr;
  json_object_foreach(users, key, record)
  {
    if (wordIn(record, "role") == "admin" && wordIn(record, "accountEnable") == "enabled")
      return true;
  }
  return false;
}

void removeAll(World &world, const char *resource)
{
  for (const unsigned index : world.store.indexes(resource))
    world.store.remove(resource, index);
}

void installRecord(World &world, const Resource &resource, Manner manner, unsigned index,
                   const json_t *record)
{
  for (std::size_t i = 0; i < resource.parameterCount; ++i) {
    const Parameter &row = resource.parameters[i];
    const json_t *value = json_object_get(record, row.name);
    if (!value || !isSetting(row, manner))
      continue;
    if (row.is(kSealed)) {
      world.store.setText(resource.name, index, row.name, openedText(world, wordIn(record, row.name)));
      continue;
    }
    const bool isNested = row.type == Type::Object || row.type == Type::List;
    world.store.set(resource, index, static_cast<int>(i),
                    isNested ? Value::nested(value) : toValue(plainRow(row), value, Value()));
  }
}

void installSection(World &world, const Section &section, json_t *records)
{
  const Resource &resource = *findResource(section.resource);
  if (section.manner == Manner::Whole)
    removeAll(world, section.resource);
  const char *key = nullptr;
  json_t *record = nullptr;
  json_object_foreach(records, key, record)
  {
    const unsigned index = indexOf(world, section, key);
    if (section.manner == Manner::Whole)
      world.store.create(section.resource, index);
    installRecord(world, resource, section.manner, index, record);
  }
}

Json parsed(const std::string &text)
{
  return Json(json_loadb(text.data(), text.size(), JSON_REJECT_DUPLICATES, nullptr));
}

} // namespace

std::string settingsText(const World &world)
{
  std::string text = "{";
  appendJsonName(text, "format");
  appendJsonText(text, kFormatName);
  text += ",\"version\":" + std::to_string(kFormatVersion) + ",\"resources\":{";
  for (const Section &section : kSections) {
    const Resource &resource = *findResource(section.resource);
    appendJsonName(text, section.resource);
    text += '{';
    for (const auto &entry : world.store.records(resource)) {
      appendJsonName(text, keyOf(world, section, entry.first));
      text += recordText(world, resource, entry.first, section.manner);
    }
    text += '}';
  }
  return text + "}}";
}

bool isSettingsText(const std::string &text)
{
  const Json settings = parsed(text);
  json_t *resources = json_object_get(settings.get(), "resources");
  if (wordIn(settings.get(), "format") != kFormatName ||
      json_integer_value(json_object_get(settings.get(), "version")) != kFormatVersion ||
      !json_is_object(resources))
    return false;
  const char *name = nullptr;
  json_t *records = nullptr;
  json_object_foreach(resources, name, records)
  {
    if (!isGoodSection(name, records))
      return false;
  }
  return hasAdministrator(json_object_get(resources, "user"));
}

void installSettings(World &world, const std::string &text)
{
  const Json settings = parsed(text);
  const json_t *resources = json_object_get(settings.get(), "resources");
  for (const char *sessions : {"connection", "userSession", "adminSession"})
    removeAll(world, sessions);
  for (const Section &section : kSections)
    if (json_t *records = json_object_get(resources, section.resource))
      installSection(world, section, records);
  for (const unsigned user : world.store.indexes("user"))
    world.store.create("userTargetList", user);
  // The parsed settings of thousands of devices took far more memory than the switch itself.
  ::malloc_trim(0);
}

} // namespace zelsim
