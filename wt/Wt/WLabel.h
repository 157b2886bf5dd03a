// SPDX-License-Identifier: MIT
#ifndef WT_WLABEL_H_
#define WT_WLABEL_H_

#include <Wt/WInteractWidget>

namespace Wt
{

class WFormWidget;
class WImage;
class WText;

/// Names a form widget: a click on the label is one on the widget, and the label is hidden with it.
class WLabel : public WInteractWidget
{
public:
  explicit WLabel(WContainerWidget *parent = nullptr);
  explicit WLabel(const WString &text, WContainerWidget *parent = nullptr);
  explicit WLabel(WImage *image, WContainerWidget *parent = nullptr);
  ~WLabel() override;

  WFormWidget *buddy() const { return buddy_; }
  void setBuddy(WFormWidget *buddy);

  /// The text is XHTML unless setTextFormat() says otherwise.
  void setText(const WString &text);
  const WString &text() const;
  bool setTextFormat(TextFormat format);
  void setWordWrap(bool wordWrap);
  /// Takes the image over and deletes the former one.
  void setImage(WImage *image, Side side = Left);
  WImage *image() const { return image_; }

protected:
  const char *domTag() const override;
  void render(Dom::Element &e) override;
  std::vector<WWidget *> renderedChildren() override;
  void removeChild(WObject *child) override;

private:
  WText &textWidget();
  void buddyGone();

  WFormWidget *buddy_ = nullptr;
  WText *text_ = nullptr;
  WImage *image_ = nullptr;
  Side imageSide_ = Left;
  Signals::connection buddyDestroyed_;
};

} // namespace Wt

#endif // WT_WLABEL_H_
