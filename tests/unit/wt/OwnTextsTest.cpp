// SPDX-License-Identifier: MIT
#include "HttpTestFolder.h"
#include "base/Log.h"
#include "testing/TestSite.h"

#include <Wt/WContainerWidget>
#include <Wt/WDialog>
#include <Wt/WIntValidator>
#include <Wt/WMessageResourceBundle>
#include <Wt/WPushButton>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace Wt;
using testing::HasSubstr;
using testing::Not;
using Testing::TestSite;

namespace
{

class OwnTexts : public testing::Test
{
protected:
  OwnTexts()
  {
    folder.write("m.xml", R"(<messages>
        <message id="Wt.Page.ConnectionLost">Verbindung weg</message>
        <message id="Wt.Page.Failed">Fehler im Haus</message>
        <message id="Wt.QuittedMessage">Feierabend</message>
        <message id="Wt.WDialog.Close">Schliessen</message>
        <message id="Wt.WValidator.Mandatory">Bitte eingeben</message>
        <message id="Wt.WIntValidator.BadRange">Von {1} bis {2}</message></messages>)");
    folder.write("m_en-US.xml",
                 "<messages><message id=\"Wt.Page.ConnectionLost\">Line down</message></messages>");
  }

  ApplicationCreator translated(std::function<void(WApplication &)> build)
  {
    return TestSite::building([this, build](WApplication &app) {
      app.messageResourceBundle().use(folder / "m");
      build(app);
    });
  }

  HttpTestFolder folder;
};

} // namespace

TEST_F(OwnTexts, thePageIsToldTheSentencesThatTheApplicationHasForTheScript)
{
  TestSite site(translated([](WApplication &app) {
    auto *other = new WPushButton("Other", app.root());
    other->clicked().connect(std::bind([&app] { app.setLocale("en-US"); }));
    auto *same = new WPushButton("Same", app.root());
    same->clicked().connect(std::bind([&app] { app.refresh(); }));
  }));
  const auto page = site.openPage();
  EXPECT_THAT(page->lastMessage(),
              HasSubstr(R"(["d","texts",{"lost":"Verbindung weg","ended":"Feierabend"}])"));
  page->click("Other");
  EXPECT_THAT(page->lastMessage(), HasSubstr(R"("lost":"Line down")"));
  page->click("Same");
  EXPECT_THAT(page->lastMessage(), Not(HasSubstr("texts")));
}

TEST_F(OwnTexts, withoutTextsOfTheApplicationNothingIsSent)
{
  TestSite site(TestSite::building([](WApplication &) {}));
  EXPECT_THAT(site.openPage()->lastMessage(), Not(HasSubstr("texts")));
}

TEST_F(OwnTexts, aSessionEndsWithTheApplicationsWords)
{
  const Engine::LogSink former =
      Engine::setLogSink([](Engine::LogLevel, std::string_view, std::string_view) {});
  TestSite site(translated([](WApplication &app) {
    auto *quit = new WPushButton("Quit", app.root());
    quit->clicked().connect(std::bind([&app] { app.quit(); }));
    auto *fail = new WPushButton("Fail", app.root());
    fail->clicked().connect(std::bind([] { throw std::runtime_error("on purpose"); }));
  }));
  const auto quitting = site.openPage();
  quitting->click("Quit");
  EXPECT_EQ(quitting->quitText(), "Feierabend");
  const auto failing = site.openPage();
  failing->click("Fail");
  EXPECT_EQ(failing->quitText(), "Fehler im Haus");
  Engine::setLogSink(former);
}

TEST_F(OwnTexts, widgetsAndValidatorsHaveTheApplicationsWordsOrEnglishOnes)
{
  std::string seen;
  const auto build = [&seen](WApplication &) {
    WDialog *dialog = new WDialog("Title");
    dialog->setClosable(true);
    dialog->show();
    WIntValidator number(1, 5);
    number.setMandatory(true);
    seen = number.validate("").message().toUTF8() + ", " + number.validate("9").message().toUTF8() + ", " +
           number.validate("x").message().toUTF8();
  };
  TestSite german(translated(build));
  const auto page = german.openPage();
  EXPECT_TRUE(page->byAttribute("aria-label", "Schliessen"));
  EXPECT_EQ(seen, "Bitte eingeben, Von 1 bis 5, Must be an integer number");
  TestSite english(TestSite::building(build));
  const auto plain = english.openPage();
  EXPECT_TRUE(plain->byAttribute("aria-label", "Close"));
  EXPECT_EQ(seen,
            "This field cannot be empty, The number must be between 1 and 5, Must be an integer number");
}
