// SPDX-License-Identifier: MIT
#include "NevoApplication.h"
#include "NevoSite.h"
#include "SwitchScript.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <jansson.h>
#include <memory>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

struct Preference {
  const char *label;
  const char *parameter;
};

const Preference kPreferences[] = {
    {"Warn When Logging out with Unsaved Changes", "enableLogoutUnsavedChangesWarning"},
    {"Warn When Deleting User", "enableDeleteUserWarning"},
    {"Warn When Forcing a User Logout", "enableLogoutUserWarning"},
    {"Warn When Disconnecting a Session", "enableDisconnectSessionWarning"},
    {"Warn When Deleting Monitor", "enableDeleteMonitorWarning"},
    {"Warn When Clearing Event History", "enableClearEventHistoryWarning"},
    {"Warn When Restoring Device Factory Defaults", "enableRestoreFactoryDefaultsWarning"},
    {"Warn When Removing Device(s)", "enableRemoveDevicesWarning"},
    {"Warn When Removing Offline Device(s)", "enableRemoveOfflineDevicesWarning"},
    {"Warn When Rebooting Device(s)", "enableResetDevicesWarning"}};

constexpr char kUnsaved[] =
    "There are unsaved changes. Are you sure you want to discard your changes and log out?";
constexpr char kRefused[] = R"([{"errno": 7}])";

// An administrator of a switch, whose warnings are all on but for that of deleted monitors.
class PageOfAnAdministrator : public testing::Test
{
protected:
  PageOfAnAdministrator() : visitor_(site_) { setWarning("enableDeleteMonitorWarning", "disabled"); }

  // Gives one warning a word, and "enabled" to all others.
  void setWarning(const std::string &parameter, const std::string &word)
  {
    std::string record = R"({"index": 2, "name": "operator", "passwordIsInitialized": "is_true")";
    for (const Preference &preference : kPreferences)
      record += std::string(", \"") + preference.parameter + "\": \"" +
                (parameter == preference.parameter ? word : "enabled") + '"';
    store_.setRecords("user", "[{\"index\": 1, \"name\": \"anna\"}, " + record + "}]");
  }
  void logIn()
  {
    visitor_.open();
    visitor_.logIn();
    store_.forgetRequests();
  }
  void act(const std::function<void()> &action)
  {
    site_.manager->post(site_.application().sessionId(), action);
    visitor_.advance(std::chrono::milliseconds(0));
  }
  bool loggedOut() const { return visitor_.hasQuit() && visitor_.location() == "/"; }
  // The "params" of the writes so far.
  std::vector<std::string> written()
  {
    std::vector<std::string> texts;
    for (const std::string &request : store_.requests("SET")) {
      const std::unique_ptr<json_t, void (*)(json_t *)> json(json_loads(request.c_str(), 0, nullptr),
                                                             json_decref);
      const std::unique_ptr<char, void (*)(void *)> text(
          json_dumps(json_object_get(json.get(), "params"), JSON_COMPACT | JSON_SORT_KEYS), std::free);
      texts.push_back(text.get());
    }
    return texts;
  }

  SwitchScript store_;
  NevoSite site_;
  Visitor visitor_;
};

class Preferences : public PageOfAnAdministrator
{
protected:
  void open()
  {
    logIn();
    ASSERT_TRUE(visitor_.click(visitor_.link("Preferences")));
    ASSERT_NE(visitor_.dialog(), nullptr);
  }
  std::string shown(const std::string &label)
  {
    const Visitor::Node *field = visitor_.field(label);
    const std::string index = field->get(".value");
    return field->children.at(index.empty() ? 0 : std::stoul(index))->text;
  }
  void choose(const std::string &label, const std::string &item)
  {
    ASSERT_TRUE(visitor_.choose(visitor_.field(label), item));
  }
};

