// SPDX-License-Identifier: MIT
#include "SessionsVisitor.h"
#include "SwitchScript.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

constexpr SessionsVisitor::List kUsers = SessionsVisitor::Users;
constexpr SessionsVisitor::List kReceivers = SessionsVisitor::Receivers;
constexpr SessionsVisitor::List kTransmitters = SessionsVisitor::Transmitters;

// What users and devices are named after: what they allow.
const char *const kModes[] = {"both", "neither", "private", "shared"};

std::string wordOf(const std::string &mode)
{
  return mode == "shared"    ? "share_mode"
         : mode == "private" ? "private_mode"
         : mode == "both"    ? "share_or_private_mode"
                             : "something_else";
}

std::string device(int index, const std::string &name, const std::string &more)
{
  return "{\"index\": " + std::to_string(index) + ", \"eid\": \"AAAAAA-00000" + std::to_string(index) +
         "\", \"name\": \"" + name + "\", " + more + "}";
}

std::string serving(const std::string &mode, const std::string &status = "ready",
                    const std::string &usage = "usable", const std::string &upgrade = "idle")
{
  return "\"modeAllowed\": \"" + wordOf(mode) + "\", \"status\": \"" + status + "\", \"usage\": \"" + usage +
         "\", \"upgradeStatus\": \"" + upgrade + "\"";
}

std::string listOf(const std::vector<std::string> &records)
{
  std::string json = "[";
  for (const std::string &one : records)
    json += (json.size() > 1 ? "," : "") + one;
  return json + "]";
}

// A user who may reach all targets and allows that.
std::string user(int index, const std::string &name, const std::string &mode)
{
  return "{\"index\": " + std::to_string(index) + ", \"name\": \"" + name + "\", \"modeAllowed\": \"" +
         wordOf(mode) + "\", \"allTargetAccess\": \"enabled\", \"passwordIsInitialized\": \"is_true\"}";
}

std::vector<std::string> oneOfEachMode()
{
  std::vector<std::string> devices;
  for (const char *mode : kModes)
    devices.push_back(device(static_cast<int>(devices.size()) + 1, mode, serving(mode)));
  return devices;
}

// The dialog over a switch that has a user, a receiver and a transmitter for each mode that can be allowed.
class ConnectSession : public testing::Test
{
protected:
  ConnectSession() : visitor_(site_)
  {
    store_.setRecords(
        "user", listOf({user(2, "operator", "both"), user(3, "both", "both"), user(4, "neither", "neither"),
                        user(5, "private", "private"), user(6, "shared", "shared")}));
    setDevices("rx", oneOfEachMode());
    setDevices("tx", oneOfEachMode());
  }
  void setDevices(const std::string &resource, const std::vector<std::string> &devices)
  {
    store_.setRecords(resource, listOf(devices));
  }
  void openDialog()
  {
    visitor_.openSessions();
    visitor_.openDialog();
  }
  void pickAll(const std::string &name = "both")
  {
    visitor_.pick(kUsers, name);
    visitor_.pick(kReceivers, name);
    visitor_.pick(kTransmitters, name);
  }

  SwitchScript store_;
  NevoSite site_;
  SessionsVisitor visitor_;
};

// What is offered for a session of that mode, by what the user allows.
struct Offer {
  const char *mode;
  const char *user;
  Row receivers;
  Row transmitters;
};

} // namespace

// ---- The rules

TEST_F(ConnectSession, offersTheUsersWhoAllowTheMode)
{
  openDialog();
  EXPECT_THAT(visitor_.names(kUsers), ElementsAre("both", "neither", "operator", "shared"));
  visitor_.pickMode("Private session");
  EXPECT_THAT(visitor_.names(kUsers), ElementsAre("both", "neither", "operator", "private"));
}

