// SPDX-License-Identifier: MIT
#include "control/Names.h"

#include <algorithm>
#include <charconv>

namespace zelsim
{

namespace
{

template <typename Number> bool readWhole(std::string_view word, Number &number)
{
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  return error == std::errc() && end == word.data() + word.size();
}

char lower(char c)
{
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameWord(std::string_view one, std::string_view other)
{
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](char a, char b) { return lower(a) == lower(b); });
}

// The records of commands to devices and of their diagnostics have the indexes of the devices.
const Resource &namedResource(const Resource &resource)
{
  for (const DeviceKind *kind : kDeviceKinds)
    if (std::string_view(resource.name) == kind->control ||
        (kind->diagnostics && std::string_view(resource.name) == kind->diagnostics))
      return *findResource(kind->resource);
  return std::string_view(resource.name) == "userTargetList" ? *findResource("user") : resource;
}

// Records with a text that is the word, and how many more there are.
unsigned findName(const World &world, const Resource &resource, std::string_view word, unsigned &hits)
{
  unsigned index = 0;
  for (const auto &[number, record] : world.store.records(resource))
    for (const char *key : {"eid", "name", "mgrName"}) {
      const int position = resource.position(key);
      if (position < 0 || !sameWord(world.store.value(resource, record, position).text(), word))
        continue;
      index = hits == 0 ? number : index;
      ++hits;
      break;
    }
  return index;
}

} // namespace

bool readNumber(std::string_view word, std::int64_t &number)
{
  return readWhole(word, number);
}

bool readNumber(std::string_view word, unsigned &number)
{
  return readWhole(word, number);
}

bool readNumber(std::string_view word, int &number)
{
  return readWhole(word, number);
}

bool findRecord(const World &world, const Resource &resource, std::string_view word, unsigned &index,
                std::string &wrong)
{
  const std::string told(word);
  if (readNumber(word, index)) {
    if (world.store.exists(resource.name, index))
      return true;
    wrong = std::string(resource.name) + " has no record " + told +
            (resource.single ? " (its one record has index 0)" : "");
    return false;
  }
  unsigned hits = 0;
  index = word.empty() ? 0 : findName(world, namedResource(resource), word, hits);
  if (hits == 1 && world.store.exists(resource.name, index))
    return true;
  wrong = hits > 1 ? std::string(resource.name) + " has several records called \"" + told + "\""
                   : std::string(resource.name) + " has no record called \"" + told + "\"";
  return false;
}

bool findDevice(const World &world, std::string_view kind, std::string_view word, Device &device,
                std::string &wrong)
{
  for (const DeviceKind *known : kDeviceKinds)
    if (kind == known->resource) {
      device.kind = known;
      return findRecord(world, *findResource(known->resource), word, device.index, wrong);
    }
  wrong = "\"" + std::string(kind) + "\" is none of rx, tx and swx";
  return false;
}

} // namespace zelsim
