// SPDX-License-Identifier: MIT
#include "base/Log.h"
#include "session/ClientMessage.h"
#include "testing/TestSite.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WLineEdit>
#include <Wt/WPushButton>
#include <Wt/WText>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Wt;
using namespace Wt::Testing;
using Engine::ClientMessage;

namespace
{

/// Each of these ends the session that gets it as its first message after the greeting.
const char *const kViolations[] = {
    "",
    "no JSON",
    "[]",
    "7",
    "{}",
    "{\"n\":2,\"a\":0}",
    "{\"n\":0,\"a\":0}",
    "{\"n\":-1,\"a\":0}",
    "{\"n\":1.5,\"a\":0}",
    "{\"n\":\"1\",\"a\":0}",
    "{\"n\":1,\"a\":99}",
    "{\"a\":99}",
    "{\"a\":-1}",
    "{\"hello\":{}}",
    "{\"resume\":\"x\",\"a\":0}",
    "{\"n\":1,\"a\":0,\"e\":{}}",
    "{\"n\":1,\"a\":0,\"e\":[7]}",
    "{\"n\":1,\"a\":0,\"e\":[[1]]}",
    "{\"n\":1,\"a\":0,\"e\":[[-1,\"click\"]]}",
    "{\"n\":1,\"a\":0,\"e\":[[1,2]]}",
    "{\"n\":1,\"a\":0,\"e\":[[1,\"click\",[]]]}",
    "{\"n\":1,\"a\":0,\"e\":[[1,\"click\",{\"d\":[1]}]]}",
    "{\"n\":1,\"a\":0,\"e\":[[1,\"click\",{\"b\":99999999999}]]}",
    "{\"n\":1,\"a\":0,\"v\":[]}",
    "{\"n\":1,\"a\":0,\"v\":{\"x\":\"1\"}}",
    "{\"n\":1,\"a\":0,\"v\":{\"1\":1}}",
    "{\"n\":1,\"a\":0,\"f\":\"1\"}",
    "{\"vis\":2}",
    "{\"vis\":\"0\"}",
    "{\"vis\":0,\"a\":0}",
    "{\"n\":1,\"n\":1,\"a\":0}",
    "{\"n\":1,\"a\":0,\"e\":[[1,\"x\",{\"a\":[[[[[[[[]]]]]]]]}]]}",
    "\xff\xfe",
};

class Violation : public ::testing::TestWithParam<const char *>
{
};

} // namespace

TEST_P(Violation, endsItsSessionWithALineInTheLogAndNoOther)
{
  int lines = 0;
  Engine::setLogSink([&lines](Engine::LogLevel level, std::string_view, std::string_view) {
    lines += level == Engine::LogLevel::Warning;
  });
  {
    TestSite site(TestSite::building([](WApplication &app) { new WText("here", app.root()); }));
    const auto page = site.openPage();
    const auto other = site.openPage();
    page->sendRaw(GetParam());
    EXPECT_TRUE(page->reloaded());
    EXPECT_EQ(1u, site.manager->sessionCount());
    EXPECT_TRUE(other->connected());
  }
  Engine::setLogSink(nullptr);
  EXPECT_EQ(1, lines);
}

INSTANTIATE_TEST_SUITE_P(Messages, Violation, ::testing::ValuesIn(kViolations));

TEST(Protocol, endsTheSessionWhenANumberComesTwiceOnOneConnection)
{
  Engine::setLogSink([](Engine::LogLevel, std::string_view, std::string_view) {});
  TestSite site(TestSite::building([](WApplication &) {}));
  const auto page = site.openPage();
  page->sendRaw("{\"n\":1,\"a\":1}");
  EXPECT_FALSE(page->reloaded());
  page->sendRaw("{\"n\":1,\"a\":1}");
  EXPECT_TRUE(page->reloaded());
  Engine::setLogSink(nullptr);
}

TEST(Protocol, doesNotResumeWithAWrongToken)
{
  TestSite site(TestSite::building([](WApplication &) {}));
  const auto page = site.openPage();
  const auto thief = site.page();
  thief->sendRawFirst("{\"resume\":\"00000000000000000000000000000000\",\"a\":0}");
  EXPECT_TRUE(thief->reloaded());
  EXPECT_TRUE(page->connected());
}

