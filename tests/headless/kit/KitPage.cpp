// SPDX-License-Identifier: MIT
#include "KitPage.h"

#include <Wt/WMessageResourceBundle>
#include <boost/bind.hpp>

KitPage::KitPage(std::function<void(Wt::WContainerWidget &root)> build)
    : site(Wt::Testing::TestSite::building([this, build = std::move(build)](Wt::WApplication &application) {
        application_ = &application;
        application.messageResourceBundle().use(NEVO_SOURCE_DIR "/resources/msgs-general");
        build(*application.root());
      })),
      visitor(site)
{
  visitor.open();
}

void KitPage::addButton(Wt::WContainerWidget &root, const std::string &text, std::function<void()> action)
{
  Wt::WPushButton *button = new Wt::WPushButton(Wt::WString::fromUTF8(text), &root);
  button->clicked().connect(boost::bind<void>(std::move(action)));
}

void KitPage::act(const std::function<void()> &action)
{
  site.manager->post(application_->sessionId(), action);
  visitor.advance(std::chrono::milliseconds(0));
}
