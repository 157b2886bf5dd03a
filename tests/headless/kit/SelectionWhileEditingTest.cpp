// SPDX-License-Identifier: MIT
// A list of records beside a tab that edits the selected ones: whatever the order of presses, keys, edits and
// reads, a value is written only to records that the fields showed when it was typed.
#include "SettingsEditing.h"
#include "SettingsPage.h"
#include "WAutoSizeTableView.h"
#include "WSettingsTab.h"

#include <Wt/WPushButton>
#include <Wt/WStandardItemModel>
#include <boost/any.hpp>
#include <cstdlib>
#include <map>
#include <random>
#include <set>

using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::chrono_literals;

namespace
{

constexpr unsigned int kRecords = 5;
constexpr int kSteps = 4000;
constexpr int kControl = 2; // modifiers, as the page tells them
constexpr int kShift = 1;
constexpr int kDown = 40; // key codes
constexpr int kSpace = 32;
constexpr char kFailure[] = R"([{"errno": 7}])";

class PlaceTable : public WSettingsTable
{
public:
  PlaceTable() : WSettingsTable("rx", Plain, {"Attribute", "Value"})
  {
    addLine("Location", "location", "", 64, "^([ -~]*)$");
    addArea("Notes", "notes", "", "([ -~]*)");
    add<WEnableDisable>("Scaling", "scaling");
  }
};

// Receivers 1 to 5, which differ in all but the scaling.
class SelectionWhileEditing : public SettingsPage
{
protected:
  struct Record {
    std::string location;
    std::string notes;
  };

  SelectionWhileEditing()
  {
    for (unsigned int index = 1; index <= kRecords; ++index)
      records_[index] = {"place " + std::to_string(index), "note " + std::to_string(index)};
    store();
  }
  ~SelectionWhileEditing() override
  {
    if (page_)
      page_->act([this] { editing_.reset(); });
  }

  // `viewFirst`: the view has connected to the list before the tab does.
  void show(bool viewFirst)
  {
    build([this, viewFirst](Wt::WContainerWidget &root) {
      addList(root);
      tab_ = new WSettingsTab(ChangeTracker::DevRxAttribs, {InfoMgr_InfoID_Rx}, {new PlaceTable()}, &root);
      if (viewFirst)
        list_->selectionChanged().connect(std::bind([this] { readSelected(); }));
      tab_->registerTableView(list_);
      if (!viewFirst)
        list_->selectionChanged().connect(std::bind([this] { readSelected(); }));
      SettingsEditing::View view;
      view.selectedIndexes = [this] { return selected(); };
      view.refresh = [this] { refresh(); };
      editing_ = std::make_unique<SettingsEditing>(tab_, view);
    });
    store_.forgetRequests();
  }
  void addList(Wt::WContainerWidget &root)
  {
    model_ = new Wt::WStandardItemModel(kRecords, 2, &root);
    for (unsigned int row = 0; row < kRecords; ++row) {
      model_->setData(row, 0, boost::any(row + 1), Wt::EditRole);
      model_->setData(row, 1, boost::any(std::string("receiver")), Wt::EditRole);
    }
    list_ = new WAutoSizeTableView(2, &root);
    list_->setModel(model_);
    list_->setSelectionMode(Wt::ExtendedSelection);
    list_->setAttributeValue("aria-label", "List");
  }
  Indexes selected() const
  {
    Indexes indexes;
    for (const Wt::WModelIndex &index : list_->selectedIndexes())
      indexes.push_back(static_cast<unsigned int>(index.row()) + 1);
    return indexes;
  }
  void readSelected() { tab_->readFromDatabase(true, selected(), true); }
  void refresh() { tab_->readFromDatabase(false, selected(), false); }

  // ---- what a person does; the press and the key come with the focus where it was
  void press(unsigned int record, int modifiers = 0)
  {
    visitor().event(visitor().field("List"), "table:down",
                    "{\"a\":[" + std::to_string(record - 1) +
                        ",1],\"b\":1,\"m\":" + std::to_string(modifiers) + "}");
  }
  void key(int code, int modifiers = 0)
  {
    visitor().script(visitor().field("List"), "table:key",
                     std::to_string(code) + "," + std::to_string(modifiers));
  }
  void typeInto(const std::string &label, const std::string &text)
  {
    visitor().focusOn(visitor().field(label));
    visitor().typeWithoutLeaving(visitor().field(label), text);
  }
  void tick()
  {
    page_->act([this] { refresh(); });
  }

  // ---- the store
  void store()
  {
    std::string json;
    for (const auto &record : records_)
      json += (json.empty() ? "[{" : ",{") + ("\"index\":" + std::to_string(record.first)) +
              ",\"location\":\"" + record.second.location + "\",\"notes\":\"" + record.second.notes +
              "\",\"scaling\":\"enabled\"}";
    store_.setRecords("rx", json + "]");
    store_.setRecords("changeStatus", "[{\"index\": 7, \"lastChange\": " + std::to_string(++changes_) + "}]");
  }

