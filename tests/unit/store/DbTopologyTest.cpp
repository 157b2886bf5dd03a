// SPDX-License-Identifier: MIT
#include "StoreTest.h"

using testing::IsEmpty;
using testing::SizeIs;

class DbTopology : public StoreTest
{
protected:
  DbTopology()
  {
    store.setRecords("rx", R"([{"index": 1, "eid": "AAAAAA-111111"}, {"index": 2, "eid": "AAAAAA-222222"}])");
    store.setRecords("tx", R"([{"index": 1, "eid": "BBBBBB-111111"}])");
    store.setRecords("swx", R"([{"index": 1, "name": "Main", "eid": "CCCCCC-111111", "mode": "master"},
                                {"index": 2, "name": "", "eid": "CCCCCC-222222", "mode": "slave"},
                                {"index": 3, "name": "", "eid": "CCCCCC-333333", "mode": "slave"}])");
    store.setRecords("portStatus", R"([
        {"index": 1, "swxIndex": 1, "ports": [{"portIndex": 1, "eid": "AAAAAA-111111"}, {"portIndex": 2}]},
        {"index": 2, "swxIndex": 2, "ports": [{"portIndex": 5, "eid": ""},
                                              {"portIndex": 6, "eid": "BBBBBB-111111"}]}])");
  }
  unsigned int swxIndex = 88;
  unsigned int portIndex = 99;
  std::string name = "before";
};

TEST_F(DbTopology, findsTheSwitchAndThePortOfADeviceByItsEid)
{
  EXPECT_EQ(Db_db.getSwxIndexAndPortIndexFromRxIndex(1, swxIndex, portIndex, errors), 0U);
  EXPECT_EQ(swxIndex, 1U);
  EXPECT_EQ(portIndex, 1U);
  EXPECT_EQ(Db_db.getSwxIndexAndPortIndexFromTxIndex(1, swxIndex, portIndex, errors), 0U);
  EXPECT_EQ(swxIndex, 2U);
  EXPECT_EQ(portIndex, 6U);
}

TEST_F(DbTopology, stopsAskingAtTheSwitchThatHasTheDevice)
{
  Db_db.getSwxIndexAndPortIndexFromTxIndex(1, swxIndex, portIndex, errors);
  EXPECT_THAT(store.requests(), SizeIs(3));
}

TEST_F(DbTopology, asksFiftySwitchesForADeviceThatNoneHasAndLeavesTheOutputs)
{
  EXPECT_EQ(Db_db.getSwxIndexAndPortIndexFromRxIndex(2, swxIndex, portIndex, errors), 0U);
  EXPECT_EQ(swxIndex, 88U);
  EXPECT_EQ(portIndex, 99U);
  EXPECT_THAT(store.requests(), SizeIs(51));
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbTopology, failsForAnUnknownDeviceWithoutAskingTheSwitches)
{
  EXPECT_EQ(Db_db.getSwxIndexAndPortIndexFromRxIndex(9, swxIndex, portIndex, errors), 1U);
  EXPECT_THAT(store.requests(), SizeIs(1));
}

TEST_F(DbTopology, failsWithoutAnAnswerAndOnASwitchWithoutPorts)
{
  store.setRecords("portStatus", R"([{"index": 1, "swxIndex": 1}])");
  EXPECT_EQ(Db_db.getSwxIndexAndPortIndexFromRxIndex(1, swxIndex, portIndex, errors), 1U);
  store.hangUp("GET", "portStatus");
  EXPECT_EQ(Db_db.getSwxIndexAndPortIndexFromRxIndex(1, swxIndex, portIndex, errors), 1U);
  EXPECT_EQ(swxIndex, 88U);
}

TEST_F(DbTopology, namesTheSwitchOfADevice)
{
  EXPECT_EQ(Db_db.getSwxNameOrEidFromRxIndex(1, name, errors), 0U);
  EXPECT_EQ(name, "Main");
  EXPECT_EQ(Db_db.getSwxNameOrEidFromTxIndex(1, name, errors), 0U);
  EXPECT_EQ(name, "EID - CCCCCC-222222");
  EXPECT_EQ(Db_db.getSwxNameFromRxIndex(1, name, errors), 0U);
  EXPECT_EQ(name, "Main");
  EXPECT_EQ(Db_db.getSwxNameFromTxIndex(1, name, errors), 0U);
  EXPECT_EQ(name, "");
  EXPECT_EQ(Db_db.getSwxNameFromTxIndex(9, name, errors), 1U);
  EXPECT_EQ(Db_db.getSwxNameOrEidFromRxIndex(9, name, errors), 1U);
}

TEST_F(DbTopology, namesNoSwitchForADeviceOnNoPort)
{
  for (const auto ask : {&Db::getSwxNameOrEidFromRxIndex, &Db::getSwxNameFromRxIndex}) {
    name = "before";
    EXPECT_EQ((Db_db.*ask)(2, name, errors), 0U);
    EXPECT_EQ(name, "");
  }
  store.setRecords("tx", R"([{"index": 1, "eid": "DDDDDD-111111"}])");
  for (const auto ask : {&Db::getSwxNameOrEidFromTxIndex, &Db::getSwxNameFromTxIndex}) {
    name = "before";
    EXPECT_EQ((Db_db.*ask)(1, name, errors), 0U);
    EXPECT_EQ(name, "");
  }
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbTopology, countsAMixedSetAsOneWithASlave)
{
  EXPECT_FALSE(Db_db.slaveSwxIsInSet({1}, errors));
  EXPECT_TRUE(Db_db.slaveSwxIsInSet({2, 3}, errors));
  EXPECT_TRUE(Db_db.slaveSwxIsInSet({1, 2}, errors));
  EXPECT_TRUE(Db_db.slaveSwxIsInSet({}, errors));
  EXPECT_FALSE(Db_db.slaveSwxIsInSet({2, 9}, errors));
}
