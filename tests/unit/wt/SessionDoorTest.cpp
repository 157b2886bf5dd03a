// SPDX-License-Identifier: MIT
#include "base/Log.h"
#include "testing/TestSite.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WDialog>
#include <Wt/WLineEdit>
#include <Wt/WPushButton>
#include <Wt/WText>
#include <gtest/gtest.h>

using namespace Wt;
using namespace Wt::Testing;
using namespace std::chrono_literals;

namespace
{

/// Drops the log's lines while it lives.
struct QuietLog {
  QuietLog()
  {
    Engine::setLogSink([](Engine::LogLevel, std::string_view, std::string_view) {});
  }
  ~QuietLog() { Engine::setLogSink(nullptr); }
};

Engine::SessionConfig places(std::size_t count)
{
  Engine::SessionConfig config;
  config.maxSessions = count;
  return config;
}

/// An application that shows a dialog with a field, and its page only to whoever presses "Enter".
class Door
{
public:
  explicit Door(Engine::SessionConfig config = Engine::SessionConfig())
      : site(TestSite::building([](WApplication &app) {
               auto *dialog = new WDialog("Who is there?", &app);
               new WLineEdit(dialog->contents());
               auto *enter = new WPushButton("Enter", dialog->contents());
               enter->clicked().connect(std::bind([&app, dialog] {
                 dialog->hide();
                 new WText("inside", app.root());
                 new WLineEdit(app.root());
               }));
               dialog->show();
             }),
             std::move(config))
  {
  }

  std::unique_ptr<HeadlessBrowser> open(const std::string &address)
  {
    auto page = site.page();
    page->head.clientAddress = address;
    page->open();
    return page;
  }

  std::unique_ptr<HeadlessBrowser> openInside(const std::string &address)
  {
    auto page = open(address);
    page->click("Enter");
    return page;
  }

  void expire()
  {
    site.manager->expireSessions();
    site.scheduler.run();
  }

  const QuietLog quiet;
  TestSite site;
};

/// A message of so many bytes that nobody listens to.
std::string largeMessage(std::size_t bytes)
{
  return "{\"n\":1,\"a\":1,\"v\":{\"4000\":\"" + std::string(bytes, 'x') + "\"}}";
}

} // namespace

TEST(SessionDoor, aPageAtTheDoorGoesSecondsAfterItsConnectionAndOneThatIsInStays)
{
  Door door;
  const auto out = door.open("192.0.2.1");
  const auto in = door.openInside("192.0.2.1");
  ASSERT_TRUE(in->shows("inside"));
  out->disconnect();
  in->disconnect();
  door.site.scheduler.advance(9s);
  door.expire();
  EXPECT_EQ(2u, door.site.manager->sessionCount());
  door.site.scheduler.advance(2s);
  door.expire();
  EXPECT_EQ(1u, door.site.manager->sessionCount());
  in->reconnect();
  EXPECT_TRUE(in->shows("inside"));
}

TEST(SessionDoor, aPageAtTheDoorGoesEvenWhereSessionsStayForEver)
{
  Engine::SessionConfig config;
  config.timeout = std::chrono::seconds(-1);
  Door door(config);
  const auto out = door.open("192.0.2.1");
  const auto in = door.openInside("192.0.2.1");
  out->disconnect();
  in->disconnect();
  door.site.scheduler.advance(1h);
  door.expire();
  EXPECT_EQ(1u, door.site.manager->sessionCount());
}

TEST(SessionDoor, onePageAtTheDoorMakesRoomWhenAllPlacesAreTaken)
{
  Door door(places(5));
  const auto in = door.openInside("192.0.2.1");
  std::vector<std::unique_ptr<HeadlessBrowser>> crowd;
  for (int i = 0; i < 4; ++i)
    crowd.push_back(door.open("192.0.2.66"));
  const auto late = door.open("192.0.2.2");
  EXPECT_EQ("", late->busyText());
  crowd[0]->settle();
  EXPECT_NE("", crowd[0]->busyText()) << "the oldest of the crowd";
  EXPECT_EQ(5u, door.site.manager->sessionCount());
  in->click("inside");
  EXPECT_TRUE(in->connected());
}

TEST(SessionDoor, theAddressWithMostPagesAtTheDoorMakesRoom)
{
  Door door(places(4));
  const auto single = door.open("192.0.2.1");
  std::vector<std::unique_ptr<HeadlessBrowser>> crowd;
  for (int i = 0; i < 12; ++i)
    crowd.push_back(door.open("192.0.2.66"));
  EXPECT_TRUE(single->click("Enter"));
  EXPECT_TRUE(single->shows("inside"));
}

TEST(SessionDoor, aPageThatIsAwayMakesRoomBeforeOneThatIsThere)
{
  Door door(places(3));
  const auto first = door.open("192.0.2.1");
  const auto second = door.open("192.0.2.2");
  const auto third = door.open("192.0.2.3");
  second->disconnect();
  EXPECT_EQ("", door.open("192.0.2.4")->busyText());
  first->settle();
  third->settle();
  EXPECT_TRUE(first->connected());
  EXPECT_TRUE(third->connected());
  second->reconnect();
  EXPECT_TRUE(second->reloaded());
}

TEST(SessionDoor, pagesThatAreInKeepTheirPlaces)
{
  Door door(places(2));
  const auto first = door.openInside("192.0.2.1");
  const auto second = door.openInside("192.0.2.1");
  second->disconnect();
  EXPECT_NE("", door.open("192.0.2.2")->busyText());
  EXPECT_EQ(2u, door.site.manager->sessionCount());
}

TEST(SessionDoor, oneAddressNeverHasAllPlaces)
{
  Door door(places(10));
  std::vector<std::unique_ptr<HeadlessBrowser>> crowd;
  for (int i = 0; i < 10; ++i)
    crowd.push_back(door.open("192.0.2.66"));
  EXPECT_EQ(8u, door.site.manager->sessionCount());
}

TEST(SessionDoor, aPageAtTheDoorMaySendLessThanOneThatIsIn)
{
  Door door;
  const auto out = door.open("192.0.2.1");
  out->sendRaw(largeMessage(200000));
  EXPECT_TRUE(out->reloaded());
  const auto in = door.openInside("192.0.2.1");
  in->type(in->byTag("input"), std::string(400000, 'x'));
  EXPECT_TRUE(in->connected());
  EXPECT_FALSE(in->reloaded());
}
