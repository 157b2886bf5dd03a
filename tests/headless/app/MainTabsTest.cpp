// SPDX-License-Identifier: MIT
#include "MainTabs.h"

#include "MainView.h"
#include "NevoApplication.h"
#include "NevoSite.h"
#include "SwitchScript.h"

#include <Wt/WContainerWidget>
#include <Wt/WTabWidget>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using testing::ElementsAre;

namespace
{

// What happened to a view.
struct Fate {
  int readings = 0;
  int discards = 0;
  bool edited = false;
};

// A view of which the test knows what happens to it.
template <int number> class View : public Wt::WContainerWidget, public MainView
{
public:
  static Fate fate;

  View() { fate = Fate(); }
  void readAnew() override { ++fate.readings; }
  bool hasChanged() const override { return fate.edited; }
  void discardChanges() override { ++fate.discards; }
};

template <int number> Fate View<number>::fate;

// A page with four main tabs, of which all but the first are for sections of the unsaved changes.
class MainTabsOnAPage : public testing::Test
{
protected:
  MainTabsOnAPage() : visitor_(site_)
  {
    visitor_.open();
    visitor_.logIn();
    act([this] {
      Wt::WTabWidget *widget = new Wt::WTabWidget(site_.application().root());
      tabs_.build(*widget, {{"One", std::nullopt, MainTab::make<View<1>>},
                            {"Two", ChangeTracker::SectionUsers, MainTab::make<View<2>>},
                            {"Three", ChangeTracker::SectionDevices, MainTab::make<View<3>>},
                            {"Four", ChangeTracker::SectionSysSettings, MainTab::make<View<4>>}});
    });
  }

  void act(const std::function<void()> &action)
  {
    site_.manager->post(site_.application().sessionId(), action);
    visitor_.advance(0s);
  }
  static std::vector<int> readings()
  {
    return {View<1>::fate.readings, View<2>::fate.readings, View<3>::fate.readings};
  }

  SwitchScript store_;
  NevoSite site_;
  Visitor visitor_;
  MainTabs tabs_;
};

} // namespace

TEST_F(MainTabsOnAPage, readTheViewInFrontAtOnceAndThenEveryFiveSeconds)
{
  EXPECT_THAT(readings(), ElementsAre(1, 0, 0));
  visitor_.advance(4999ms);
  EXPECT_THAT(readings(), ElementsAre(1, 0, 0));
  visitor_.advance(1ms);
  EXPECT_THAT(readings(), ElementsAre(2, 0, 0));
}

TEST_F(MainTabsOnAPage, readAViewThatComesToTheFrontAndLetTheOthersRest)
{
  visitor_.openTab("Two");
  EXPECT_THAT(readings(), ElementsAre(1, 1, 0));
  visitor_.advance(10s);
  EXPECT_THAT(readings(), ElementsAre(1, 3, 0));
  visitor_.openTab("One");
  visitor_.advance(5s);
  EXPECT_THAT(readings(), ElementsAre(3, 3, 0));
}

TEST_F(MainTabsOnAPage, tickOnceHoweverOftenTheRefreshIsTurnedOn)
{
  act([this] {
    tabs_.find<View<1>>()->enableAutoRefresh();
    tabs_.find<View<1>>()->enableAutoRefresh();
  });
  visitor_.advance(5s);
  EXPECT_THAT(readings(), ElementsAre(2, 0, 0));
}

TEST_F(MainTabsOnAPage, tellEveryViewToDiscardWhatWasNotSaved)
{
  act([this] { tabs_.discardChanges(); });
  EXPECT_EQ(View<1>::fate.discards, 1);
  EXPECT_EQ(View<2>::fate.discards, 1);
  EXPECT_EQ(View<3>::fate.discards, 1);
}

TEST_F(MainTabsOnAPage, knowWhetherAnyViewHasChangedThoughNothingIsRecorded)
{
  EXPECT_FALSE(tabs_.anyViewHasChanged());
  View<3>::fate.edited = true;
  EXPECT_TRUE(tabs_.anyViewHasChanged());
  EXPECT_FALSE(tabs_.anythingChanged());
}

TEST_F(MainTabsOnAPage, keepTheMarkOfASectionAsLongAsAnyOfItsSubsectionsHasChanged)
{
  act([this] {
    tabs_.subsectionChanged(ChangeTracker::DevRxAttribs, true);
    tabs_.subsectionChanged(ChangeTracker::DevTxAttribs, true);
  });
  EXPECT_TRUE(visitor_.shows("Three*"));
  EXPECT_FALSE(visitor_.shows("Two*"));
  act([this] { tabs_.subsectionChanged(ChangeTracker::DevRxAttribs, false); });
  EXPECT_TRUE(visitor_.shows("Three*"));
  act([this] { tabs_.subsectionChanged(ChangeTracker::DevTxAttribs, false); });
  EXPECT_FALSE(visitor_.shows("Three*"));
}

TEST_F(MainTabsOnAPage, markAWholeSectionUnlessItIsThatOfTheSystemSettings)
{
  act([this] {
    tabs_.sectionChanged(ChangeTracker::SectionUsers, true);
    tabs_.sectionChanged(ChangeTracker::SectionSysSettings, true);
  });
  EXPECT_TRUE(visitor_.shows("Two*"));
  EXPECT_FALSE(visitor_.shows("Four*"));
  EXPECT_TRUE(tabs_.sectionChanged(ChangeTracker::SectionSysSettings));
  act([this] { tabs_.subsectionChanged(ChangeTracker::SysSettings, true); });
  EXPECT_TRUE(visitor_.shows("Four*"));
}

TEST_F(MainTabsOnAPage, markNothingForASectionWithoutATab)
{
  act([this] { tabs_.sectionChanged(ChangeTracker::SectionEvents, true); });
  for (const char *label : {"One*", "Two*", "Three*", "Four*"})
    EXPECT_FALSE(visitor_.shows(label)) << label;
}

TEST_F(MainTabsOnAPage, findAViewByItsClass)
{
  EXPECT_TRUE(tabs_.find<View<2>>());
  EXPECT_FALSE(tabs_.find<View<5>>());
}
