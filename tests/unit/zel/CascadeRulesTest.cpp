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

TEST_F(Cascade, afterAFailOverThePeerActsAndIsStillTheBackup)
{
  EXPECT_TRUE(store.control({"cascade", "failover"}).failed) << "without a peer";
  linkPair();
  ASSERT_FALSE(store.control({"cascade", "failover"}).failed);
  EXPECT_EQ("peer", text("systemGlobals", 0, "cascadeController"));
  EXPECT_EQ(text("swx", 2, "eid"), text("systemGlobals", 0, "masterSwitchEid"));
  EXPECT_EQ("backup", text("swx", 2, "cascadeRole"));
  EXPECT_EQ("master", text("swx", 2, "mode"));
  EXPECT_EQ("controller", text("swx", 1, "cascadeRole"));
  EXPECT_EQ("slave", text("swx", 1, "mode"));
}

TEST_F(Cascade, promotionAfterAFailOverLeadsBack)
{
  linkPair();
  ASSERT_FALSE(store.control({"cascade", "failover"}).failed);
  ASSERT_EQ(0, act("promote_peer"));
  pass(3);
  EXPECT_EQ("this", text("systemGlobals", 0, "cascadeController"));
  EXPECT_EQ("master", text("swx", 1, "mode"));
  EXPECT_EQ("slave", text("swx", 2, "mode"));
  EXPECT_EQ("backup", text("swx", 2, "cascadeRole"));
}

TEST_F(Cascade, aForcedSwitchAfterAFailOverMakesTheActingOneTheController)
{
  linkPair();
  ASSERT_FALSE(store.control({"cascade", "failover"}).failed);
  ASSERT_EQ(0, act("force_role_switch"));
  pass(3);
  EXPECT_EQ("controller", text("swx", 2, "cascadeRole"));
  EXPECT_EQ("backup", text("swx", 1, "cascadeRole"));
  ASSERT_EQ(0, act("promote_peer"));
  pass(3);
  EXPECT_EQ("controller", text("swx", 1, "cascadeRole"));
}

TEST_F(Cascade, aPeerThatHasControlAndIsLostIsReplaced)
{
  linkPair();
  ASSERT_EQ(0, act("force_role_switch"));
  pass(3);
  ASSERT_FALSE(store.control({"offline", "swx", "2"}).failed);
  EXPECT_EQ(1107, act("promote_peer")) << "there is nobody to take the configuration from";
  EXPECT_EQ("peer", text("systemGlobals", 0, "cascadeController"));
  pass(11);
  EXPECT_EQ("this", text("systemGlobals", 0, "cascadeController"));
  EXPECT_EQ("controller", text("swx", 1, "cascadeRole"));
  EXPECT_EQ("not_present", text("swx", 2, "cascadeRole"));
  ASSERT_FALSE(store.control({"online", "swx", "2"}).failed);
  pass(3);
  EXPECT_EQ("backup", text("swx", 2, "cascadeRole"));
}

TEST_F(Cascade, aBackupOffLineIsNotPresent)
{
  linkPair();
  ASSERT_FALSE(store.control({"offline", "swx", "2"}).failed);
  EXPECT_EQ("not_present", text("swx", 2, "cascadeRole"));
  ASSERT_FALSE(store.control({"online", "swx", "2"}).failed);
  pass(3);
  EXPECT_EQ("backup", text("swx", 2, "cascadeRole"));
}

TEST_F(Cascade, theCommandsDoWhatTheInterfaceDoes)
{
  ASSERT_FALSE(store.control({"cascade", "link", "3"}).failed);
  pass(3);
  EXPECT_EQ("backup", text("swx", 3, "cascadeRole"));
  ASSERT_FALSE(store.control({"cascade", "switch"}).failed);
  pass(3);
  EXPECT_EQ("peer", text("systemGlobals", 0, "cascadeController"));
  EXPECT_TRUE(store.control({"cascade", "unlink"}).failed);
  ASSERT_FALSE(store.control({"cascade", "promote"}).failed);
  pass(3);
  ASSERT_FALSE(store.control({"cascade", "unlink"}).failed);
  EXPECT_EQ("", text("systemGlobals", 0, "peerControllerSwitchEid"));
  EXPECT_TRUE(store.control({"cascade", "dance"}).failed);
}

