// SPDX-License-Identifier: MIT
#include "NevoSession.h"
#include "SettingsEditing.h"
#include "SettingsPage.h"
#include "WAutoSizeTableView.h"
#include "WSettingsTab.h"

#include <Wt/WHBoxLayout>
#include <Wt/WMenuItem>
#include <Wt/WPushButton>
#include <Wt/WTabWidget>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using namespace std::chrono_literals;

namespace
{

constexpr char kRefused[] = R"([{"errno": 7}])";

class PlainTable : public WSettingsTable
{
public:
  PlainTable() : WSettingsTable("tx", Plain, {"Attribute", "Value"}) { add<WLineEditZel>("Title", "title"); }
};

// A view of receivers with two tabs of one section: "First" with two tables, "Second" with one.
class SettingsTabs : public SettingsPage
{
protected:
  SettingsTabs()
  {
    store_.setRecords("tx", R"([{"index": 1, "title": "t"}])");
    countChanges(1, 1);
  }
  ~SettingsTabs() override
  {
    if (page_)
      page_->act([this] {
        firstEditing_.reset();
        secondEditing_.reset();
      });
  }

  void show(SettingsEditing::AfterFailure afterFailure = SettingsEditing::KeepsEdits)
  {
    build([this, afterFailure](Wt::WContainerWidget &root) {
      list_ = new WAutoSizeTableView(1, &root);
      list_->setAttributeValue("aria-label", "List");
      Wt::WTabWidget *tabs = new Wt::WTabWidget(&root);
      first_ = new WSettingsTab(ChangeTracker::DevRxAttribs, {InfoMgr_InfoID_Rx, InfoMgr_InfoID_User},
                                {new ReceiverTable(), new PlainTable()});
      second_ = new WSettingsTab(ChangeTracker::DevRxSettings, {InfoMgr_InfoID_Rx}, {new PlainTable()});
      firstItem_ = tabs->addTab(first_, "First", Wt::WTabWidget::PreLoading);
      secondItem_ = tabs->addTab(second_, "Second", Wt::WTabWidget::PreLoading);
      firstEditing_ = wire(first_, firstItem_, afterFailure);
      secondEditing_ = wire(second_, secondItem_, afterFailure);
      first_->readFromDatabase(true, selected_, false);
      second_->readFromDatabase(true, selected_, false);
    });
    store_.forgetRequests();
  }
  std::unique_ptr<SettingsEditing> wire(WSettingsTab *tab, Wt::WMenuItem *item,
                                        SettingsEditing::AfterFailure afterFailure)
  {
    tab->registerDetailsMenuItem(item);
    tab->registerTableView(list_);
    SettingsEditing::View view;
    view.selectedIndexes = [this] { return selected_; };
    view.refresh = [this] { ++refreshes_; };
    view.saved = [this] { ++saves_; };
    return std::make_unique<SettingsEditing>(tab, view, afterFailure);
  }
  // What the store says about receivers and users: when they changed last.
  void countChanges(unsigned int receivers, unsigned int users)
  {
    store_.setRecords("changeStatus", "[{\"index\": 7, \"lastChange\": " + std::to_string(receivers) +
                                          "}, {\"index\": 6, \"lastChange\": " + std::to_string(users) +
                                          "}]");
  }
  void read(bool force, bool selectionChanged)
  {
    page_->act([&] { first_->readFromDatabase(force, selected_, selectionChanged); });
  }
  // Reads until nothing is new any more.
  void settle()
  {
    read(false, false);
    read(false, false);
  }
  void changeInStore(const std::string &location)
  {
    store_.setRecords("rx",
                      "[{\"index\": 1, \"name\": \"a\", \"location\": \"" + location +
                          "\", \"notes\": \"\", \"scaling\": \"enabled\", \"timeout\": 5, \"eid\": \"E1\"}]");
  }
  bool canSave() const { return first_->saveButton->isEnabled(); }
  bool canCancel() const { return first_->cancelButton->isEnabled(); }
  std::string label(Wt::WMenuItem *item)
  {
    std::string found;
    page_->act([&] { found = item->text().toUTF8(); });
    return found;
  }
  bool listIsLocked() const
  {
    return list_->isDisabled() &&
           list_->styleClass().toUTF8().find("nevo-wtableview-disabled") != std::string::npos;
  }
  void save() { ASSERT_TRUE(visitor().click(visitor().button("Save"))); }
  void cancel() { ASSERT_TRUE(visitor().click(visitor().button("Cancel"))); }

