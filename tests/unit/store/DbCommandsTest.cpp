// SPDX-License-Identifier: MIT
#include "StoreTest.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using DbCommands = StoreTest;

TEST_F(DbCommands, logTheUserInAtTheReceiverBeforeTheyConnect)
{
  EXPECT_EQ(Db_db.createKvmSession(3, 4, 5, Info_ConnectionMode_Private, errors), 0U);
  EXPECT_THAT(
      store.requests(),
      ElementsAre(
          R"({"method":"CREATE","params":{"rxIndex":4,"userIndex":3},"resource":"userSession"})",
          R"({"method":"CREATE","params":{"mode":"private_mode","rxIndex":4,"txIndex":5},"resource":"connection"})"));
}

TEST_F(DbCommands, doNotConnectWithoutALogin)
{
  store.fail("CREATE", "userSession", R"([{"errno": 1119}])");
  EXPECT_EQ(Db_db.createKvmSession(3, 4, 5, Info_ConnectionMode_Share, errors), 1U);
  EXPECT_THAT(errors, ElementsAre(shown("Rx user session already active") + "."));
  EXPECT_EQ(store.requests().size(), 1U);
}

TEST_F(DbCommands, tellWhyAConnectionFailed)
{
  store.fail("CREATE", "connection", R"([{"errno": 1123}])");
  EXPECT_EQ(Db_db.createKvmSession(3, 4, 5, Info_ConnectionMode_Share, errors), 1U);
  EXPECT_THAT(errors, ElementsAre(untranslated("result.failure.connection_topology_share_limit") + "."));
}

TEST_F(DbCommands, logAConnectionWithoutAnAnswer)
{
  store.hangUp("CREATE", "connection");
  LogCapture log;
  EXPECT_EQ(Db_db.createKvmSession(3, 4, 5, Info_ConnectionMode_Share, errors), 1U);
  EXPECT_EQ(log.text(), "1 createKvmSession: Cannot create KVM session.\n");
}

TEST_F(DbCommands, disconnectAndLogTheReceiversUserOut)
{
  store.setRecords("connection", R"([{"index": 31, "rxIndex": 4, "txIndex": 5}])");
  store.setRecords("userSession", R"([{"index": 21, "rxIndex": 4, "userIndex": 3}])");
  EXPECT_EQ(Db_db.destroyKvmSession(31, errors), 0U);
  EXPECT_THAT(store.requests("DELETE"),
              ElementsAre(R"({"method":"DELETE","params":{"index":31},"resource":"connection"})",
                          R"({"method":"DELETE","params":{"index":21},"resource":"userSession"})"));
}

TEST_F(DbCommands, logTheReceiversUserOutAlsoWhereTheDisconnectFails)
{
  store.setRecords("connection", R"([{"index": 31, "rxIndex": 4, "txIndex": 5}])");
  store.setRecords("userSession", R"([{"index": 21, "rxIndex": 4, "userIndex": 3}])");
  store.fail("DELETE", "connection", R"([{"errno": 1}])");
  EXPECT_EQ(Db_db.destroyKvmSession(31, errors), 0U);
  EXPECT_THAT(errors, ElementsAre(shown("General failure") + "."));
  EXPECT_THAT(store.requests("DELETE").back(), HasSubstr("userSession"));
}

TEST_F(DbCommands, failToDisconnectWhereTheLogoutFails)
{
  store.setRecords("connection", R"([{"index": 31, "rxIndex": 4, "txIndex": 5}])");
  EXPECT_EQ(Db_db.destroyKvmSession(31, errors), 1U);
  store.hangUp("GET", "connection");
  store.forgetRequests();
  EXPECT_EQ(Db_db.destroyKvmSession(31, errors), 1U);
  EXPECT_THAT(store.requests("DELETE"), IsEmpty());
}