TEST(Protocol, refusesAConnectionThatDoesNotGreet)
{
  Engine::setLogSink([](Engine::LogLevel, std::string_view, std::string_view) {});
  TestSite site(TestSite::building([](WApplication &) {}));
  const auto page = site.page();
  page->sendRawFirst("{\"n\":1,\"a\":0}");
  EXPECT_FALSE(page->connected());
  EXPECT_EQ(0u, site.manager->sessionCount());
  Engine::setLogSink(nullptr);
}

TEST(Protocol, ignoresEventsOfElementsThatDoNotListenOrAreGone)
{
  Engine::setLogSink([](Engine::LogLevel, std::string_view, std::string_view) {});
  int clicks = 0;
  TestSite site(TestSite::building([&clicks](WApplication &app) {
    auto *text = new WText("quiet", app.root());
    text->keyPressed().connect(std::bind([&clicks] { ++clicks; }));
    text->clicked();
  }));
  const auto page = site.openPage();
  page->event(page->byText("quiet"), "click");
  page->sendRaw("{\"n\":2,\"a\":1,\"e\":[[4000,\"click\"]]}");
  EXPECT_EQ(0, clicks);
  EXPECT_FALSE(page->reloaded());
  Engine::setLogSink(nullptr);
}

TEST(Protocol, keepsWhatTheProgramSetAgainstAnOlderValueOfTheBrowser)
{
  WLineEdit *edit = nullptr;
  TestSite site(TestSite::building([&edit](WApplication &app) {
    edit = new WLineEdit(app.root());
    auto *button = new WPushButton("Set", app.root());
    button->clicked().connect(std::bind([&edit] { edit->setText("by program"); }));
  }));
  const auto page = site.openPage();
  Node *field = page->byTag("input");
  page->type(field, "typed");
  EXPECT_EQ("typed", edit->text().toUTF8());
  // The page has not seen the answer to the click yet when it tells an older value.
  page->clickWithoutAnswer(page->byText("Set"));
  page->type(field, "older");
  page->reconnect();
  EXPECT_EQ("by program", edit->text().toUTF8());
  page->type(field, "newer");
  EXPECT_EQ("newer", edit->text().toUTF8());
}

TEST(Protocol, ignoresWhatADisabledFieldTells)
{
  WLineEdit *edit = nullptr;
  TestSite site(TestSite::building([&edit](WApplication &app) {
    edit = new WLineEdit("kept", app.root());
    edit->disable();
  }));
  const auto page = site.openPage();
  page->sendRaw("{\"n\":1,\"a\":1,\"v\":{\"" + std::to_string(page->byTag("input")->id) + "\":\"forged\"}}");
  EXPECT_EQ("kept", edit->text().toUTF8());
}

TEST(Protocol, dropsAPageThatSendsMoreThanItsSessionHandles)
{
  Engine::setLogSink([](Engine::LogLevel, std::string_view, std::string_view) {});
  Engine::SessionConfig config;
  config.doorPage.queuedMessages = 10;
  TestSite site(TestSite::building([](WApplication &) {}), config);
  const auto page = site.openPage();
  page->flood("{\"a\":0}", 11);
  EXPECT_TRUE(page->reloaded());
  Engine::setLogSink(nullptr);
}

TEST(Protocol, answersAResumeThatCannotBeBeforeItEndsTheSession)
{
  Engine::setLogSink([](Engine::LogLevel, std::string_view, std::string_view) {});
  TestSite site(TestSite::building([](WApplication &) {}));
  const auto page = site.openPage();
  const auto other = site.page();
  other->sendRawFirst("{\"resume\":\"" + page->token() + "\",\"a\":99}");
  EXPECT_TRUE(other->reloaded());
  EXPECT_EQ(0u, site.manager->sessionCount());
  Engine::setLogSink(nullptr);
}

TEST(Protocol, answersAResumeThatComesWhileTheSessionEnds)
{
  TestSite site(TestSite::building([](WApplication &) {}));
  const auto page = site.openPage();
  const auto other = site.page();
  site.manager->killAll();
  other->sendRawFirst("{\"resume\":\"" + page->token() + "\",\"a\":0}");
  EXPECT_TRUE(other->reloaded());
}