TEST_F(ConnectSession, offersTheDevicesThatAllowWhatUserAndSessionNeed)
{
  const Offer offers[] = {
      {"Shared session", "shared", {"both", "shared"}, {"both", "neither", "shared"}},
      {"Shared session", "both", {"both", "shared"}, {"both", "neither", "shared"}},
      {"Shared session", "neither", {}, {}},
      {"Private session", "private", {"both", "private"}, {"both", "neither", "private"}},
      {"Private session", "both", {"both", "private"}, {"both", "neither", "private"}},
      {"Private session", "neither", {}, {}},
  };
  openDialog();
  for (const Offer &offer : offers) {
    SCOPED_TRACE(std::string(offer.mode) + " of " + offer.user);
    visitor_.pickMode(offer.mode);
    visitor_.pick(kUsers, offer.user);
    EXPECT_EQ(visitor_.names(kReceivers), offer.receivers);
    // What the receiver allows makes no difference to the transmitters.
    for (const std::string &receiver : offer.receivers) {
      visitor_.pick(kReceivers, receiver);
      EXPECT_EQ(visitor_.names(kTransmitters), offer.transmitters);
    }
  }
}

TEST_F(ConnectSession, offersOnlyDevicesInService)
{
  struct {
    const char *name, *status, *usage, *upgrade;
    bool offered;
  } const states[] = {{"ready", "ready", "usable", "idle", true},
                      {"updated", "ready", "usable", "complete", true},
                      {"failed", "ready", "usable", "failed", true},
                      {"updating", "ready", "usable", "upgrading", false},
                      {"off", "offline", "usable", "idle", false},
                      {"configuring", "configuring", "usable", "idle", false},
                      {"resetting", "reset_pending", "usable", "idle", false},
                      {"recovering", "in_recovery", "usable", "idle", false},
                      {"beyond", "ready", "not_usable_swx_capacity", "idle", false},
                      {"serviced", "ready", "not_usable_swx_maintenance", "idle", false}};
  std::vector<std::string> devices;
  Row offered;
  for (const auto &state : states) {
    devices.push_back(device(static_cast<int>(devices.size()) + 1, state.name,
                             serving("both", state.status, state.usage, state.upgrade)));
    if (state.offered)
      offered.push_back(state.name);
  }
  setDevices("rx", devices);
  setDevices("tx", devices);
  openDialog();
  visitor_.pick(kUsers, "both");
  EXPECT_THAT(visitor_.names(kReceivers), testing::UnorderedElementsAreArray(offered));
  visitor_.pick(kReceivers, "ready");
  EXPECT_THAT(visitor_.names(kTransmitters), testing::UnorderedElementsAreArray(offered));
}

TEST_F(ConnectSession, offersNoReceiverAtWhichAUserIsLoggedIn)
{
  setDevices("rx", {device(1, "free", serving("both")), device(2, "taken", serving("both"))});
  store_.setRecords("userSession", R"([{"index": 1, "userIndex": 3, "rxIndex": 2, "sessionStartTime": 1}])");
  openDialog();
  for (const char *mode : {"Shared session", "Private session"}) {
    visitor_.pickMode(mode);
    visitor_.pick(kUsers, "both");
    EXPECT_THAT(visitor_.names(kReceivers), ElementsAre("free")) << mode;
  }
}

TEST_F(ConnectSession, offersATransmitterInASharedSessionForSharingOnlyAndInAPrivateOneNever)
{
  setDevices("tx", {device(1, "free", serving("both")), device(2, "in private use", serving("both")),
                    device(3, "in shared use", serving("both"))});
  store_.setRecords("connection", R"([{"index": 1, "rxIndex": 8, "txIndex": 2, "mode": "private_mode"},
                                      {"index": 2, "rxIndex": 9, "txIndex": 3, "mode": "share_mode"}])");
  openDialog();
  visitor_.pick(kUsers, "both");
  visitor_.pick(kReceivers, "both");
  EXPECT_THAT(visitor_.names(kTransmitters), ElementsAre("free", "in shared use"));
  visitor_.pickMode("Private session");
  visitor_.pick(kUsers, "both");
  visitor_.pick(kReceivers, "both");
  EXPECT_THAT(visitor_.names(kTransmitters), ElementsAre("free"));
}

