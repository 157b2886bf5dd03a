// SPDX-License-Identifier: MIT
#include "StoreTest.h"

namespace
{

class Cascade : public StoreTest
{
protected:
  int act(const char *action, unsigned index = 1)
  {
    return set("swxControl", index, {{"cascadeRoleAction", action}});
  }

  void linkPair()
  {
    ASSERT_EQ(0, act("link_peer", 2));
    pass(3);
    ASSERT_EQ("backup", text("swx", 2, "cascadeRole"));
  }
};

TEST_F(Cascade, linkingMakesTheOtherSwitchABackup)
{
  linkPair();
  EXPECT_EQ(text("swx", 2, "eid"), text("systemGlobals", 0, "peerControllerSwitchEid"));
  EXPECT_EQ("controller", text("swx", 1, "cascadeRole"));
  EXPECT_EQ("this", text("systemGlobals", 0, "cascadeController"));
}

TEST_F(Cascade, linkingWhatCannotBeAPeerIsRefused)
{
  EXPECT_EQ(1126, act("link_peer", 1));
  EXPECT_EQ(7, act("link_peer", 99));
  ASSERT_FALSE(store.control({"offline", "swx", "3"}).failed);
  EXPECT_EQ(1127, act("link_peer", 3));
  linkPair();
  EXPECT_EQ(1126, act("link_peer", 2));
}

TEST_F(Cascade, unlinkingMakesTheBackupASlaveAgain)
{
  linkPair();
  EXPECT_EQ(0, act("unlink_peer"));
  EXPECT_EQ("", text("systemGlobals", 0, "peerControllerSwitchEid"));
  EXPECT_EQ("slave", text("swx", 2, "cascadeRole"));
  EXPECT_EQ(1126, act("unlink_peer"));
}

TEST_F(Cascade, aForcedSwitchGivesTheControlAwayAndPromotionTakesItBack)
{
  linkPair();
  EXPECT_EQ(1126, act("promote_peer"));
  ASSERT_EQ(0, act("force_role_switch"));
  pass(3);
  EXPECT_EQ("peer", text("systemGlobals", 0, "cascadeController"));
  EXPECT_EQ(text("swx", 2, "eid"), text("systemGlobals", 0, "masterSwitchEid"));
  EXPECT_EQ("backup", text("swx", 1, "cascadeRole"));
  EXPECT_EQ("controller", text("swx", 2, "cascadeRole"));
  EXPECT_EQ(1126, act("unlink_peer"));
  ASSERT_EQ(0, act("promote_peer"));
  pass(3);
  EXPECT_EQ("this", text("systemGlobals", 0, "cascadeController"));
  EXPECT_EQ("controller", text("swx", 1, "cascadeRole"));
  EXPECT_EQ("master", text("swx", 1, "mode"));
}

TEST_F(Cascade, aBackupThatIsNotReadyCannotTakeControl)
{
  ASSERT_EQ(0, act("link_peer", 2));
  EXPECT_EQ(1127, act("force_role_switch"));
  pass(3);
  ASSERT_FALSE(store.control({"offline", "swx", "2"}).failed);
  EXPECT_EQ(1127, act("force_role_switch"));
  EXPECT_EQ(1130, act("unlink_peer"));
}

TEST_F(Cascade, withoutAPeerThereIsNothingToSwitch)
{
  EXPECT_EQ(1126, act("force_role_switch"));
  EXPECT_EQ(1126, act("promote_peer"));
}

TEST_F(Cascade, defaultsAreNotRestoredWhileAPeerIsLinked)
{
  linkPair();
  EXPECT_EQ(1128, set("swx", 1, {{"reset", "factory_default"}}));
  EXPECT_EQ(1128, set("swx", 2, {{"reset", "factory_default_partial"}}));
  EXPECT_EQ(0, set("swx", 2, {{"reset", "cold_reboot"}}));
}

TEST_F(Cascade, theNetworkOfABackupIsNotChanged)
{
  linkPair();
  EXPECT_EQ(1129, setJson("swx", 2, "network", R"({"ipv4":{"ipv4ConfMethod":"zeroconf"}})"));
  EXPECT_EQ(0, setJson("swx", 3, "network", R"({"ipv4":{"ipv4ConfMethod":"zeroconf"}})"));
}

TEST_F(Cascade, thePartOfASwitchIsSetOnItselfAndTakesEffectAtItsRestart)
{
  EXPECT_EQ(1126, set("swx", 2, {{"mode", "master"}}));
  ASSERT_EQ(0, set("swx", 1, {{"mode", "slave"}}));
  EXPECT_EQ("controller", text("swx", 1, "cascadeRole"));
  ASSERT_EQ(0, set("swx", 1, {{"reset", "cold_reboot"}}));
  ASSERT_FALSE(store.control({"jump", "12"}).failed);
  EXPECT_EQ("slave", store.get("swx", 1, "cascadeRole"));
}

class ManagedSwitch : public StoreTest
{
};

TEST_F(ManagedSwitch, passesThroughEnrolmentToVerified)
{
  ASSERT_FALSE(store.control({"enroll", "10.9.9.9"}).failed);
  EXPECT_EQ("enrolling", text("systemGlobals", 0, "managedSetting"));
  EXPECT_EQ("down", text("systemGlobals", 0, "commStatusRestServerPrimary"));
  pass(6);
  EXPECT_EQ("managed", text("systemGlobals", 0, "managedSetting"));
  pass(6);
  EXPECT_EQ("verified", text("systemGlobals", 0, "managedSetting"));
  EXPECT_EQ("up", text("systemGlobals", 0, "commStatusRestServerPrimary"));
  EXPECT_EQ("primary", text("systemGlobals", 0, "currentManager"));
  EXPECT_EQ("10.9.9.9", text("systemGlobals", 0, "managerIpAddress"));
}

TEST_F(ManagedSwitch, leavesThroughUnenrolling)
{
  ASSERT_FALSE(store.control({"enroll", "10.9.9.9"}).failed);
  pass(12);
  ASSERT_EQ(0, set("systemGlobals", 0, {{"managedSetting", "unenrolling"}}));
  EXPECT_EQ("down", text("systemGlobals", 0, "commStatusRestClientPrimary"));
  pass(6);
  EXPECT_EQ("non_managed", text("systemGlobals", 0, "managedSetting"));
  EXPECT_EQ("none", text("systemGlobals", 0, "currentManager"));
}

TEST_F(ManagedSwitch, cannotBeEnteredByTheInterface)
{
  EXPECT_EQ(1106, set("systemGlobals", 0, {{"managedSetting", "verified"}}));
  EXPECT_EQ(1106, set("systemGlobals", 0, {{"managedSetting", "unenrolling"}}));
  EXPECT_EQ(12, set("systemGlobals", 0, {{"managedSetting", "owned"}}));
}

TEST_F(ManagedSwitch, ofASlaveGoesBackAtOnce)
{
  ASSERT_FALSE(store.control({"enroll", "10.9.9.9"}).failed);
  pass(12);
  EXPECT_EQ(0, set("systemGlobals", 0, {{"managedSetting", "non_managed"}}));
  EXPECT_EQ("none", text("systemGlobals", 0, "preferredManager"));
}

TEST_F(ManagedSwitch, goesOnWithItsPassageAfterTheStoreWasKilled)
{
  ASSERT_FALSE(store.control({"enroll", "10.9.9.9"}).failed);
  store.kill();
  store.restart();
  reconnect();
  pass(12);
  EXPECT_EQ("verified", text("systemGlobals", 0, "managedSetting"));
}

} // namespace
