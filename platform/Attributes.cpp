// SPDX-License-Identifier: MIT
#include "Attributes.h"

#include <cstdlib>
#include <fstream>
#include <map>
#include <mutex>
#include <string>
#include <sys/stat.h>

namespace
{

using Attributes = std::map<std::string, std::string>;

constexpr char kDefaultPath[] = "/etc/nevo/attributes";
constexpr off_t kMaxFileSize = 64 * 1024; // a larger file is not one of attributes

std::string trimmed(const std::string &text)
{
  static constexpr char kBlanks[] = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string::npos)
    return std::string();
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

Attributes readFile(const std::string &path)
{
  Attributes attributes;
  struct stat status;
  if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > kMaxFileSize)
    return attributes;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    line = trimmed(line);
    const std::size_t equals = line.find('=');
    if (line.empty() || line[0] == '#' || equals == std::string::npos)
      continue;
    attributes[trimmed(line.substr(0, equals))] = trimmed(line.substr(equals + 1));
  }
  return attributes;
}

// Never destroyed, since texts of it are in use while the process exits.
const Attributes &attributesOf(const std::string &path)
{
  static std::mutex *mutex = new std::mutex;
  static auto *files = new std::map<std::string, Attributes>;
  const std::lock_guard<std::mutex> lock(*mutex);
  const auto found = files->find(path);
  return found != files->end() ? found->second : files->emplace(path, readFile(path)).first->second;
}

} // namespace

const char *Attributes_getString(const char *name, const char *defaultValue)
{
  if (!name)
    return defaultValue;
  const char *path = std::getenv("NEVO_ATTRIBUTES");
  const Attributes &attributes = attributesOf(path && *path ? path : kDefaultPath);
  const auto found = attributes.find(name);
  return found == attributes.end() ? defaultValue : found->second.c_str();
}
