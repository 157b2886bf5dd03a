// SPDX-License-Identifier: MIT
#include "base/Pattern.h"

#include <gtest/gtest.h>
#include <string>

using Wt::Engine::Pattern;

namespace
{

struct Case {
  const char *pattern;
  const char *matching;
  const char *other;
};

const Case kCases[] = {
    {"abc", "abc", "abd"},
    {"a.c", "a\nc", "ac"},
    {"a|bc|", "bc", "b"},
    {"(ab)*", "abab", "aba"},
    {"(?:ab)+", "ab", ""},
    {"a?b", "b", "aab"},
    {"a{3}", "aaa", "aaaa"},
    {"a{2,}", "aaaa", "a"},
    {"a{1,2}", "aa", "aaa"},
    {"a{0,2}", "", "aaa"},
    {"a+?b", "aab", "b"},
    {"[a-c]", "b", "d"},
    {"[^a-c]", "d", "b"},
    {"[]a]", "]", "b"},
    {"[a-]", "-", "b"},
    {"[a\\-z]", "-", "b"},
    {"[\\d.]+", "1.2", "1,2"},
    {"[[:alpha:]_]+", "a_b", "a1"},
    {"\\d\\D\\w\\W\\s\\S", "1a_- x", "1a_-xx"},
    {"\\.\\*\\(", ".*(", "a*("},
    {"\\x41\\n", "A\n", "A"},
    {"^a$", "a", "b"},
    {"^a$|^$", "", "b"},
    {"(a|b$)c?", "b", "bc"},
    {"\\Aa\\z", "a", "b"},
    {"([0-9a-zA-Z]{6,6}-[0-9a-zA-Z]{6,6})", "0ab123-zZ9999", "0ab123-zZ99990"},
    {"((25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?)\\.){3}(25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?)", "192.168.0.255",
     "192.168.0.256"},
    {"(()*)*x", "x", "y"},
};

} // namespace

TEST(Pattern, matchesWholeTexts)
{
  for (const Case &c : kCases) {
    const Pattern pattern(c.pattern);
    EXPECT_TRUE(pattern.valid()) << c.pattern << ": " << pattern.error();
    EXPECT_TRUE(pattern.matches(c.matching)) << c.pattern << " on " << c.matching;
    EXPECT_FALSE(pattern.matches(c.other)) << c.pattern << " on " << c.other;
  }
}

TEST(Pattern, anchorsHoldOnlyAtTheEndsOfTheText)
{
  EXPECT_FALSE(Pattern("a^b").matches("ab"));
  EXPECT_FALSE(Pattern("a$\nb").matches("a\nb"));
}

TEST(Pattern, worksOnBytes)
{
  EXPECT_TRUE(Pattern("\xc3\xbc").matches("\xc3\xbc"));
  EXPECT_FALSE(Pattern(".").matches("\xc3\xbc"));
  EXPECT_TRUE(Pattern("..").matches("\xc3\xbc"));
  EXPECT_TRUE(Pattern("[^a]*").matches(std::string("\xff\0x", 3)));
}

TEST(Pattern, refusesWhatIsNotWellFormed)
{
  for (const char *wrong :
       {"(",      ")",        "a)",  "[",  "[a",    "[z-a]",   "*",   "a**", "a{2",
        "a{3,2}", "a{x}",     "{2}", "\\", "(?=a)", "(?<n>a)", "\\1", "\\q", "[[:nothing:]]",
        "\\x4",   "a{99999}", "[\\"}) {
    const Pattern pattern(wrong);
    EXPECT_FALSE(pattern.valid()) << wrong;
    EXPECT_FALSE(pattern.matches("a")) << wrong;
  }
}

TEST(Pattern, refusesWhatWouldGrowTooLarge)
{
  EXPECT_FALSE(Pattern("((a{1000}){1000}){1000}").valid());
  EXPECT_FALSE(Pattern("((((){10000}){10000}){10000}){10000}").valid());
  EXPECT_FALSE(Pattern(std::string(5000, '(') + std::string(5000, ')')).valid());
}

TEST(Pattern, usersOfOnePatternShareIt)
{
  const auto first = Pattern::shared("a+");
  EXPECT_EQ(Pattern::shared("a+"), first);
  EXPECT_NE(Pattern::shared("a+", true), first);
}
