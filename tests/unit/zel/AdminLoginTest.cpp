// SPDX-License-Identifier: MIT
#include "StoreTest.h"
#include "ZelReq.h"
#include "ZelReqUtil.h"
#include "ZelRspUtil.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>

namespace
{

class AdminLogin : public StoreTest
{
};

TEST_F(AdminLogin, theInitialPasswordIsAcceptedAndTheUserIndexComesBack)
{
  json_t *request = ZelReq_adminSessionNewCreateReq();
  ZelReq_adminSessionSetIpAddress(request, "192.0.2.1");
  ZelReqUtil_setStringParam(request, "username", "admin");
  ZelReqUtil_setStringParam(request, "password", "admin");
  ZelReqUtil_setStringParam(request, "sessionType", "nevo");
  json_t *response = send(request);
  ASSERT_NE(nullptr, response);
  EXPECT_EQ(nullptr, ZelRspUtil_getObjectParam(response, "errors"));
  EXPECT_EQ(1, ZelRspUtil_getIntegerParam(response, "userIndex"));
  ZelRspUtil_free(response);
  EXPECT_EQ("is_false", text("user", 1, "passwordIsInitialized"));
}

TEST_F(AdminLogin, anAccountWhosePasswordWasSetIsInitialized)
{
  EXPECT_EQ(0, logInAdministrator("operator", "operator-1"));
  EXPECT_EQ("is_true", text("user", 2, "passwordIsInitialized"));
}

TEST_F(AdminLogin, anUnknownUserAndAWrongPasswordAreTheSame)
{
  EXPECT_EQ(1103, logInAdministrator("nobody", "admin"));
  EXPECT_EQ(1103, logInAdministrator("admin", "Admin"));
  EXPECT_EQ(0u, rows("adminSession"));
}

TEST_F(AdminLogin, missingCredentialsAreNamedAsSuch)
{
  EXPECT_EQ(1102, create("adminSession", {{"username", "admin"}}));
  EXPECT_EQ(1102, create("adminSession", {{"password", "admin"}}));
}

TEST_F(AdminLogin, aDisabledAccountIsRefused)
{
  ASSERT_EQ(0, set("user", 2, {{"accountEnable", "disabled"}}));
  EXPECT_EQ(1104, logInAdministrator("operator", "operator-1"));
}

TEST_F(AdminLogin, aUserWithoutTheRoleIsRefused)
{
  EXPECT_EQ(1105, logInAdministrator("hlindqvist", "shift-lead-2"));
}

TEST_F(AdminLogin, aBlankPasswordNeedsThePermissionForIt)
{
  EXPECT_EQ(13, set("user", 2, {{"password", ""}}));
  ASSERT_EQ(0, set("user", 2, {{"allowBlankPassword", "enabled"}}));
  ASSERT_EQ(0, set("user", 2, {{"password", ""}}));
  EXPECT_EQ(0, logInAdministrator("operator", ""));
  ASSERT_EQ(0, set("user", 2, {{"allowBlankPassword", "disabled"}}));
  EXPECT_EQ(1103, logInAdministrator("operator", ""));
}

TEST_F(AdminLogin, thePasswordThatASetByNameGivesIsTheNewOne)
{
  EXPECT_EQ(0, set("user", 0,
                   {{"name", "admin"},
                    {"role", "admin"},
                    {"password", "Fresh-9"},
                    {"passwordIsInitialized", "is_true"}}));
  EXPECT_EQ("is_true", text("user", 1, "passwordIsInitialized"));
  EXPECT_EQ(1103, logInAdministrator("admin", "admin"));
  EXPECT_EQ(0, logInAdministrator("admin", "Fresh-9"));
}

TEST_F(AdminLogin, noAnswerHoldsAPassword)
{
  json_t *response = ZelReq_userRetrieve(client, nullptr);
  ASSERT_NE(nullptr, response);
  char *json = json_dumps(response, 0);
  EXPECT_EQ(nullptr, std::strstr(json, "pbkdf2"));
  std::free(json);
  ZelRspUtil_free(response);
}

TEST_F(AdminLogin, loginsLogoutsAndFailuresRaiseAlerts)
{
  unsigned session = 0;
  ASSERT_EQ(0, logInAdministrator("operator", "operator-1", &session));
  EXPECT_TRUE(hasAlert("unacknowledgedAlerts", "Administrator operator logged in from 192.0.2.7."));
  EXPECT_EQ(0, remove("adminSession", session));
  EXPECT_TRUE(hasAlert("unacknowledgedAlerts", "Administrator operator logged out."));
  EXPECT_EQ(1103, logInAdministrator("mallory", "x"));
  pass(1);
  EXPECT_TRUE(hasAlert("unacknowledgedAlerts", "Failed administrator login of mallory from 192.0.2.7."));
}

TEST_F(AdminLogin, whenAllPlacesAreTakenTheOldestSessionGivesWay)
{
  unsigned first = 0, logins = 0;
  ASSERT_EQ(0, logInAdministrator("operator", "operator-1", &first));
  while (logins < 512 && logInAdministrator("operator", "operator-1") == 0)
    ++logins;
  EXPECT_EQ(512u, logins) << "a full list is no wrong password";
  EXPECT_EQ(512u, rows("adminSession"));
  EXPECT_EQ(1103, logInAdministrator("operator", "wrong"));
  EXPECT_EQ(512u, rows("adminSession")) << "nobody gives way to a wrong password";
}

class AdminSessions : public AdminLogin
{
protected:
  AdminSessions() { EXPECT_EQ(0, logInAdministrator("operator", "operator-1")); }