TEST(Protocol, aPageThatSendsUnknownEventsWithoutEndWritesAFewLinesAMinute)
{
  std::vector<std::string> lines;
  Engine::setLogSink(
      [&lines](Engine::LogLevel, std::string_view, std::string_view line) { lines.emplace_back(line); });
  {
    TestSite site(TestSite::building([](WApplication &) {}));
    const auto page = site.openPage();
    std::string events;
    for (int i = 0; i < 400; ++i)
      events += std::string(i ? "," : "") + "[4000,\"" + std::string(200, 'x') + "\"]";
    page->sendRaw("{\"n\":1,\"a\":1,\"e\":[" + events + "]}");
    EXPECT_EQ(10u, lines.size());
    EXPECT_LT(lines.front().size(), 150u) << lines.front();
    page->advance(std::chrono::minutes(1));
    page->sendRaw("{\"n\":2,\"a\":1,\"e\":[[4000,\"again\"]]}");
    ASSERT_EQ(12u, lines.size());
    EXPECT_NE(std::string::npos, lines[10].find("390"));
    EXPECT_NE(std::string::npos, lines[11].find("again"));
  }
  Engine::setLogSink(nullptr);
}

TEST(ClientMessage, dropsCharactersThatNoTextHas)
{
  const std::pair<const char *, const char *> texts[] = {
      {"a\\u0000b", "ab"},
      {"\\ud83d", ""},
      {"x\\ude00y", "xy"},
      {"\\ud83d\\ude00", "\xf0\x9f\x98\x80"},
      {"\\ud83d\\ud83d\\ude00", "\xf0\x9f\x98\x80"},
      {"\\ud83d\\n", "\n"},
      {"\\\\u0000", "\\u0000"},
      {"\\\\\\ud83d", "\\"},
      {"\\uD83D\\uDE00\\uDE00", "\xf0\x9f\x98\x80"},
  };
  for (const auto &text : texts) {
    ClientMessage message;
    ASSERT_TRUE(ClientMessage::decode(std::string("{\"n\":1,\"a\":0,\"v\":{\"7\":\"") + text.first +
                                          "\"},\"e\":[[1,\"keyup\",{\"t\":\"" + text.first + "\"}]]}",
                                      message))
        << text.first;
    EXPECT_EQ(text.second, message.values[0].second) << text.first;
    EXPECT_EQ(text.second, message.events[0].data.text) << text.first;
  }
  ClientMessage message;
  EXPECT_FALSE(ClientMessage::decode("{\"n\":1,\"a\":0,\"v\":{\"7\":\"\\u00\"}}", message));
}

TEST(ClientMessage, readsMouseAndKeyEvents)
{
  ClientMessage message;
  ASSERT_TRUE(ClientMessage::decode(
      "{\"n\":3,\"a\":2,\"f\":9,\"v\":{\"7\":\"\\u00e4\"},\"e\":[[7,\"click\",{\"b\":1,\"m\":2,"
      "\"d\":[1,2],\"w\":[3,4],\"s\":[5,6],\"o\":[7,8],\"g\":[-1,-2],\"l\":-1}],"
      "[8,\"keyup\",{\"k\":65,\"c\":97,\"t\":\"a\"}],[8,\"size\",{\"a\":[10,2.5,\"x\",true,null]}]]}",
      message));
  EXPECT_EQ(ClientMessage::Events, message.kind);
  EXPECT_EQ(3u, message.number);
  EXPECT_EQ(2u, message.seen);
  EXPECT_EQ(9u, message.focus);
  ASSERT_EQ(1u, message.values.size());
  EXPECT_EQ("\xc3\xa4", message.values[0].second);
  ASSERT_EQ(3u, message.events.size());
  EXPECT_EQ(8, message.events[0].data.widget.y);
  EXPECT_EQ(-2, message.events[0].data.dragDelta.y);
  EXPECT_EQ(-1, message.events[0].data.wheel);
  EXPECT_EQ(65, message.events[1].data.keyCode);
  EXPECT_THAT(message.events[2].data.args, ::testing::ElementsAre("10", "2.5", "x", "true", ""));
}
