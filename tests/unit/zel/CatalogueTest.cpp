// SPDX-License-Identifier: MIT
// The catalogue's table against itself, and validation against rows of a test's own.
#include "data/Catalogue.h"

#include "data/Password.h"
#include "data/Store.h"
#include "rules/Validate.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace
{

using namespace zelsim;

constexpr Parameter kAddressRows[] = {text("address", 0, 15), integer("length", 0, 32).byDefault("24"),
                                      text("secret", 0, 20).with(kSecret)};
constexpr Parameter kEntryRows[] = {integer("txIndex", 1, 9)};

// The numbers of what is wrong with a JSON value for a parameter.
std::vector<int> problemsOf(const Parameter &row, const char *json)
{
  Json given(json_loads(json, JSON_DECODE_ANY, nullptr));
  std::vector<Problem> problems;
  validate(row, given.get(), problems);
  std::vector<int> numbers;
  for (const Problem &problem : problems)
    numbers.push_back(problem.number);
  return numbers;
}

// A default may stand for "not set" outside the limits of what can be set.
bool isUnset(int problem)
{
  return problem == kOutOfRange || problem == kTooShort || problem == kInvalidBinaryLength ||
         problem == kInvalidParameter;
}

std::vector<int> none()
{
  return {};
}

std::string merged(const Parameter &row, const char *json, const Value &present)
{
  Json given(json_loads(json, JSON_DECODE_ANY, nullptr));
  return std::string(toValue(row, given.get(), present).text());
}

TEST(Catalogue, holdsNoNameTwiceAndOnlyDefaultsOfTheirTypes)
{
  std::set<std::string> resources;
  for (std::size_t i = 0; i < kCatalogueSize; ++i) {
    const Resource &resource = kCatalogue[i];
    EXPECT_TRUE(resources.insert(resource.name).second) << resource.name;
    std::set<std::string> names;
    for (std::size_t k = 0; k < resource.parameterCount; ++k) {
      Parameter row = resource.parameters[k];
      EXPECT_TRUE(names.insert(row.name).second) << resource.name << " " << row.name;
      EXPECT_STRNE("index", row.name);
      row.flags &= ~(kReadOnly | kComputed);
      for (int problem : problemsOf(row, defaultJson(row).c_str()))
        EXPECT_TRUE(isUnset(problem)) << resource.name << " " << row.name << " " << problem;
    }
  }
}

TEST(Catalogue, describesEveryResourceAndParameter)
{
  std::string text = describeCatalogue();
  for (std::size_t i = 0; i < kCatalogueSize; ++i)
    EXPECT_NE(std::string::npos, text.find(std::string(kCatalogue[i].name) + " (")) << kCatalogue[i].name;
  EXPECT_NE(std::string::npos, text.find("name: text, "));
}

TEST(Validation, measuresTextsInCharacters)
{
  Parameter row = text("name", 2, 4);
  EXPECT_EQ(none(), problemsOf(row, "\"東京東京\""));
  EXPECT_EQ(std::vector<int>{kTooLong}, problemsOf(row, "\"abcde\""));
  EXPECT_EQ(std::vector<int>{kTooShort}, problemsOf(row, "\"é\""));
  EXPECT_EQ(std::vector<int>{kInvalidFormat}, problemsOf(row, "5"));
}

TEST(Validation, keepsIntegersWithinTheirRange)
{
  Parameter row = integer("count", 1, 10);
  EXPECT_EQ(none(), problemsOf(row, "10"));
  EXPECT_EQ(none(), problemsOf(row, "\"7\""));
  EXPECT_EQ(std::vector<int>{kOutOfRange}, problemsOf(row, "0"));
  EXPECT_EQ(std::vector<int>{kOutOfRange}, problemsOf(row, "\"11\""));
  for (const char *bad : {"\"7a\"", "\"\"", "1.5", "true", "null", "{}", "\"99999999999999999999\""})
    EXPECT_EQ(std::vector<int>{kInvalidFormat}, problemsOf(row, bad)) << bad;
}

TEST(Validation, takesOnlyTheWordsOfARow)
{
  Parameter row = word("mode", "share_mode private_mode", "share_mode");
  EXPECT_EQ(none(), problemsOf(row, "\"private_mode\""));
  for (const char *bad : {"\"private\"", "\"\"", "\"share_mode private_mode\"", "1", "true"})
    EXPECT_EQ(std::vector<int>{kInvalidEnumerated}, problemsOf(row, bad)) << bad;
}

TEST(Validation, takesABooleanForEnabledAndDisabled)
{
  Parameter row = enableDisable("on", "disabled");
  EXPECT_EQ(none(), problemsOf(row, "true"));
  EXPECT_EQ("enabled", merged(row, "true", Value()));
  EXPECT_EQ("disabled", merged(row, "false", Value()));
  EXPECT_EQ(none(), problemsOf(boolean("on"), "\"enabled\""));
  EXPECT_EQ(std::vector<int>{kInvalidFormat}, problemsOf(boolean("on"), "\"perhaps\""));
}

TEST(Validation, checksBinaryBlocks)
{
  Parameter row = binary("data", 2, 3);
  EXPECT_EQ(none(), problemsOf(row, "\"AAA=\""));
  EXPECT_EQ(std::vector<int>{kInvalidBinaryLength}, problemsOf(row, "\"AAAAAA==\""));
  EXPECT_EQ(std::vector<int>{kBadContent}, problemsOf(row, "\"AAA\""));
  EXPECT_EQ(std::vector<int>{kBadContent}, problemsOf(row, "7"));
}

TEST(Validation, looksIntoObjectsAndLists)
{
  Parameter network = object("network", kAddressRows);
  EXPECT_EQ(none(), problemsOf(network, R"({"address":"10.0.0.1"})"));
  EXPECT_EQ((std::vector<int>{kOutOfRange, kUnknownParameter}),
            problemsOf(network, R"({"length":33,"mask":1})"));
  EXPECT_EQ(std::vector<int>{kInvalidFormat}, problemsOf(network, "[]"));
  Parameter targets = list("target", 2, kEntryRows);
  EXPECT_EQ(none(), problemsOf(targets, R"([{"txIndex":1},{"txIndex":2}])"));
  EXPECT_EQ(std::vector<int>{kTooLarge}, problemsOf(targets, "[{},{},{}]"));
  EXPECT_EQ((std::vector<int>{kInvalidFormat, kOutOfRange}), problemsOf(targets, R"([5,{"txIndex":0}])"));
}

TEST(Validation, refusesWhatOnlyTheSwitchWrites)
{
  EXPECT_EQ(std::vector<int>{kInvalidParameter}, problemsOf(text("eid", 0, 13).with(kReadOnly), "\"x\""));
  EXPECT_EQ(std::vector<int>{kInvalidParameter}, problemsOf(integer("time", 0, 9).with(kComputed), "1"));
}

TEST(Validation, changesOnlyTheMembersThatAreNamed)
{
  Parameter network = object("network", kAddressRows);
  Value present = Value::nested(R"({"address":"10.0.0.1","length":24})");
  EXPECT_EQ(R"({"address":"10.0.0.1","length":8})", merged(network, R"({"length":"8"})", present));
  EXPECT_EQ(R"({"address":"","length":24})", defaultJson(network));
}

TEST(Validation, keepsSecretsHashedAlsoInsideObjects)
{
  setPasswordIterations(10);
  Parameter network = object("network", kAddressRows);
  EXPECT_TRUE(hasSecrets(network));
  std::string kept = merged(network, R"({"secret":"open sesame"})", Value::nested("{}"));
  EXPECT_EQ(std::string::npos, kept.find("sesame"));
  EXPECT_NE(std::string::npos, kept.find("pbkdf2"));
}

} // namespace
