// SPDX-License-Identifier: MIT
// What is under way when the store is killed goes on when it is started again.
#include "StoreTest.h"

#include <fstream>

namespace
{

class StepsUnderWay : public StoreTest
{
protected:
  explicit StepsUnderWay(unsigned liveliness = 0) : StoreTest(options(liveliness)) {}

  int act(const char *action, unsigned index = 1)
  {
    return set("swxControl", index, {{"cascadeRoleAction", action}});
  }

  void killAndPass(unsigned seconds)
  {
    store.kill();
    store.restart();
    reconnect();
    pass(seconds);
  }

  void linkPair()
  {
    ASSERT_EQ(0, act("link_peer", 2));
    pass(3);
  }

private:
  static TestStore::Options options(unsigned liveliness)
  {
    TestStore::Options options;
    options.liveliness = liveliness;
    return options;
  }
};

TEST_F(StepsUnderWay, aLink)
{
  ASSERT_EQ(0, act("link_peer", 2));
  killAndPass(3);
  EXPECT_EQ("backup", text("swx", 2, "cascadeRole"));
}

TEST_F(StepsUnderWay, aRoleSwitchAndAPromotion)
{
  linkPair();
  ASSERT_EQ(0, act("force_role_switch"));
  killAndPass(3);
  EXPECT_EQ("peer", text("systemGlobals", 0, "cascadeController"));
  ASSERT_EQ(0, act("promote_peer"));
  killAndPass(3);
  EXPECT_EQ("this", text("systemGlobals", 0, "cascadeController"));
}

TEST_F(StepsUnderWay, theReplacementOfALostController)
{
  linkPair();
  ASSERT_FALSE(store.control({"cascade", "failover"}).failed);
  ASSERT_FALSE(store.control({"offline", "swx", "2"}).failed);
  killAndPass(11);
  EXPECT_EQ("this", text("systemGlobals", 0, "cascadeController"));
}

TEST_F(StepsUnderWay, aSynchronizationOfTime)
{
  ASSERT_EQ(0, set("swx", 2, {{"ntpEnable", "enabled"}, {"primaryNtpIpAddress", "10.1.1.1"}}));
  ASSERT_EQ("pending", text("swx", 2, "ntpStatus"));
  killAndPass(4);
  EXPECT_EQ("success", text("swx", 2, "ntpStatus"));
}

TEST_F(StepsUnderWay, theRestartAfterAnUpdate)
{
  ASSERT_EQ(0, set("rx", 3, {{"upgradeIndex", 1u}}));
  while (text("rx", 3, "upgradeStatus") == "upgrading")
    pass(1);
  ASSERT_EQ("complete", text("rx", 3, "upgradeStatus"));
  killAndPass(20);
  EXPECT_EQ("idle", text("rx", 3, "upgradeStatus"));
  EXPECT_EQ("4.3.0", text("rx", 3, "firmwareVersion"));
}

TEST_F(StepsUnderWay, anUpdate)
{
  ASSERT_EQ(0, set("rx", 3, {{"upgradeIndex", 1u}}));
  pass(5);
  killAndPass(60);
  EXPECT_EQ("4.3.0", text("rx", 3, "firmwareVersion"));
}

TEST_F(StepsUnderWay, theReturnOfADevice)
{
  ASSERT_FALSE(store.control({"offline", "rx", "2", "30"}).failed);
  killAndPass(45);
  EXPECT_EQ("ready", text("rx", 2, "status"));
}

TEST_F(StepsUnderWay, theWayIntoManagement)
{
  ASSERT_FALSE(store.control({"manager", "enroll"}).failed);
  killAndPass(12);
  EXPECT_EQ("verified", text("systemGlobals", 0, "managedSetting"));
}

TEST_F(StepsUnderWay, areForgottenWithARefusedRequest)
{
  EXPECT_EQ(1126, act("link_peer", 1));
  EXPECT_NE(0, set("swx", 2, {{"ntpEnable", "enabled"}, {"primaryNtpIpAddress", "nonsense"}}));
  EXPECT_EQ("", store.control({"list", "pendingStep"}).text);
}

TEST_F(StepsUnderWay, leaveNothingBehind)
{
  linkPair();
  EXPECT_EQ("", store.control({"list", "pendingStep"}).text);
}

TEST_F(StepsUnderWay, areNoBusinessOfClients)
{
  EXPECT_EQ(1006, create("pendingStep", {{"step", "announce"}}));
  EXPECT_EQ(1006, set("pendingStep", 1, {{"step", "announce"}}));
}

class StepsOfALivelySwitch : public StepsUnderWay
{
protected:
  StepsOfALivelySwitch() : StepsUnderWay(1) {}
};

TEST_F(StepsOfALivelySwitch, theReturnOfARemovedDevice)
{
  const std::string eid = text("tx", 11, "eid");
  ASSERT_EQ(0, set("cfgDefaults", 0, {{"txDefaultUsbMode", "disabled"}}));
  ASSERT_EQ(0, remove("tx", 11));
  ASSERT_FALSE(store.control({"liveliness", "0"}).failed);
  killAndPass(40);
  EXPECT_EQ(eid, text("tx", 11, "eid"));
  EXPECT_EQ("disabled", text("tx", 11, "usbMode")) << "the defaults hold for it";
}

TEST_F(StepsOfALivelySwitch, aRemovedSwitchTakesItsDevicesAlongAndBack)
{
  ASSERT_EQ("3", store.get("rx", 16, "attachedSwx"));
  ASSERT_EQ(0, remove("swx", 3));
  ASSERT_FALSE(store.control({"liveliness", "0"}).failed);
  EXPECT_EQ("offline", text("rx", 16, "status"));
  killAndPass(40);
  EXPECT_EQ("ready", text("swx", 3, "status"));
  EXPECT_EQ("ready", text("rx", 16, "status"));
  EXPECT_NE("", text("swx/network/ipv4", 3, "ipAddress"));
}

} // namespace
