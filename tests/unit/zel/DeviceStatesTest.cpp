// SPDX-License-Identifier: MIT
// States that are brought about by command, with what follows from them, and the way back.
#include "StoreTest.h"
#include "ZelObj.h"
#include "ZelReqUtil.h"
#include "ZelRspUtil.h"
#include "data/AlertKinds.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace
{

class DeviceStates : public StoreTest
{
protected:
  int control(const std::vector<std::string> &words) { return store.control(words).failed ? 1 : 0; }

  // The state of a port, out of the list that the store keeps.
  std::string portState(unsigned swx, unsigned port)
  {
    const std::string all = store.get("portStatus", swx, "ports");
    const std::size_t at = all.find("\"portIndex\":" + std::to_string(port) + ",");
    const std::string key = "\"portState\":\"";
    const std::size_t begin = all.find(key, at) + key.size();
    return at == std::string::npos ? "" : all.substr(begin, all.find('"', begin) - begin);
  }
};

TEST_F(DeviceStates, aConflictPutsTheDevicesOfASwitchOutOfReachAndEnds)
{
  ASSERT_EQ("ready", text("rx", 16, "status"));
  for (const char *word : {"conflict_is_master", "conflict_other_master", "isc_failure", "dc_connected"}) {
    ASSERT_EQ(0, control({"state", "swx", "3", word}));
    EXPECT_EQ(word, text("swx", 3, "status"));
    EXPECT_EQ("offline", text("rx", 16, "status"));
    ASSERT_EQ(0, control({"state", "swx", "3", "ready"}));
    EXPECT_EQ("ready", text("swx", 3, "status"));
    pass(30);
    EXPECT_EQ("ready", text("rx", 16, "status")) << "once it has connected";
  }
  EXPECT_EQ(1, control({"state", "swx", "1", "isc_failure"}));
  EXPECT_EQ(1, control({"state", "swx", "3", "angry"}));
}

TEST_F(DeviceStates, aWordThatIsOnlyWrittenIsSaidToBe)
{
  EXPECT_NE("", store.control({"set", "rx", "1", "status", "offline"}).text);
  EXPECT_EQ("", store.control({"set", "rx", "1", "notes", "x"}).text);
}

TEST_F(DeviceStates, aConflictBlocksSettings)
{
  ASSERT_EQ(0, control({"state", "swx", "3", "conflict_other_master"}));
  EXPECT_EQ(1113, set("swx", 3, {{"location", "x"}}));
}

TEST_F(DeviceStates, aSwitchBeyondItsCapacityHasDevicesThatNobodyCanUse)
{
  ASSERT_EQ(0, logIn(3, 16));
  ASSERT_EQ(0, control({"usage", "3", "exceeds_unmanaged_capacity"}));
  EXPECT_EQ("not_usable_swx_capacity", text("rx", 16, "usage"));
  EXPECT_EQ("not_usable_swx_capacity", text("tx", 16, "usage"));
  EXPECT_EQ("usable", text("rx", 1, "usage"));
  EXPECT_TRUE(hasAlert("unacknowledgedAlerts", "exceeds the unmanaged capacity"));
  ASSERT_EQ(0, logIn(3, 16));
  EXPECT_EQ(1120, connect(16, 16, "share_mode"));
  ASSERT_EQ(0, control({"usage", "3", "usable"}));
  EXPECT_EQ("usable", text("rx", 16, "usage"));
  EXPECT_EQ(0, connect(16, 16, "share_mode"));
  ASSERT_EQ(0, control({"usage", "3", "maintenance"}));
  EXPECT_EQ("not_usable_swx_maintenance", text("tx", 16, "usage"));
  EXPECT_EQ(1, control({"usage", "3", "busy"}));
}

TEST_F(DeviceStates, aReceiverInRecoveryIsOutOfUseUntilItIsReady)
{
  ASSERT_EQ(0, logIn(3, 2));
  ASSERT_EQ(0, control({"state", "rx", "2", "in_recovery"}));
  EXPECT_EQ("in_recovery", text("rx", 2, "status"));
  EXPECT_EQ(1101, logIn(3, 2)) << "and the login has ended";
  ASSERT_EQ(0, control({"state", "rx", "2", "ready"}));
  pass(6);
  EXPECT_EQ("ready", text("rx", 2, "status"));
}

TEST_F(DeviceStates, portsTellWhatIsWrongWithThem)
{
  ASSERT_EQ(0, control({"port", "1", "23", "loopback"}));
  EXPECT_EQ("loopback_detected", portState(1, 23));
  ASSERT_EQ(0, control({"port", "1", "22", "self", "24"}));
  EXPECT_EQ("self_detected", portState(1, 22));
  EXPECT_EQ("self_detected", portState(1, 24));
  const unsigned place = number("rx", 1, "attachedPort");
  for (const auto &[word, state] : {std::pair<const char *, const char *>{"invalid", "invalid_device"},
                                    {"error", "device_error"},
                                    {"not_added", "device_not_added"}}) {
    ASSERT_EQ(0, control({"port", "1", std::to_string(place), word}));
    EXPECT_EQ(state, portState(1, place));
  }
  EXPECT_EQ("offline", text("rx", 1, "status"));
  store.restart();
  reconnect();
  EXPECT_EQ("loopback_detected", portState(1, 23)) << "a start changes nothing";
  ASSERT_EQ(0, control({"port", "1", std::to_string(place), "well"}));
  pass(6);
  EXPECT_EQ("idle", portState(1, place));
  EXPECT_EQ("ready", text("rx", 1, "status"));
  ASSERT_EQ(0, control({"port", "1", "23", "well"}));
  EXPECT_EQ("no_device", portState(1, 23));
  EXPECT_EQ(1, control({"port", "1", "99", "loopback"}));
  EXPECT_EQ(1, control({"port", "1", "1", "self"}));
}

TEST_F(DeviceStates, aDeviceIsUnpluggedAndPluggedInElsewhere)
{
  const unsigned place = number("rx", 2, "attachedPort");
  ASSERT_EQ(0, control({"unplug", "rx", "2"}));
  EXPECT_EQ("offline", text("rx", 2, "status"));
  EXPECT_EQ("no_device", portState(1, place));
  ASSERT_EQ(0, control({"plug", "rx", "2", "3", "20"}));
  pass(6);
  EXPECT_EQ("ready", text("rx", 2, "status"));
  EXPECT_EQ("idle", portState(3, 20));
  EXPECT_EQ(1, control({"plug", "rx", "2"})) << "it is plugged in";
  EXPECT_EQ(1, control({"unplug", "swx", "2"}));
}

TEST_F(DeviceStates, aNewDeviceIsPluggedIn)
{
  ASSERT_EQ(0, control({"plug", "tx", "new"}));
  pass(6);
  ASSERT_TRUE(exists("tx", 17));
  EXPECT_EQ("ready", text("tx", 17, "status"));
  EXPECT_EQ(13u, text("tx", 17, "eid").size());
  EXPECT_EQ("", text("tx", 17, "name"));
  EXPECT_TRUE(exists("txControl", 17));
  ASSERT_EQ(0, control({"plug", "rx"}));
  EXPECT_TRUE(exists("rx", 17));
  EXPECT_NE(text("tx", 17, "eid"), text("rx", 17, "eid"));
  EXPECT_EQ(1, control({"plug", "rx", "new", "1", "1"})) << "that port is taken";
}

TEST_F(DeviceStates, aMonitorIsMissingOrBroken)
{
  ASSERT_EQ(0, control({"monitor", "2", "none"}));
  EXPECT_EQ("0", store.get("rx", 2, "monitor"));
  ASSERT_EQ(0, control({"monitor", "2", "broken"}));
  EXPECT_TRUE(hasAlert("unacknowledgedAlerts", "monitor data could not be read"));
  ASSERT_EQ(0, control({"monitor", "2", "3"}));
  EXPECT_EQ("3", store.get("rx", 2, "monitor"));
  EXPECT_EQ(1, control({"monitor", "2", "8000"}));
}

TEST_F(DeviceStates, aLinkIsInUseWhileASessionCrossesIt)
{
  const auto linksInUse = [this] {
    const std::string ports = store.get("portStatus", 3, "ports");
    const std::string link = "\"" + text("swx", 1, "eid") + "\",\"portState\":\"in_use\"";
    unsigned count = 0;
    for (std::size_t at = ports.find(link); at != std::string::npos; at = ports.find(link, at + 1))
      ++count;
    return count;
  };
  ASSERT_EQ("1", store.get("rx", 2, "attachedSwx"));
  ASSERT_EQ("3", store.get("tx", 13, "attachedSwx"));
  ASSERT_EQ(0, set("user", 2, {{"allTargetAccess", "enabled"}}));
  const unsigned before = linksInUse();
  unsigned connection = 0;
  ASSERT_EQ(0, logIn(2, 2));
  ASSERT_EQ(0, connect(2, 13, "share_mode", &connection));
  EXPECT_EQ(before + 1, linksInUse());
  ASSERT_EQ(0, remove("connection", connection));
  EXPECT_EQ(before, linksInUse());
}

// Every kind of alert comes of something that can be done.
class AllAlerts : public StoreTest
{
protected:
  void noteAlerts()
  {
    json_t *request = ZelReqUtil_newGetResource("historicalAlerts");
    json_t *response = send(request);
    for (unsigned i = 0; json_t *row = ZelObj_getRow(response, i); ++i)
      if (const char *message = ZelRspUtil_getStringParam(row, "alertMsg"))
        seen_.insert(message);
    ZelRspUtil_free(response);
  }

  // The texts of the kinds of which none was seen.
  std::vector<std::string> missing() const
  {
    std::vector<std::string> result;
    std::size_t count = 0;
    const zelsim::AlertKindInfo *kinds = zelsim::alertKinds(count);
    for (std::size_t i = 0; i < count; ++i)
      if (std::none_of(seen_.begin(), seen_.end(),
                       [&](const std::string &message) { return fits(message, kinds[i].text); }))
        result.push_back(kinds[i].text);
    return result;
  }

  void logInBy(const char *door)
  {
    unsigned session = 0;
    const auto params = [door](const char *password) {
      return Params{{"username", "operator"},
                    {"password", password},
                    {"sessionType", door},
                    {"ipAddress", "192.0.2.7"}};
    };
    EXPECT_EQ(1103, create("adminSession", params("wrong")));
    ASSERT_EQ(0, create("adminSession", params("operator-1"), &session));
    EXPECT_EQ(0, remove("adminSession", session));
  }

private:
  // Whether the message is the text with something in each of its places.
  static bool fits(const std::string &message, std::string text)
  {
    std::size_t from = 0;
    while (!text.empty()) {
      const std::size_t place = text.find('%');
      const std::string part = text.substr(0, place);
      const std::size_t at = message.find(part, from);
      if (at == std::string::npos || (from == 0 && !part.empty() && at != 0))
        return false;
      from = at + part.size();
      text = place == std::string::npos ? "" : text.substr(place + 2);
    }
    return true;
  }

  std::set<std::string> seen_;
};

TEST_F(AllAlerts, canArise)
{
  ASSERT_EQ(0, set("alertsControl", 0, {{"alertsAction", "clear_history"}}));
  const std::vector<std::vector<std::string>> commands = {
      {"port", "1", "22", "self", "24"},
      {"port", "1", "23", "loopback"},
      {"state", "swx", "3", "conflict_is_master"},
      {"state", "swx", "3", "conflict_other_master"},
      {"state", "swx", "3", "two_masters"},
      {"state", "swx", "3", "ready"},
      {"usage", "3", "exceeds_unmanaged_capacity"},
      {"usage", "3", "usable"},
      {"report", "rx", "1", "parameter", "videoScaling"},
      {"report", "rx", "1", "error", "USB"},
      {"report", "rx", "1", "info", "USB"},
      {"report", "swx", "2", "parameter", "network"},
      {"watchdog", "2"},
  };
  for (const std::vector<std::string> &command : commands)
    ASSERT_FALSE(store.control(command).failed) << command[0];
  for (const char *part : {"fan", "voltage", "power", "temperature"}) {
    ASSERT_FALSE(store.control({"fault", part, "1"}).failed);
    ASSERT_FALSE(store.control({"fault", part, "1", "over"}).failed);
  }
  for (const char *door : {"nevo", "rap", "setup_port"})
    logInBy(door);
  pass(10);
  // People and their sessions.
  unsigned connection = 0;
  for (const unsigned rx : {1u, 2u})
    static_cast<void>(store.control({"reset", "rx", std::to_string(rx)}));
  ASSERT_EQ(0, set("rx", 2, {{"autoLoginControl", "enabled"}, {"autoLoginUserIndex", 2u}}));
  pass(10);
  ASSERT_EQ(0, set("user", 2, {{"allTargetAccess", "enabled"}}));
  EXPECT_NE(0, logIn(2, 15)) << "a receiver off line";
  EXPECT_NE(0, connect(1, 15, "share_mode")) << "a transmitter off line";
  ASSERT_FALSE(store.control({"reset", "rx", "2"}).failed);
  pass(10);
  ASSERT_EQ(0, connect(2, 2, "private_mode", &connection));
  ASSERT_EQ(0, remove("connection", connection));
  ASSERT_EQ(0, logIn(2, 1));
  ASSERT_EQ(0, connect(1, 2, "share_mode"));
  ASSERT_FALSE(store.control({"offline", "tx", "2", "5"}).failed);
  ASSERT_FALSE(store.control({"offline", "rx", "1", "5"}).failed);
  // Firmware.
  ASSERT_FALSE(store.control({"fail-update", "rx", "3"}).failed);
  ASSERT_EQ(0, set("rx", 3, {{"upgradeIndex", 1u}}));
  unsigned source = 0;
  ASSERT_EQ(0,
            create("upgrade", {{"protocol", "ftp"}, {"location", "10.1.1.1"}, {"filename", "swx-9.9.9.bin"}},
                   &source));
  ASSERT_EQ(0, set("swx", 3, {{"upgradeIndex", source}}));
  pass(60);
  noteAlerts();
  EXPECT_EQ(std::vector<std::string>(), missing());
}

} // namespace
