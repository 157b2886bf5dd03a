// SPDX-License-Identifier: MIT
#include "StoreTest.h"
#include "ZelObj.h"
#include "ZelReq.h"
#include "ZelRsp.h"
#include "ZelRspUtil.h"

#include <numeric>

namespace
{

class MonitorLibrary : public StoreTest
{
protected:
  // The data of a record; empty if it can't be read.
  std::string dataOf(unsigned index)
  {
    json_t *response = ZelReq_edidRetrieveByIndex(client, index);
    unsigned char block[256] = {};
    const bool good = response && !ZelRspUtil_getObjectParam(response, "errors");
    if (good)
      ZelRspUtil_getBinaryParam(response, "data", block, sizeof block);
    if (response)
      ZelRspUtil_free(response);
    return good ? std::string(reinterpret_cast<char *>(block), sizeof block) : std::string();
  }

  int pull(const char *key, unsigned device, const char *name)
  {
    return set(
        "edidControl", 0,
        {{"edidAction", "pull"}, {key, device}, {"edidName", name}, {"edidDescription", "from a test"}});
  }
};

TEST_F(MonitorLibrary, holdsValidBlocksOfBothKinds)
{
  bool digital = false, analog = false;
  for (unsigned index = 1; index <= rows("edid"); ++index) {
    const std::string data = dataOf(index);
    ASSERT_EQ(256u, data.size());
    EXPECT_EQ(std::string("\0\xff\xff\xff\xff\xff\xff\0", 8), data.substr(0, 8));
    for (int half = 0; half < 2; ++half) {
      const auto begin = data.begin() + half * 128;
      EXPECT_EQ(0, std::accumulate(begin, begin + 128, 0) & 255);
    }
    EXPECT_LT(static_cast<unsigned char>(data[8]), 128);
    const bool isDigital = (static_cast<unsigned char>(data[20]) & 0x80) != 0;
    digital = digital || isDigital;
    analog = analog || !isDigital;
  }
  EXPECT_TRUE(digital);
  EXPECT_TRUE(analog);
}

TEST_F(MonitorLibrary, protectsItsBuiltInRecord)
{
  EXPECT_EQ("is_true", text("edid", 1, "isProtected"));
  EXPECT_EQ(1106, remove("edid", 1));
  EXPECT_EQ(1106, set("edid", 1, {{"name", "mine"}}));
  EXPECT_EQ(0, set("edid", 2, {{"name", "mine"}, {"description", "two\nlines"}}));
  EXPECT_EQ(0, remove("edid", 2));
}

TEST_F(MonitorLibrary, hasANameForEveryRecord)
{
  EXPECT_EQ(13, set("edid", 2, {{"name", ""}}));
}

TEST_F(MonitorLibrary, pullsAMonitorAndFindsItByName)
{
  ASSERT_EQ(0, pull("rxIndex", 2, "M2026-01-01_12:00:00"));
  json_t *response = ZelReq_edidRetrieveByName(client, "M2026-01-01_12:00:00");
  ASSERT_NE(nullptr, response);
  EXPECT_EQ(nullptr, ZelRspUtil_getObjectParam(response, "errors"));
  EXPECT_STREQ("from a test", ZelRsp_edidGetDescription(response));
  ZelRspUtil_free(response);
}

TEST_F(MonitorLibrary, pushesToATransmitterWhichThenHoldsIt)
{
  ASSERT_EQ(0, set("edidControl", 0, {{"edidAction", "push"}, {"txIndex", 4u}, {"edidIndex", 6u}}));
  ASSERT_EQ(0, pull("txIndex", 4, "E1"));
  EXPECT_EQ(dataOf(6), dataOf(rows("edid")));
}

TEST_F(MonitorLibrary, refusesWhatCannotBeDone)
{
  EXPECT_EQ(1108, pull("rxIndex", 15, "a"));
  EXPECT_EQ(1109, pull("txIndex", 15, "a"));
  EXPECT_EQ(7, pull("rxIndex", 99, "a"));
  EXPECT_EQ(11, pull("rxIndex", 2, "Switch default"));
  EXPECT_EQ(1007, pull("rxIndex", 2, ""));
  EXPECT_EQ(7, set("edidControl", 0, {{"edidAction", "push"}, {"txIndex", 4u}, {"edidIndex", 99u}}));
  EXPECT_EQ(1109, set("edidControl", 0, {{"edidAction", "push"}, {"txIndex", 15u}, {"edidIndex", 2u}}));
  ASSERT_TRUE(store.set("rx", 2, "monitor", "0"));
  EXPECT_EQ(16, pull("rxIndex", 2, "a"));
}

TEST_F(MonitorLibrary, hasARoomForSoManyAndNoMore)
{
  unsigned pulled = rows("edid");
  while (pull("rxIndex", 2, ("m" + std::to_string(pulled)).c_str()) == 0)
    ++pulled;
  EXPECT_EQ(128u, pulled);
  EXPECT_EQ(8, pull("rxIndex", 2, "one more"));
}

} // namespace