  WAutoSizeTableView *list_ = nullptr;
  WSettingsTab *first_ = nullptr;
  WSettingsTab *second_ = nullptr;
  Wt::WMenuItem *firstItem_ = nullptr;
  Wt::WMenuItem *secondItem_ = nullptr;
  std::unique_ptr<SettingsEditing> firstEditing_;
  std::unique_ptr<SettingsEditing> secondEditing_;
  Indexes selected_ = {1};
  int refreshes_ = 0;
  int saves_ = 0;
};

} // namespace

// ---- a change

TEST_F(SettingsTabs, anEditMarksTheTabLocksTheListAndOffersSaveAndCancel)
{
  show();
  EXPECT_FALSE(canSave());
  EXPECT_FALSE(canCancel());
  edit("Location", "cellar");
  EXPECT_TRUE(canSave());
  EXPECT_TRUE(canCancel());
  EXPECT_TRUE(first_->hasChanged());
  EXPECT_EQ(label(firstItem_), "First*");
  EXPECT_EQ(label(secondItem_), "Second");
  EXPECT_TRUE(listIsLocked());
}

TEST_F(SettingsTabs, anInvalidEditMarksTheTabButOffersNoSave)
{
  show();
  edit("Timeout", "1441");
  EXPECT_FALSE(canSave());
  EXPECT_TRUE(canCancel());
  EXPECT_EQ(label(firstItem_), "First*");
  edit("Timeout", "1440");
  EXPECT_TRUE(canSave());
  EXPECT_EQ(label(firstItem_), "First*");
}

TEST_F(SettingsTabs, ofSeveralRecordsOneValidFieldIsEnoughToSave)
{
  selected_ = {1, 2}; // of which the names differ, and a name is mandatory
  show();
  edit("Timeout", "1441");
  EXPECT_TRUE(canSave());
}

TEST_F(SettingsTabs, nothingHappensWhileNoRecordIsSelected)
{
  show();
  selected_ = {};
  edit("Location", "cellar");
  EXPECT_FALSE(canSave());
  EXPECT_FALSE(canCancel());
  EXPECT_FALSE(first_->hasChanged());
  EXPECT_FALSE(listIsLocked());
}

// ---- Save

TEST_F(SettingsTabs, saveWritesWhatChangedInAllTablesAndEndsTheEditing)
{
  show();
  edit("Location", "cellar");
  edit("Title", "new");
  save();
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"location":"cellar"})", R"({"index":1,"title":"new"})"));
  EXPECT_FALSE(canSave());
  EXPECT_FALSE(canCancel());
  EXPECT_FALSE(first_->hasChanged());
  EXPECT_EQ(label(firstItem_), "First");
  EXPECT_FALSE(listIsLocked());
  EXPECT_EQ(refreshes_, 1);
  EXPECT_EQ(saves_, 1);
}

TEST_F(SettingsTabs, aFailedSaveShowsTheStoresMessagesAndKeepsTheEditsAndTheMark)
{
  show();
  edit("Location", "cellar");
  store_.fail("SET", "rx", kRefused);
  save();
  EXPECT_THAT(visitor().dialogText(), HasSubstr("Error writing value(s)."));
  visitor().click(visitor().button("Close"));
  EXPECT_EQ(value("Location"), "cellar");
  EXPECT_EQ(label(firstItem_), "First*");
  EXPECT_TRUE(first_->hasChanged());
  EXPECT_TRUE(canSave());
  EXPECT_TRUE(canCancel());
  EXPECT_TRUE(listIsLocked());
  EXPECT_EQ(refreshes_, 0);
}

TEST_F(SettingsTabs, whatTheStoreHasRefusedCanBeSavedOnceMore)
{
  show();
  edit("Location", "cellar");
  edit("Title", "new");
  store_.fail("SET", "rx", kRefused);
  save();
  visitor().click(visitor().button("Close"));
  countChanges(2, 2);
  read(false, false);
  EXPECT_EQ(value("Location"), "cellar");
  store_.answer("SET", "rx", "{}");
  store_.forgetRequests();
  save();
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"location":"cellar"})", R"({"index":1,"title":"new"})"));
  EXPECT_EQ(label(firstItem_), "First");
}