  std::map<unsigned int, Record> records_;
  unsigned int changes_ = 0;
  Wt::WStandardItemModel *model_ = nullptr;
  WAutoSizeTableView *list_ = nullptr;
  WSettingsTab *tab_ = nullptr;
  std::unique_ptr<SettingsEditing> editing_;
};

class SelectionInEitherOrder : public SelectionWhileEditing, public testing::WithParamInterface<bool>
{
};
INSTANTIATE_TEST_SUITE_P(ViewConnected, SelectionInEitherOrder, testing::Bool());

} // namespace

TEST_P(SelectionInEitherOrder, aPressOnAnotherRowShowsItsValuesAlsoInTheFieldThatTheUserIsIn)
{
  show(GetParam());
  press(1);
  visitor().focusOn(visitor().field("Location"));
  press(2);
  EXPECT_EQ(value("Location"), "place 2");
  EXPECT_EQ(value("Notes"), "note 2");
  typeInto("Location", "typed for 2");
  leave();
  ASSERT_TRUE(visitor().click(visitor().button("Save")));
  EXPECT_THAT(written(), ElementsAre(R"({"index":2,"location":"typed for 2"})"));
}

TEST_P(SelectionInEitherOrder, anEditThatWasNotNoticedYetKeepsTheSelectionAndIsKept)
{
  show(GetParam());
  press(1);
  typeInto("Location", "pasted");
  press(2);
  EXPECT_THAT(selected(), ElementsAre(1U));
  EXPECT_EQ(value("Location"), "pasted");
  EXPECT_TRUE(tab_->hasChanged());
  EXPECT_TRUE(list_->isDisabled());
  leave();
  ASSERT_TRUE(visitor().click(visitor().button("Save")));
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"location":"pasted"})"));
}

TEST_P(SelectionInEitherOrder, theSameHoldsWhenTheRowIsTakenOutOfTheSelection)
{
  show(GetParam());
  press(1);
  typeInto("Notes", "pasted");
  press(1, kControl);
  EXPECT_THAT(selected(), ElementsAre(1U));
  EXPECT_EQ(value("Notes"), "pasted");
  EXPECT_TRUE(tab_->hasChanged());
}

TEST_P(SelectionInEitherOrder, aSecondRowLeavesTheFieldsBlankThatDiffer)
{
  show(GetParam());
  press(1);
  visitor().focusOn(visitor().field("Location"));
  press(2, kControl);
  EXPECT_EQ(value("Location"), "");
  EXPECT_EQ(value("Notes"), "");
  EXPECT_NE(value("Scaling"), "2"); // not blank
}

TEST_P(SelectionInEitherOrder, anEditWithNothingSelectedIsGivenUpForTheNextRecord)
{
  show(GetParam());
  typeInto("Location", "for nobody");
  visitor().advance(500ms);
  typeInto("Notes", "for nobody either");
  press(3);
  EXPECT_THAT(selected(), ElementsAre(3U));
  EXPECT_EQ(value("Location"), "place 3");
  EXPECT_EQ(value("Notes"), "note 3");
  EXPECT_FALSE(tab_->hasChanged());
}

TEST_P(SelectionInEitherOrder, aRecordThatCannotBeReadLeavesNoValuesOfTheOneBefore)
{
  show(GetParam());
  press(1);
  store_.fail("GET", "rx", kFailure);
  press(2);
  EXPECT_EQ(value("Location"), "");
  EXPECT_EQ(value("Notes"), "");
  store();
  store_.answer("GET", "rx", R"({"index":2,"location":"place 2","notes":"note 2","scaling":"enabled"})");
  tick();
  EXPECT_EQ(value("Location"), "place 2");
}

TEST_F(SelectionWhileEditing, theLockedListSaysWhy)
{
  show(false);
  press(1);
  EXPECT_FALSE(visitor().field("List")->has("title"));
  edit("Location", "new");
  EXPECT_EQ(visitor().field("List")->get("title"),
            "Save or cancel the changes below before you select something else.");
  ASSERT_TRUE(visitor().click(visitor().button("Cancel")));
  EXPECT_FALSE(visitor().field("List")->has("title"));
}

TEST_F(SelectionWhileEditing, saveWritesNothingToRecordsThatTheFieldsDoNotShow)
{
  show(false);
  press(1);
  edit("Location", "for 1");
  // The record is gone from the list, whatever the lock says.
  page_->act([this] { list_->setSelectedIndexes({model_->index(3, 0)}); });
  page_->act([this] { list_->setModel(new Wt::WStandardItemModel(0, 2, list_)); });
  ASSERT_TRUE(visitor().click(visitor().button("Save")));
  EXPECT_THAT(store_.requests("SET"), IsEmpty());
  EXPECT_NE(visitor().dialog(), nullptr);
}