TEST_F(ConnectSession, offersOnlyTransmittersThatTheUserMayReach)
{
  store_.setRecords("user", R"([{"index": 2, "name": "operator", "passwordIsInitialized": "is_true"},
                                {"index": 3, "name": "carl", "modeAllowed": "share_or_private_mode",
                                 "allTargetAccess": "disabled"}])");
  store_.setRecords("userTargetList", R"([{"index": 3, "target": [{"txIndex": 4}, {"txIndex": 9}]}])");
  openDialog();
  visitor_.pick(kUsers, "carl");
  visitor_.pick(kReceivers, "both");
  EXPECT_THAT(visitor_.names(kTransmitters), ElementsAre("shared"));
}

TEST_F(ConnectSession, offersNoTransmitterWhoseRightCannotBeRead)
{
  store_.setRecords("user", R"([{"index": 2, "name": "operator", "passwordIsInitialized": "is_true"},
                                {"index": 3, "name": "carl", "modeAllowed": "share_or_private_mode",
                                 "allTargetAccess": "disabled"}])");
  store_.hangUp("GET", "userTargetList");
  openDialog();
  visitor_.pick(kUsers, "carl");
  visitor_.pick(kReceivers, "both");
  EXPECT_THAT(visitor_.names(kTransmitters), IsEmpty());
  EXPECT_EQ(visitor_.listOf(kTransmitters)->get("data-empty"), "No transmitter is free for this user.");
}

TEST_F(ConnectSession, showsAUserWithoutANameUnderTheManagersName)
{
  store_.setRecords("user",
                    R"([{"index": 2, "name": "operator", "passwordIsInitialized": "is_true"},
                        {"index": 3, "name": "", "mgrName": "m-anna", "modeAllowed": "share_mode"},
                        {"index": 4, "mgrName": "m-bert", "modeAllowed": "share_mode"},
                        {"index": 5, "name": "carl", "mgrName": "m-carl", "modeAllowed": "share_mode"}])");
  openDialog();
  EXPECT_THAT(visitor_.names(kUsers), ElementsAre("carl", "m-anna", "m-bert", "operator"));
}

// ---- The dialog

TEST_F(ConnectSession, beginsAtTheModeWithNothingChosen)
{
  openDialog();
  EXPECT_EQ(visitor_.page().find(visitor_.page().focus), visitor_.byTag("select"));
  EXPECT_THAT(visitor_.choices(kReceivers), IsEmpty());
  EXPECT_EQ(visitor_.listOf(kReceivers)->get("data-empty"), "Select a user.");
  EXPECT_THAT(visitor_.choices(kTransmitters), IsEmpty());
  EXPECT_EQ(visitor_.listOf(kTransmitters)->get("data-empty"), "Select a receiver.");
  EXPECT_FALSE(visitor_.canConnect());
}

TEST_F(ConnectSession, listsDevicesByEidAndName)
{
  openDialog();
  visitor_.pick(kUsers, "both");
  EXPECT_THAT(visitor_.choices(kReceivers),
              ElementsAre(Row({"AAAAAA-000001", "both"}), Row({"AAAAAA-000004", "shared"})));
}

TEST_F(ConnectSession, connectsWhatWasChosen)
{
  openDialog();
  visitor_.pickMode("Private session");
  pickAll("private");
  EXPECT_TRUE(visitor_.canConnect());
  store_.forgetRequests();
  visitor_.press("Connect");
  const std::vector<std::string> created = store_.requests("CREATE");
  ASSERT_THAT(created, SizeIs(2));
  EXPECT_THAT(created[0], HasSubstr("\"rxIndex\":3,\"userIndex\":5"));
  EXPECT_THAT(created[1], HasSubstr("\"mode\":\"private_mode\",\"rxIndex\":3,\"txIndex\":3"));
  EXPECT_EQ(visitor_.dialogText(), "Session Session has been successfully connected. Close");
  visitor_.press("Close");
  EXPECT_FALSE(visitor_.dialog());
  EXPECT_GE(store_.readCount("connection"), 1U);
}

