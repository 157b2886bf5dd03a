// SPDX-License-Identifier: MIT
#ifndef WT_WLINK_H_
#define WT_WLINK_H_

#include <Wt/WGlobal>
#include <string>

namespace Wt
{

class WResource;

/// Where a link, an image or an icon points. Does not own its resource.
class WLink
{
public:
  enum Type { Url, Resource, InternalPath };

  WLink();
  WLink(const char *url);
  WLink(const std::string &url);
  WLink(Type type, const std::string &value);
  WLink(WResource *resource);

  Type type() const { return type_; }
  bool isNull() const { return type_ == Url && value_.empty(); }
  void setUrl(const std::string &url);
  /// Of a resource: its own URL.
  std::string url() const;
  void setResource(WResource *resource);
  WResource *resource() const { return resource_; }
  void setInternalPath(const std::string &path);
  std::string internalPath() const;
  void setTarget(AnchorTarget target) { target_ = target; }
  AnchorTarget target() const { return target_; }

  /// The target is not compared.
  bool operator==(const WLink &other) const;
  bool operator!=(const WLink &other) const { return !(*this == other); }

private:
  Type type_;
  AnchorTarget target_;
  WResource *resource_;
  std::string value_;
};

} // namespace Wt

#endif // WT_WLINK_H_