TEST_F(DbCommands, createAFirmwareSourceAndGiveItsIndex)
{
  store.answer("CREATE", "upgrade", R"({"index": 12})");
  unsigned int index = 0;
  EXPECT_EQ(Db_db.createUpgradeRecord("ftp", "192.0.2.1", "fw.bin", "me", "secret", index, errors), 0U);
  EXPECT_EQ(index, 12U);
  EXPECT_THAT(store.requests(),
              ElementsAre(R"({"method":"CREATE","params":{"filename":"fw.bin","location":"192.0.2.1",)"
                          R"("password":"secret","protocol":"ftp","username":"me"},"resource":"upgrade"})"));
  store.hangUp("CREATE", "upgrade");
  LogCapture log;
  EXPECT_EQ(Db_db.createUpgradeRecord("ftp", "", "", "", "", index, errors), 1U);
  EXPECT_EQ(log.text(), "1 createUpgradeRecord: Cannot create upgrade record.\n");
}

TEST_F(DbCommands, clearAndAcknowledgeAlerts)
{
  EXPECT_EQ(Db_db.clearAllHistoricalAlerts(errors), 0U);
  EXPECT_EQ(Db_db.ackAllAlerts(errors), 0U);
  EXPECT_EQ(Db_db.ackSpecificAlert(17, errors), 0U);
  EXPECT_THAT(
      store.requests(),
      ElementsAre(R"({"method":"SET","params":{"alertsAction":"clear_history"},"resource":"alertsControl"})",
                  R"({"method":"SET","params":{"alertsAction":"ack_all"},"resource":"alertsControl"})",
                  R"({"method":"SET","params":{"alertInstanceId":17,"alertsAction":"ack_specific"},)"
                  R"("resource":"alertsControl"})"));
}

TEST_F(DbCommands, logAlertCommandsWithoutAnAnswer)
{
  store.hangUp("SET", "alertsControl");
  LogCapture log;
  EXPECT_EQ(Db_db.clearAllHistoricalAlerts(errors), 1U);
  EXPECT_EQ(Db_db.ackAllAlerts(errors), 1U);
  EXPECT_EQ(Db_db.ackSpecificAlert(17, errors), 1U);
  EXPECT_EQ(log.text(), "1 clearAllHistoricalAlerts: Cannot create request to clear Historical Alerts.\n"
                        "1 ackAllAlerts: Cannot create request to acknowledge Alerts.\n"
                        "1 ackSpecificAlert: Cannot create request to acknowledge Alert.\n");
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbCommands, pushAMonitorsDataToATransmitter)
{
  EXPECT_EQ(Db_db.pushEdidToTx(5, 2, errors), 0U);
  EXPECT_THAT(store.requests(),
              ElementsAre(R"({"method":"SET","params":{"edidAction":"push","edidIndex":2,"txIndex":5},)"
                          R"("resource":"edidControl"})"));
  store.hangUp("SET", "edidControl");
  LogCapture log;
  EXPECT_EQ(Db_db.pushEdidToTx(5, 2, errors), 1U);
  EXPECT_EQ(log.text(), "1 pushEdidToTx: Cannot create request to push monitor properties to transmitter.\n");
}

TEST_F(DbCommands, pullAMonitorsDataFromAReceiverOrATransmitter)
{
  EXPECT_EQ(Db_db.pullEdidFromDevice("rx", 5, "Wall", "North", errors), 0U);
  EXPECT_EQ(Db_db.pullEdidFromDevice("tx", 6, "Wall", "North", errors), 0U);
  EXPECT_THAT(store.requests(),
              ElementsAre(R"({"method":"SET","params":{"edidAction":"pull","edidDescription":"North",)"
                          R"("edidName":"Wall","rxIndex":5},"resource":"edidControl"})",
                          R"({"method":"SET","params":{"edidAction":"pull","edidDescription":"North",)"
                          R"("edidName":"Wall","txIndex":6},"resource":"edidControl"})"));
  store.hangUp("SET", "edidControl");
  LogCapture log;
  EXPECT_EQ(Db_db.pullEdidFromDevice("rx", 5, "Wall", "North", errors), 1U);
  EXPECT_EQ(log.text(), "1 pullEdidFromDevice: Cannot create request to retrieve monitor properties.\n");
}

