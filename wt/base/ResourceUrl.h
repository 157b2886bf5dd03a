// SPDX-License-Identifier: MIT
#ifndef WT_BASE_RESOURCE_URL_H_
#define WT_BASE_RESOURCE_URL_H_

#include <string>

namespace Wt
{

class WResource;

namespace Engine
{

/// How a link learns the URL of a resource; set by the engine, until then it is "". Gives back the former.
typedef std::string (*ResourceUrlSource)(WResource *resource);
ResourceUrlSource setResourceUrlSource(ResourceUrlSource source);
std::string resourceUrl(WResource *resource);

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_RESOURCE_URL_H_
