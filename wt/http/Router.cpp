// SPDX-License-Identifier: MIT
#include "http/Router.h"

#include <algorithm>

namespace Wt
{
namespace Net
{

namespace
{

std::string withoutTrailingSlash(const std::string &path)
{
  return path.size() > 1 && path.back() == '/' ? path.substr(0, path.size() - 1) : path;
}

bool isAtOrBelow(const std::string &path, const std::string &folder)
{
  const std::string prefix = withoutTrailingSlash(folder);
  return prefix == "/" || path == prefix || path.compare(0, prefix.size() + 1, prefix + "/") == 0;
}

} // namespace

Router::Router(std::vector<std::string> staticPaths) : listed_(true), staticPaths_(std::move(staticPaths)) {}

void Router::addEntryPoint(const std::string &path)
{
  entryPoints_.push_back(path);
}

Router::Route Router::route(const std::string &path) const
{
  const bool isStatic =
      listed_ && std::any_of(staticPaths_.begin(), staticPaths_.end(),
                             [&path](const auto &folder) { return isAtOrBelow(path, folder); });
  if (isStatic)
    return {Kind::StaticFile, std::string()};
  const std::string *longest = nullptr;
  for (const std::string &entry : entryPoints_) {
    const bool fits =
        listed_ ? isAtOrBelow(path, entry) : withoutTrailingSlash(path) == withoutTrailingSlash(entry);
    if (fits && (!longest || entry.size() > longest->size()))
      longest = &entry;
  }
  if (longest)
    return {Kind::EntryPoint, *longest};
  return {listed_ ? Kind::Nothing : Kind::StaticFile, std::string()};
}

} // namespace Net
} // namespace Wt
