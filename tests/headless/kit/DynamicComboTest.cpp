// SPDX-License-Identifier: MIT
// The combos whose choices come from the store.
#include "BoundPage.h"
#include "TestStore.h"
#include "WComboBoxZelDynamic.h"
#include "WTargetAny.h"
#include "WUsr.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

std::vector<std::string> itemsOf(const Wt::WComboBox &combo)
{
  std::vector<std::string> items;
  for (int i = 0; i < combo.count(); ++i)
    items.push_back(combo.itemText(i).toUTF8());
  return items;
}

// A dynamic combo on a page, with users, receivers and transmitters to choose from.
template <class Combo> class ChoicePage : public BoundPage<Combo>
{
protected:
  explicit ChoicePage(typename BoundPage<Combo>::Make make) : BoundPage<Combo>(make)
  {
    this->store_.setRecords("user", R"([{"index": 1, "name": "user10"}, {"index": 2, "name": "anna"},
        {"index": 3}, {"index": 4, "name": "user9"}, {"index": 5, "name": "<i>\u00e9</i>"}])");
    this->store_.setRecords("tx", R"([{"index": 1, "eid": "AAAAAA-000001", "name": "mail"},
        {"index": 2, "eid": "AAAAAA-000002"}, {"index": 3, "name": "nameless"},
        {"index": 4, "eid": "AAAAAA-000004", "name": ""}, {"index": 5, "eid": "AAAAAA-000005", "name": "<b>x"}])");
  }

  bool update()
  {
    bool failed = false;
    this->page_.act([&] { failed = this->widget_->updateListOfChoices(); });
    return failed;
  }
  std::string shown() const { return this->widget_->currentText().toUTF8(); }
  std::vector<std::string> items() const { return itemsOf(*this->widget_); }
  bool showsBlankLast() const
  {
    return shown().empty() && this->widget_->currentIndex() == this->widget_->count() - 1;
  }
  void choose(const std::string &item)
  {
    EXPECT_TRUE(this->visitor_.choose(this->field(), item));
    this->leave();
  }
  // The requests that ask for the choices.
  std::size_t requestsFor(const std::string &resource)
  {
    std::size_t count = 0;
    for (const std::string &request : this->store_.requests()) {
      const JsonValue value = jsonOf(request);
      if (std::string(json_string_value(json_object_get(value.get(), "resource"))) == resource)
        ++count;
    }
    return count;
  }
};

// ---- the combos, each with what it takes for values

struct NameChoice {
  using Combo = WComboBoxZelDynamic;
  static constexpr char choicesResource[] = "user";
  static constexpr char param[] = "owner";
  static constexpr char select[] = R"(["name"])";
  static Combo *make(Wt::WContainerWidget &root, bool indexed)
  {
    return new Combo(indexed ? "rx" : "cfgDefaults", param, indexed, "user", "name", &root);
  }
  static std::vector<std::string> items() { return {"user10", "anna", "user9", "<i>\xc3\xa9</i>", ""}; }
  static constexpr char firstItem[] = "user9", firstValue[] = R"("user9")";
  static constexpr char otherItem[] = "anna", otherValue[] = R"("anna")";
  static constexpr char unknownValue[] = R"("nobody")";
};

struct UserChoice {
  using Combo = WUsr;
  static constexpr char choicesResource[] = "user";
  static constexpr char param[] = "autoLoginUserIndex";
  static constexpr char select[] = R"(["name"])";
  static Combo *make(Wt::WContainerWidget &root, bool indexed)
  {
    return new Combo(indexed ? "rx" : "cfgDefaults", param, indexed, &root);
  }
  static std::vector<std::string> items() { return {"<i>\xc3\xa9</i>", "anna", "user9", "user10", ""}; }
  static constexpr char firstItem[] = "user9", firstValue[] = "4";
  static constexpr char otherItem[] = "anna", otherValue[] = "2";
  static constexpr char unknownValue[] = "0";
};

struct TargetChoice {
  using Combo = WTargetAny;
  static constexpr char choicesResource[] = "tx";
  static constexpr char param[] = "autoConnectTxEid";
  static constexpr char select[] = R"(["eid","name"])";
  static Combo *make(Wt::WContainerWidget &root, bool indexed) { return new Combo(indexed, &root); }
  static std::vector<std::string> items()
  {
    return {"AAAAAA-000001 (mail)", "AAAAAA-000002", "AAAAAA-000004", "AAAAAA-000005 (<b>x)", ""};
  }
  static constexpr char firstItem[] = "AAAAAA-000001 (mail)", firstValue[] = R"("AAAAAA-000001")";
  static constexpr char otherItem[] = "AAAAAA-000002", otherValue[] = R"("AAAAAA-000002")";
  static constexpr char unknownValue[] = R"("ZZZZZZ-000001")";
};

