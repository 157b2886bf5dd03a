// SPDX-License-Identifier: MIT
#ifndef WT_WANCHOR_H_
#define WT_WANCHOR_H_

#include "../base/LinkWatch.h"

#include <Wt/WContainerWidget>
#include <Wt/WLink>

namespace Wt
{

class WImage;
class WText;

/// A link to a URL or a resource. Without a link, or disabled, it leads nowhere; clicked() is emitted all the
/// same.
class WAnchor : public WContainerWidget
{
public:
  explicit WAnchor(WContainerWidget *parent = nullptr);
  explicit WAnchor(const WLink &link, WContainerWidget *parent = nullptr);
  WAnchor(const WLink &link, const WString &text, WContainerWidget *parent = nullptr);
  WAnchor(const WLink &link, WImage *image, WContainerWidget *parent = nullptr);
  ~WAnchor() override;

  /// A different link brings its own target.
  void setLink(const WLink &link);
  const WLink &link() const { return watch_.link(); }

  /// The text is XHTML unless setTextFormat() says otherwise.
  void setText(const WString &text);
  const WString &text() const;
  void setWordWrap(bool wordWrap);
  bool wordWrap() const;
  /// False if the present text does not fit the format.
  bool setTextFormat(TextFormat format);
  TextFormat textFormat() const;

  /// Takes the image over and deletes the former one.
  void setImage(WImage *image);
  WImage *image() const { return image_; }

  void setTarget(AnchorTarget target);
  AnchorTarget target() const { return watch_.link().target(); }

protected:
  const char *domTag() const override;
  void render(Dom::Element &e) override;
  void propagateSetEnabled(bool enabled) override;
  void childRemoved(int index, WWidget *child) override;

private:
  WText &textWidget();

  Engine::LinkWatch watch_;
  WText *text_ = nullptr;
  WImage *image_ = nullptr;
};

} // namespace Wt

#endif // WT_WANCHOR_H_