class UnsavedChanges : public PageOfAnAdministrator
{
protected:
  // Logs in, leaves something unsaved and asks to log out.
  void leave()
  {
    logIn();
    act([this] { site_.application().subsectionChanged(ChangeTracker::DevRxAttribs, true); });
    ASSERT_TRUE(visitor_.click(visitor_.link("Log out")));
  }
  bool asks() const { return visitor_.dialogText().find(kUnsaved) != std::string::npos; }
  void tick() { visitor_.check(visitor_.byAttribute("type", "checkbox"), true); }
  static std::string turnedOff() { return R"({"enableLogoutUnsavedChangesWarning":"disabled","index":2})"; }
};

} // namespace

// ---- The link

TEST_F(Preferences, areOfferedOnAMasterOnly)
{
  struct Case {
    const char *mode;
    const char *managed;
    bool offered;
  };
  const Case cases[] = {{"master", "non_managed", true},
                        {"slave", "non_managed", false},
                        {"master", "verified", false},
                        {"master", "enrolling", false},
                        {"slave", "verified", false}};
  for (const Case &row : cases) {
    store_.setRole(row.mode, "controller");
    store_.setGlobal("managedSetting", row.managed);
    store_.setGlobal("fullNevoWhenManaged", "enabled");
    Visitor visitor(site_);
    visitor.open();
    visitor.logIn();
    EXPECT_EQ(visitor.link("Preferences") != nullptr, row.offered) << row.mode << ' ' << row.managed;
    EXPECT_NE(visitor.link("Help"), nullptr);
    EXPECT_NE(visitor.link("Log out"), nullptr);
  }
}

TEST_F(Preferences, standBetweenHelpAndLogOut)
{
  logIn();
  Row links;
  for (const Visitor::Node *link : visitor_.page().findAll([](const Visitor::Node &n) {
         return n.tag == "a" && (n.hasClass("nevo-help-button") || n.hasClass("nevo-preferences-button") ||
                                 n.hasClass("nevo-logout-button"));
       }))
    links.push_back(link->allText());
  EXPECT_THAT(links, ElementsAre("Help", "Preferences", "Log out"));
  EXPECT_EQ(visitor_.link("Preferences")->get("href"), "");
}

// ---- The dialog

TEST_F(Preferences, showTheTenWarningsOfTheirUser)
{
  open();
  EXPECT_THAT(visitor_.dialogText(), HasSubstr("Preferences"));
  EXPECT_THAT(visitor_.dialogText(), HasSubstr("Option Setting"));
  Row labels;
  for (const Visitor::Node *cell : visitor_.page().findAll(
           [](const Visitor::Node &n) { return n.hasClass("nevo-attribute-table-label"); }))
    labels.push_back(cell->allText());
  ASSERT_THAT(labels, SizeIs(10));
  for (std::size_t i = 0; i < labels.size(); ++i) {
    EXPECT_EQ(labels[i], kPreferences[i].label);
    EXPECT_EQ(shown(labels[i]), labels[i] == "Warn When Deleting Monitor" ? "Disabled" : "Enabled");
  }
  Row asked;
  for (const std::string &request : store_.requests("GET"))
    if (request.find("Warning") != std::string::npos)
      asked.push_back(request);
  ASSERT_THAT(asked, SizeIs(10));
  for (std::size_t i = 0; i < asked.size(); ++i)
    EXPECT_EQ(asked[i], std::string(R"({"method":"GET","query":{"index":2},"resource":"user","select":[")") +
                            kPreferences[i].parameter + "\"]}");
}

TEST_F(Preferences, canBeSavedOnceSomethingWasChanged)
{
  open();
  EXPECT_FALSE(visitor_.canPress("Save"));
  EXPECT_TRUE(visitor_.canPress("Cancel"));
  choose("Warn When Deleting User", "Disabled");
  EXPECT_TRUE(visitor_.canPress("Save"));
  EXPECT_TRUE(visitor_.canPress("Cancel"));
}

