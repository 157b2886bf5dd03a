// SPDX-License-Identifier: MIT
#include "base/Pattern.h"

#include "base/RepeatCounts.h"

#include <gtest/gtest.h>
#include <jansson.h>
#include <string>
#include <utility>
#include <vector>

using Wt::Engine::Pattern;

namespace
{

/// The table that a browser's own expressions are tested with, too.
json_t *table()
{
  static json_t *const rows = json_load_file(NEVO_SOURCE_DIR "/tests/tables/patterns.json", 0, nullptr);
  return rows;
}

std::vector<std::string> textsOf(const json_t *row, const char *member)
{
  std::vector<std::string> texts;
  const json_t *list = json_object_get(row, member);
  for (std::size_t i = 0; i < json_array_size(list); ++i) {
    const json_t *text = json_array_get(list, i);
    texts.emplace_back(json_string_value(text), json_string_length(text));
  }
  return texts;
}

} // namespace

TEST(Pattern, comesToTheVerdictsOfTheTableThatItSharesWithBrowsers)
{
  ASSERT_GT(json_array_size(table()), 30U);
  for (std::size_t i = 0; i < json_array_size(table()); ++i) {
    const json_t *row = json_array_get(table(), i);
    const std::string text = json_string_value(json_object_get(row, "pattern"));
    const Pattern pattern(text, json_is_true(json_object_get(row, "ignoreCase")));
    EXPECT_TRUE(pattern.valid()) << text << ": " << pattern.error();
    for (const std::string &matching : textsOf(row, "matching"))
      EXPECT_TRUE(pattern.matches(matching)) << text << " on " << matching;
    for (const std::string &other : textsOf(row, "other"))
      EXPECT_FALSE(pattern.matches(other)) << text << " on " << other;
  }
}

TEST(Pattern, worksOnCharactersAndNotOnBytes)
{
  EXPECT_TRUE(Pattern(".").matches("\xc3\xbc"));
  EXPECT_FALSE(Pattern("..").matches("\xc3\xbc"));
  EXPECT_TRUE(Pattern("[^a]{3}").matches(std::string("b\0\n", 3)));
}

TEST(Pattern, refusesWhatIsNotWellFormed)
{
  for (const char *wrong : {"(", ")", "a)", "[", "[a", "[z-a]", "*", "a**", "a{3,2}", "\\", "(?=a)",
                            "(?<n>a)", "\\1", "\\q", "[[:nothing:]]", "\\x4", "a{99999}", "[\\"}) {
    const Pattern pattern(wrong);
    EXPECT_FALSE(pattern.valid()) << wrong;
    EXPECT_FALSE(pattern.matches("a")) << wrong;
  }
}

TEST(Pattern, refusesWhatWouldGrowTooLarge)
{
  EXPECT_FALSE(Pattern("((a{1000}){1000}){1000}").valid());
  EXPECT_FALSE(Pattern("((((){10000}){10000}){10000}){10000}").valid());
  std::string deep = "a";
  for (int i = 0; i < 90; ++i)
    deep = '(' + deep + "){9999}";
  EXPECT_FALSE(Pattern(deep).valid());
}

TEST(Pattern, takesDeepNestingWithoutHarm)
{
  EXPECT_TRUE(Pattern(std::string(5000, '(') + std::string(5000, ')')).matches(""));
}

TEST(Pattern, usersOfOnePatternShareIt)
{
  const auto first = Pattern::shared("a+");
  EXPECT_EQ(Pattern::shared("a+"), first);
  EXPECT_NE(Pattern::shared("a+", true), first);
}

TEST(RepeatCounts, turnsGreatCountsIntoRowsOfSmallerOnes)
{
  using Wt::Engine::withSmallRepeatCounts;
  const std::pair<const char *, const char *> cases[] = {
      {"a{3}b{0,1000}", "a{3}b{0,1000}"},
      {"xa{0,1024}y", "x(?:a{0,1000}a{0,24})y"},
      {"[a\\]{]{1001}", "(?:[a\\]{]{1000,1000}[a\\]{]{1,1})"},
      {"(a(b)){1500,}", "(?:(a(b)){1000,1000}(a(b)){500,500}(a(b))*)"},
      {"\\.{2000,2001}", "(?:\\.{1000,1000}\\.{1000,1000}\\.{0,1})"},
      {"\xc3\xbc{1001}", "(?:\xc3\xbc{1000,1000}\xc3\xbc{1,1})"},
      {"a{2000,1500}", "a{2000,1500}"},
      {"a{20000}", "a{20000}"},
      {"a{,2000}", "a{,2000}"},
      {"a{2000", "a{2000"},
      {"[", "["},
      {"\\", "\\"},
      {")", ")"},
  };
  for (const auto &c : cases)
    EXPECT_EQ(c.second, withSmallRepeatCounts(c.first)) << c.first;
}
