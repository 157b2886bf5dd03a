// SPDX-License-Identifier: MIT
#include "base/ResourceUrl.h"

#include <Wt/WLink>

namespace Wt
{

WLink::WLink() : type_(Url), target_(TargetSelf), resource_(nullptr) {}

WLink::WLink(const char *url) : WLink(Url, url ? url : "") {}

WLink::WLink(const std::string &url) : WLink(Url, url) {}

WLink::WLink(Type type, const std::string &value)
    : type_(type), target_(TargetSelf), resource_(nullptr), value_(value)
{
}

WLink::WLink(WResource *resource) : WLink()
{
  setResource(resource);
}

void WLink::setUrl(const std::string &url)
{
  type_ = Url;
  resource_ = nullptr;
  value_ = url;
}

std::string WLink::url() const
{
  switch (type_) {
  case Resource:
    return Engine::resourceUrl(resource_);
  case InternalPath:
    return "#" + value_;
  default:
    return value_;
  }
}

void WLink::setResource(WResource *resource)
{
  type_ = Resource;
  resource_ = resource;
  value_.clear();
}

void WLink::setInternalPath(const std::string &path)
{
  type_ = InternalPath;
  resource_ = nullptr;
  value_ = path;
}

std::string WLink::internalPath() const
{
  return type_ == InternalPath ? value_ : std::string();
}

bool WLink::operator==(const WLink &other) const
{
  return type_ == other.type_ && value_ == other.value_ && resource_ == other.resource_;
}

} // namespace Wt
