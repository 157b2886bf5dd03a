// SPDX-License-Identifier: MIT
#ifndef WT_WPUSHBUTTON_H_
#define WT_WPUSHBUTTON_H_

#include "../base/LinkWatch.h"

#include <Wt/WFormWidget>
#include <Wt/WLink>

namespace Wt
{

/// A button. Enter and the space bar on a focused one are clicks too.
class WPushButton : public WFormWidget
{
public:
  explicit WPushButton(WContainerWidget *parent = nullptr);
  explicit WPushButton(const WString &text, WContainerWidget *parent = nullptr);
  ~WPushButton() override;

  /// Plain text. The result is always true.
  bool setText(const WString &text);
  const WString &text() const { return text_; }

  void setIcon(const WLink &link);
  WLink icon() const;

  /// A click leads the browser there, or downloads what is there; clicked() is emitted too.
  void setLink(const WLink &link);
  WLink link() const;
  void setLinkTarget(AnchorTarget target);
  AnchorTarget linkTarget() const { return link().target(); }

  /// The default button of a dialog is also pressed by Enter in the dialog's fields.
  void setDefault(bool isDefault);
  bool isDefault() const { return isDefault_; }

  WString valueText() const override;
  void setValueText(const WString &value) override;
  void refresh() override;

protected:
  const char *domTag() const override;
  void render(Dom::Element &e) override;
  void renderContents(Dom::Element &e) override;
  void addOwnClasses(std::string &classes) const override;
  void domGone(Dom::Element &gone) noexcept override;

private:
  struct Extras;

  Extras &extras();
  void renderIcon(Dom::Element &e, const std::string &text);

  WString text_;
  std::unique_ptr<Extras> extras_; ///< icon and link, which few buttons have
  bool isDefault_ = false;
};

} // namespace Wt

#endif // WT_WPUSHBUTTON_H_
