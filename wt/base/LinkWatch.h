// SPDX-License-Identifier: MIT
#ifndef WT_BASE_LINK_WATCH_H_
#define WT_BASE_LINK_WATCH_H_

#include <Wt/WLink>
#include <Wt/WObject>
#include <functional>
#include <string>

namespace Wt
{
namespace Engine
{

/// A link that a widget shows. Tells the widget when the resource behind it gets a new URL, and forgets a
/// resource that goes.
class LinkWatch
{
public:
  LinkWatch() = default;
  LinkWatch(const LinkWatch &) = delete;
  LinkWatch &operator=(const LinkWatch &) = delete;
  ~LinkWatch();

  const WLink &link() const { return link_; }
  bool isNull() const { return link_.isNull(); }
  /// `changed` is called whenever the URL has become another one.
  void set(const WLink &link, std::function<void()> changed);
  void setTarget(AnchorTarget target) { link_.setTarget(target); }

  /// The URL as it may stand in a page: empty if it would run as script.
  std::string url() const;

private:
  void disconnect();
  void resourceGone();

  WLink link_;
  std::function<void()> changed_;
  Signals::connection dataChanged_;
  Signals::connection destroyed_;
};

/// False for a URL whose scheme would run as script in the page. `imageSource` admits inline data.
bool isHarmlessUrl(const std::string &url, bool imageSource = false);

/// The "target" attribute of a link, or null.
const char *targetName(AnchorTarget target);

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_LINK_WATCH_H_
