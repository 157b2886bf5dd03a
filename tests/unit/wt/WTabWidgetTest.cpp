// SPDX-License-Identifier: MIT
#include "WidgetPage.h"

#include <Wt/WLineEdit>
#include <Wt/WMenuItem>
#include <Wt/WStackedWidget>
#include <Wt/WTabWidget>
#include <Wt/WText>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

/// Tabs "A", "B", ... with the texts "page A", "page B", ...
class TabPage
{
public:
  explicit TabPage(int count)
      : page([this, count](WContainerWidget *root) {
          tabs = new WTabWidget(root);
          tabs->currentChanged().connect(boost::bind(&TabPage::note, this, ::_1));
          for (int i = 0; i < count; ++i) {
            const std::string name(1, static_cast<char>('A' + i));
            texts.push_back(new WText("page " + name));
            items.push_back(tabs->addTab(texts.back(), name));
          }
        })
  {
  }

  void note(int index) { record += std::to_string(index) + ' '; }
  bool shows(const char *name) const { return page.browser->shows(std::string("page ") + name); }

  std::string record;
  WTabWidget *tabs = nullptr;
  std::vector<WText *> texts;
  std::vector<WMenuItem *> items;
  WidgetPage page;
};

} // namespace

TEST(WTabWidget, showsTheFirstTabThatIsAddedWithoutASignal)
{
  TabPage p(3);
  EXPECT_EQ(0, p.tabs->currentIndex());
  EXPECT_EQ("", p.record);
  EXPECT_TRUE(p.shows("A"));
  EXPECT_FALSE(p.shows("B"));
}

TEST(WTabWidget, hasNoCurrentTabWhileItIsEmpty)
{
  TabPage p(0);
  EXPECT_EQ(-1, p.tabs->currentIndex());
  EXPECT_EQ(nullptr, p.tabs->currentWidget());
  EXPECT_EQ(0, p.tabs->count());
}

TEST(WTabWidget, tellsOfTheUsersAndTheProgramsChangesAlikeButOnlyOfChanges)
{
  TabPage p(3);
  ASSERT_TRUE(p.page.browser->click("B"));
  EXPECT_EQ("1 ", p.record);
  EXPECT_TRUE(p.shows("B"));
  EXPECT_FALSE(p.shows("A"));
  p.page.browser->click("B");
  EXPECT_EQ("1 ", p.record);
  p.page.run([&] { p.tabs->setCurrentIndex(2); });
  p.page.run([&] { p.tabs->setCurrentWidget(p.texts[0]); });
  p.page.run([&] { p.tabs->setCurrentIndex(0); });
  EXPECT_EQ("1 2 0 ", p.record);
  EXPECT_TRUE(p.shows("A"));
}

TEST(WTabWidget, ignoresAnIndexOutOfRange)
{
  TabPage p(2);
  p.page.run([&] {
    p.tabs->setCurrentIndex(2);
    p.tabs->setCurrentIndex(-1);
  });
  EXPECT_EQ(0, p.tabs->currentIndex());
  EXPECT_EQ("", p.record);
}

TEST(WTabWidget, keepsALazyPageOutsideTheTreeUntilItIsFirstChosen)
{
  TabPage p(2);
  p.page.run([&] {
    EXPECT_EQ(nullptr, p.texts[1]->parent());
    EXPECT_FALSE(p.texts[1]->isVisible());
    EXPECT_TRUE(p.texts[0]->isVisible());
  });
  p.page.run([&] { p.tabs->setCurrentIndex(1); });
  p.page.run([&] {
    EXPECT_NE(nullptr, p.texts[1]->parent());
    EXPECT_TRUE(p.texts[1]->isVisible());
    EXPECT_FALSE(p.texts[0]->isVisible());
  });
  EXPECT_EQ(p.texts[1], p.tabs->widget(1));
  EXPECT_EQ(1, p.tabs->indexOf(p.texts[1]));
  EXPECT_EQ(-1, p.tabs->indexOf(nullptr));
}

TEST(WTabWidget, sendsNoPageThatWasNeverShown)
{
  TabPage p(2);
  EXPECT_EQ(nullptr,
            p.page.browser->page().findIf([](const Testing::Node &n) { return n.text == "page B"; }));
}

TEST(WTabWidget, loadsAPageAtOnceWhereThatIsAskedFor)
{
  TabPage p(1);
  p.page.run([&] {
    auto *early = new WText("early");
    p.tabs->addTab(early, "E", WTabWidget::PreLoading);
    EXPECT_NE(nullptr, early->parent());
  });
}

TEST(WTabWidget, deletesPagesThatWereNeverLoadedWithItself)
{
  int gone = 0;
  TabPage p(3);
  for (WText *text : p.texts)
    text->destroyed().connect(std::bind([&gone] { ++gone; }));
  p.page.run([&] { delete p.tabs; });
  EXPECT_EQ(3, gone);
}