TEST_F(Preferences, saveOnlyWhatWasChangedInTheOrderOfTheTable)
{
  open();
  choose("Warn When Rebooting Device(s)", "Disabled");
  choose("Warn When Deleting Monitor", "Enabled");
  visitor_.click(visitor_.button("Save"));
  EXPECT_THAT(written(), ElementsAre(R"({"enableDeleteMonitorWarning":"enabled","index":2})",
                                     R"({"enableResetDevicesWarning":"disabled","index":2})"));
  EXPECT_EQ(visitor_.dialog(), nullptr);
}

TEST_F(Preferences, thatTheStoreRefusesAreReportedAndTheDialogCloses)
{
  open();
  choose("Warn When Deleting User", "Disabled");
  choose("Warn When Rebooting Device(s)", "Disabled");
  store_.fail("SET", "user", kRefused);
  visitor_.click(visitor_.button("Save"));
  EXPECT_THAT(visitor_.dialogText(), HasSubstr("Error writing value(s)."));
  EXPECT_THAT(written(), SizeIs(2)) << "a failure keeps no other from being tried";
  visitor_.click(visitor_.button("Close"));
  EXPECT_EQ(visitor_.dialog(), nullptr);
}

TEST_F(Preferences, areLeftAloneByCancelAndByEscape)
{
  open();
  choose("Warn When Deleting User", "Disabled");
  visitor_.click(visitor_.button("Cancel"));
  EXPECT_EQ(visitor_.dialog(), nullptr);
  visitor_.click(visitor_.link("Preferences"));
  EXPECT_EQ(shown("Warn When Deleting User"), "Enabled");
  visitor_.event(visitor_.dialog(), "dialog:escape");
  EXPECT_EQ(visitor_.dialog(), nullptr);
  EXPECT_THAT(store_.requests("SET"), IsEmpty());
}

TEST_F(Preferences, surviveAStoreThatDoesNotAnswer)
{
  logIn();
  store_.hangUp("GET", "user");
  visitor_.click(visitor_.link("Preferences"));
  EXPECT_NE(visitor_.dialog(), nullptr);
  visitor_.click(visitor_.button("Cancel"));
  EXPECT_EQ(visitor_.dialog(), nullptr);
}

// ---- Logging out with something unsaved

TEST_F(UnsavedChanges, areNotAskedAboutWhenThereAreNone)
{
  logIn();
  visitor_.click(visitor_.link("Log out"));
  EXPECT_TRUE(loggedOut());
}

TEST_F(UnsavedChanges, areAskedAboutBeforeTheUserLeaves)
{
  leave();
  EXPECT_TRUE(asks());
  EXPECT_THAT(visitor_.dialogText(), HasSubstr("Warning"));
  EXPECT_FALSE(loggedOut());
  visitor_.click(visitor_.button("Discard changes"));
  EXPECT_TRUE(loggedOut());
  EXPECT_THAT(store_.requests("SET"), IsEmpty());
}

TEST_F(UnsavedChanges, keepTheUserHereOnCancelAndOnEscape)
{
  leave();
  visitor_.click(visitor_.button("Cancel"));
  EXPECT_FALSE(loggedOut());
  EXPECT_EQ(visitor_.dialog(), nullptr);
  visitor_.click(visitor_.link("Log out"));
  ASSERT_TRUE(asks());
  visitor_.event(visitor_.dialog(), "dialog:escape");
  EXPECT_FALSE(loggedOut());
  EXPECT_TRUE(site_.application().userIsLoggedIn());
}

TEST_F(UnsavedChanges, areNotAskedAboutAgainOnceTheBoxIsTickedEvenOnCancel)
{
  leave();
  tick();
  visitor_.click(visitor_.button("Cancel"));
  EXPECT_THAT(written(), ElementsAre(turnedOff()));
  EXPECT_FALSE(loggedOut());
  EXPECT_TRUE(site_.application().userIsLoggedIn());
  setWarning("enableLogoutUnsavedChangesWarning", "disabled");
  visitor_.click(visitor_.link("Log out"));
  EXPECT_TRUE(loggedOut());
}

