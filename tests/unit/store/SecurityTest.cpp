// SPDX-License-Identifier: MIT
#include "Security.h"

#include "StoreTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

class Security : public StoreTest
{
protected:
  unsigned int login(const char *username = "anna", const char *password = "s3cret")
  {
    return Security_loginNevoUser(username, password, userIndex, passwordIsInitialized);
  }
  unsigned int userIndex = 0;
  bool passwordIsInitialized = false;
};

TEST_F(Security, logsInWithTheAddressOfTheBrowser)
{
  store.answer("CREATE", "adminSession", R"({"index": 1, "userIndex": 3})");
  store.setRecords("user", R"([{"index": 3, "passwordIsInitialized": "is_true"}])");
  EXPECT_EQ(login(), 0U);
  EXPECT_EQ(userIndex, 3U);
  EXPECT_TRUE(passwordIsInitialized);
  EXPECT_THAT(
      store.requests(),
      ElementsAre(
          R"({"method":"CREATE","params":{"ipAddress":"127.0.0.1","password":"s3cret",)"
          R"("sessionType":"nevo","username":"anna"},"resource":"adminSession"})",
          R"({"method":"GET","query":{"index":3},"resource":"user","select":["passwordIsInitialized"]})"));
}

TEST_F(Security, tellsThatAPasswordWasNeverSet)
{
  store.answer("CREATE", "adminSession", R"({"userIndex": 3})");
  for (const char *word : {"is_false", "Is_True", ""}) {
    store.setRecords("user", R"([{"index": 3, "passwordIsInitialized": ")" + std::string(word) + "\"}]");
    passwordIsInitialized = true;
    EXPECT_EQ(login(), 0U);
    EXPECT_FALSE(passwordIsInitialized) << word;
  }
}

TEST_F(Security, refusesALoginWithoutTellingOrLoggingTheReason)
{
  LogCapture log;
  for (const int number : {1103, 1104, 1105}) {
    store.fail("CREATE", "adminSession", "[{\"errno\":" + std::to_string(number) + "}]");
    EXPECT_EQ(login(), 1U);
  }
  store.hangUp("CREATE", "adminSession");
  EXPECT_EQ(login(), 1U);
  EXPECT_EQ(userIndex, 0U);
  EXPECT_THAT(store.requests("GET"), IsEmpty());
  EXPECT_EQ(log.text(), "");
}

TEST_F(Security, refusesALoginWhoseUserCannotBeRead)
{
  store.answer("CREATE", "adminSession", R"({"userIndex": 3})");
  EXPECT_EQ(login(), 1U);
  EXPECT_FALSE(passwordIsInitialized);
}

TEST_F(Security, sendsAnyUsernameAndPasswordAsTheyAre)
{
  store.fail("CREATE", "adminSession", R"([{"errno": 1103}])");
  EXPECT_EQ(login("\"},{\"x\":\"%n", "\\u0000'; --"), 1U);
  EXPECT_EQ(login(nullptr, nullptr), 1U);
  EXPECT_THAT(store.requests().front(),
              R"({"method":"CREATE","params":{"ipAddress":"127.0.0.1","password":"\\u0000'; --",)"
              R"("sessionType":"nevo","username":"\"},{\"x\":\"%n"},"resource":"adminSession"})");
}

TEST_F(Security, logsOutByDeletingTheUsersAdminSession)
{
  store.setRecords("user", R"([{"index": 3, "name": "anna%s"}])");
  store.setRecords("adminSession", R"([{"index": 8, "userIndex": 2}, {"index": 9, "userIndex": 3}])");
  LogCapture log;
  EXPECT_EQ(Security_logoutNevoUser(3, errors), 0U);
  EXPECT_THAT(store.requests("DELETE"),
              ElementsAre(R"({"method":"DELETE","params":{"index":9},"resource":"adminSession"})"));
  EXPECT_EQ(log.text(), "3 Security_logoutNevoUser: anna%s logged out of NEVO.\n");
}

TEST_F(Security, logsOutAUserWhoseNameCannotBeRead)
{
  store.setRecords("adminSession", R"([{"index": 9, "userIndex": 3}])");
  store.hangUp("GET", "user");
  LogCapture log;
  EXPECT_EQ(Security_logoutNevoUser(3, errors), 0U);
  EXPECT_EQ(log.text(), "3 Security_logoutNevoUser:  logged out of NEVO.\n");
}

TEST_F(Security, hasNothingToDoForAUserWithoutAnAdminSession)
{
  store.setRecords("user", R"([{"index": 3, "name": "anna"}])");
  store.setRecords("adminSession", R"([{"index": 8, "userIndex": 2}])");
  LogCapture log;
  EXPECT_EQ(Security_logoutNevoUser(3, errors), 0U);
  EXPECT_THAT(store.requests("DELETE"), IsEmpty());
  EXPECT_EQ(log.text(), "");
}

