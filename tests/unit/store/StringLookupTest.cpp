// SPDX-License-Identifier: MIT
#include "StringLookup.h"

#include <gtest/gtest.h>

namespace
{

constexpr StringLookup::Pair kPairs[] = {{"one", "eins"}, {"two", "zwei"}, {"one", "ein"}, {"uno", "eins"}};

} // namespace

TEST(StringLookup, givesTheOtherHalfOfTheFirstPairThatMatches)
{
  StringLookup lookup(kPairs, 4);
  EXPECT_STREQ(lookup.keyToValue("one"), "eins");
  EXPECT_STREQ(lookup.keyToValue("two"), "zwei");
  EXPECT_STREQ(lookup.valueToKey("eins"), "one");
  EXPECT_STREQ(lookup.valueToKey("ein"), "one");
}

TEST(StringLookup, givesNullWhereNothingMatches)
{
  StringLookup lookup(kPairs, 4);
  EXPECT_EQ(lookup.keyToValue("eins"), nullptr);
  EXPECT_EQ(lookup.valueToKey("one"), nullptr);
  EXPECT_EQ(lookup.keyToValue("On"), nullptr);
  EXPECT_EQ(lookup.keyToValue(nullptr), nullptr);
  EXPECT_EQ(lookup.valueToKey(nullptr), nullptr);
}

TEST(StringLookup, takesACountOfZeroOrBelowForAnEmptyTable)
{
  StringLookup none(kPairs, 0);
  StringLookup negative(nullptr, -3);
  EXPECT_EQ(none.keyToValue("one"), nullptr);
  EXPECT_EQ(negative.valueToKey("eins"), nullptr);
}

TEST(StringLookup, canBeReplacedByADerivedClass)
{
  class Shouting : public StringLookup
  {
  public:
    Shouting() : StringLookup(kPairs, 4) {}
    const char *keyToValue(const char *) override { return "EINS"; }
  };
  Shouting shouting;
  StringLookup &lookup = shouting;
  EXPECT_STREQ(lookup.keyToValue("one"), "EINS");
  EXPECT_STREQ(lookup.valueToKey("eins"), "one");
}
