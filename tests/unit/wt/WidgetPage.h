// SPDX-License-Identifier: MIT
#ifndef TESTS_WIDGETPAGE_H_
#define TESTS_WIDGETPAGE_H_

#include "testing/TestSite.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <functional>
#include <memory>
#include <string>

/// One page of one session, whose widgets a test builds and looks at. The session runs on the test's thread.
class WidgetPage
{
public:
  explicit WidgetPage(std::function<void(Wt::WContainerWidget *)> build,
                      Wt::Engine::SessionConfig config = Wt::Engine::SessionConfig())
      : site(Wt::Testing::TestSite::building([this, build = std::move(build)](Wt::WApplication &app) {
               sessionId = app.sessionId();
               build(app.root());
             }),
             std::move(config)),
        browser(site.openPage())
  {
  }

  /// Does something within the session, as the program would.
  void run(std::function<void()> action)
  {
    site.manager->post(sessionId, std::move(action));
    browser->advance(std::chrono::milliseconds(0));
  }

  Wt::Testing::Node *tag(const std::string &name, int index = 0) const { return browser->byTag(name, index); }
  Wt::Testing::Node *styled(const std::string &name, int index = 0) const
  {
    return browser->byClass(name, index);
  }

  std::string sessionId;
  Wt::Testing::TestSite site;
  std::unique_ptr<Wt::Testing::HeadlessBrowser> browser;
};

/// Slots of these append what they stand for to one record.
class Record
{
public:
  std::function<void()> note(const std::string &word)
  {
    return [this, word] { text += text.empty() ? word : ' ' + word; };
  }
  std::string text;
};

#endif // TESTS_WIDGETPAGE_H_
