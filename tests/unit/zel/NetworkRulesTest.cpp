// SPDX-License-Identifier: MIT
#include "StoreTest.h"

#include <ctime>

namespace
{

class NetworkSettings : public StoreTest
{
protected:
  int setFour(const std::string &members)
  {
    return setJson("swx", 2, "network", R"({"ipv4":{)" + members + "}}");
  }
  int setSix(const std::string &members)
  {
    return setJson("swx", 2, "network", R"({"ipv6":{)" + members + "}}");
  }
};

TEST_F(NetworkSettings, staticAddressesAreKeptAndTheOtherFamilyStays)
{
  const std::string six = text("swx/network/ipv6", 2, "ipAddress");
  EXPECT_EQ(
      0,
      setFour(
          R"("ipv4ConfMethod":"static","ipAddress":"10.1.2.3","subnetMask":"255.255.0.0","gatewayAddress":"10.1.0.1")"));
  EXPECT_EQ("10.1.2.3", text("swx/network/ipv4", 2, "ipAddress"));
  EXPECT_EQ(six, text("swx/network/ipv6", 2, "ipAddress"));
  EXPECT_EQ(0, setFour(R"("gatewayAddress":"10.1.0.2")"));
  EXPECT_EQ("10.1.2.3", text("swx/network/ipv4", 2, "ipAddress"));
}

TEST_F(NetworkSettings, addressesThatAreNoneAreRefused)
{
  EXPECT_EQ(17, setFour(R"("ipv4ConfMethod":"static","ipAddress":"10.1.2.300")"));
  EXPECT_EQ(17, setSix(R"("ipv6ConfMethod":"static","ipAddress":"10.1.2.3")"));
  EXPECT_EQ(10, setSix(R"("prefixLength":0)"));
  EXPECT_EQ(10, setSix(R"("prefixLength":129)"));
  EXPECT_EQ(0, setSix(R"("prefixLength":128)"));
  EXPECT_EQ(12, setFour(R"("ipv4ConfMethod":"magic")"));
  EXPECT_EQ(9, setFour(R"("ipv4PrimaryDnsServer":"10.0.0.1")"));
}

TEST_F(NetworkSettings, leavingStaticAddressesBringsTheAssignedOnesBack)
{
  const std::string assigned = text("swx/network/ipv4", 2, "ipAddress");
  ASSERT_EQ(0, setFour(R"("ipv4ConfMethod":"static","ipAddress":"10.1.2.3")"));
  ASSERT_EQ(0, setFour(R"("ipv4ConfMethod":"dhcp")"));
  EXPECT_EQ(assigned, text("swx/network/ipv4", 2, "ipAddress"));
}

class TimeServer : public StoreTest
{
protected:
  std::string statusWith(const char *first, const char *second = "")
  {
    EXPECT_EQ(
        0,
        set("swx", 1,
            {{"ntpEnable", "enabled"}, {"primaryNtpIpAddress", first}, {"secondaryNtpIpAddress", second}}));
    pass(4);
    return text("swx", 1, "ntpStatus");
  }
};

TEST_F(TimeServer, answersAfterAWhile)
{
  EXPECT_EQ("inactive", text("swx", 1, "ntpStatus"));
  ASSERT_EQ(0, set("swx", 1, {{"ntpEnable", "enabled"}, {"primaryNtpIpAddress", "time.example.net"}}));
  EXPECT_EQ("pending", text("swx", 1, "ntpStatus"));
  pass(4);
  EXPECT_EQ("success", text("swx", 1, "ntpStatus"));
  ASSERT_EQ(0, set("swx", 1, {{"ntpEnable", "disabled"}}));
  EXPECT_EQ("inactive", text("swx", 1, "ntpStatus"));
}

TEST_F(TimeServer, canFailInItsWays)
{
  EXPECT_EQ("bad_configuration", statusWith(""));
  EXPECT_EQ("server_unresponsive", statusWith("time.invalid"));
  EXPECT_EQ("network_unreachable", statusWith("192.0.2.9"));
  EXPECT_EQ("success", statusWith("192.0.2.9", "10.0.0.1"));
}

TEST_F(TimeServer, theAddressHasToBeOne)
{
  EXPECT_EQ(17, set("swx", 1, {{"primaryNtpIpAddress", "single"}}));
  EXPECT_EQ(0, set("swx", 1, {{"primaryNtpIpAddress", "2001:db8::1"}}));
  EXPECT_EQ(0, set("swx", 1, {{"primaryNtpIpAddress", ""}}));
}

TEST_F(TimeServer, aJumpLeavesTheTimeOfTheSwitchAndMovesThePast)
{
  const unsigned before = number("swx", 1, "currentSysTime");
  EXPECT_NEAR(static_cast<double>(std::time(nullptr)), before, 2);
  const unsigned start = number("userSession", 1, "sessionStartTime");
  pass(3600);
  EXPECT_LT(number("swx", 1, "currentSysTime"), before + 60);
  EXPECT_EQ(start - 3600, number("userSession", 1, "sessionStartTime")) << "it has lasted an hour more";
  store.restart();
  reconnect();
  EXPECT_EQ(start - 3600, number("userSession", 1, "sessionStartTime"));
  EXPECT_NEAR(static_cast<double>(std::time(nullptr)), number("swx", 1, "currentSysTime"), 2);
}

TEST_F(TimeServer, aSessionThatBeginsAfterAJumpBeginsNow)
{
  pass(3600);
  ASSERT_EQ(0, logInAdministrator("operator", "operator-1"));
  EXPECT_NEAR(static_cast<double>(std::time(nullptr)), number("adminSession", 1, "sessionStartTime"), 2);
}

class SystemSettings : public StoreTest
{
};

TEST_F(SystemSettings, keepTheLimitsOfTheirFields)
{
  EXPECT_EQ(10, set("systemGlobals", 0, {{"nevoInactivityTimeout", 1441u}}));
  EXPECT_EQ(0, set("systemGlobals", 0, {{"nevoInactivityTimeout", 0u}}));
  EXPECT_EQ(10, set("systemGlobals", 0, {{"backlightFlashDuration", 0u}}));
  EXPECT_EQ(10, set("systemGlobals", 0, {{"backlightFlashDuration", 86401u}}));
  EXPECT_EQ(14, set("systemGlobals", 0, {{"nevoBannerText", std::string(1025, 'x')}}));
  EXPECT_EQ(14, set("systemGlobals", 0, {{"rxOsdBannerText", std::string(451, 'x')}}));
  EXPECT_EQ(17, set("systemGlobals", 0, {{"nevoCustomHelpLink", "ftp://x"}}));
  EXPECT_EQ(0, set("systemGlobals", 0, {{"nevoCustomHelpLink", "https://help.example.net/"}}));
  EXPECT_EQ(17, set("systemGlobals", 0, {{"syslogDest", "nowhere"}}));
  EXPECT_EQ(17, set("systemGlobals", 0, {{"masterSwitchEid", "short"}}));
  EXPECT_EQ(10, set("systemGlobals", 0, {{"switchApiPort", 65536u}}));
  EXPECT_EQ(9, set("systemGlobals", 0, {{"currentManager", "primary"}}));
}

TEST_F(SystemSettings, ofTheRemoteAccessAreNestedAndKeepThePasswordToThemselves)
{
  EXPECT_EQ(10, setJson("systemGlobals", 0, "rapParameters", R"({"telnetPort":1023})"));
  ASSERT_EQ(0, setJson("systemGlobals", 0, "rapParameters",
                       R"({"sshAccess":"enabled","sshPort":1024,"sshPassword":"open sesame"})"));
  EXPECT_EQ("enabled", text("systemGlobals/rapParameters", 0, "sshAccess"));
  EXPECT_EQ(2323u, number("systemGlobals/rapParameters", 0, "telnetPort"));
  EXPECT_EQ("(none)", text("systemGlobals/rapParameters", 0, "sshPassword"));
}

} // namespace
