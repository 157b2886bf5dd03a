// SPDX-License-Identifier: MIT
#include "KitPage.h"

#include "ClientSession.h"
#include "KitSession.h"

#include <Wt/WMessageResourceBundle>
#include <boost/bind.hpp>

namespace
{

class KitApplication : public Wt::WApplication, public ClientSession, public KitSession
{
public:
  explicit KitApplication(const Wt::WEnvironment &environment) : Wt::WApplication(environment)
  {
    messageResourceBundle().use(NEVO_SOURCE_DIR "/resources/msgs-general");
  }
  // The widgets go before what they reach the store through.
  ~KitApplication() override { root()->clear(); }
};

} // namespace

KitPage::KitPage(std::function<void(Wt::WContainerWidget &root)> build)
    : site([this, build = std::move(build)](const Wt::WEnvironment &environment) -> Wt::WApplication * {
        application_ = new KitApplication(environment);
        build(*application_->root());
        return application_;
      }),
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
