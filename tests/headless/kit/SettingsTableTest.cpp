// SPDX-License-Identifier: MIT
#include "SettingsPage.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using namespace std::chrono_literals;

namespace
{

// A table whose rows lie in objects within the records, at two depths, beside one that does not.
class NestedTable : public WSettingsTable
{
public:
  explicit NestedTable(bool single, Wt::WContainerWidget *parent)
      : WSettingsTable(single ? "systemGlobals" : "swx", ReadsAtOnce | (single ? SingleRecord : 0),
                       {"Setting", "Value"}, parent)
  {
    addNumber("Timeout", "timeout", "", 0, 99);
    bindTo(single ? "systemGlobals/network" : "swx/network");
    add<WLineEditZel>("Host", "host");
    bindTo(single ? "systemGlobals/network/ipv4" : "swx/network/ipv4");
    add<WLineEditZel>("Address", "address");
    add<WLineEditZel>("Mask", "mask");
  }
};

class SettingsTable : public SettingsPage
{
protected:
  void show(int options = WSettingsTable::Plain)
  {
    build([this, options](Wt::WContainerWidget &root) {
      table_ = new ReceiverTable(options, &root);
      table_->contentChanged().connect(std::bind([this] { ++changes_; }));
    });
  }
  void showNested(bool single = false)
  {
    store_.setRecords("swx", R"([
      {"index": 1, "timeout": 3, "name": "n", "network": {"host": "h", "ipv4": {"address": "10.0.0.1", "mask": "m"}}},
      {"index": 2, "timeout": 3, "name": "n", "network": {"host": "h", "ipv4": {"address": "10.0.0.2", "mask": "m"}}}
    ])");
    store_.setRecords(
        "systemGlobals",
        R"({"timeout": 4, "network": {"host": "g", "ipv4": {"address": "1.1.1.1", "mask": "f"}}})");
    build([this, single](Wt::WContainerWidget &root) { table_ = new NestedTable(single, &root); });
  }
  void read(Indexes indexes, bool force = false)
  {
    page_->act([&] { table_->readFromDatabase(indexes, force); });
  }
  bool write(Indexes indexes)
  {
    bool failed = false;
    page_->act([&] { failed = table_->writeToDatabase(indexes, errors_); });
    return failed;
  }
  bool allValid()
  {
    bool valid = false;
    page_->act([&] { valid = table_->isAllValid(); });
    return valid;
  }
  bool anyValid()
  {
    bool valid = false;
    page_->act([&] { valid = table_->isAnyValid(); });
    return valid;
  }

  WSettingsTable *table_ = nullptr;
  std::vector<std::string> errors_;
  int changes_ = 0;
};

constexpr char kRefused[] = R"([{"errno": 7}])";

} // namespace

// ---- the look

TEST_F(SettingsTable, showsHeadingsAndARowOfLabelAndFieldForEachSetting)
{
  show();
  const auto &page = visitor().page();
  Row headings;
  for (const Visitor::Node *cell :
       page.findAll([](const Visitor::Node &n) { return n.hasClass("nevo-attribute-table-heading"); }))
    headings.push_back(cell->allText());
  EXPECT_THAT(headings, ElementsAre("Attribute", "Value"));
  Row labels;
  for (const Visitor::Node *cell :
       page.findAll([](const Visitor::Node &n) { return n.hasClass("nevo-attribute-table-label"); }))
    labels.push_back(cell->allText());
  EXPECT_THAT(labels, ElementsAre("Name", "Location", "Notes", "Scaling", "Timeout", "EID"));
  EXPECT_TRUE(visitor().field("Name")->hasClass("nevo-attribute-table-read-write-line-edit"));
  EXPECT_TRUE(visitor().field("Notes")->hasClass("nevo-attribute-table-read-write-multi-line-edit"));
  EXPECT_TRUE(visitor().field("Scaling")->hasClass("nevo-attribute-table-read-write-combo-box"));
  EXPECT_TRUE(visitor().field("Name")->parent->hasClass("nevo-attribute-table-read-write-cell"));
  EXPECT_TRUE(visitor().field("EID")->parent->hasClass("nevo-attribute-table-read-only-cell"));
  EXPECT_EQ(visitor().field("Location")->get("title"), "Where it stands");
  EXPECT_EQ(visitor().field("Timeout")->get("maxlength"), "4");
}

