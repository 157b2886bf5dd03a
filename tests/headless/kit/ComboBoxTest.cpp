// SPDX-License-Identifier: MIT
// The combo of a table, and the bound one.
#include "BoundPage.h"
#include "WComboBoxZel.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

constexpr WComboBoxPlus::Triplet kModes[] = {
    {"off", "[RSnnn]None", 4}, {"some", "[RSnnn]Shared", 7}, {"all", "[RSnnn]Private", 7}};
constexpr int kModeCount = 3;

class ComboPlus : public testing::Test
{
protected:
  ComboPlus()
      : page_([this](Wt::WContainerWidget &root) {
          combo_ = new WComboBoxPlus(kModes, kModeCount, &root);
          empty_ = new WComboBoxPlus(kModes, 0, &root);
          negative_ = new WComboBoxPlus(nullptr, -2, &root);
        })
  {
  }

  WComboBoxPlus *combo_ = nullptr;
  WComboBoxPlus *empty_ = nullptr;
  WComboBoxPlus *negative_ = nullptr;
  KitPage page_;
};

class BoundCombo : public BoundPage<WComboBoxZel>
{
protected:
  explicit BoundCombo(bool indexed = true)
      : BoundPage([=](Wt::WContainerWidget &root) {
          return new WComboBoxZel(indexed ? "rx" : "systemGlobals", "mode", indexed, kModes, kModeCount,
                                  &root);
        })
  {
    store_.setRecords("rx", R"([{"index": 1, "mode": "all"}, {"index": 2, "mode": "all"},
        {"index": 3, "mode": "some"}, {"index": 4, "mode": "all"}, {"index": 5, "mode": "new"}])");
    store_.setRecords("systemGlobals", R"({"mode": "some"})");
  }
  // What a person chooses: the item's place.
  void choose(int index)
  {
    visitor_.choose(field(), index);
    leave();
  }
  int index() const { return widget_->currentIndex(); }
  bool hasBlank() const { return widget_->count() == kModeCount + 1; }
};

class UnindexedBoundCombo : public BoundCombo
{
protected:
  UnindexedBoundCombo() : BoundCombo(false) {}
};

} // namespace

// ---- the table

TEST_F(ComboPlus, hasOneItemForEachEntryInOrder)
{
  std::vector<std::string> items;
  page_.act([&] {
    for (int i = 0; i < combo_->count(); ++i)
      items.push_back(combo_->itemText(i).toUTF8());
  });
  EXPECT_THAT(items, ElementsAre("None", "Shared", "Private"));
}

TEST_F(ComboPlus, hasNoItemsForACountBelowOne)
{
  EXPECT_EQ(empty_->count(), 0);
  EXPECT_EQ(negative_->count(), 0);
}

TEST_F(ComboPlus, knowsTheStoresValueAndTheCodeOfItsItem)
{
  EXPECT_EQ(combo_->selection(), "off");
  EXPECT_EQ(combo_->value(), 4);
  page_.act([this] { combo_->setCurrentIndex(2); });
  EXPECT_EQ(combo_->selection(), "all");
  EXPECT_EQ(combo_->value(), 7);
}

TEST_F(ComboPlus, hasNoValueOutsideItsTable)
{
  page_.act([this] {
    combo_->addItem("behind");
    combo_->setCurrentIndex(3);
  });
  EXPECT_EQ(combo_->selection(), "");
  EXPECT_EQ(combo_->value(), 0);
  EXPECT_EQ(empty_->selection(), "");
  EXPECT_EQ(empty_->value(), 0);
}

TEST_F(ComboPlus, selectsTheFirstEntryOfACode)
{
  page_.act([this] { EXPECT_FALSE(combo_->setCurrentIndexByValue(7)); });
  EXPECT_EQ(combo_->currentIndex(), 1);
}

TEST_F(ComboPlus, keepsItsSelectionForAnUnknownCode)
{
  page_.act([this] {
    combo_->setCurrentIndex(2);
    EXPECT_TRUE(combo_->setCurrentIndexByValue(5));
    EXPECT_TRUE(empty_->setCurrentIndexByValue(4));
  });
  EXPECT_EQ(combo_->currentIndex(), 2);
}

// ---- reading

