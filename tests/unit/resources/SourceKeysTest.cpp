// SPDX-License-Identifier: MIT
#include "SourceKeys.h"

#include "ResourceFiles.h"
#include "data/Catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <pugixml.hpp>
#include <vector>

using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace
{

std::set<std::string> keysInBundle()
{
  std::set<std::string> keys;
  pugi::xml_document document;
  EXPECT_TRUE(document.load_file(resourcePath("msgs-general.xml").c_str()));
  for (const pugi::xml_node &message : document.child("messages").children("message"))
    keys.insert(message.attribute("id").value());
  return keys;
}

// The beginnings of keys that end in a word of the store, and the words that the store has for each.
const std::map<std::string, std::vector<std::string>> kKeysOfWords = {
    {"manager.designation.", {"none", "primary", "auxiliary"}},
};

std::set<std::string> keysInUse()
{
  std::set<std::string> keys;
  for (const char *folder : {"app", "store", "widgets", "views"})
    keys.merge(keysInFolder(folder));
  for (const auto &[beginning, words] : kKeysOfWords) {
    if (keys.erase(beginning) == 0)
      continue;
    for (const std::string &word : words)
      keys.insert(beginning + word);
  }
  return keys;
}

std::set<std::string> missing(const std::set<std::string> &wanted, const std::set<std::string> &present)
{
  std::set<std::string> rest;
  for (const std::string &key : wanted) {
    if (!present.count(key))
      rest.insert(key);
  }
  return rest;
}

} // namespace

TEST(SourceKeys, standInCallsAndInTables)
{
  EXPECT_THAT(keysInSource(R"(setText(text("Log In"));  row = {1, "[RSnnn]General failure"};
                              x = Wt::WString::tr("cascade.label.link") + tr( "tt.a.b" );
                              {2, wholeKey("result.failure.x")}, set("plain"), widget.text(), "text(";
                              textOfWord("colour.", word))"),
              UnorderedElementsAre("[RSnnn]Log In", "[RSnnn]General failure", "cascade.label.link", "tt.a.b",
                                   "result.failure.x", "colour."));
}

TEST(SourceKeys, areJoinedWhereALiteralContinues)
{
  EXPECT_THAT(keysInSource("text(\"One, \"\n  // why\n  \"two \\\"three\\\".\"); f(\"a\", \"b\");"),
              UnorderedElementsAre("[RSnnn]One, two \"three\"."));
}

TEST(SourceKeys, areNotTakenFromCommentsNorConfusedByQuotationMarks)
{
  EXPECT_THAT(keysInSource("// text(\"A\")\n/* tr(\"b.c\") */ x = '\"'; y = '\\''; n = 1'000; text(\"D\");"),
              UnorderedElementsAre("[RSnnn]D"));
}

TEST(SourceKeys, areNotTakenFromALaterArgument)
{
  EXPECT_THAT(keysInSource(R"(context(\"A\"); text(name, "B"); tr(key + "C");)"), IsEmpty());
}

TEST(SourceKeys, allHaveATextInTheBundle)
{
  EXPECT_GT(keysInUse().size(), 100U);
  EXPECT_THAT(missing(keysInUse(), keysInBundle()), IsEmpty());
}

TEST(SourceKeys, areAllThatTheBundleHasBesideTheNamesThatTheStoreTells)
{
  std::set<std::string> unused = missing(keysInBundle(), keysInUse());
  for (auto key = unused.begin(); key != unused.end();)
    key = zelsim::isDataName(*key) ? unused.erase(key) : std::next(key);
  EXPECT_THAT(unused, IsEmpty());
}
