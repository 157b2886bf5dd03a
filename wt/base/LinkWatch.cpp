// SPDX-License-Identifier: MIT
#include "base/LinkWatch.h"

#include <Wt/WResource>
#include <cctype>
#include <functional>
#include <utility>

namespace Wt
{
namespace Engine
{

namespace
{

bool isInlineImage(const std::string &url)
{
  for (const char *type : {"png;", "gif;", "jpeg;", "webp;"})
    if (url.rfind(std::string("data:image/") + type, 0) == 0)
      return true;
  return false;
}

} // namespace

bool isHarmlessUrl(const std::string &url, bool imageSource)
{
  // Browsers skip blanks and control characters before and inside a scheme.
  std::string scheme;
  for (const char c : url) {
    const unsigned char u = static_cast<unsigned char>(c);
    if (u <= ' ')
      continue;
    if (c == ':')
      return scheme != "javascript" && scheme != "vbscript" &&
             (scheme != "data" || (imageSource && isInlineImage(url)));
    if (c == '/' || c == '?' || c == '#')
      return true;
    scheme += static_cast<char>(std::tolower(u));
  }
  return true;
}

const char *targetName(AnchorTarget target)
{
  switch (target) {
  case TargetThisWindow:
    return "_top";
  case TargetNewWindow:
    return "_blank";
  default:
    return nullptr;
  }
}

LinkWatch::~LinkWatch()
{
  disconnect();
}

void LinkWatch::disconnect()
{
  dataChanged_.disconnect();
  destroyed_.disconnect();
}

void LinkWatch::set(const WLink &link, std::function<void()> changed)
{
  disconnect();
  link_ = link;
  changed_ = std::move(changed);
  WResource *resource = link_.type() == WLink::Resource ? link_.resource() : nullptr;
  if (!resource)
    return;
  dataChanged_ = resource->dataChanged().connect(std::bind([this] { changed_(); }));
  destroyed_ = resource->destroyed().connect(std::bind(&LinkWatch::resourceGone, this));
}

void LinkWatch::resourceGone()
{
  link_ = WLink();
  changed_();
}

std::string LinkWatch::url() const
{
  return isNull() ? std::string() : link_.url();
}

} // namespace Engine
} // namespace Wt