template <class Choice> class DynamicCombo : public ChoicePage<typename Choice::Combo>
{
protected:
  DynamicCombo()
      : ChoicePage<typename Choice::Combo>(
            [](Wt::WContainerWidget &root) { return Choice::make(root, true); })
  {
    this->store_.setRecords("rx", rows());
  }

  static std::string record(unsigned int index, const std::string &value)
  {
    return R"({"index": )" + std::to_string(index) + R"(, ")" + Choice::param + R"(": )" + value + "}";
  }
  // Records 1 and 2 have the first value, 3 the other, 4 one that no choice has.
  static std::string rows()
  {
    return "[" + record(1, Choice::firstValue) + "," + record(2, Choice::firstValue) + "," +
           record(3, Choice::otherValue) + "," + record(4, Choice::unknownValue) + "]";
  }
  static std::string addedFor(const std::string &value)
  {
    return std::string(R"({")") + Choice::param + R"(":)" + value + "}";
  }
  static std::string writtenFor(unsigned int index, const std::string &value)
  {
    const JsonValue params = jsonOf(record(index, value));
    return textOf(params.get());
  }
};

using Choices = testing::Types<NameChoice, UserChoice, TargetChoice>;
TYPED_TEST_SUITE(DynamicCombo, Choices);

class UnindexedNameCombo : public ChoicePage<WComboBoxZelDynamic>
{
protected:
  UnindexedNameCombo() : ChoicePage([](Wt::WContainerWidget &root) { return NameChoice::make(root, false); })
  {
    store_.setRecords("cfgDefaults", R"({"owner": "anna"})");
  }
};

class UnindexedUserCombo : public ChoicePage<WUsr>
{
protected:
  UnindexedUserCombo() : ChoicePage([](Wt::WContainerWidget &root) { return UserChoice::make(root, false); })
  {
    store_.setRecords("cfgDefaults", R"({"autoLoginUserIndex": 2})");
  }
};

class UserCombo : public DynamicCombo<UserChoice>
{
};
class TargetCombo : public DynamicCombo<TargetChoice>
{
};

// The receivers of a live switch: the small lab has users, and transmitters with names.
class LiveReceiver : public testing::Test
{
protected:
  LiveReceiver()
      : page_([this](Wt::WContainerWidget &root) {
          user_ = new WUsr("rx", "autoLoginUserIndex", true, &root);
          user_->setAttributeValue("aria-label", "User");
          target_ = new WTargetAny(true, &root);
          target_->setAttributeValue("aria-label", "Target");
          Wt::WLineEdit *other = new Wt::WLineEdit(&root);
          other->focussed().connect(std::bind([] {})); // only then is its focus told
          other->setAttributeValue("aria-label", "Other");
        })
  {
  }

  void read(Indexes indexes)
  {
    page_.act([&] {
      EXPECT_FALSE(user_->readFromDatabase(indexes, errors_, true));
      EXPECT_FALSE(target_->readFromDatabase(indexes, errors_, true));
    });
  }
  void write(Indexes indexes)
  {
    page_.act([&] {
      EXPECT_FALSE(user_->writeToDatabase(indexes, errors_));
      EXPECT_FALSE(target_->writeToDatabase(indexes, errors_));
    });
  }
  void choose(const std::string &label, const std::string &item)
  {
    EXPECT_TRUE(page_.visitor.choose(page_.visitor.field(label), item));
    page_.visitor.focusOn(page_.visitor.field("Other"));
  }

  TestStore store_;
  std::vector<std::string> errors_;
  WUsr *user_ = nullptr;
  WTargetAny *target_ = nullptr;
  KitPage page_;
};

} // namespace

// ---- choices

TYPED_TEST(DynamicCombo, offersWhatTheRecordsHaveAndABlankItem)
{
  EXPECT_FALSE(this->update());
  EXPECT_EQ(this->items(), TypeParam::items());
  EXPECT_THAT(this->store_.requests(),
              ElementsAre(std::string(R"({"method":"GET","resource":")") + TypeParam::choicesResource +
                          R"(","select":)" + TypeParam::select + "}"));
  EXPECT_FALSE(this->update());
  EXPECT_EQ(this->items(), TypeParam::items());
}