TEST_F(Security, logsWhyALogoutFailedAndKeepsItFromTheCaller)
{
  store.setRecords("user", R"([{"index": 3, "name": "anna"}])");
  store.setRecords("adminSession", R"([{"index": 9, "userIndex": 3}])");
  store.fail("DELETE", "adminSession", R"([{"errno": 1}])");
  LogCapture log;
  EXPECT_EQ(Security_logoutNevoUser(3, errors), 1U);
  EXPECT_THAT(errors, IsEmpty());
  EXPECT_EQ(log.text(), "1 logZelErrors: " + shown("General failure") + ".\n");
}

TEST_F(Security, setsThePasswordOfAnAdministratorByName)
{
  EXPECT_EQ(Security_setPassword("anna", "n3w"), 0U);
  EXPECT_THAT(store.requests(),
              ElementsAre(R"({"method":"SET","params":{"name":"anna","password":"n3w",)"
                          R"("passwordIsInitialized":"is_true","role":"admin"},"resource":"user"})"));
  store.fail("SET", "user", R"([{"errno": 13}])");
  EXPECT_EQ(Security_setPassword("anna", "n"), 1U);
  store.hangUp("SET", "user");
  LogCapture log;
  EXPECT_EQ(Security_setPassword("anna", "n3w"), 1U);
  EXPECT_EQ(log.text(), "1 Security_setPassword: Cannot change password.\n");
}

TEST_F(Security, logsAUserInAtAReceiver)
{
  EXPECT_EQ(Security_loginRxUser(3, 4, errors), 0U);
  EXPECT_THAT(
      store.requests(),
      ElementsAre(R"({"method":"CREATE","params":{"rxIndex":4,"userIndex":3},"resource":"userSession"})"));
  store.fail("CREATE", "userSession", R"([{"errno": 1108}])");
  LogCapture log;
  EXPECT_EQ(Security_loginRxUser(3, 4, errors), 1U);
  EXPECT_THAT(errors, ElementsAre(shown("Rx not online") + "."));
  EXPECT_EQ(log.text(), "1 logZelErrors: " + errors[0] + "\n");
}

TEST_F(Security, logsTheUserOfAReceiverOut)
{
  store.setRecords("userSession", R"([{"index": 21, "rxIndex": 4, "userIndex": 3}])");
  EXPECT_EQ(Security_logoutUserByRxIndex(4, errors), 0U);
  EXPECT_THAT(store.requests("DELETE"),
              ElementsAre(R"({"method":"DELETE","params":{"index":21},"resource":"userSession"})"));
  EXPECT_EQ(Security_logoutUserByRxIndex(5, errors), 1U);
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(Security, logsAUserOutOfAllReceivers)
{
  store.setRecords("userSession", R"([{"index": 21, "userIndex": 3}, {"index": 22, "userIndex": 4},
                                      {"index": 23, "userIndex": 3}])");
  EXPECT_EQ(Security_logoutUserByUserIndex(3, errors), 0U);
  EXPECT_THAT(store.requests(),
              ElementsAre(R"({"method":"GET","resource":"userSession","select":["index","userIndex"]})",
                          R"({"method":"DELETE","params":{"index":21},"resource":"userSession"})",
                          R"({"method":"DELETE","params":{"index":23},"resource":"userSession"})"));
}

TEST_F(Security, stopsAtTheFirstReceiverThatFailsToLogAUserOut)
{
  store.setRecords("userSession", R"([{"index": 21, "userIndex": 3}, {"index": 23, "userIndex": 3}])");
  store.fail("DELETE", "userSession", R"([{"errno": 1108}])");
  EXPECT_EQ(Security_logoutUserByUserIndex(3, errors), 1U);
  EXPECT_EQ(store.requests("DELETE").size(), 1U);
  EXPECT_THAT(errors, ElementsAre(shown("Rx not online") + "."));
}

TEST_F(Security, hasNothingToDoWhereNobodyIsLoggedInAtAnyReceiver)
{
  LogCapture log;
  EXPECT_EQ(Security_logoutUserByUserIndex(3, errors), 0U);
  EXPECT_THAT(errors, IsEmpty());
  EXPECT_EQ(log.text(), "");
}

TEST_F(Security, failsToLogAUserOutWhereTheLoginsCannotBeRead)
{
  LogCapture log;
  store.fail("GET", "userSession", R"([{"errno": 1105}])");
  EXPECT_EQ(Security_logoutUserByUserIndex(3, errors), 1U);
  EXPECT_THAT(errors, ElementsAre(shown("User does not have the required authorization") + "."));
  EXPECT_EQ(log.text(), "1 logZelErrors: " + errors[0] + "\n");
  store.hangUp("GET", "userSession");
  EXPECT_EQ(Security_logoutUserByUserIndex(3, errors), 1U);
}