  std::size_t sessions() const { return lines(store.control({"list", "adminSession"}).text); }
  void passSeconds(unsigned seconds)
  {
    ASSERT_FALSE(store.control({"jump", std::to_string(seconds)}).failed);
  }
  void hangUp()
  {
    ZelClient_close(client);
    client = nullptr;
  }

private:
  static std::size_t lines(const std::string &text)
  {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  }
};

TEST_F(AdminSessions, ofAClosedPageEndAWhileLater)
{
  hangUp();
  passSeconds(540);
  EXPECT_EQ(1u, sessions());
  passSeconds(70);
  EXPECT_EQ(0u, sessions());
}

TEST_F(AdminSessions, ofClientsThatTheStoreDropsEndLikewise)
{
  ASSERT_FALSE(store.control({"drop"}).failed);
  passSeconds(540);
  EXPECT_EQ(1u, sessions());
  passSeconds(70);
  EXPECT_EQ(0u, sessions());
}

TEST_F(AdminSessions, goOnOverAConnectionThatIsMadeAnew)
{
  reconnect();
  passSeconds(3600);
  EXPECT_EQ(1u, sessions());
  EXPECT_EQ(1u, rows("adminSession"));
  hangUp();
  passSeconds(610);
  EXPECT_EQ(0u, sessions()) << "and end with that one";
}

TEST_F(AdminSessions, goOnAfterTheStoreWasStartedAgain)
{
  store.restart();
  reconnect();
  passSeconds(3600);
  EXPECT_EQ(1u, rows("adminSession"));
  hangUp();
  passSeconds(610);
  EXPECT_EQ(0u, sessions());
}

TEST_F(AdminSessions, areNotTakenOverByWhoComesMuchLater)
{
  hangUp();
  passSeconds(300);
  reconnect();
  passSeconds(310);
  EXPECT_EQ(0u, rows("adminSession"));
}

TEST_F(AdminSessions, oneRenewedConnectionKeepsOneSession)
{
  ZelClient_s *other = ZelClient_new();
  std::swap(client, other);
  ASSERT_EQ(0, logInAdministrator("operator", "operator-1"));
  std::swap(client, other);
  ASSERT_EQ(2u, sessions());
  ZelClient_close(other);
  reconnect();
  passSeconds(700);
  EXPECT_EQ(1u, sessions());
}

} // namespace