TYPED_TEST(DynamicCombo, hasNoItemsWithoutAnAnswer)
{
  this->update();
  this->store_.hangUp("GET", TypeParam::choicesResource);
  EXPECT_TRUE(this->update());
  EXPECT_THAT(this->items(), IsEmpty());
  EXPECT_EQ(this->added(), "{}");
}

TYPED_TEST(DynamicCombo, hasNoItemsAndLogsWhenTheChoicesAreRefused)
{
  this->update();
  this->store_.fail("GET", TypeParam::choicesResource, kNotFound);
  LogCapture log;
  EXPECT_TRUE(this->update());
  EXPECT_EQ(log.text(), "1 logZelErrors: Not found.\n");
  EXPECT_THAT(this->items(), IsEmpty());
}

TYPED_TEST(DynamicCombo, staysEmptyButReadsOnWhenTheChoicesAreRefused)
{
  this->read({3});
  this->store_.fail("GET", TypeParam::choicesResource, kNotFound);
  this->setChanged();
  this->read({1}, true);
  EXPECT_THAT(this->items(), IsEmpty());
  EXPECT_EQ(this->shown(), "");
  this->setChanged();
  EXPECT_EQ(this->added(), "{}");
}

// ---- reading

TYPED_TEST(DynamicCombo, showsTheValueOfOneRecord)
{
  EXPECT_FALSE(this->read({3}));
  EXPECT_EQ(this->shown(), TypeParam::otherItem);
  EXPECT_FALSE(this->read({1}));
  EXPECT_EQ(this->shown(), TypeParam::firstItem);
  EXPECT_EQ(this->changes_, 0);
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

TYPED_TEST(DynamicCombo, showsTheValueOnWhichAllRecordsAgree)
{
  EXPECT_FALSE(this->read({1, 2}));
  EXPECT_EQ(this->shown(), TypeParam::firstItem);
  EXPECT_EQ(this->requestsFor("rx"), 2U);
}

TYPED_TEST(DynamicCombo, isBlankWhereRecordsDifferAndForAnUnknownValue)
{
  for (const Indexes &indexes : {Indexes{1, 3, 2}, Indexes{4}}) {
    this->read({1});
    this->setChanged();
    EXPECT_FALSE(this->read(indexes, true));
    EXPECT_TRUE(this->showsBlankLast());
    EXPECT_FALSE(this->widget_->hasChangedContent());
    EXPECT_EQ(this->items(), TypeParam::items());
  }
  EXPECT_THAT(this->errors_, IsEmpty());
}

TYPED_TEST(DynamicCombo, isBlankWithoutRecordsAndKeepsTheMark)
{
  this->read({1});
  this->setChanged();
  this->store_.forgetRequests();
  EXPECT_FALSE(this->read({}, true));
  EXPECT_TRUE(this->showsBlankLast());
  EXPECT_TRUE(this->widget_->hasChangedContent());
  EXPECT_EQ(this->requestsFor("rx"), 0U);
  EXPECT_EQ(this->requestsFor(TypeParam::choicesResource), 1U);
}

TYPED_TEST(DynamicCombo, isBlankWhereARecordCannotBeReadAndKeepsTheMark)
{
  this->read({1});
  this->setChanged();
  EXPECT_TRUE(this->read({1, 99, 2}, true));
  EXPECT_TRUE(this->showsBlankLast());
  EXPECT_TRUE(this->widget_->hasChangedContent());
  EXPECT_THAT(this->errors_, SizeIs(1));
}

TYPED_TEST(DynamicCombo, leavesAChoiceAloneUnlessForced)
{
  this->read({1});
  this->choose(TypeParam::otherItem);
  EXPECT_EQ(this->changes_, 1);
  this->store_.forgetRequests();
  EXPECT_FALSE(this->read({1}));
  this->bulkRead(this->rows(), {1});
  EXPECT_EQ(this->shown(), TypeParam::otherItem);
  EXPECT_EQ(this->requestCount(), 0U);
  EXPECT_FALSE(this->read({1}, true));
  EXPECT_EQ(this->shown(), TypeParam::firstItem);
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

TYPED_TEST(DynamicCombo, isLeftAloneWhileItHasTheFocusThoughForced)
{
  this->read({1});
  this->visitor_.choose(this->field(), TypeParam::otherItem);
  this->store_.forgetRequests();
  EXPECT_FALSE(this->read({1}, true));
  this->bulkRead(this->rows(), {1}, true);
  EXPECT_EQ(this->shown(), TypeParam::otherItem);
  EXPECT_TRUE(this->widget_->hasChangedContent());
  EXPECT_EQ(this->requestCount(), 0U);
}

TYPED_TEST(DynamicCombo, takesItsValueOutOfABulkRead)
{
  this->bulkRead("[" + this->record(3, TypeParam::otherValue) + "]", {3});
  EXPECT_EQ(this->shown(), TypeParam::otherItem);
  this->bulkRead(this->rows(), {2, 1});
  EXPECT_EQ(this->shown(), TypeParam::firstItem);
  EXPECT_EQ(this->requestsFor("rx"), 0U);
}

TYPED_TEST(DynamicCombo, isBlankInABulkReadWhereRecordsDifferAndForAnUnknownValue)
{
  this->read({1});
  this->setChanged();
  this->bulkRead(this->rows(), {1, 3}, true);
  EXPECT_TRUE(this->showsBlankLast());
  EXPECT_FALSE(this->widget_->hasChangedContent());
  this->read({1});
  this->bulkRead("[" + this->record(4, TypeParam::unknownValue) + "]", {4});
  EXPECT_TRUE(this->showsBlankLast());
}

TYPED_TEST(DynamicCombo, isBlankInABulkReadWithoutRecordsOrWithOneMissingAndKeepsTheMark)
{
  for (const Indexes &indexes : {Indexes{}, Indexes{1, 99}}) {
    this->read({1}, true);
    this->setChanged();
    this->bulkRead(this->rows(), indexes, true);
    EXPECT_TRUE(this->showsBlankLast());
    EXPECT_TRUE(this->widget_->hasChangedContent());
  }
}

// ---- writing

TYPED_TEST(DynamicCombo, writesNothingUntouched)
{
  this->read({1});
  EXPECT_FALSE(this->write({1, 2}));
  EXPECT_EQ(this->added(), "{}");
  EXPECT_THAT(this->written(), IsEmpty());
}

TYPED_TEST(DynamicCombo, writesTheChoiceToEachRecord)
{
  this->read({1});
  this->choose(TypeParam::otherItem);
  EXPECT_EQ(this->added(), this->addedFor(TypeParam::otherValue));
  EXPECT_FALSE(this->write({1, 2}));
  EXPECT_THAT(this->written(), ElementsAre(this->writtenFor(1, TypeParam::otherValue),
                                           this->writtenFor(2, TypeParam::otherValue)));
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

TYPED_TEST(DynamicCombo, stopsAtTheFirstRecordThatFails)
{
  this->read({1});
  this->choose(TypeParam::otherItem);
  this->store_.fail("SET", "rx", kNotFound);
  EXPECT_TRUE(this->write({1, 2}));
  EXPECT_THAT(this->written(), SizeIs(1));
  EXPECT_THAT(this->errors_, SizeIs(1));
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

TYPED_TEST(DynamicCombo, failsWithoutAWordOnTheBlankItem)
{
  this->read({1});
  this->choose("");
  this->store_.forgetRequests();
  EXPECT_EQ(this->added(), "{}");
  EXPECT_TRUE(this->write({1, 2}));
  EXPECT_EQ(this->requestCount(), 0U);
  EXPECT_THAT(this->errors_, IsEmpty());
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

TYPED_TEST(DynamicCombo, keepsTheMarkWhereNoRecordIsToBeWritten)
{
  this->read({1});
  this->choose(TypeParam::otherItem);
  EXPECT_FALSE(this->write({}));
  EXPECT_TRUE(this->widget_->hasChangedContent());
  EXPECT_THAT(this->written(), IsEmpty());
}

TEST_F(UnindexedNameCombo, writesTheBlankItemToo)
{
  EXPECT_FALSE(read({}));
  EXPECT_EQ(shown(), "anna");
  bulkRead(R"({"owner": "user9"})", {});
  EXPECT_EQ(shown(), "user9");
  choose("");
  EXPECT_FALSE(write({}));
  EXPECT_THAT(written(), ElementsAre(R"({"owner":""})"));
}

TEST_F(UnindexedUserCombo, failsOnTheBlankItemWhichNoUserHas)
{
  EXPECT_FALSE(read({}));
  EXPECT_EQ(shown(), "anna");
  choose("");
  EXPECT_TRUE(write({}));
  EXPECT_THAT(written(), IsEmpty());
  EXPECT_FALSE(widget_->hasChangedContent());
}

// ---- users

TEST_F(UserCombo, asksForTheNameOfTheUserButNotOfNobody)
{
  read({3});
  EXPECT_EQ(requestsFor("user"), 2U);
  store_.forgetRequests();
  read({4});
  EXPECT_EQ(requestsFor("user"), 1U);
}

TEST_F(UserCombo, isBlankForAUserWhoIsGone)
{
  store_.setRecords("rx", R"([{"index": 1, "autoLoginUserIndex": 77}])");
  EXPECT_TRUE(read({1}));
  EXPECT_TRUE(showsBlankLast());
  setChanged();
  bulkRead(R"([{"index": 1, "autoLoginUserIndex": 77}])", {1}, true);
  EXPECT_TRUE(showsBlankLast());
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(UserCombo, writesNothingForAUserWhoHasGoneMeanwhile)
{
  read({1});
  choose("anna");
  store_.setRecords("user", R"([{"index": 4, "name": "user9"}])");
  EXPECT_EQ(added(), "{}");
  EXPECT_TRUE(write({1, 2}));
  EXPECT_THAT(written(), IsEmpty());
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(UserCombo, writesNothingWhenTheUsersAreRefused)
{
  read({1});
  choose("anna");
  store_.fail("GET", "user", kNotFound);
  EXPECT_EQ(added(), "{}");
  EXPECT_TRUE(write({1, 2}));
  EXPECT_THAT(written(), IsEmpty());
  EXPECT_THAT(errors_, SizeIs(1));
}

TEST_F(UserCombo, looksTheUserUpOnceForAllRecords)
{
  read({1});
  choose("anna");
  store_.forgetRequests();
  write({1, 2, 3});
  EXPECT_EQ(requestsFor("user"), 1U);
  EXPECT_EQ(requestsFor("rx"), 3U);
}

// ---- targets

TEST_F(TargetCombo, knowsATargetByItsFirstThirteenCharacters)
{
  store_.setRecords("rx", R"([{"index": 1, "autoConnectTxEid": "AAAAAA-000001 and more"},
                              {"index": 2, "autoConnectTxEid": "AAAAAA-00000"}])");
  EXPECT_FALSE(read({1}));
  EXPECT_EQ(shown(), "AAAAAA-000001 (mail)");
  EXPECT_FALSE(read({2}));
  EXPECT_TRUE(showsBlankLast());
}

TEST_F(TargetCombo, isBlankForAReceiverWithoutATarget)
{
  store_.setRecords("rx", R"([{"index": 1, "autoConnectTxEid": ""}])");
  EXPECT_FALSE(read({1}));
  EXPECT_TRUE(showsBlankLast());
}

// ---- a live switch

TEST_F(LiveReceiver, takesAUserAndATarget)
{
  read({1, 2});
  ASSERT_GE(user_->count(), 2);
  ASSERT_GE(target_->count(), 3);
  const std::string user = user_->itemText(1).toUTF8();
  const std::string target = target_->itemText(1).toUTF8();
  ASSERT_FALSE(user.empty());
  choose("User", user);
  choose("Target", target);
  write({1, 2});
  EXPECT_THAT(errors_, IsEmpty());
  for (const unsigned receiver : {1U, 2U}) {
    EXPECT_EQ(store_.get("rx", receiver, "autoConnectTxEid"), target.substr(0, 13));
    const std::string index = store_.get("rx", receiver, "autoLoginUserIndex");
    EXPECT_EQ(store_.get("user", static_cast<unsigned>(std::stoi(index)), "name"), user);
  }
  page_.act([&] {
    user_->setCurrentIndex(0);
    target_->setCurrentIndex(0);
  });
  read({1, 2});
  EXPECT_EQ(user_->currentText().toUTF8(), user);
  EXPECT_EQ(target_->currentText().toUTF8(), target);
}

TEST_F(LiveReceiver, showsNothingWhereReceiversDiffer)
{
  const std::string eid = store_.get("tx", 1, "eid");
  ASSERT_TRUE(store_.set("rx", 1, "autoConnectTxEid", eid));
  ASSERT_TRUE(store_.set("rx", 2, "autoConnectTxEid", store_.get("tx", 2, "eid")));
  ASSERT_TRUE(store_.set("rx", 1, "autoLoginUserIndex", "1"));
  ASSERT_TRUE(store_.set("rx", 2, "autoLoginUserIndex", "0"));
  read({1, 2});
  EXPECT_EQ(user_->currentText().toUTF8(), "");
  EXPECT_EQ(target_->currentText().toUTF8(), "");
  read({1});
  EXPECT_EQ(user_->currentText().toUTF8(), store_.get("user", 1, "name"));
  EXPECT_EQ(target_->currentText().toUTF8().substr(0, 13), eid);
  read({2});
  EXPECT_EQ(user_->currentText().toUTF8(), "") << "user 0 is nobody";
}