TEST_F(ConnectSession, tellsWhyTheStoreRefuses)
{
  const std::pair<int, const char *> refusals[] = {
      {1108, "Rx not online"},
      {1120, "The connection does not fit the way the devices are wired"},
      {1121, "The transmitter is in use, so it cannot be connected in private mode"},
      {1122, "The transmitter is in use in private mode, so it cannot be shared"},
      {1123, "The transmitter is already shared by as many receivers as it can serve"},
      {1124, "The receiver is already connected to a transmitter"},
      {1125, "All links between the switches on the way are in use"}};
  openDialog();
  for (const auto &refusal : refusals) {
    store_.fail("CREATE", "connection", "[{\"errno\": " + std::to_string(refusal.first) + "}]");
    pickAll();
    visitor_.press("Connect");
    EXPECT_EQ(visitor_.dialogText(),
              std::string("Error Unable to create session. ") + refusal.second + ". Close");
    visitor_.press("Close");
    visitor_.openDialog();
  }
}

TEST_F(ConnectSession, readsTheSessionsAnewAfterCancelAsWell)
{
  for (const bool byEscape : {false, true}) {
    if (byEscape)
      visitor_.openDialog();
    else
      openDialog();
    pickAll();
    store_.forgetRequests();
    if (byEscape)
      visitor_.event(visitor_.dialog(), "dialog:escape");
    else
      visitor_.press("Cancel");
    EXPECT_FALSE(visitor_.dialog());
    EXPECT_EQ(store_.readCount("connection"), 1U);
    EXPECT_THAT(store_.requests("CREATE"), IsEmpty());
  }
}

TEST_F(ConnectSession, emptiesWhatLiesBehindAChoiceThatChanges)
{
  openDialog();
  pickAll();
  EXPECT_TRUE(visitor_.canConnect());
  visitor_.pick(kReceivers, "shared");
  EXPECT_FALSE(visitor_.canConnect());
  EXPECT_THAT(visitor_.choices(kTransmitters), SizeIs(3));
  visitor_.pick(kTransmitters, "both");
  EXPECT_TRUE(visitor_.canConnect());
  visitor_.pick(kUsers, "shared");
  EXPECT_FALSE(visitor_.canConnect());
  EXPECT_THAT(visitor_.choices(kReceivers), SizeIs(2));
  EXPECT_THAT(visitor_.choices(kTransmitters), IsEmpty());
}

TEST_F(ConnectSession, connectsNothingAfterAChangeOfTheModeThoughItsButtonStaysAsItWas)
{
  openDialog();
  pickAll();
  visitor_.pickMode("Private session");
  EXPECT_THAT(visitor_.names(kUsers), Contains("private"));
  EXPECT_THAT(visitor_.choices(kReceivers), IsEmpty());
  EXPECT_THAT(visitor_.choices(kTransmitters), IsEmpty());
  EXPECT_TRUE(visitor_.canConnect());
  store_.forgetRequests();
  visitor_.press("Connect");
  EXPECT_FALSE(visitor_.dialog());
  EXPECT_THAT(store_.requests("CREATE"), IsEmpty());
}

TEST_F(ConnectSession, showsEmptyListsWithoutAWordWhereTheStoreFails)
{
  openDialog();
  store_.fail("GET", "rx", R"([{"errno": 1}])");
  visitor_.pick(kUsers, "both");
  EXPECT_THAT(visitor_.choices(kReceivers), IsEmpty());
  EXPECT_EQ(visitor_.listOf(kReceivers)->get("data-empty"), "");
  store_.hangUp("GET", "user");
  visitor_.pickMode("Private session");
  EXPECT_THAT(visitor_.choices(kUsers), IsEmpty());
  EXPECT_EQ(visitor_.listOf(kUsers)->get("data-empty"), "");
  visitor_.press("Cancel");
  EXPECT_FALSE(visitor_.dialog());
}