TEST(WTabWidget, forgetsAPageThatTheProgramDeletes)
{
  TabPage p(3);
  p.page.run([&] {
    delete p.texts[1];
    EXPECT_EQ(nullptr, p.tabs->widget(1));
    p.tabs->setCurrentIndex(1);
    delete p.texts[0];
  });
  EXPECT_EQ(1, p.tabs->currentIndex());
}

TEST(WTabWidget, choosesAnotherTabWhenTheCurrentOneIsHiddenOrDisabled)
{
  TabPage p(3);
  p.page.run([&] { p.tabs->setTabEnabled(1, false); });
  p.page.run([&] { p.tabs->setTabHidden(0, true); });
  EXPECT_EQ(2, p.tabs->currentIndex());
  EXPECT_EQ("2 ", p.record);
  EXPECT_TRUE(p.tabs->isTabHidden(0));
  EXPECT_FALSE(p.tabs->isTabEnabled(1));
  EXPECT_FALSE(p.page.browser->shows("A"));
  p.page.run([&] { p.items[2]->setDisabled(true); });
  EXPECT_EQ(2, p.tabs->currentIndex()) << "there is no other";
}

TEST(WTabWidget, doesNotLetAUserChooseADisabledTab)
{
  TabPage p(2);
  p.page.run([&] { p.tabs->setTabEnabled(1, false); });
  EXPECT_TRUE(p.page.browser->byText("B")->parent->hasClass("Wt-disabled"));
  EXPECT_EQ("true", p.page.browser->byText("B")->get("aria-disabled"));
  p.page.browser->click("B");
  EXPECT_EQ(0, p.tabs->currentIndex());
}

TEST(WTabWidget, givesBackTheChildOfARemovedTab)
{
  TabPage p(3);
  p.page.run([&] { p.tabs->setCurrentIndex(1); });
  p.page.run([&] {
    p.tabs->removeTab(p.texts[0]);
    EXPECT_EQ(nullptr, p.texts[0]->parent());
    delete p.texts[0];
  });
  EXPECT_EQ(0, p.tabs->currentIndex());
  EXPECT_TRUE(p.shows("B"));
  EXPECT_EQ("1 ", p.record);
  p.page.run([&] {
    p.tabs->removeTab(p.texts[1]);
    delete p.texts[1];
  });
  EXPECT_TRUE(p.shows("C"));
  EXPECT_EQ(0, p.tabs->currentIndex());
  p.page.run([&] {
    p.tabs->removeTab(p.texts[2]);
    delete p.texts[2];
  });
  EXPECT_EQ(-1, p.tabs->currentIndex());
}

TEST(WTabWidget, changesATabsTextThroughItsItem)
{
  TabPage p(2);
  p.page.run([&] { p.items[1]->setText(p.items[1]->text() + " *"); });
  EXPECT_EQ("B *", p.tabs->tabText(1).toUTF8());
  EXPECT_TRUE(p.page.browser->shows("B *"));
  p.page.run([&] { p.tabs->setTabText(1, "<b>"); });
  EXPECT_TRUE(p.page.browser->shows("<b>"));
  p.page.run([&] { p.items[1]->select(); });
  EXPECT_EQ(1, p.tabs->currentIndex());
}

TEST(WTabWidget, saysWhatIsWhatToThoseWhoCannotSee)
{
  TabPage p(2);
  EXPECT_EQ("tablist", p.page.tag("ul")->get("role"));
  EXPECT_TRUE(p.page.tag("ul")->hasClass("Wt-tabs"));
  EXPECT_TRUE(p.page.tag("li")->hasClass("itemselected"));
  EXPECT_TRUE(p.page.tag("li", 1)->hasClass("item"));
  const Testing::Node *shown = p.page.browser->byText("A");
  EXPECT_EQ("tab", shown->get("role"));
  EXPECT_EQ("true", shown->get("aria-selected"));
  EXPECT_EQ("0", shown->get("tabindex"));
  EXPECT_EQ("-1", p.page.browser->byText("B")->get("tabindex"));
  EXPECT_NE(nullptr, p.page.browser->byAttribute("role", "tabpanel"));
  EXPECT_NE(nullptr, p.page.styled("Wt-stack"));
}

TEST(WTabWidget, keepsWhatWasTypedOnAPageThatIsLeft)
{
  TabPage p(2);
  WLineEdit *edit = nullptr;
  p.page.run([&] {
    edit = new WLineEdit();
    p.tabs->addTab(edit, "Edit");
    p.tabs->setCurrentIndex(2);
  });
  p.page.browser->typeWithoutLeaving(p.page.tag("input"), "half");
  p.page.browser->click("A");
  p.page.browser->click("Edit");
  EXPECT_EQ("half", p.page.tag("input")->get(".value"));
  EXPECT_EQ("half", edit->text().toUTF8());
}
