// SPDX-License-Identifier: MIT
#include "StoreTest.h"
#include "ZelObj.h"
#include "ZelReq.h"
#include "ZelReqUtil.h"
#include "ZelRspUtil.h"

namespace
{

class DeviceFacts : public StoreTest
{
protected:
  // A member of a nested timing of a receiver.
  int timing(unsigned rx, const char *object, const char *member)
  {
    json_t *request = ZelReqUtil_newGetResource("rx");
    ZelReqUtil_setIntegerQuery(request, "index", rx);
    ZelReqUtil_setSelect(request, "index");
    ZelReqUtil_setSelect(request, object);
    json_t *response = send(request);
    json_t *inner = response ? ZelRspUtil_getObjectParam(response, object) : nullptr;
    const int result = inner ? ZelRspUtil_getIntegerParam(inner, member) : -1;
    if (response)
      ZelRspUtil_free(response);
    return result;
  }

  // The state of the port that shows a device; empty if none does.
  std::string portStateOf(unsigned swx, const std::string &eid)
  {
    json_t *response = ZelReq_portStatusRetrieveBySwxIndex(client, swx);
    json_t *ports = response ? ZelObj_collapse(response, "swxIndex", "ports") : nullptr;
    std::string state;
    for (unsigned i = 0; ports && i < static_cast<unsigned>(ZelRspUtil_numEntries(ports)); ++i)
      if (eid == ZelRspUtil_getIndexedStringParam(ports, i, "eid"))
        state = ZelRspUtil_getIndexedStringParam(ports, i, "portState");
    if (ports)
      ZelObj_free(ports);
    if (response)
      ZelRspUtil_free(response);
    return state;
  }
};

TEST_F(DeviceFacts, aReceiverShowsItsMonitorsModeAndTheComputersWhenConnected)
{
  EXPECT_EQ(0, timing(2, "inputVideoTiming", "horizontalResolution"));
  EXPECT_GT(timing(2, "monPrefVideoTiming", "pixelClockFrequency"), 60000);
  ASSERT_EQ(0, logIn(3, 2));
  ASSERT_EQ(0, connect(2, 1, "share_mode"));
  EXPECT_EQ(1920, timing(2, "inputVideoTiming", "horizontalResolution"));
  EXPECT_EQ(1080, timing(2, "inputVideoTiming", "verticalResolution"));
  EXPECT_EQ(timing(2, "monPrefVideoTiming", "verticalResolution"),
            timing(2, "outputVideoTiming", "verticalResolution"));
  ASSERT_EQ(0, set("rx", 2, {{"videoScaling", "disabled"}}));
  EXPECT_EQ(1080, timing(2, "outputVideoTiming", "verticalResolution"));
}

TEST_F(DeviceFacts, usbDiagnosticsTellWhetherThereIsASession)
{
  EXPECT_EQ(0u, number("rxUsbDiag", 2, "scpConnectActive"));
  EXPECT_NE(0u, number("rxUsbDiag", 2, "srpVersion"));
  ASSERT_EQ(0, logIn(3, 2));
  ASSERT_EQ(0, connect(2, 1, "share_mode"));
  EXPECT_EQ(1u, number("rxUsbDiag", 2, "scpConnectActive"));
  EXPECT_EQ(1u, number("txUsbDiag", 1, "hcpStatus"));
  EXPECT_FALSE(exists("rxUsbDiag", 99));
}

TEST_F(DeviceFacts, portsFollowWhatHangsOnThem)
{
  const std::string eid = text("rx", 2, "eid");
  EXPECT_EQ("idle", portStateOf(1, eid));
  unsigned connection = 0;
  ASSERT_EQ(0, logIn(3, 2));
  ASSERT_EQ(0, connect(2, 1, "share_mode", &connection));
  EXPECT_EQ("in_use", portStateOf(1, eid));
  EXPECT_EQ("in_use", portStateOf(1, text("tx", 1, "eid")));
  ASSERT_EQ(0, remove("connection", connection));
  pass(1);
  EXPECT_EQ("idle", portStateOf(1, eid));
  ASSERT_FALSE(store.control({"offline", "rx", "2"}).failed);
  EXPECT_EQ("", portStateOf(1, eid));
  EXPECT_EQ("idle", portStateOf(1, text("swx", 2, "eid")));
}

TEST_F(DeviceFacts, portsOfAllFiftyNumbersCanBeAskedFor)
{
  for (unsigned swx : {1u, 2u, 3u, 4u, 50u}) {
    json_t *response = ZelReq_portStatusRetrieveByIndex(client, swx);
    ASSERT_NE(nullptr, response);
    EXPECT_EQ(static_cast<int>(swx), ZelRspUtil_getIntegerParam(response, "swxIndex"));
    json_t *ports = ZelObj_collapse(response, "swxIndex", "ports");
    EXPECT_NE(nullptr, ports);
    if (ports)
      ZelObj_free(ports);
    ZelRspUtil_free(response);
  }
}

TEST_F(DeviceFacts, theDisplayFlashesForAsLongAsItIsTold)
{
  const std::string eid = text("rx", 2, "eid");
  EXPECT_EQ(0, set("rxControl", 0, {{"eid", eid}, {"lcdBacklightFlashDuration", 30u}}));
  EXPECT_NE(0u, number("rxControl", 2, "flashingUntil"));
  pass(31);
  EXPECT_EQ(0u, number("rxControl", 2, "flashingUntil"));
  EXPECT_EQ(0, set("rxControl", 0, {{"eid", eid}, {"lcdBacklightFlashDuration", 30u}}));
  EXPECT_EQ(0, set("rxControl", 0, {{"eid", eid}, {"lcdBacklightFlashDuration", 1u}}));
  EXPECT_EQ(0u, number("rxControl", 2, "flashingUntil"));
}

TEST_F(DeviceFacts, flashingNeedsAKnownDeviceOnLine)
{
  EXPECT_EQ(7, set("txControl", 0, {{"eid", "ZZZZZZ-ZZZZZZ"}, {"lcdBacklightFlashDuration", 5u}}));
  EXPECT_EQ(1109, set("txControl", 0, {{"eid", text("tx", 15, "eid")}, {"lcdBacklightFlashDuration", 5u}}));
  EXPECT_EQ(10,
            set("swxControl", 0, {{"eid", text("swx", 1, "eid")}, {"lcdBacklightFlashDuration", 86401u}}));
  EXPECT_EQ(0, set("swxControl", 0, {{"eid", text("swx", 1, "eid")}, {"lcdBacklightFlashDuration", 5u}}));
}

TEST_F(DeviceFacts, settingsKeepTheirLimits)
{
  EXPECT_EQ(14, set("rx", 2, {{"name", std::string(41, 'x')}}));
  EXPECT_EQ(14, set("rx", 2, {{"location", std::string(65, 'x')}}));
  EXPECT_EQ(10, set("rx", 2, {{"sessionInactivityTimeout", 1441u}}));
  EXPECT_EQ(10, set("rx", 2, {{"sharingInactivityTimeout", 26u}}));
  EXPECT_EQ(12, set("rx", 2, {{"usbMode", "none"}}));
  EXPECT_EQ(9, set("rx", 2, {{"status", "ready"}}));
  EXPECT_EQ(7, set("rx", 2, {{"autoLoginUserIndex", 99u}}));
  EXPECT_EQ(17, set("tx", 2, {{"wakeOnLanMacAddress", "00:11:22-33:44:55"}}));
  EXPECT_EQ(0, set("tx", 2, {{"wakeOnLanMacAddress", "00-11-22-33-44-55-66-77"}}));
}

TEST_F(DeviceFacts, aSwitchInConflictCannotBeEdited)
{
  ASSERT_TRUE(store.set("swx", 3, "status", "conflict_other_master"));
  EXPECT_EQ(1113, set("swx", 3, {{"name", "x"}}));
}

} // namespace