TEST_F(ConnectSession, saysThatNothingCanBeChosenOnlyAfterHavingRead)
{
  setDevices("rx", {device(1, "private", serving("private"))});
  openDialog();
  visitor_.pick(kUsers, "shared");
  EXPECT_EQ(visitor_.listOf(kReceivers)->get("data-empty"), "No receiver is free for this user.");
}

TEST_F(ConnectSession, hasListsOfFixedSizesWithAlternatingRows)
{
  openDialog();
  const std::pair<SessionsVisitor::List, const char *> widths[] = {
      {kUsers, "178px"}, {kReceivers, "300px"}, {kTransmitters, "300px"}};
  for (const auto &list : widths) {
    const Visitor::Node *view = visitor_.listOf(list.first);
    EXPECT_EQ(view->get("*width"), list.second);
    EXPECT_EQ(view->get("*height"), "200px");
    EXPECT_EQ(view->parent->get("*padding-left"), "8px");
    EXPECT_TRUE(view->hasClass("Wt-striped"));
  }
}

// ---- Typing in its lists

TEST_F(ConnectSession, findsAReceiverByWhatIsTypedInItsList)
{
  openDialog();
  visitor_.pick(kUsers, "both");
  visitor_.typeAt(visitor_.placeOf(kReceivers), "shar");
  EXPECT_THAT(visitor_.names(kReceivers), ElementsAre("shared"));
  EXPECT_EQ(Visitor::markIn(visitor_.placeOf(kReceivers)), "shar \xE2\x80\x94 1 of 2");
  EXPECT_THAT(visitor_.names(kUsers), SizeIs(4));
  visitor_.pick(kReceivers, "shared");
  visitor_.pick(kTransmitters, "both");
  store_.forgetRequests();
  visitor_.press("Connect");
  EXPECT_THAT(store_.requests("CREATE"), SizeIs(2));
}

TEST_F(ConnectSession, takesAFilterAwayByEscapeBeforeItCloses)
{
  openDialog();
  visitor_.typeAt(visitor_.placeOf(kUsers), "bo");
  EXPECT_THAT(visitor_.names(kUsers), ElementsAre("both"));
  visitor_.keyAt(visitor_.placeOf(kUsers), 27);
  visitor_.event(visitor_.dialog(), "dialog:escape");
  ASSERT_TRUE(visitor_.dialog());
  EXPECT_THAT(visitor_.names(kUsers), SizeIs(4));
  visitor_.keyAt(visitor_.placeOf(kUsers), 27);
  visitor_.event(visitor_.dialog(), "dialog:escape");
  EXPECT_FALSE(visitor_.dialog());
}

TEST_F(ConnectSession, closesByCancelWhateverIsFiltered)
{
  openDialog();
  visitor_.typeAt(visitor_.placeOf(kUsers), "bo");
  visitor_.press("Cancel");
  EXPECT_FALSE(visitor_.dialog());
}

TEST_F(ConnectSession, doesNotConnectWhatTheFilterHides)
{
  openDialog();
  pickAll();
  visitor_.typeAt(visitor_.placeOf(kReceivers), "shar");
  store_.forgetRequests();
  visitor_.press("Connect");
  EXPECT_THAT(store_.requests("CREATE"), IsEmpty());
}

TEST_F(ConnectSession, connectsByEnterInAListOnceAllIsChosen)
{
  openDialog();
  visitor_.pick(kUsers, "both");
  store_.forgetRequests();
  visitor_.event(visitor_.placeOf(kUsers), "enter");
  ASSERT_TRUE(visitor_.dialog());
  pickAll();
  visitor_.event(visitor_.placeOf(kTransmitters), "enter");
  EXPECT_THAT(store_.requests("CREATE"), SizeIs(2));
}

TEST_F(ConnectSession, doesNotConnectByEnterAfterAChangeOfTheMode)
{
  openDialog();
  pickAll();
  visitor_.pickMode("Private session");
  store_.forgetRequests();
  visitor_.event(visitor_.placeOf(kUsers), "enter");
  EXPECT_TRUE(visitor_.dialog());
  EXPECT_THAT(store_.requests("CREATE"), IsEmpty());
}