// ---- reading

TEST_F(SettingsTable, readsEachFieldOfEachRecordByItself)
{
  show();
  read({1, 2});
  EXPECT_EQ(value("Name"), "");
  EXPECT_EQ(value("Location"), "hall");
  EXPECT_EQ(value("Timeout"), "5");
  EXPECT_EQ(visitor().field("EID")->allText(), "");
  EXPECT_THAT(store_.requests("GET"), SizeIs(12));
  EXPECT_EQ(changes_, 0);
}

TEST_F(SettingsTable, readsAllFieldsOfAllRecordsWithOneRequest)
{
  show(WSettingsTable::ReadsAtOnce);
  read({1, 2});
  EXPECT_EQ(value("Name"), "");
  EXPECT_EQ(value("Location"), "hall");
  EXPECT_EQ(value("Timeout"), "5");
  EXPECT_THAT(store_.requests(), ElementsAre(R"({"method":"GET","query":{"index":[1,2]},"resource":"rx"})"));
}

TEST_F(SettingsTable, readsSixteenFieldsOfFiftyRecordsWithOneRequest)
{
  static const char *const params[] = {"a", "b", "c", "d", "e", "f", "g", "h",
                                       "i", "j", "k", "l", "m", "n", "o", "p"};
  Indexes indexes;
  std::string records;
  for (unsigned int index = 1; index <= 50; ++index) {
    indexes.push_back(index);
    records += (index > 1 ? ",{" : "{") + ("\"index\":" + std::to_string(index));
    for (const char *param : params)
      records +=
          std::string(",\"") + param + "\":\"" + (*param == 'p' ? std::to_string(index) : "same") + '"';
    records += '}';
  }
  store_.setRecords("rx", '[' + records + ']');
  class Wide : public WSettingsTable
  {
  public:
    explicit Wide(Wt::WContainerWidget *parent)
        : WSettingsTable("rx", ReadsAtOnce, {"Setting", "Value"}, parent)
    {
      for (const char *param : params)
        add<WLineEditZel>(param, param);
    }
  };
  build([this](Wt::WContainerWidget &root) { table_ = new Wide(&root); });
  read(indexes);
  EXPECT_THAT(store_.requests(), SizeIs(1));
  EXPECT_EQ(value("a"), "same");
  EXPECT_EQ(value("o"), "same");
  EXPECT_EQ(value("p"), "");
}

TEST_F(SettingsTable, readsNothingForNoRecords)
{
  show(WSettingsTable::ReadsAtOnce);
  read({1});
  store_.forgetRequests();
  read({});
  EXPECT_EQ(value("Location"), "");
  EXPECT_THAT(store_.requests(), IsEmpty());
}

TEST_F(SettingsTable, keepsWhatItShowsWhenTheStoreRefusesTheRead)
{
  for (const int options : {WSettingsTable::Plain, WSettingsTable::ReadsAtOnce}) {
    show(options);
    read({1});
    store_.fail("GET", "rx", kRefused);
    read({2}, true);
    EXPECT_EQ(value("Name"), "a");
    store_.hangUp("GET", "rx");
    read({2}, true);
    EXPECT_EQ(value("Name"), "a");
    store_.answer("GET", "rx", R"({"index": 1, "name": "a", "location": "hall"})");
  }
}

TEST_F(SettingsTable, keepsAnEditUntilAReadIsForced)
{
  for (const int options : {WSettingsTable::Plain, WSettingsTable::ReadsAtOnce}) {
    show(options);
    read({1});
    edit("Location", "cellar");
    read({1});
    EXPECT_EQ(value("Location"), "cellar");
    EXPECT_TRUE(table_->hasChangedContent());
    read({1}, true);
    EXPECT_EQ(value("Location"), "hall");
    EXPECT_FALSE(table_->hasChangedContent());
  }
}

