// SPDX-License-Identifier: MIT
#include "StoreTest.h"

namespace
{

// The lab: users 3 (all targets) and 8 (private only); receivers 7 private, 8 shared, 15 off line;
// transmitters 10 shared, 12 private, 15 off line.
class ReceiverLogin : public StoreTest
{
};

class KvmSession : public StoreTest
{
};

TEST_F(ReceiverLogin, aUserIsLoggedInAndOut)
{
  unsigned session = 0;
  ASSERT_EQ(0, logIn(3, 2, &session));
  EXPECT_EQ(3u, number("userSession", session, "userIndex"));
  EXPECT_NE(0u, number("userSession", session, "sessionStartTime"));
  EXPECT_TRUE(hasAlert("unacknowledgedAlerts", "User hlindqvist logged in at receiver Desk 2 Dispatch."));
  EXPECT_EQ(0, remove("userSession", session));
  EXPECT_FALSE(exists("userSession", session));
  EXPECT_TRUE(hasAlert("unacknowledgedAlerts", "User hlindqvist logged out at receiver Desk 2 Dispatch."));
}

TEST_F(ReceiverLogin, aSecondLoginAtAReceiverIsRefused)
{
  ASSERT_EQ(0, logIn(3, 2));
  EXPECT_EQ(1119, logIn(4, 2));
  pass(1);
  EXPECT_TRUE(hasAlert("unacknowledgedAlerts", "Failed login of user rokafor at receiver Desk 2 Dispatch."));
}

TEST_F(ReceiverLogin, aReceiverThatIsNotReadyIsRefused)
{
  EXPECT_EQ(1108, logIn(3, 15));
  ASSERT_EQ(0, set("rx", 2, {{"reset", "cold_reboot"}}));
  EXPECT_EQ(1111, logIn(3, 2));
  ASSERT_TRUE(store.set("rx", 4, "status", "configuring"));
  EXPECT_EQ(1101, logIn(3, 4));
  ASSERT_TRUE(store.set("rx", 6, "upgradeStatus", "upgrading"));
  EXPECT_EQ(1014, logIn(3, 6));
}

TEST_F(ReceiverLogin, aDisabledUserAndUnknownRecordsAreRefused)
{
  EXPECT_EQ(1104, logIn(9, 2));
  EXPECT_EQ(7, logIn(99, 2));
  EXPECT_EQ(7, logIn(3, 99));
  EXPECT_EQ(1007, create("userSession", {{"userIndex", 3u}}));
}

TEST_F(ReceiverLogin, loggingOutEndsTheConnection)
{
  unsigned session = 0, connection = 0;
  ASSERT_EQ(0, logIn(3, 2, &session));
  ASSERT_EQ(0, connect(2, 1, "share_mode", &connection));
  EXPECT_EQ(0, remove("userSession", session));
  EXPECT_FALSE(exists("connection", connection));
}

TEST_F(KvmSession, isConnectedWithTheEidsOfBothEnds)
{
  unsigned connection = 0;
  ASSERT_EQ(0, logIn(3, 2));
  ASSERT_EQ(0, connect(2, 1, "private_mode", &connection));
  EXPECT_EQ(text("rx", 2, "eid"), text("connection", connection, "rxEid"));
  EXPECT_EQ(text("tx", 1, "eid"), text("connection", connection, "txEid"));
  EXPECT_NE(0u, number("connection", connection, "sessionStartTime"));
  EXPECT_TRUE(
      hasAlert("unacknowledgedAlerts", "Private KVM session established: Desk 2 Dispatch to SCADA Primary."));
}

TEST_F(KvmSession, disconnectingLeavesTheUserLoggedIn)
{
  unsigned session = 0, connection = 0;
  ASSERT_EQ(0, logIn(3, 2, &session));
  ASSERT_EQ(0, connect(2, 1, "share_mode", &connection));
  EXPECT_EQ(0, remove("connection", connection));
  EXPECT_TRUE(exists("userSession", session));
  EXPECT_TRUE(
      hasAlert("unacknowledgedAlerts", "KVM session disconnected: Desk 2 Dispatch from SCADA Primary."));
}

TEST_F(KvmSession, needsAUserAtTheReceiver)
{
  EXPECT_EQ(1106, connect(2, 1, "share_mode"));
}

TEST_F(KvmSession, ofADeviceOffLineIsRefused)
{
  ASSERT_EQ(0, logIn(3, 2));
  EXPECT_EQ(1108, connect(15, 1, "share_mode"));
  EXPECT_EQ(1109, connect(2, 15, "share_mode"));
  EXPECT_EQ(7, connect(2, 99, "share_mode"));
}

TEST_F(KvmSession, ofAConnectedReceiverIsRefused)
{
  ASSERT_EQ(0, logIn(3, 2));
  ASSERT_EQ(0, connect(2, 1, "share_mode"));
  EXPECT_EQ(1124, connect(2, 3, "share_mode"));
}

TEST_F(KvmSession, privateToAConnectedTransmitterIsRefused)
{
  ASSERT_EQ(0, logIn(3, 2));
  ASSERT_EQ(0, connect(2, 1, "share_mode"));
  ASSERT_EQ(0, logIn(3, 4));
  EXPECT_EQ(1121, connect(4, 1, "private_mode"));
}

TEST_F(KvmSession, sharedToAPrivateOneIsRefused)
{
  ASSERT_EQ(0, logIn(3, 2));
  ASSERT_EQ(0, connect(2, 1, "private_mode"));
  ASSERT_EQ(0, logIn(3, 4));
  EXPECT_EQ(1122, connect(4, 1, "share_mode"));
  pass(1);
  EXPECT_TRUE(hasAlert("unacknowledgedAlerts",
                       "KVM session of Desk 4 Traffic to SCADA Primary could not be connected."));
}

TEST_F(KvmSession, theNumberOfSharersIsLimited)
{
  unsigned sharers = 0;
  int result = 0;
  for (unsigned rx = 1; rx <= 16 && result == 0; ++rx) {
    if (rx == 7 || rx == 15)
      continue;
    logIn(3, rx);
    result = connect(rx, 5, "share_mode");
    if (result == 1124)
      result = 0;
    else
      sharers += result == 0;
  }
  EXPECT_EQ(8u, sharers);
  EXPECT_EQ(1123, result);
}

TEST_F(KvmSession, needsTheRightToTheTarget)
{
  ASSERT_EQ(0, setJson("userTargetList", 6, "target", R"([{"txIndex":3}])"));
  ASSERT_EQ(0, logIn(6, 2));
  EXPECT_EQ(1105, connect(2, 1, "share_mode"));
  EXPECT_EQ(0, connect(2, 3, "share_mode"));
}

TEST_F(KvmSession, keepsToTheModesThatAllThreeAllow)
{
  ASSERT_EQ(0, logIn(3, 2));
  EXPECT_EQ(1106, connect(2, 10, "private_mode"));
  EXPECT_EQ(1106, connect(2, 12, "share_mode"));
  ASSERT_EQ(0, set("user", 8, {{"allTargetAccess", "enabled"}}));
  ASSERT_EQ(0, logIn(8, 4));
  EXPECT_EQ(1106, connect(4, 1, "share_mode"));
  EXPECT_EQ(0, connect(4, 1, "private_mode"));
}

TEST_F(KvmSession, findsNoPathThroughASwitchThatIsDown)
{
  ASSERT_EQ(0, logIn(3, 2));
  ASSERT_EQ(0, logIn(3, 14));
  ASSERT_TRUE(store.set("swx", 3, "status", "isc_failure"));
  EXPECT_EQ(1125, connect(14, 1, "share_mode"));
}

TEST_F(KvmSession, findsNoPathWhenAllLinksOfASlaveAreTaken)
{
  // Switch 2 has receivers 7 to 12 and transmitters 7 to 12; its own sessions take no link.
  const auto group = [](unsigned index) { return index >= 7 && index <= 12; };
  for (unsigned user : {4u, 5u, 6u, 10u})
    ASSERT_EQ(0, set("user", user, {{"allTargetAccess", "enabled"}}));
  int result = 0;
  unsigned across = 0;
  for (unsigned rx = 1; rx <= 16 && result == 0; ++rx) {
    if (group(rx) || rx == 15)
      continue;
    logIn(3, rx);
    result = connect(rx, 7 + rx % 3, "share_mode");
    across += result == 0;
    if (result == 1124)
      result = 0;
  }
  EXPECT_EQ(1125, result);
  EXPECT_EQ(4u, across) << "the lab's own sessions take four of the eight";
}

TEST_F(KvmSession, ofAnUnusableDeviceIsATopologyError)
{
  ASSERT_EQ(0, logIn(3, 2));
  ASSERT_TRUE(store.set("tx", 1, "usage", "not_usable_swx_capacity"));
  EXPECT_EQ(1120, connect(2, 1, "share_mode"));
}

TEST_F(KvmSession, endsWhenItsTransmitterIsLost)
{
  unsigned connection = 0;
  ASSERT_EQ(0, logIn(3, 2));
  ASSERT_EQ(0, connect(2, 1, "share_mode", &connection));
  ASSERT_FALSE(store.control({"offline", "tx", "1"}).failed);
  EXPECT_FALSE(exists("connection", connection));
  EXPECT_TRUE(hasAlert("unacknowledgedAlerts",
                       "KVM session of Desk 2 Dispatch ended: link to SCADA Primary is down."));
}

} // namespace
