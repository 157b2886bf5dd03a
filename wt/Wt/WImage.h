// SPDX-License-Identifier: MIT
#ifndef WT_WIMAGE_H_
#define WT_WIMAGE_H_

#include "../base/LinkWatch.h"

#include <Wt/WInteractWidget>
#include <Wt/WLink>

namespace Wt
{

/// An image. One without alternate text counts as decoration and is passed over by screen readers.
class WImage : public WInteractWidget
{
public:
  explicit WImage(WContainerWidget *parent = nullptr);
  explicit WImage(const WLink &imageLink, WContainerWidget *parent = nullptr);
  WImage(const WLink &imageLink, const WString &alternateText, WContainerWidget *parent = nullptr);
  ~WImage() override;

  /// The same link again has no effect, even if what lies behind it has changed.
  void setImageLink(const WLink &link);
  const WLink &imageLink() const { return watch_.link(); }
  void setImageRef(const std::string &url) { setImageLink(WLink(url)); }
  std::string imageRef() const { return watch_.url(); }

  void setAlternateText(const WString &text);
  const WString &alternateText() const { return alternateText_; }

  void refresh() override;

protected:
  const char *domTag() const override;
  void render(Dom::Element &e) override;

private:
  Engine::LinkWatch watch_;
  WString alternateText_;
};

} // namespace Wt

#endif // WT_WIMAGE_H_