TEST_F(Cascade, aSlaveIsNotItsOwnMaster)
{
  ASSERT_EQ(0, set("swx", 1, {{"mode", "slave"}}));
  ASSERT_EQ(0, set("swx", 1, {{"reset", "cold_reboot"}}));
  ASSERT_FALSE(store.control({"jump", "12"}).failed);
  EXPECT_EQ("", store.get("systemGlobals", 0, "masterSwitchEid"));
}

struct RoleCase {
  const char *role;
  const char *mode;
  const char *cascadeRole;
  const char *controller;
  const char *managedSetting;
};

TEST(Role, isTakenAtTheStartAndByCommand)
{
  const RoleCase cases[] = {{"master", "master", "controller", "this", "non_managed"},
                            {"slave", "slave", "slave", "this", "non_managed"},
                            {"backup", "slave", "backup", "peer", "non_managed"},
                            {"managed", "master", "controller", "this", "verified"},
                            {"managed-slave", "slave", "slave", "this", "verified"}};
  for (const RoleCase &expected : cases) {
    TestStore::Options options;
    options.more = {"--role", expected.role};
    const TestStore store(options);
    for (const char *how : {"--role", "role"}) {
      if (std::string(how) == "role") {
        ASSERT_FALSE(store.control({"role", "backup"}).failed);
        ASSERT_FALSE(store.control({"role", expected.role}).failed);
      }
      EXPECT_EQ(expected.mode, store.get("swx", 1, "mode")) << how << expected.role;
      EXPECT_EQ(expected.cascadeRole, store.get("swx", 1, "cascadeRole")) << how << expected.role;
      EXPECT_EQ(expected.controller, store.get("systemGlobals", 0, "cascadeController")) << expected.role;
      EXPECT_EQ(expected.managedSetting, store.get("systemGlobals", 0, "managedSetting")) << expected.role;
      EXPECT_EQ(store.get("swx", std::string(expected.mode) == "master" ? 1 : 2, "eid"),
                store.get("systemGlobals", 0, "masterSwitchEid"));
    }
  }
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

TEST_F(ManagedSwitch, enrolsWithAnAddressAndOnlyOnce)
{
  EXPECT_TRUE(store.control({"manager", "enroll", "nonsense address"}).failed);
  EXPECT_EQ("non_managed", text("systemGlobals", 0, "managedSetting"));
  ASSERT_FALSE(store.control({"manager", "enroll", "manager.example.net"}).failed);
  EXPECT_TRUE(store.control({"manager", "enroll", "10.9.9.8"}).failed);
  EXPECT_EQ("manager.example.net", text("systemGlobals", 0, "managerIpAddress"));
}

TEST_F(ManagedSwitch, turnsToItsAuxiliaryManagerWhenThePrimaryOneIsLost)
{
  EXPECT_TRUE(store.control({"manager", "auxiliary"}).failed) << "not managed";
  ASSERT_FALSE(store.control({"manager", "verify"}).failed);
  EXPECT_TRUE(store.control({"manager", "down", "auxiliary"}).failed) << "there is none yet";
  ASSERT_FALSE(store.control({"manager", "auxiliary", "10.9.9.9"}).failed);
  EXPECT_EQ("up", text("systemGlobals", 0, "commStatusRestClientAuxiliary"));
  EXPECT_EQ("primary", text("systemGlobals", 0, "currentManager"));
  ASSERT_FALSE(store.control({"manager", "down", "primary-server"}).failed);
  EXPECT_EQ("down", text("systemGlobals", 0, "commStatusRestServerPrimary"));
  EXPECT_EQ("up", text("systemGlobals", 0, "commStatusRestClientPrimary"));
  EXPECT_EQ("primary", text("systemGlobals", 0, "currentManager"));
  ASSERT_FALSE(store.control({"manager", "down", "primary"}).failed);
  EXPECT_EQ("auxiliary", text("systemGlobals", 0, "currentManager"));
  store.restart();
  reconnect();
  EXPECT_EQ("down", text("systemGlobals", 0, "commStatusRestServerPrimary")) << "a start changes nothing";
  ASSERT_FALSE(store.control({"manager", "up"}).failed);
  EXPECT_EQ("primary", text("systemGlobals", 0, "currentManager"));
  ASSERT_FALSE(store.control({"manager", "leave"}).failed);
  EXPECT_EQ("down", text("systemGlobals", 0, "commStatusRestClientAuxiliary"));
  EXPECT_EQ("none", text("systemGlobals", 0, "currentManager"));
}

} // namespace
