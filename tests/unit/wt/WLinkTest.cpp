// SPDX-License-Identifier: MIT
#include "base/ResourceUrl.h"

#include <Wt/WAnimation>
#include <Wt/WLink>
#include <Wt/WLocale>
#include <gtest/gtest.h>

using namespace Wt;

TEST(WLink, isNullUntilItPointsSomewhere)
{
  EXPECT_TRUE(WLink().isNull());
  EXPECT_TRUE(WLink("").isNull());
  EXPECT_FALSE(WLink("a.png").isNull());
  EXPECT_FALSE(WLink(WLink::InternalPath, "").isNull());
  EXPECT_EQ(WLink().type(), WLink::Url);
}

TEST(WLink, holdsAUrlOrAPathOrAResource)
{
  WLink link(std::string("a.png"));
  EXPECT_EQ(link.url(), "a.png");
  link.setInternalPath("/users");
  EXPECT_EQ(link.type(), WLink::InternalPath);
  EXPECT_EQ(link.internalPath(), "/users");
  int place = 0;
  auto *resource = reinterpret_cast<WResource *>(&place);
  link.setResource(resource);
  EXPECT_EQ(link.type(), WLink::Resource);
  EXPECT_EQ(link.resource(), resource);
  EXPECT_EQ(link.internalPath(), "");
  link.setUrl("b");
  EXPECT_EQ(link.resource(), nullptr);
  EXPECT_EQ(link.url(), "b");
}

TEST(WLink, aResourceTellsItsUrlThroughTheEngine)
{
  int place = 0;
  const auto former = Engine::setResourceUrlSource([](WResource *) { return std::string("/r/1"); });
  EXPECT_EQ(WLink(reinterpret_cast<WResource *>(&place)).url(), "/r/1");
  EXPECT_EQ(WLink(static_cast<WResource *>(nullptr)).url(), "");
  Engine::setResourceUrlSource(former);
}

TEST(WLink, comparesWithoutTheTarget)
{
  WLink first("a");
  WLink second("a");
  second.setTarget(TargetNewWindow);
  EXPECT_EQ(first, second);
  EXPECT_EQ(first.target(), TargetSelf);
  EXPECT_NE(first, WLink("b"));
  EXPECT_NE(first, WLink(WLink::InternalPath, "a"));
}

TEST(WAnimation, isEmptyByDefaultAndLastsAQuarterSecond)
{
  EXPECT_TRUE(WAnimation().empty());
  const WAnimation fade(WAnimation::SlideInFromTop | WAnimation::Fade);
  EXPECT_FALSE(fade.empty());
  EXPECT_EQ(fade.duration(), 250);
  EXPECT_EQ(fade.timingFunction(), WAnimation::Linear);
  EXPECT_EQ(fade.effects().value(), 0x104);
  EXPECT_NE(fade, WAnimation());
}

TEST(WLocale, comesFromItsName)
{
  const WLocale locale = "en-GB";
  EXPECT_EQ(locale.name(), "en-GB");
  EXPECT_EQ(locale, WLocale(std::string("en-GB")));
  EXPECT_EQ(WLocale().name(), "");
}