TEST_F(BoundCombo, showsTheValueOfOneRecord)
{
  EXPECT_FALSE(read({3}));
  EXPECT_EQ(index(), 1);
  EXPECT_EQ(changes_, 0);
  EXPECT_THAT(store_.requests(),
              ElementsAre(R"({"method":"GET","query":{"index":3},"resource":"rx","select":["mode"]})"));
}

TEST_F(BoundCombo, hasABlankItemOnlyWhileRecordsDifferAndNeverTwo)
{
  for (int round = 0; round < 3; ++round) {
    EXPECT_FALSE(read({1, 2, 4}));
    EXPECT_EQ(widget_->count(), 3);
    EXPECT_EQ(index(), 2);
    for (int again = 0; again < 2; ++again) {
      EXPECT_FALSE(read({1, 3}));
      EXPECT_EQ(widget_->count(), 4);
      EXPECT_EQ(index(), 3);
      EXPECT_EQ(widget_->currentText().toUTF8(), "");
      EXPECT_FALSE(widget_->hasChangedContent());
      bulkRead(R"([{"index": 1, "mode": "all"}, {"index": 3, "mode": "off"}])", {1, 3});
      EXPECT_EQ(widget_->count(), 4);
      EXPECT_EQ(index(), 3);
    }
  }
  bulkRead(R"([{"index": 1, "mode": "off"}, {"index": 3, "mode": "off"}])", {1, 3});
  EXPECT_EQ(widget_->count(), 3);
  EXPECT_EQ(index(), 0);
}

TEST_F(BoundCombo, readsNoRecordBehindTheFirstThatDiffers)
{
  EXPECT_FALSE(read({1, 3, 2, 4}));
  EXPECT_EQ(requestCount(), 2U);
}

TEST_F(BoundCombo, logsAnUnknownValueOncePerReadAndShowsTheFirstItem)
{
  read({1});
  LogCapture log;
  EXPECT_FALSE(read({5}));
  EXPECT_EQ(log.text(), "2 readFromDatabase: Unknown value for rx/mode: new. Using default.\n");
  EXPECT_EQ(index(), 0);
  EXPECT_FALSE(widget_->hasChangedContent());
  EXPECT_EQ(changes_, 0);
  EXPECT_FALSE(write({5}));
  EXPECT_EQ(added(), "{}");
  EXPECT_THAT(written(), IsEmpty());
}