TEST_F(DbCommands, giveAMonitorsDataByItsName)
{
  store.setRecords("edid", R"([{"index": 1, "name": "Wall", "data": "AP8Q"}])");
  char buffer[4] = {9, 9, 9, 9};
  EXPECT_EQ(Db_db.getEdidByName("Wall", buffer, sizeof buffer, errors), 0U);
  EXPECT_EQ(std::string(buffer, sizeof buffer), std::string("\x00\xff\x10\x00", 4));
  EXPECT_EQ(Db_db.getEdidByName("Other", buffer, sizeof buffer, errors), 1U);
  EXPECT_THAT(errors, ElementsAre(shown("No entries") + "."));
}

TEST_F(DbCommands, tellWhatAMonitorSaysOfItself)
{
  // 256 bytes: a digital DEL A0B8, an analog one, and one without data.
  const std::string head = "AP///////wAQrLig" + std::string(8, 'A');
  store.setRecords("edid", R"([{"index": 1, "data": ")" + head + "AACA" + std::string(312, 'A') + R"(AA=="},
                               {"index": 2, "data": ")" +
                               head + "AAB/" + std::string(312, 'A') + R"(AA=="},
                               {"index": 3, "name": "Wall"}])");
  std::string manufacturer = "before";
  std::string productCode = "before";
  std::string type = "before";
  EXPECT_EQ(Db_db.getEdidInfo(1, manufacturer, productCode, type, errors), 0U);
  EXPECT_EQ(manufacturer + " " + productCode + " " + type, "DEL A0B8 [RSnnn]DVI");
  EXPECT_EQ(Db_db.getEdidInfo(2, manufacturer, productCode, type, errors), 0U);
  EXPECT_EQ(manufacturer + " " + productCode + " " + type, "DEL A0B8 [RSnnn]VGA");
  EXPECT_EQ(Db_db.getEdidInfo(3, manufacturer, productCode, type, errors), 0U);
  EXPECT_EQ(manufacturer + " " + productCode + " " + type, "@@@ 0000 [RSnnn]VGA");
  EXPECT_THAT(store.requests().front(), HasSubstr(R"("query":{"index":1},"resource":"edid")"));
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbCommands, leaveWhatWasToldOfAMonitorThatCannotBeRead)
{
  std::string manufacturer = "before";
  std::string productCode = "before";
  std::string type = "before";
  EXPECT_EQ(Db_db.getEdidInfo(9, manufacturer, productCode, type, errors), 1U);
  EXPECT_THAT(errors, ElementsAre(shown("No entries") + "."));
  store.hangUp("GET", "edid");
  EXPECT_EQ(Db_db.getEdidInfo(9, manufacturer, productCode, type, errors), 1U);
  EXPECT_EQ(errors.size(), 1U);
  EXPECT_EQ(manufacturer + productCode + type, "beforebeforebefore");
}

TEST_F(DbCommands, raiseTheTwoShortestFlashDurationsByOne)
{
  for (const unsigned int duration : {0U, 1U, 2U, 30U})
    EXPECT_EQ(Db_db.triggerLcdBacklightFlash("rx", "AAAAAA-111111", duration, errors), 0U);
  const std::string start = R"({"method":"SET","params":{"eid":"AAAAAA-111111","lcdBacklightFlashDuration":)";
  const std::string end = R"(},"resource":"rx"})";
  EXPECT_THAT(store.requests(),
              ElementsAre(start + "1" + end, start + "2" + end, start + "2" + end, start + "30" + end));
  store.hangUp("SET", "tx");
  LogCapture log;
  EXPECT_EQ(Db_db.triggerLcdBacklightFlash("tx", "AAAAAA-111111", 3, errors), 1U);
  EXPECT_EQ(log.text(), "1 triggerLcdBacklightFlash: Cannot write integer value to database.\n");
}

TEST_F(DbCommands, rebootADevice)
{
  EXPECT_EQ(Db_db.requestDeviceReboot("swx", 2, errors), 0U);
  EXPECT_THAT(store.requests(),
              ElementsAre(R"({"method":"SET","params":{"index":2,"reset":"cold_reboot"},"resource":"swx"})"));
  store.fail("SET", "swx", R"([{"errno": 1110}])");
  EXPECT_EQ(Db_db.requestDeviceReboot("swx", 2, errors), 1U);
  EXPECT_THAT(errors, ElementsAre(shown("Swx already resetting") + "."));
}
