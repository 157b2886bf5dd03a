// SPDX-License-Identifier: MIT
#include <Wt/WLength>
#include <gtest/gtest.h>
#include <limits>

using Wt::WLength;

TEST(WLength, isAutoByDefault)
{
  const WLength length;
  EXPECT_TRUE(length.isAuto());
  EXPECT_EQ(length.value(), -1);
  EXPECT_EQ(length.cssText(), "auto");
  EXPECT_EQ(length.toPixels(), 0);
  EXPECT_EQ(length, WLength::Auto);
}

TEST(WLength, comesFromNumbersAsPixels)
{
  const WLength fromInt = 12;
  const WLength fromDouble = 12.0;
  EXPECT_EQ(fromInt, fromDouble);
  EXPECT_EQ(fromInt.cssText(), "12px");
  EXPECT_FALSE(WLength(0).isAuto());
  EXPECT_EQ(WLength(0).cssText(), "0px");
}

TEST(WLength, writesAtMostOneDecimal)
{
  EXPECT_EQ(WLength(2.25, WLength::FontEm).cssText(), "2.3em");
  EXPECT_EQ(WLength(1.5).cssText(), "1.5px");
  EXPECT_EQ(WLength(50, WLength::Percentage).cssText(), "50%");
  EXPECT_EQ(WLength(-0.01).cssText(), "0px");
  EXPECT_EQ(WLength(std::numeric_limits<double>::infinity()).cssText(), "0px");
}

TEST(WLength, readsTextOfAStyleSheet)
{
  EXPECT_EQ(WLength("12px"), WLength(12));
  EXPECT_EQ(WLength("50%"), WLength(50, WLength::Percentage));
  EXPECT_EQ(WLength(" 1.5 em "), WLength(1.5, WLength::FontEm));
  EXPECT_EQ(WLength("7"), WLength(7));
  for (const char *wrong : {"", " ", "auto", "px", "12parsec", "nan", "inf"})
    EXPECT_TRUE(WLength(wrong).isAuto()) << wrong;
}

TEST(WLength, convertsToPixels)
{
  EXPECT_DOUBLE_EQ(WLength(1, WLength::Inch).toPixels(), 96);
  EXPECT_DOUBLE_EQ(WLength(2.54, WLength::Centimeter).toPixels(), 96);
  EXPECT_DOUBLE_EQ(WLength(72, WLength::Point).toPixels(), 96);
  EXPECT_DOUBLE_EQ(WLength(2, WLength::FontEm).toPixels(), 32);
  EXPECT_DOUBLE_EQ(WLength(2, WLength::FontEx).toPixels(10), 10);
  EXPECT_DOUBLE_EQ(WLength(50, WLength::Percentage).toPixels(20), 10);
}

TEST(WLength, multipliesAndDivides)
{
  EXPECT_EQ(WLength(10) * 2, WLength(20));
  EXPECT_EQ(WLength(10) / 4, WLength(2.5));
  EXPECT_NE(WLength(10), WLength(10, WLength::Point));
}
