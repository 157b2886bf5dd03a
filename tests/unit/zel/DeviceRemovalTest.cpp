// SPDX-License-Identifier: MIT
#include "StoreTest.h"

namespace
{

class DeviceRemoval : public StoreTest
{
};

TEST_F(DeviceRemoval, takesTheDeviceOutOfEveryList)
{
  ASSERT_EQ(0, setJson("userTargetList", 4, "target", R"([{"txIndex":15},{"txIndex":1}])"));
  ASSERT_EQ(0, setJson("user", 4, "favorite", R"([{"txIndex":15}])"));
  EXPECT_EQ(0, remove("tx", 15));
  EXPECT_FALSE(exists("tx", 15));
  EXPECT_FALSE(exists("txControl", 15));
  EXPECT_FALSE(exists("txUsbDiag", 15));
  EXPECT_EQ(R"([{"txIndex":1}])", store.get("userTargetList", 4, "target"));
  EXPECT_EQ("[]", store.get("user", 4, "favorite"));
}

TEST_F(DeviceRemoval, ofThisSwitchIsNotAllowed)
{
  EXPECT_EQ(1106, remove("swx", 1));
}

TEST_F(DeviceRemoval, ofAConnectedDeviceIsRefused)
{
  ASSERT_EQ(0, logIn(3, 2));
  ASSERT_EQ(0, connect(2, 1, "share_mode"));
  EXPECT_EQ(1014, remove("rx", 2));
  EXPECT_EQ(1014, remove("tx", 1));
}

TEST_F(DeviceRemoval, ofThePeerIsRefusedAndOffLineHasItsOwnNumber)
{
  ASSERT_EQ(0, set("swxControl", 2, {{"cascadeRoleAction", "link_peer"}}));
  EXPECT_EQ(1106, remove("swx", 2));
  ASSERT_FALSE(store.control({"offline", "swx", "2"}).failed);
  EXPECT_EQ(1130, remove("swx", 2));
}

TEST_F(DeviceRemoval, ofASlaveThatIsOffLineIsAllowed)
{
  ASSERT_FALSE(store.control({"offline", "swx", "3"}).failed);
  EXPECT_EQ(0, remove("swx", 3));
}

class RemovalInALivelySwitch : public StoreTest
{
protected:
  RemovalInALivelySwitch() : StoreTest(options()) {}
  static TestStore::Options options()
  {
    TestStore::Options lively;
    lively.liveliness = 1;
    return lively;
  }
};

TEST_F(RemovalInALivelySwitch, aDeviceThatRunsAnnouncesItselfAgain)
{
  const std::string eid = text("tx", 11, "eid");
  ASSERT_EQ(0, remove("tx", 11));
  ASSERT_FALSE(store.control({"liveliness", "0"}).failed);
  pass(40);
  EXPECT_EQ(eid, text("tx", 11, "eid"));
  EXPECT_EQ("", text("tx", 11, "name"));
  EXPECT_EQ("ready", text("tx", 11, "status"));
}

} // namespace
