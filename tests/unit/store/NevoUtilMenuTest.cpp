// SPDX-License-Identifier: MIT
#include "NevoUtil.h"
#include "TestSession.h"
#include "Text.h"

#include <Wt/WMenuItem>
#include <Wt/WTabWidget>
#include <Wt/WText>
#include <gtest/gtest.h>

class NevoUtilMenu : public testing::Test
{
protected:
  Wt::WMenuItem *tab(const Wt::WString &label) { return tabs->addTab(new Wt::WText(), label); }

  TestSession session;
  Wt::WTabWidget *tabs = new Wt::WTabWidget(Wt::WApplication::instance()->root());
};

TEST_F(NevoUtilMenu, marksATabOnceAndTakesTheMarkAwayAgain)
{
  Wt::WMenuItem *item = tab("Users");
  NevoUtil_indicateChange(item, true);
  EXPECT_EQ(item->text().toUTF8(), "Users*");
  NevoUtil_indicateChange(item, true);
  EXPECT_EQ(item->text().toUTF8(), "Users*");
  NevoUtil_indicateChange(item, false);
  EXPECT_EQ(item->text().toUTF8(), "Users");
  NevoUtil_indicateChange(item, false);
  EXPECT_EQ(item->text().toUTF8(), "Users");
}

TEST_F(NevoUtilMenu, marksATranslatedLabel)
{
  session.useTexts();
  Wt::WMenuItem *item = tab(text("Dashboard"));
  NevoUtil_indicateChange(item, true);
  EXPECT_EQ(item->text().toUTF8(), "Dashboard*");
  NevoUtil_indicateChange(item, false);
  EXPECT_EQ(item->text().toUTF8(), "Dashboard");
}

TEST_F(NevoUtilMenu, takesOnlyTheLastStarAwayAndBearsAnEmptyLabel)
{
  Wt::WMenuItem *stars = tab("**");
  NevoUtil_indicateChange(stars, false);
  EXPECT_EQ(stars->text().toUTF8(), "*");
  Wt::WMenuItem *empty = tab("");
  NevoUtil_indicateChange(empty, false);
  EXPECT_EQ(empty->text().toUTF8(), "");
  NevoUtil_indicateChange(empty, true);
  EXPECT_EQ(empty->text().toUTF8(), "*");
}
