// SPDX-License-Identifier: MIT
#include <Wt/WModelIndex>
#include <Wt/WStandardItemModel>
#include <Wt/WString>
#include <cmath>
#include <gtest/gtest.h>

using namespace Wt;

TEST(WModelIndex, ordersByRowAndThenByColumn)
{
  WStandardItemModel model(3, 3);
  EXPECT_LT(model.index(0, 2), model.index(1, 0));
  EXPECT_LT(model.index(1, 0), model.index(1, 1));
  EXPECT_FALSE(model.index(1, 1) < model.index(1, 1));
  const WModelIndexSet set = {model.index(2, 0), model.index(0, 1), model.index(0, 0)};
  EXPECT_EQ(*set.begin(), model.index(0, 0));
  EXPECT_EQ(*set.rbegin(), model.index(2, 0));
}

TEST(WModelIndex, anInvalidOneIsHarmless)
{
  const WModelIndex none;
  EXPECT_FALSE(none.isValid());
  EXPECT_TRUE(none.data().empty());
  EXPECT_EQ(none.flags().value(), 0);
  EXPECT_FALSE(none.parent().isValid());
  EXPECT_FALSE(none.child(0, 0).isValid());
  EXPECT_EQ(none, WModelIndex());
  EXPECT_FALSE(none < WModelIndex());
}

TEST(WModelIndex, indexesOfDifferentModelsDiffer)
{
  WStandardItemModel first(1, 1);
  WStandardItemModel second(1, 1);
  EXPECT_NE(first.index(0, 0), second.index(0, 0));
}

TEST(AsString, givesTheTextOfAModelValue)
{
  EXPECT_EQ(asString(boost::any(std::string("\xc3\xbc"))).toUTF8(), "\xc3\xbc");
  EXPECT_EQ(asString(boost::any("\xc3\xbc")).toUTF8(), "\xc3\xbc");
  EXPECT_EQ(asString(boost::any(WString("w"))).toUTF8(), "w");
  EXPECT_EQ(asString(boost::any(-5)).toUTF8(), "-5");
  EXPECT_EQ(asString(boost::any(4000000000u)).toUTF8(), "4000000000");
  EXPECT_EQ(asString(boost::any(1.5)).toUTF8(), "1.5");
  EXPECT_EQ(asString(boost::any()).toUTF8(), "");
  struct Unknown {
  };
  EXPECT_EQ(asString(boost::any(Unknown())).toUTF8(), "");
}

TEST(AsString, keepsTheKeyOfATranslatedText)
{
  EXPECT_EQ(asString(boost::any(WString::tr("key"))).key(), "key");
}

TEST(AsNumber, readsNumbersAndNothingElse)
{
  EXPECT_EQ(asNumber(boost::any(7)), 7);
  EXPECT_EQ(asNumber(boost::any(std::string("1.5"))), 1.5);
  EXPECT_TRUE(std::isnan(asNumber(boost::any(std::string("1.5x")))));
  EXPECT_TRUE(std::isnan(asNumber(boost::any())));
}
