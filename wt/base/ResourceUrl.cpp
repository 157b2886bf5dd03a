// SPDX-License-Identifier: MIT
#include "base/ResourceUrl.h"

#include <atomic>

namespace Wt
{
namespace Engine
{

namespace
{

std::atomic<ResourceUrlSource> resourceUrlSource{nullptr};

} // namespace

ResourceUrlSource setResourceUrlSource(ResourceUrlSource source)
{
  return resourceUrlSource.exchange(source);
}

std::string resourceUrl(WResource *resource)
{
  const ResourceUrlSource source = resourceUrlSource;
  return source && resource ? source(resource) : std::string();
}

} // namespace Engine
} // namespace Wt
