// SPDX-License-Identifier: MIT
#include "session/ResourceTable.h"

#include "session/Random.h"

namespace Wt
{
namespace Engine
{

std::string ResourceTable::add(const std::string &id, std::shared_ptr<ResourceHandler> handler)
{
  const std::lock_guard<std::mutex> held(mutex_);
  Resource &resource = resources_[id];
  resource.handler = std::move(handler);
  if (resource.secret.empty())
    resource.secret = randomName(16);
  // The version is for the browser's cache, which is to ask for the new content.
  return "&request=resource&resource=" + id + "&v=" + std::to_string(++resource.version) +
         "&rand=" + resource.secret;
}

void ResourceTable::remove(const std::string &id)
{
  std::shared_ptr<ResourceHandler> last; // destroyed after the lock is given back
  const std::lock_guard<std::mutex> held(mutex_);
  const auto found = resources_.find(id);
  if (found == resources_.end())
    return;
  last = std::move(found->second.handler);
  resources_.erase(found);
}

void ResourceTable::clear()
{
  std::map<std::string, Resource> last; // destroyed after the lock is given back
  const std::lock_guard<std::mutex> held(mutex_);
  last.swap(resources_);
}

bool ResourceTable::has(const std::string &id, const std::string &secret) const
{
  const std::lock_guard<std::mutex> held(mutex_);
  const auto found = resources_.find(id);
  return found != resources_.end() && found->second.secret == secret;
}

std::shared_ptr<ResourceHandler> ResourceTable::find(const std::string &id) const
{
  const std::lock_guard<std::mutex> held(mutex_);
  const auto found = resources_.find(id);
  return found == resources_.end() ? nullptr : found->second.handler;
}

bool ResourceTable::noteProgress(const std::string &id, Bytes bytes)
{
  const std::lock_guard<std::mutex> held(mutex_);
  const auto found = resources_.find(id);
  if (found == resources_.end())
    return false;
  found->second.bytes = bytes;
  return !std::exchange(found->second.waiting, true);
}

ResourceTable::Bytes ResourceTable::takeProgress(const std::string &id)
{
  const std::lock_guard<std::mutex> held(mutex_);
  const auto found = resources_.find(id);
  if (found == resources_.end())
    return Bytes();
  found->second.waiting = false;
  return found->second.bytes;
}

} // namespace Engine
} // namespace Wt
