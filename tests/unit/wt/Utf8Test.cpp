// SPDX-License-Identifier: MIT
#include "base/Utf8.h"

#include <gtest/gtest.h>

using namespace Wt::Engine;

TEST(Utf8, knowsWellFormedText)
{
  EXPECT_TRUE(isValidUtf8("a\xc3\xbc\xe2\x82\xac\xf0\x9f\x98\x80"));
  for (const char *wrong : {"\x80", "\xc3", "\xc0\x80", "\xe0\x80\x80", "\xed\xa0\x80", "\xf4\x90\x80\x80",
                            "\xff", "\xe2\x82", "\xf8\x88\x80\x80\x80"})
    EXPECT_FALSE(isValidUtf8(wrong));
}

TEST(Utf8, replacesEveryByteThatDoesNotBelong)
{
  EXPECT_EQ(validUtf8("a\xc3z\xe2\x82"), "a?z??");
  EXPECT_EQ(fromUtf8("\xf0\x9f\x98\x80\xff"), L"\U0001f600?");
}

TEST(Utf8, writesCharactersAndReplacesWhatIsNone)
{
  std::string text;
  for (char32_t c :
       {U'a', char32_t(0xfc), char32_t(0x20ac), char32_t(0x1f600), char32_t(0xd800), char32_t(0x110000)})
    appendUtf8(text, c);
  EXPECT_EQ(text, "a\xc3\xbc\xe2\x82\xac\xf0\x9f\x98\x80??");
}
