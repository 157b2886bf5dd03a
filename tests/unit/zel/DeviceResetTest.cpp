// SPDX-License-Identifier: MIT
#include "StoreTest.h"

#include <chrono>
#include <thread>

namespace
{

class DeviceReset : public StoreTest
{
protected:
  // The switch is out of reach while it restarts; gets a connection as soon as there is one.
  bool isBack()
  {
    for (int i = 0; i < 500; ++i) {
      reconnect();
      if (ZelClient_isValid(client) && text("swx", 1, "status") == "ready")
        return true;
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return false;
  }

  bool becomesDark()
  {
    for (int i = 0; i < 500; ++i) {
      reconnect();
      if (!ZelClient_isValid(client))
        return true;
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return false;
  }
};

TEST_F(DeviceReset, goesThroughItsStatesAndEndsTheSession)
{
  unsigned session = 0;
  ASSERT_EQ(0, logIn(3, 2, &session));
  ASSERT_EQ(0, set("rx", 2, {{"reset", "cold_reboot"}}));
  EXPECT_EQ("reset_pending", text("rx", 2, "status"));
  pass(2);
  EXPECT_EQ("offline", text("rx", 2, "status"));
  EXPECT_FALSE(exists("userSession", session));
  pass(3);
  EXPECT_EQ("configuring", text("rx", 2, "status"));
  pass(3);
  EXPECT_EQ("ready", text("rx", 2, "status"));
}

TEST_F(DeviceReset, isRefusedWhileOneIsUnderWay)
{
  ASSERT_EQ(0, set("rx", 2, {{"reset", "cold_reboot"}}));
  EXPECT_EQ(1111, set("rx", 2, {{"reset", "cold_reboot"}}));
  ASSERT_EQ(0, set("tx", 2, {{"reset", "cold_reboot"}}));
  EXPECT_EQ(1112, set("tx", 2, {{"reset", "cold_reboot"}}));
  ASSERT_EQ(0, set("swx", 2, {{"reset", "cold_reboot"}}));
  EXPECT_EQ("resetting", text("swx", 2, "status"));
  EXPECT_EQ(1110, set("swx", 2, {{"reset", "cold_reboot"}}));
}

TEST_F(DeviceReset, ofADeviceOffLineIsRefused)
{
  EXPECT_EQ(1108, set("rx", 15, {{"reset", "cold_reboot"}}));
  EXPECT_EQ(1109, set("tx", 15, {{"reset", "cold_reboot"}}));
  ASSERT_FALSE(store.control({"offline", "swx", "3"}).failed);
  EXPECT_EQ(1107, set("swx", 3, {{"reset", "cold_reboot"}}));
}

TEST_F(DeviceReset, partialDefaultsAreForSwitchesOnly)
{
  EXPECT_EQ(1114, set("rx", 2, {{"reset", "factory_default_partial"}}));
  EXPECT_EQ(1115, set("tx", 2, {{"reset", "factory_default_partial"}}));
  EXPECT_EQ(0, set("swx", 2, {{"reset", "factory_default_partial"}}));
}

TEST_F(DeviceReset, factoryDefaultsOfADeviceForgetWhatWasSet)
{
  ASSERT_EQ(0, set("cfgDefaults", 0, {{"txDefaultUsbMode", "keyboard_mouse_only"}}));
  ASSERT_EQ(0, set("tx", 3, {{"notes", "x"}, {"usbMode", "disabled"}}));
  const std::string eid = text("tx", 3, "eid");
  ASSERT_EQ(0, set("tx", 3, {{"reset", "factory_default"}}));
  pass(10);
  EXPECT_EQ("ready", text("tx", 3, "status"));
  EXPECT_EQ("", text("tx", 3, "name"));
  EXPECT_EQ("", text("tx", 3, "notes"));
  EXPECT_EQ("keyboard_mouse_only", text("tx", 3, "usbMode"));
  EXPECT_EQ(eid, text("tx", 3, "eid"));
}

TEST_F(DeviceReset, ofASlaveSwitchTakesItsDevicesAlongAndBack)
{
  ASSERT_EQ(0, set("swx", 2, {{"reset", "cold_reboot"}}));
  EXPECT_EQ("offline", text("rx", 8, "status"));
  EXPECT_EQ("ready", text("rx", 2, "status"));
  pass(10);
  EXPECT_EQ("ready", text("swx", 2, "status"));
  EXPECT_EQ("ready", text("rx", 8, "status"));
  EXPECT_EQ("offline", text("rx", 15, "status")) << "what was off before stays off";
}

TEST_F(DeviceReset, goesOnAfterTheStoreWasKilled)
{
  ASSERT_EQ(0, set("rx", 2, {{"reset", "cold_reboot"}}));
  store.kill();
  store.restart();
  reconnect();
  pass(10);
  EXPECT_EQ("ready", text("rx", 2, "status"));
}

TEST_F(DeviceReset, ofThisSwitchDropsEverybodyAndComesBack)
{
  ASSERT_EQ(0, logInAdministrator("operator", "operator-1"));
  ASSERT_EQ(0, set("swx", 1, {{"reset", "cold_reboot"}}));
  ASSERT_FALSE(store.control({"jump", "2"}).failed);
  EXPECT_TRUE(becomesDark());
  EXPECT_TRUE(store.hasSaid("restarts"));
  EXPECT_FALSE(store.hasSaid("ready", 2));
  ASSERT_FALSE(store.control({"jump", "10"}).failed);
  ASSERT_TRUE(isBack());
  EXPECT_TRUE(store.hasSaid("ready", 2)) << "whoever supervises the web server hears of it";
  EXPECT_EQ(0u, rows("adminSession"));
}

TEST_F(DeviceReset, ofThisSwitchGoesOnAfterTheStoreWasKilled)
{
  ASSERT_EQ(0, set("swx", 1, {{"reset", "cold_reboot"}}));
  ASSERT_FALSE(store.control({"jump", "4"}).failed);
  store.kill();
  // The store is ready when the switch is.
  store.restart();
  reconnect();
  EXPECT_EQ("ready", text("swx", 1, "status"));
}

TEST_F(DeviceReset, fullDefaultsOfThisSwitchLoseTheAccountsAndTheNetworkSettings)
{
  ASSERT_EQ(0, set("systemGlobals", 0, {{"nevoBannerText", "x"}}));
  ASSERT_EQ(
      0,
      setJson(
          "swx", 1, "network",
          R"({"ipv4":{"ipv4ConfMethod":"static","ipAddress":"10.1.1.1","subnetMask":"255.0.0.0","gatewayAddress":"10.1.1.2"}})"));
  ASSERT_EQ(0, set("swx", 1, {{"reset", "factory_default"}}));
  ASSERT_FALSE(store.control({"jump", "12"}).failed);
  ASSERT_TRUE(isBack());
  EXPECT_EQ(1u, rows("user"));
  EXPECT_EQ("is_false", text("user", 1, "passwordIsInitialized"));
  EXPECT_EQ("", text("systemGlobals", 0, "nevoBannerText"));
  EXPECT_EQ("10.20.30.11", text("swx/network/ipv4", 1, "ipAddress"));
  EXPECT_EQ("", text("rx", 1, "name"));
  EXPECT_EQ(16u, rows("rx"));
  EXPECT_EQ("controller", text("swx", 1, "cascadeRole"));
  EXPECT_EQ(0, logInAdministrator("admin", "admin"));
}

TEST_F(DeviceReset, partialDefaultsOfThisSwitchKeepTheNetworkSettings)
{
  ASSERT_EQ(
      0,
      setJson(
          "swx", 1, "network",
          R"({"ipv4":{"ipv4ConfMethod":"static","ipAddress":"10.1.1.1","subnetMask":"255.0.0.0","gatewayAddress":"10.1.1.2"}})"));
  ASSERT_EQ(0, set("swx", 1, {{"reset", "factory_default_partial"}}));
  ASSERT_FALSE(store.control({"jump", "12"}).failed);
  ASSERT_TRUE(isBack());
  EXPECT_EQ(1u, rows("user"));
  EXPECT_EQ("10.1.1.1", text("swx/network/ipv4", 1, "ipAddress"));
}

TEST_F(DeviceReset, aReceiverThatComesUpLogsItsUserInAndConnects)
{
  ASSERT_EQ(0, set("rx", 2,
                   {{"autoLoginControl", "enabled"},
                    {"autoLoginUserIndex", 3u},
                    {"autoConnectControl", "enabled"},
                    {"autoConnectTxEid", text("tx", 5, "eid")},
                    {"autoConnectMode", "private_mode"}}));
  ASSERT_EQ(0, set("rx", 2, {{"reset", "cold_reboot"}}));
  pass(10);
  EXPECT_TRUE(
      hasAlert("unacknowledgedAlerts", "User hlindqvist was logged in automatically at receiver Desk 2"));
  EXPECT_TRUE(
      hasAlert("unacknowledgedAlerts", "Private KVM session established: Desk 2 Dispatch to Map Server."));
}

} // namespace