// ---- thousands of steps

namespace
{

class SelectionAtRandom : public SelectionInEitherOrder
{
protected:
  SelectionAtRandom()
      : seed_(std::getenv("NEVO_TEST_SEED") ? std::strtoul(std::getenv("NEVO_TEST_SEED"), nullptr, 10)
                                            : std::random_device()()),
        random_(seed_)
  {
    for (const auto &record : records_) {
      held_[record.second.location].insert(record.first);
      held_[record.second.notes].insert(record.first);
    }
  }

  unsigned int below(unsigned int limit) { return random_() % limit; }

  void step()
  {
    const std::string label = below(2) ? "Location" : "Notes";
    switch (below(12)) {
    case 0:
    case 1:
      press(1 + below(kRecords), below(3) ? 0 : below(2) ? kControl : kShift);
      break;
    case 2:
      key(below(2) ? kDown : kSpace, below(2) ? kControl : 0);
      break;
    case 3:
      visitor().focusOn(visitor().field(label));
      break;
    case 4:
      leave();
      break;
    case 5:
    case 6:
      typeSomething(label);
      break;
    case 7:
      visitor().advance(std::chrono::milliseconds(below(2) ? 100 : 500));
      break;
    case 8:
      tick();
      break;
    case 9:
      changeOutside();
      break;
    case 10:
      visitor().click(visitor().button("Save"));
      break;
    default:
      visitor().click(visitor().button(below(4) ? "Save" : "Cancel"));
    }
    takeWrites();
    if (visitor().dialog())
      visitor().click(visitor().button("Close"));
  }
  void typeSomething(const std::string &label)
  {
    const std::string text = "typed " + std::to_string(++typed_);
    const Indexes shown = selected();
    typeInto(label, text);
    typedFor_[text] = std::set<unsigned int>(shown.begin(), shown.end());
  }
  void changeOutside()
  {
    const unsigned int index = 1 + below(kRecords);
    const std::string text = "outside " + std::to_string(++typed_);
    (below(2) ? records_[index].location : records_[index].notes) = text;
    held_[text].insert(index);
    store();
  }
  // What was written since the last step goes into the records.
  void takeWrites()
  {
    for (const std::string &params : written()) {
      const std::unique_ptr<json_t, void (*)(json_t *)> json(json_loads(params.c_str(), 0, nullptr),
                                                             json_decref);
      const unsigned int index = json_integer_value(json_object_get(json.get(), "index"));
      take(json.get(), "location", index, records_[index].location);
      take(json.get(), "notes", index, records_[index].notes);
      EXPECT_EQ(json_object_get(json.get(), "scaling"), nullptr);
      ++writes_;
    }
    if (!store_.requests("SET").empty()) {
      store();
      store_.forgetRequests();
    }
  }
  void take(json_t *params, const char *param, unsigned int index, std::string &into)
  {
    const char *text = json_string_value(json_object_get(params, param));
    if (!text)
      return;
    EXPECT_TRUE(typedFor_[text].count(index)) << text << " was written to record " << index;
    into = text;
    held_[text].insert(index);
  }
  // Each field shows what the user has typed for the selected records, or what all of them have held.
  void check(const std::string &label)
  {
    const Indexes shown = selected();
    const std::string text = value(label);
    if (text.empty() || shown.empty())
      return;
    const std::set<unsigned int> now(shown.begin(), shown.end());
    if (typedFor_.count(text) && typedFor_[text] == now)
      return;
    for (const unsigned int index : shown)
      EXPECT_TRUE(held_[text].count(index)) << label << " shows " << text << " for record " << index;
  }

  const unsigned long seed_;
  std::mt19937 random_;
  int typed_ = 0;
  int writes_ = 0;
  std::map<std::string, std::set<unsigned int>> typedFor_; // the records that were selected when it was typed
  std::map<std::string, std::set<unsigned int>> held_;     // the records that have held it
};

INSTANTIATE_TEST_SUITE_P(ViewConnected, SelectionAtRandom, testing::Bool());

} // namespace

TEST_P(SelectionAtRandom, eachValueWrittenWasTypedWhileThatRecordWasShown)
{
  std::printf("seed %lu (NEVO_TEST_SEED)\n", seed_);
  show(GetParam());
  for (int i = 0; i < kSteps && !HasFailure(); ++i) {
    SCOPED_TRACE("step " + std::to_string(i));
    step();
    check("Location");
    check("Notes");
  }
  EXPECT_GT(writes_, 20);
}