TEST_F(UnsavedChanges, areDiscardedForGoodWithTheBoxTicked)
{
  leave();
  tick();
  visitor_.click(visitor_.button("Discard changes"));
  EXPECT_THAT(written(), ElementsAre(turnedOff()));
  EXPECT_TRUE(loggedOut());
}

TEST_F(UnsavedChanges, areNotAskedAboutWhereTheUserWantsNoWarning)
{
  setWarning("enableLogoutUnsavedChangesWarning", "disabled");
  leave();
  EXPECT_TRUE(loggedOut());
}

TEST_F(UnsavedChanges, areNotAskedAboutWhenTheStoreDoesNotTellWhetherTo)
{
  logIn();
  act([this] { site_.application().subsectionChanged(ChangeTracker::DevRxAttribs, true); });
  store_.fail("GET", "user", kRefused);
  visitor_.click(visitor_.link("Log out"));
  EXPECT_TRUE(loggedOut());
}

// ---- What the session knows of them

TEST_F(UnsavedChanges, markTheirMainTabAsLongAsThereAreAny)
{
  logIn();
  const auto label = [this] {
    const Visitor::Node *tab = visitor_.page().findIf(
        [](const Visitor::Node &n) { return n.tag == "a" && n.allText().compare(0, 6, "Events") == 0; });
    return tab ? tab->allText() : "";
  };
  NevoApplication &application = site_.application();
  act([&] { application.subsectionChanged(ChangeTracker::Events, true); });
  act([&] { application.subsectionChanged(ChangeTracker::Events, true); });
  EXPECT_EQ(label(), "Events*");
  act([&] { application.subsectionChanged(ChangeTracker::Events, false); });
  EXPECT_EQ(label(), "Events");
  act([&] { application.sectionChanged(ChangeTracker::SectionEvents, true); });
  EXPECT_EQ(label(), "Events*");
  act([&] { application.sectionChanged(ChangeTracker::SectionEvents, false); });
  EXPECT_EQ(label(), "Events");
}

TEST_F(UnsavedChanges, areKnownBySectionAndBySubsection)
{
  logIn();
  NevoApplication &application = site_.application();
  act([&] {
    for (int i = 0; i < ChangeTracker::subsectionCount; ++i) {
      const auto id = static_cast<ChangeTracker::SubsectionId>(i);
      application.subsectionChanged(id, true);
      EXPECT_TRUE(application.parentSectionChanged(id)) << i;
      EXPECT_TRUE(application.anythingChanged()) << i;
      application.subsectionChanged(id, false);
      EXPECT_FALSE(application.parentSectionChanged(id)) << i;
      EXPECT_FALSE(application.anythingChanged()) << i;
    }
    for (int i = 0; i < ChangeTracker::sectionCount; ++i) {
      const auto id = static_cast<ChangeTracker::SectionId>(i);
      application.sectionChanged(id, true);
      EXPECT_TRUE(application.sectionChanged(id)) << i;
      EXPECT_TRUE(application.anythingChanged()) << i;
      application.sectionChanged(id, false);
      EXPECT_FALSE(application.anythingChanged()) << i;
    }
    application.subsectionChanged(ChangeTracker::DevRxAttribs, true);
    application.subsectionChanged(ChangeTracker::DevTxAttribs, true);
    application.subsectionChanged(ChangeTracker::DevRxAttribs, false);
    EXPECT_TRUE(application.parentSectionChanged(ChangeTracker::DevRxAttribs));
    EXPECT_FALSE(application.parentSectionChanged(ChangeTracker::UsrAttribs));
  });
}

TEST_F(UnsavedChanges, areNoneOnThePageOfASlave)
{
  store_.setRole("slave", "none");
  logIn();
  act([this] { site_.application().subsectionChanged(ChangeTracker::DevRxAttribs, true); });
  EXPECT_FALSE(site_.application().anythingChanged());
  visitor_.click(visitor_.link("Log out"));
  EXPECT_TRUE(loggedOut());
}
