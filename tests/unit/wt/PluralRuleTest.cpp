// SPDX-License-Identifier: MIT
#include "base/PluralRule.h"

#include <gtest/gtest.h>

using Wt::Engine::PluralRule;

TEST(PluralRule, choosesTheFormOfALanguage)
{
  const PluralRule english("n==1 ? 0 : 1");
  EXPECT_EQ(english.form(1), 0u);
  EXPECT_EQ(english.form(0), 1u);
  const PluralRule polish("n==1 ? 0 : n%10>=2 && n%10<=4 && (n%100<10 || n%100>=20) ? 1 : 2");
  EXPECT_EQ(polish.form(1), 0u);
  EXPECT_EQ(polish.form(3), 1u);
  EXPECT_EQ(polish.form(13), 2u);
  EXPECT_EQ(polish.form(23), 1u);
  EXPECT_EQ(PluralRule("!(n!=1)").form(1), 1u);
  EXPECT_EQ(PluralRule("n>1").form(2), 1u);
  EXPECT_EQ(PluralRule("10-2-3").form(0), 5u);
  EXPECT_EQ(PluralRule("1+2*3").form(0), 7u);
}

TEST(PluralRule, isHarmlessWhateverItSays)
{
  for (const char *wrong : {"", "n==", "(n", "n ? 1", "n n", "x", "1/0", "1%0", "99999999999999999999999"})
    EXPECT_EQ(PluralRule(wrong).form(5), 0u) << wrong;
  EXPECT_EQ(PluralRule(std::string(100000, '(')).form(5), 0u);
  EXPECT_EQ(PluralRule(std::string(100000, '!')).form(5), 0u);
}