TEST_F(BoundCombo, logsAnUnknownValueOfABulkReadUnderItsOwnName)
{
  read({1});
  LogCapture log;
  bulkRead(R"([{"index": 1, "mode": "%s"}, {"index": 3, "mode": "%s"}])", {1, 3});
  EXPECT_EQ(log.text(), "2 getZelParam: Unknown value for rx/mode: %s. Using default.\n");
  EXPECT_EQ(index(), 0);
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(BoundCombo, takesAMissingValueForAnUnknownOneInAReadOfItsOwn)
{
  store_.setRecords("rx", R"([{"index": 1}])");
  LogCapture log;
  EXPECT_FALSE(read({1}));
  EXPECT_THAT(log.text(), HasSubstr("Unknown value for rx/mode: . Using default."));
  EXPECT_EQ(index(), 0);
}

TEST_F(BoundCombo, selectsTheFirstItemAndFailsWithoutRecords)
{
  read({1});
  setChanged();
  store_.forgetRequests();
  EXPECT_TRUE(read({}, true));
  EXPECT_EQ(index(), 0);
  EXPECT_FALSE(widget_->hasChangedContent());
  EXPECT_THAT(errors_, IsEmpty());
  EXPECT_EQ(requestCount(), 0U);
}

TEST_F(BoundCombo, selectsTheFirstItemAndStaysChangedInABulkReadWithoutRecords)
{
  read({1});
  setChanged();
  bulkRead(R"({"mode": "all"})", {}, true);
  EXPECT_EQ(index(), 0);
  EXPECT_TRUE(widget_->hasChangedContent());
}

TEST_F(BoundCombo, changesNothingWhereARecordCannotBeRead)
{
  read({1, 3});
  setChanged();
  EXPECT_TRUE(read({1, 99, 3}, true));
  EXPECT_EQ(index(), 3);
  EXPECT_TRUE(hasBlank());
  EXPECT_TRUE(widget_->hasChangedContent());
  EXPECT_THAT(errors_, SizeIs(1));
}

TEST_F(BoundCombo, showsTheBlankItemWhereABulkReadFails)
{
  for (const char *response : {R"({"other": "all"})", R"({"mode": 3})"}) {
    read({1});
    setChanged();
    bulkRead(response, {1}, true);
    EXPECT_EQ(index(), 3) << response;
    EXPECT_FALSE(widget_->hasChangedContent()) << response;
  }
  read({1});
  EXPECT_FALSE(hasBlank());
  bulkRead(R"([{"index": 1, "mode": "all"}])", {1, 2});
  EXPECT_EQ(index(), 3);
}

TEST_F(BoundCombo, isNotDisturbedByARefreshWhileItHasTheFocusForcedOrNot)
{
  read({1});
  enter();
  EXPECT_FALSE(read({3}, true));
  EXPECT_FALSE(read({}, true));
  bulkRead(R"({"mode": "off"})", {1}, true);
  EXPECT_EQ(index(), 2);
  leave();
  EXPECT_FALSE(read({3}));
  EXPECT_EQ(index(), 1);
}

TEST_F(BoundCombo, leavesAnEditAloneUnlessForced)
{
  read({1});
  choose(1);
  EXPECT_EQ(changes_, 1);
  EXPECT_TRUE(widget_->hasChangedContent());
  store_.forgetRequests();
  EXPECT_FALSE(read({1}));
  EXPECT_FALSE(read({}));
  bulkRead(R"({"mode": "off"})", {1});
  EXPECT_EQ(index(), 1);
  EXPECT_EQ(requestCount(), 0U);
  EXPECT_FALSE(read({1}, true));
  EXPECT_EQ(index(), 2);
  EXPECT_FALSE(widget_->hasChangedContent());
}

// ---- writing

TEST_F(BoundCombo, writesItsChoiceToEveryRecord)
{
  read({1, 3});
  choose(0);
  EXPECT_EQ(added(), R"({"mode":"off"})");
  EXPECT_FALSE(write({1, 3}));
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"mode":"off"})", R"({"index":3,"mode":"off"})"));
  EXPECT_FALSE(widget_->hasChangedContent());
  EXPECT_EQ(added(), "{}");
}

TEST_F(BoundCombo, writesNothingThatWasNotChangedOrHasNoRecord)
{
  read({1});
  EXPECT_FALSE(write({1}));
  choose(0);
  EXPECT_FALSE(write({}));
  EXPECT_TRUE(widget_->hasChangedContent());
  EXPECT_THAT(written(), IsEmpty());
}

TEST_F(BoundCombo, goesOnBehindARecordThatFailsAndEndsAsTheLast)
{
  store_.failRecord("SET", "rx", 2, kNotFound);
  read({1, 3});
  choose(0);
  EXPECT_FALSE(write({1, 2, 3}));
  EXPECT_THAT(written(), SizeIs(3));
  EXPECT_THAT(errors_, SizeIs(1));
  choose(1);
  EXPECT_TRUE(write({1, 2}));
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(BoundCombo, writesNothingFromTheBlankItemAndFailsWithoutAText)
{
  read({1, 3});
  setChanged();
  EXPECT_EQ(added(), "{}");
  EXPECT_TRUE(write({1, 3}));
  EXPECT_THAT(errors_, IsEmpty());
  EXPECT_THAT(written(), IsEmpty());
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(BoundCombo, canBeSetBackToTheBlankItemByAPerson)
{
  read({1, 3});
  choose(0);
  choose(3);
  EXPECT_EQ(changes_, 2);
  EXPECT_EQ(added(), "{}");
}

TEST_F(UnindexedBoundCombo, readsAndWritesTheOneRecordWhateverTheIndexes)
{
  EXPECT_FALSE(read({}));
  EXPECT_EQ(index(), 1);
  bulkRead(R"({"mode": "all"})", {});
  EXPECT_EQ(index(), 2);
  choose(0);
  EXPECT_FALSE(write({8, 9}));
  EXPECT_THAT(written(), ElementsAre(R"({"mode":"off"})"));
}

TEST_F(UnindexedBoundCombo, failsAsItsWriteDoes)
{
  store_.fail("SET", "systemGlobals", kNotFound);
  read({});
  choose(0);
  EXPECT_TRUE(write({}));
  EXPECT_THAT(errors_, SizeIs(1));
  EXPECT_FALSE(widget_->hasChangedContent());
}