TEST_F(SettingsTabs, aFailedSaveDropsTheEditsWhereTheViewSaysSo)
{
  show(SettingsEditing::DropsEdits);
  edit("Location", "cellar");
  store_.fail("SET", "rx", kRefused);
  save();
  EXPECT_NE(visitor().dialog(), nullptr);
  EXPECT_EQ(refreshes_, 0);
  visitor().click(visitor().button("Close"));
  EXPECT_EQ(label(firstItem_), "First");
  EXPECT_FALSE(canSave());
  EXPECT_EQ(refreshes_, 1);
}

TEST_F(SettingsTabs, theListStaysLockedUntilNoTabOfTheSectionHoldsEdits)
{
  show();
  edit("Location", "cellar");
  page_->act([this] { second_->indicateChangedContent(true); });
  save();
  EXPECT_EQ(label(firstItem_), "First");
  EXPECT_EQ(label(secondItem_), "Second*");
  EXPECT_TRUE(listIsLocked());
  page_->act([this] {
    EXPECT_TRUE(NevoSession::current()->anythingChanged());
    secondEditing_->saveButtonClickedHandler();
  });
  EXPECT_EQ(label(secondItem_), "Second");
  EXPECT_FALSE(listIsLocked());
  page_->act([] { EXPECT_FALSE(NevoSession::current()->anythingChanged()); });
}

// ---- Cancel

TEST_F(SettingsTabs, cancelPutsTheStoresValuesBackAndWritesNothing)
{
  show();
  edit("Location", "cellar");
  choose("Scaling", "Disabled");
  cancel();
  EXPECT_EQ(value("Location"), "hall");
  EXPECT_EQ(value("Scaling"), "0");
  EXPECT_TRUE(isEnabled("Timeout"));
  EXPECT_FALSE(canSave());
  EXPECT_FALSE(canCancel());
  EXPECT_EQ(label(firstItem_), "First");
  EXPECT_FALSE(listIsLocked());
  EXPECT_THAT(store_.requests("SET"), IsEmpty());
  EXPECT_EQ(refreshes_, 1);
}

TEST_F(SettingsTabs, afterCancelAnEditOfOneTableIsWrittenAlone)
{
  show();
  edit("Location", "cellar");
  cancel();
  edit("Title", "new");
  save();
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"title":"new"})"));
}

TEST_F(SettingsTabs, whatWasCancelledWhileTheStoreIsSilentIsNeverWrittenAndGoesWithTheNextRefresh)
{
  show();
  settle();
  edit("Location", "cancelled");
  store_.hangUp("GET", "rx");
  cancel();
  EXPECT_EQ(label(firstItem_), "First");
  store_.answer(
      "GET", "rx",
      R"({"index":1,"name":"a","location":"hall","notes":"","scaling":"enabled","timeout":5,"eid":"E1"})");
  edit("Notes", "n");
  save();
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"notes":"n"})"));
  read(false, false);
  EXPECT_EQ(value("Location"), "hall");
}

// ---- several records

TEST_F(SettingsTabs, recordsThatDifferAreMarkedQuietlyAndAreNoError)
{
  selected_ = {1, 2}; // of which the names differ, and a name is mandatory
  show();
  const auto &name = *visitor().field("Name");
  EXPECT_TRUE(name.hasClass("nevo-differs"));
  EXPECT_FALSE(name.hasClass("Wt-invalid"));
  EXPECT_FALSE(name.has("aria-invalid"));
  EXPECT_EQ(name.get("title"), "The selected records differ here.");
  edit("Notes", "alike");
  EXPECT_FALSE(visitor().field("Name")->hasClass("Wt-invalid"));
  edit("Name", "one for both");
  EXPECT_FALSE(visitor().field("Name")->hasClass("nevo-differs"));
  EXPECT_EQ(visitor().field("Name")->get("title"), "What it is called");
  edit("Name", "");
  EXPECT_TRUE(visitor().field("Name")->hasClass("Wt-invalid"));
}

// ---- a tab without tables

namespace
{

// Two lists between which things are moved, as far as a tab has to do with them.
class ListsTab : public WSettingsTabBase
{
public:
  explicit ListsTab(Wt::WContainerWidget *parent) : WSettingsTabBase(ChangeTracker::UsrTargets, parent)
  {
    layOut(new Wt::WHBoxLayout());
  }
  bool writeToDatabase(std::vector<unsigned int>, std::vector<std::string> &) override
  {
    stored = moved;
    return false;
  }
  void readFromDatabase(bool force, std::vector<unsigned int> indexes, bool selectionChanged) override
  {
    const Reading reading = readingFor(force, indexes, selectionChanged);
    if (reading == NoReading)
      return;
    if (reading != KeepingEdits)
      moved = stored;
    endReading(indexes, false);
  }
  bool holdsEdits() const override { return moved != stored; }
  void move(int by)
  {
    moved += by;
    contentChanged().emit();
  }