TEST_F(SettingsTable, takesNestedObjectsOutOfOneResponse)
{
  showNested();
  read({1, 2});
  EXPECT_THAT(store_.requests(), ElementsAre(R"({"method":"GET","query":{"index":[1,2]},"resource":"swx",)"
                                             R"("select":["index","timeout","network"]})"));
  EXPECT_EQ(value("Timeout"), "3");
  EXPECT_EQ(value("Host"), "h");
  EXPECT_EQ(value("Address"), "");
  EXPECT_EQ(value("Mask"), "m");
  read({2});
  EXPECT_EQ(value("Address"), "10.0.0.2");
}

TEST_F(SettingsTable, takesNestedObjectsOfTheOnlyRecord)
{
  showNested(true);
  read({});
  EXPECT_EQ(value("Timeout"), "4");
  EXPECT_EQ(value("Host"), "g");
  EXPECT_EQ(value("Address"), "1.1.1.1");
}

TEST_F(SettingsTable, livesWithoutAnObjectThatShouldBeThere)
{
  showNested();
  read({1});
  store_.setRecords("swx", R"([{"index": 1, "timeout": 8, "network": 3}])");
  read({1});
  EXPECT_EQ(value("Timeout"), "8");
  EXPECT_EQ(value("Address"), "10.0.0.1");
}

// ---- writing

TEST_F(SettingsTable, sendsEachRecordOneRequestWithWhatChangedOnly)
{
  show();
  read({1, 2, 3});
  edit("Location", "cellar");
  EXPECT_FALSE(write({1, 2, 3}));
  EXPECT_THAT(written(),
              ElementsAre(R"({"index":1,"location":"cellar"})", R"({"index":2,"location":"cellar"})",
                          R"({"index":3,"location":"cellar"})"));
  store_.forgetRequests();
  EXPECT_FALSE(write({1, 2, 3}));
  EXPECT_THAT(store_.requests(), IsEmpty());
}

TEST_F(SettingsTable, sendsAllChangedFieldsTogether)
{
  show();
  read({1});
  edit("Name", "new");
  edit("Timeout", "9");
  choose("Scaling", "Disabled");
  EXPECT_FALSE(write({1}));
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"name":"new","scaling":"disabled","timeout":9})"));
}

TEST_F(SettingsTable, writesNothingWithoutAnEditOrARecord)
{
  show();
  read({1});
  EXPECT_FALSE(write({1}));
  edit("Name", "new");
  EXPECT_FALSE(write({}));
  EXPECT_THAT(store_.requests("SET"), IsEmpty());
  EXPECT_TRUE(table_->hasChangedContent());
}

TEST_F(SettingsTable, goesOnBehindARecordThatTheStoreRefuses)
{
  show();
  read({1, 2, 3});
  edit("Name", "new");
  store_.failRecord("SET", "rx", 2, kRefused);
  EXPECT_TRUE(write({1, 2, 3}));
  EXPECT_THAT(written(), SizeIs(3));
  EXPECT_THAT(errors_, SizeIs(1));
  EXPECT_FALSE(table_->hasChangedContent());
}

TEST_F(SettingsTable, passesOverWhatTheStoreRefusesIfItIsToldTo)
{
  show(WSettingsTable::ToleratesErrors);
  read({1});
  edit("Name", "new");
  store_.fail("SET", "rx", kRefused);
  EXPECT_FALSE(write({1}));
  EXPECT_THAT(errors_, SizeIs(1));
}

TEST_F(SettingsTable, stopsAtARecordWithoutAnAnswerAndKeepsTheEdit)
{
  for (const int options : {WSettingsTable::Plain, WSettingsTable::ToleratesErrors}) {
    show(options);
    read({1, 2, 3});
    edit("Name", "new");
    store_.forgetRequests();
    store_.hangUpRecord("SET", "rx", 2);
    EXPECT_TRUE(write({1, 2, 3}));
    EXPECT_THAT(written(), SizeIs(2));
    EXPECT_TRUE(table_->hasChangedContent());
  }
}

