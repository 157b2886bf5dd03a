// SPDX-License-Identifier: MIT
#include "WBannerDialog.h"

#include "Text.h"

#include <Wt/WContainerWidget>
#include <Wt/WPushButton>
#include <Wt/WText>

WBannerDialog::WBannerDialog(const std::string &bannerText)
{
  setTitleBarEnabled(false);
  setInline(false);
  addStyleClass("nevo-banner-dialog");
  resize(Wt::WLength(460), Wt::WLength(361));
  // What is read out first, and found by who goes from heading to heading
  Wt::WText *heading = new Wt::WText(text("Corvane KVM"), contents());
  heading->setStyleClass("nevo-unseen");
  heading->setAttributeValue("role", "heading");
  heading->setAttributeValue("aria-level", "1");
  Wt::WText *banner = new Wt::WText(Wt::WString::fromUTF8(bannerText), Wt::PlainText, contents());
  banner->setInline(false);
  banner->setMinimumSize(Wt::WLength(400), Wt::WLength(275));
  banner->setMaximumSize(Wt::WLength(400), Wt::WLength(275));
  banner->setStyleClass("nevo-banner-text");
  proceedButton = new Wt::WPushButton(text("Proceed to log in"), contents());
  proceedButton->addStyleClass("nevo-banner-button");
  proceedButton->setFocus();
}