  int stored = 0;
  int moved = 0;
};

} // namespace

TEST_F(SettingsTabs, aTabOfListsIsSavedCancelledAndCleanAgainWhenAllIsPutBackByHand)
{
  ListsTab *lists = nullptr;
  build([&](Wt::WContainerWidget &root) {
    lists = new ListsTab(&root);
    SettingsEditing::View view;
    view.selectedIndexes = [this] { return selected_; };
    firstEditing_ = std::make_unique<SettingsEditing>(lists, view);
    lists->readFromDatabase(true, selected_, true);
  });
  page_->act([&] { lists->move(1); });
  EXPECT_TRUE(lists->hasChanged());
  EXPECT_TRUE(lists->saveButton->isEnabled());
  page_->act([&] { lists->move(-1); });
  EXPECT_FALSE(lists->hasChanged());
  EXPECT_FALSE(lists->saveButton->isEnabled());
  page_->act([&] { lists->move(2); });
  cancel();
  EXPECT_EQ(lists->moved, 0);
  page_->act([&] { lists->move(3); });
  save();
  EXPECT_EQ(lists->stored, 3);
  EXPECT_FALSE(lists->hasChanged());
}

// ---- refresh

TEST_F(SettingsTabs, aRefreshReadsOnlyWhereTheStoreHasSomethingNew)
{
  show();
  settle();
  changeInStore("attic");
  read(false, false);
  EXPECT_EQ(value("Location"), "hall");
  countChanges(2, 1);
  read(false, false);
  EXPECT_EQ(value("Location"), "attic");
}

TEST_F(SettingsTabs, aRefreshAsksForNoFurtherKindOfDataOnceOneIsNew)
{
  show();
  settle();
  countChanges(2, 2);
  store_.forgetRequests();
  read(false, false);
  std::size_t asked = 0;
  for (const std::string &request : store_.requests())
    asked += request.find("changeStatus") != std::string::npos ? 1 : 0;
  EXPECT_EQ(asked, 1U);
  changeInStore("attic");
  read(false, false); // the users' data is new still
  EXPECT_EQ(value("Location"), "attic");
}

TEST_F(SettingsTabs, aRefreshIsForcedOrComesWithANewSelection)
{
  show();
  settle();
  changeInStore("attic");
  store_.forgetRequests();
  read(true, false);
  EXPECT_EQ(value("Location"), "attic");
  for (const std::string &request : store_.requests())
    EXPECT_THAT(request, testing::Not(HasSubstr("changeStatus")));
  changeInStore("roof");
  read(false, true);
  EXPECT_EQ(value("Location"), "roof");
}

TEST_F(SettingsTabs, aRefreshKeepsUnsavedEditsAndAForcedOneToo)
{
  show();
  edit("Location", "cellar");
  countChanges(2, 2);
  read(false, false);
  EXPECT_EQ(value("Location"), "cellar");
  read(true, false);
  EXPECT_EQ(value("Location"), "cellar");
  read(false, true);
  EXPECT_EQ(value("Location"), "cellar");
  read(true, true);
  EXPECT_EQ(value("Location"), "cellar");
  EXPECT_EQ(label(firstItem_), "First*");
  save();
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"location":"cellar"})"));
}

TEST_F(SettingsTabs, aForcedReadOfATabThatIsNotMarkedPutsTheStoresValuesBack)
{
  show();
  edit("Location", "cellar");
  page_->act([this] { first_->indicateChangedContent(false); });
  read(true, false);
  EXPECT_EQ(value("Location"), "hall");
}

TEST_F(SettingsTabs, aFieldThatTheUserIsInKeepsItsTextWhateverTheStoreSays)
{
  show();
  visitor().focusOn(visitor().field("Location"));
  changeInStore("attic");
  for (unsigned int tick = 2; tick < 5; ++tick) {
    countChanges(tick, tick);
    read(false, false);
    read(true, true);
  }
  EXPECT_EQ(value("Location"), "hall");
  EXPECT_EQ(value("Name"), "a");
  EXPECT_THAT(store_.requests(), IsEmpty());
  leave();
  read(false, false);
  EXPECT_EQ(value("Location"), "attic");
}
