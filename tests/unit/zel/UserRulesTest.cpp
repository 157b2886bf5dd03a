// SPDX-License-Identifier: MIT
#include "StoreTest.h"

namespace
{

class UserRules : public StoreTest
{
};

TEST_F(UserRules, aNewAccountHasAnEmptyTargetList)
{
  unsigned index = 0;
  ASSERT_EQ(0, create("user",
                      {{"name", "20260101120000"}, {"role", "user"}, {"password", "0123456789ABCDEF0123"}},
                      &index));
  EXPECT_TRUE(exists("userTargetList", index));
  EXPECT_EQ("is_false", text("user", index, "passwordIsInitialized"));
  EXPECT_EQ(0, remove("user", index));
  EXPECT_FALSE(exists("userTargetList", index));
}

TEST_F(UserRules, settingThePasswordOfAnAccountInitializesIt)
{
  unsigned index = 0;
  ASSERT_EQ(0, create("user", {{"name", "fresh"}, {"role", "admin"}, {"password", "a"}}, &index));
  ASSERT_EQ(0, set("user", index, {{"password", "b"}}));
  EXPECT_EQ("is_true", text("user", index, "passwordIsInitialized"));
  EXPECT_EQ(0, logInAdministrator("fresh", "b"));
}

TEST_F(UserRules, namesAreUniqueAndNotEmptyAndOfLettersAndDigits)
{
  EXPECT_EQ(11, create("user", {{"name", "operator"}, {"password", "x"}}));
  EXPECT_EQ(13, create("user", {{"name", ""}, {"password", "x"}}));
  EXPECT_EQ(1007, create("user", {{"password", "x"}}));
  EXPECT_EQ(17, create("user", {{"name", "two words"}, {"password", "x"}}));
  EXPECT_EQ(14, create("user", {{"name", "abcdefghijklmnopqrstu"}, {"password", "x"}}));
  EXPECT_EQ(11, set("user", 3, {{"name", "operator"}}));
}

TEST_F(UserRules, aPasswordHasNoBlanksAndAtMostTwentyCharacters)
{
  EXPECT_EQ(17, set("user", 3, {{"password", "two words"}}));
  EXPECT_EQ(14, set("user", 3, {{"password", "123456789012345678901"}}));
}

TEST_F(UserRules, theLastAdministratorStays)
{
  EXPECT_EQ(0, remove("user", 2));
  EXPECT_EQ(1106, remove("user", 1));
  EXPECT_EQ(1106, set("user", 1, {{"role", "user"}}));
  EXPECT_EQ(1106, set("user", 1, {{"accountEnable", "disabled"}}));
}

TEST_F(UserRules, aUserAtAReceiverIsNotDeleted)
{
  ASSERT_EQ(0, logIn(4, 2));
  EXPECT_EQ(1014, remove("user", 4));
}

TEST_F(UserRules, deletingAnAdministratorEndsTheSessions)
{
  ASSERT_EQ(0, logInAdministrator("operator", "operator-1"));
  ASSERT_EQ(1u, rows("adminSession"));
  EXPECT_EQ(0, remove("user", 2));
  EXPECT_EQ(0u, rows("adminSession"));
}

TEST_F(UserRules, wordsOutsideTheListAndNumbersOutsideTheRangeAreRefused)
{
  EXPECT_EQ(12, set("user", 3, {{"role", "king"}}));
  EXPECT_EQ(10, set("user", 3, {{"osdInactivityTimeout", 1441u}}));
  EXPECT_EQ(1013, set("user", 3, {{"colour", "red"}}));
  EXPECT_EQ(7, set("user", 999, {{"fullName", "x"}}));
}

TEST_F(UserRules, favouritesAreExistingTransmittersAndAtMostThirtyTwo)
{
  EXPECT_EQ(0, setJson("user", 3, "favorite", R"([{"txIndex":4},{"txIndex":2}])"));
  EXPECT_EQ(7, setJson("user", 3, "favorite", R"([{"txIndex":999}])"));
  std::string many = "[";
  for (int i = 0; i < 33; ++i)
    many += std::string(i ? "," : "") + R"({"txIndex":1})";
  EXPECT_EQ(15, setJson("user", 3, "favorite", many + "]"));
}

TEST_F(UserRules, targetListsAreWrittenWhole)
{
  EXPECT_EQ(0, setJson("userTargetList", 4, "target", R"([{"txIndex":5},{"txIndex":1}])"));
  EXPECT_EQ(R"([{"txIndex":5},{"txIndex":1}])", store.get("userTargetList", 4, "target"));
  EXPECT_EQ(7, setJson("userTargetList", 4, "target", R"([{"txIndex":999}])"));
}

TEST_F(UserRules, aShortCutWithoutAnActionKeepsTheUsersOwn)
{
  ASSERT_EQ(0, setJson("user", 3, "keySettings",
                       R"({"osdShortCuts":[{"functionKey":"f3","action":"enumerate_mouse","txEID":""}]})"));
  ASSERT_EQ(
      0,
      setJson(
          "user", 3, "keySettings",
          R"({"osdShortCuts":[{"functionKey":"f3"},{"functionKey":"f4","action":"enumerate_keyboard"}]})"));
  const std::string kept = store.get("user", 3, "keySettings");
  EXPECT_NE(std::string::npos, kept.find("enumerate_mouse")) << kept;
  EXPECT_NE(std::string::npos, kept.find("enumerate_keyboard")) << kept;
}

TEST_F(UserRules, theHotKeyAndTheShortCutsChangeApart)
{
  ASSERT_EQ(0, setJson("user", 3, "keySettings",
                       R"({"osdShortCuts":[{"functionKey":"f1","action":"enumerate_mouse","txEID":""}]})"));
  ASSERT_EQ(0, setJson("user", 3, "keySettings",
                       R"({"osdHotKey":{"hotKey":"custom","customKeys":{"sequence":"BAU=","length":2}}})"));
  const std::string kept = store.get("user", 3, "keySettings");
  EXPECT_NE(std::string::npos, kept.find("enumerate_mouse")) << kept;
  EXPECT_NE(std::string::npos, kept.find("\"BAU=\"")) << kept;
  EXPECT_EQ(12, setJson("user", 3, "keySettings", R"({"osdHotKey":{"hotKey":"any_key"}})"));
}

TEST_F(UserRules, oneAccountIsDisabledAndOneBelongsToAnExternalManager)
{
  EXPECT_EQ("disabled", text("user", 9, "accountEnable"));
  EXPECT_EQ("", text("user", 10, "name"));
  EXPECT_EQ("locampo", text("user", 10, "mgrName"));
}

} // namespace