TEST_F(SettingsTable, letsEachFieldWriteItselfAndTheOthersGoOnBehindAFailure)
{
  show(WSettingsTable::WritesFieldwise);
  read({1, 2});
  edit("Name", "new");
  edit("Location", "cellar");
  store_.failRecord("SET", "rx", 1, kRefused);
  EXPECT_TRUE(write({1, 2}));
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"name":"new"})", R"({"index":1,"location":"cellar"})"));
  EXPECT_FALSE(table_->hasChangedContent());
}

TEST_F(SettingsTable, nestsWhatChangedAsItWasReadAndMakesNoObjectWithoutAChange)
{
  showNested();
  read({1, 2});
  edit("Timeout", "8");
  EXPECT_FALSE(write({1, 2}));
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"timeout":8})", R"({"index":2,"timeout":8})"));
  store_.forgetRequests();
  edit("Mask", "255.0.0.0");
  edit("Address", "10.9.9.9");
  EXPECT_FALSE(write({2}));
  EXPECT_THAT(written(),
              ElementsAre(R"({"index":2,"network":{"ipv4":{"address":"10.9.9.9","mask":"255.0.0.0"}}})"));
}

TEST_F(SettingsTable, writesTheOnlyRecordWithoutAnIndex)
{
  showNested(true);
  read({});
  edit("Host", "new");
  EXPECT_FALSE(write({}));
  EXPECT_THAT(store_.requests("SET"), ElementsAre(R"({"method":"SET","params":{"network":{"host":"new"}},)"
                                                  R"("resource":"systemGlobals"})"));
}

// ---- the user's edits

TEST_F(SettingsTable, tellsOfAnEditWhileTheUserIsStillInTheField)
{
  show();
  read({1});
  visitor().focusOn(visitor().field("Name"));
  visitor().typeWithoutLeaving(visitor().field("Name"), "new");
  EXPECT_EQ(changes_, 0);
  visitor().advance(500ms);
  EXPECT_EQ(changes_, 1);
  EXPECT_TRUE(table_->hasChangedContent());
  page_->act([this] { EXPECT_TRUE(table_->anyWidgetHasFocus()); });
  leave();
  EXPECT_EQ(changes_, 1);
  page_->act([this] { EXPECT_FALSE(table_->anyWidgetHasFocus()); });
}

TEST_F(SettingsTable, isAllValidWhenEveryFieldFollowsItsRuleAndAnyValidWhenOneDoes)
{
  show();
  read({1});
  EXPECT_TRUE(allValid());
  edit("Timeout", "1441");
  EXPECT_FALSE(allValid());
  EXPECT_TRUE(anyValid());
  edit("Timeout", "1440");
  EXPECT_TRUE(allValid());
  edit("Name", "");
  EXPECT_FALSE(allValid());
  edit("Location", "a\tb");
  edit("Notes", std::string(65, 'n'));
  edit("Timeout", "x");
  EXPECT_FALSE(anyValid());
  edit("Location", "a");
  EXPECT_TRUE(anyValid());
}

TEST_F(SettingsTable, leavesDisabledFieldsOutOfTheValidityIfItIsToldTo)
{
  for (const int options : {WSettingsTable::Plain, WSettingsTable::CountsEnabledOnly}) {
    show(options);
    read({1});
    edit("Timeout", "1441");
    choose("Scaling", "Disabled");
    EXPECT_EQ(allValid(), options == WSettingsTable::CountsEnabledOnly);
  }
}

TEST_F(SettingsTable, enablesADependentFieldAfterEachReadAndEachChange)
{
  show();
  read({1});
  EXPECT_TRUE(isEnabled("Timeout"));
  choose("Scaling", "Disabled");
  EXPECT_FALSE(isEnabled("Timeout"));
  choose("Scaling", "Enabled");
  EXPECT_TRUE(isEnabled("Timeout"));
  read({3}, true);
  EXPECT_FALSE(isEnabled("Timeout"));
}
