// SPDX-License-Identifier: MIT
// The bound editors of text: line edit and text area.
#include "BoundPage.h"
#include "WLineEditZel.h"
#include "WTextAreaZel.h"

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

template <class Edit> class BoundEdit : public BoundPage<Edit>
{
protected:
  explicit BoundEdit(bool indexed = true)
      : BoundPage<Edit>([=](Wt::WContainerWidget &root) {
          return new Edit(indexed ? "rx" : "systemGlobals", "s", indexed, &root);
        })
  {
    this->store_.setRecords("rx", R"([{"index": 1, "s": "same"}, {"index": 2, "s": "same"},
        {"index": 3, "s": "other"}, {"index": 4, "s": "same"}, {"index": 5, "s": "\u00e9 <b>&amp;"}, {"index": 6}])");
    this->store_.setRecords("systemGlobals", R"({"s": "one"})");
  }
};

template <class Edit> class UnindexedBoundEdit : public BoundEdit<Edit>
{
protected:
  UnindexedBoundEdit() : BoundEdit<Edit>(false) {}
};

using Edits = testing::Types<WLineEditZel, WTextAreaZel>;
TYPED_TEST_SUITE(BoundEdit, Edits);
TYPED_TEST_SUITE(UnindexedBoundEdit, Edits);

} // namespace

// ---- reading

TYPED_TEST(BoundEdit, showsTheValueOfOneRecord)
{
  EXPECT_FALSE(this->read({3}));
  EXPECT_EQ(this->text(), "other");
  EXPECT_THAT(this->store_.requests(),
              ElementsAre(R"({"method":"GET","query":{"index":3},"resource":"rx","select":["s"]})"));
}

TYPED_TEST(BoundEdit, showsATextOfTheStoreAsItIs)
{
  EXPECT_FALSE(this->read({5}));
  EXPECT_EQ(this->text(), "\xc3\xa9 <b>&amp;");
  this->edit("\xc3\xa9!");
  EXPECT_FALSE(this->write({5}));
  EXPECT_THAT(this->written(), ElementsAre("{\"index\":5,\"s\":\"\xc3\xa9!\"}"));
}

TYPED_TEST(BoundEdit, showsTheValueOnWhichAllRecordsAgree)
{
  EXPECT_FALSE(this->read({1, 2, 4}));
  EXPECT_EQ(this->text(), "same");
  EXPECT_EQ(this->requestCount(), 3U);
}

TYPED_TEST(BoundEdit, isBlankWhereRecordsDifferAndReadsNoneBehindTheFirstThatDiffers)
{
  this->read({1});
  this->store_.forgetRequests();
  EXPECT_FALSE(this->read({1, 3, 2, 4}));
  EXPECT_EQ(this->text(), "");
  EXPECT_FALSE(this->widget_->hasChangedContent());
  EXPECT_EQ(this->changes_, 0);
  EXPECT_EQ(this->requestCount(), 2U);
}

TYPED_TEST(BoundEdit, takesAMissingTextForAnEmptyOne)
{
  this->read({1});
  EXPECT_FALSE(this->read({6}));
  EXPECT_EQ(this->text(), "");
}

TYPED_TEST(BoundEdit, isEmptyForNoRecordsWithoutARequest)
{
  this->read({1});
  this->setChanged();
  this->store_.forgetRequests();
  EXPECT_FALSE(this->read({}, true));
  EXPECT_EQ(this->text(), "");
  EXPECT_FALSE(this->widget_->hasChangedContent());
  EXPECT_EQ(this->requestCount(), 0U);
}

TYPED_TEST(BoundEdit, keepsWhatItShowsWhereARecordCannotBeRead)
{
  this->read({3});
  this->setChanged();
  EXPECT_TRUE(this->read({1, 99, 2}, true));
  EXPECT_EQ(this->text(), "other");
  EXPECT_TRUE(this->widget_->hasChangedContent());
  EXPECT_THAT(this->errors_, SizeIs(1));
}

TYPED_TEST(BoundEdit, keepsWhatItShowsWithoutAnAnswer)
{
  this->read({3});
  this->store_.hangUp("GET", "rx");
  EXPECT_TRUE(this->read({1}));
  EXPECT_EQ(this->text(), "other");
  EXPECT_THAT(this->errors_, IsEmpty());
}

TYPED_TEST(BoundEdit, leavesAnEditAloneUnlessForced)
{
  this->read({1});
  this->edit("mine");
  this->store_.forgetRequests();
  EXPECT_FALSE(this->read({3}));
  EXPECT_FALSE(this->read({}));
  EXPECT_EQ(this->text(), "mine");
  EXPECT_TRUE(this->widget_->hasChangedContent());
  EXPECT_EQ(this->requestCount(), 0U);
  EXPECT_FALSE(this->read({3}, true));
  EXPECT_EQ(this->text(), "other");
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

TYPED_TEST(BoundEdit, isNotDisturbedByARefreshWhileItHasTheFocusForcedOrNot)
{
  this->read({1});
  this->enter();
  EXPECT_FALSE(this->read({3}));
  EXPECT_FALSE(this->read({3}, true));
  EXPECT_EQ(this->text(), "same");
  this->leave();
  EXPECT_FALSE(this->read({3}));
  EXPECT_EQ(this->text(), "other");
}

TYPED_TEST(BoundEdit, isNotDisturbedByARefreshBetweenTypingAndItsNoticeWhichComesOnceAfterwards)
{
  this->read({1});
  this->enter();
  this->visitor_.typeWithoutLeaving(this->field(), "typed");
  EXPECT_FALSE(this->read({3}));
  EXPECT_EQ(this->text(), "typed");
  EXPECT_EQ(this->changes_, 0);
  this->leave();
  EXPECT_EQ(this->changes_, 1);
  EXPECT_FALSE(this->read({3}));
  EXPECT_EQ(this->text(), "typed");
  this->visitor_.advance(5s);
  EXPECT_EQ(this->changes_, 1);
}

TYPED_TEST(BoundEdit, isNotDisturbedByARefreshWithAnEditNotYetToldWithoutTheFocus)
{
  this->read({1});
  this->visitor_.type(this->field(), "typed");
  this->visitor_.page().focus = 0;
  EXPECT_FALSE(this->read({3}));
  EXPECT_EQ(this->text(), "typed");
}

TYPED_TEST(BoundEdit, tellsOfTypingWithinASecondWithoutBeingLeft)
{
  this->read({1});
  this->enter();
  this->visitor_.typeWithoutLeaving(this->field(), "typed");
  this->visitor_.advance(500ms);
  EXPECT_EQ(this->changes_, 1);
  EXPECT_TRUE(this->widget_->hasChangedContent());
}

TYPED_TEST(BoundEdit, doesNotTakeARefreshForAnEdit)
{
  this->read({1});
  this->read({3});
  this->enter();
  this->visitor_.advance(5s);
  this->leave();
  EXPECT_EQ(this->changes_, 0);
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

// ---- reading in bulk

TYPED_TEST(BoundEdit, takesTheValueOfOneRecordFromAResponse)
{
  this->setChanged();
  this->bulkRead(R"({"index": 9, "s": "new"})", {9}, true);
  EXPECT_EQ(this->text(), "new");
  EXPECT_FALSE(this->widget_->hasChangedContent());
  EXPECT_EQ(this->requestCount(), 0U);
}

TYPED_TEST(BoundEdit, takesTheCommonValueFromTheRowsOfAResponseWhateverTheirOrder)
{
  this->bulkRead(R"([{"index": 8, "s": "x"}, {"index": 4, "s": "new"}, {"index": 9, "s": "new"}])", {9, 4});
  EXPECT_EQ(this->text(), "new");
}

TYPED_TEST(BoundEdit, isBlankWhereTheRowsOfAResponseDiffer)
{
  this->read({1});
  this->setChanged();
  this->bulkRead(R"([{"index": 4, "s": "a"}, {"index": 9, "s": "b"}])", {9, 4}, true);
  EXPECT_EQ(this->text(), "");
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

TYPED_TEST(BoundEdit, isBlankWhereAResponseLacksARowOrTheValue)
{
  for (const char *response : {R"([{"index": 4, "s": "a"}])", R"([{"index": 4, "s": "a"}, {"index": 9}])",
                               R"([{"index": 4, "s": "a"}, {"index": 9, "s": 5}])"}) {
    this->read({1});
    this->setChanged();
    this->bulkRead(response, {4, 9}, true);
    EXPECT_EQ(this->text(), "") << response;
    EXPECT_FALSE(this->widget_->hasChangedContent()) << response;
  }
  this->read({1});
  this->bulkRead(R"({"index": 4})", {4});
  EXPECT_EQ(this->text(), "");
}

TYPED_TEST(BoundEdit, isEmptyAfterABulkReadOfNoRecordsButStaysChanged)
{
  this->read({1});
  this->setChanged();
  this->bulkRead(R"({"s": "a"})", {}, true);
  EXPECT_EQ(this->text(), "");
  EXPECT_TRUE(this->widget_->hasChangedContent());
}

TYPED_TEST(BoundEdit, keepsItsEditAndItsFocusInABulkRead)
{
  this->read({1});
  this->edit("mine");
  this->bulkRead(R"({"s": "new"})", {1});
  EXPECT_EQ(this->text(), "mine");
  this->enter();
  this->bulkRead(R"({"s": "new"})", {1}, true);
  EXPECT_EQ(this->text(), "mine");
}

// ---- writing

TYPED_TEST(BoundEdit, writesNothingThatWasNotChanged)
{
  this->read({1});
  EXPECT_FALSE(this->write({1, 2}));
  EXPECT_EQ(this->added(), "{}");
  EXPECT_THAT(this->written(), IsEmpty());
}

TYPED_TEST(BoundEdit, writesTheSameTextToEveryRecordInOrder)
{
  this->read({1, 3});
  EXPECT_EQ(this->text(), "");
  this->edit("both");
  EXPECT_FALSE(this->write({3, 1}));
  EXPECT_THAT(this->written(), ElementsAre(R"({"index":3,"s":"both"})", R"({"index":1,"s":"both"})"));
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

TYPED_TEST(BoundEdit, staysChangedWhereThereIsNoRecordToWrite)
{
  this->edit("mine");
  EXPECT_FALSE(this->write({}));
  EXPECT_TRUE(this->widget_->hasChangedContent());
  EXPECT_THAT(this->written(), IsEmpty());
}

TYPED_TEST(BoundEdit, writesNoRecordBehindOneThatFails)
{
  this->store_.failRecord("SET", "rx", 2, kNotFound);
  this->edit("mine");
  EXPECT_TRUE(this->write({1, 2, 3}));
  EXPECT_THAT(this->written(), SizeIs(2));
  EXPECT_THAT(this->errors_, SizeIs(1));
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

TYPED_TEST(BoundEdit, addsItsTextToARequestForManyFieldsWhenItWasChanged)
{
  this->edit("mine");
  EXPECT_EQ(this->added(), R"({"s":"mine"})");
  EXPECT_TRUE(this->widget_->hasChangedContent());
  this->widget_->clearContentChanged();
  EXPECT_EQ(this->added(), "{}");
}

TYPED_TEST(BoundEdit, mayDieWhileItHasTheFocus)
{
  this->enter();
  this->visitor_.typeWithoutLeaving(this->field(), "typed");
  this->page_.act([this] { delete this->widget_; });
  this->visitor_.advance(5s);
  EXPECT_EQ(this->changes_, 0);
}

// ---- of a resource with one record

TYPED_TEST(UnindexedBoundEdit, readsAndWritesTheOneRecordWhateverTheIndexes)
{
  EXPECT_FALSE(this->read({}));
  EXPECT_EQ(this->text(), "one");
  EXPECT_FALSE(this->read({4, 5}));
  EXPECT_THAT(this->store_.requests(),
              ElementsAre(R"({"method":"GET","resource":"systemGlobals","select":["s"]})",
                          R"({"method":"GET","resource":"systemGlobals","select":["s"]})"));
  this->edit("two");
  EXPECT_FALSE(this->write({}));
  EXPECT_THAT(this->written(), ElementsAre(R"({"s":"two"})"));
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

TYPED_TEST(UnindexedBoundEdit, takesTheOneValueFromAResponse)
{
  this->bulkRead(R"({"s": "new"})", {});
  EXPECT_EQ(this->text(), "new");
  this->bulkRead(R"({"s": "newer"})", {4, 5});
  EXPECT_EQ(this->text(), "newer");
}

TYPED_TEST(UnindexedBoundEdit, countsAsSavedAfterAWriteThatFailed)
{
  this->store_.fail("SET", "systemGlobals", kNotFound);
  this->edit("two");
  EXPECT_TRUE(this->write({}));
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

// ---- what only one of them has

using BoundLineEdit = BoundEdit<WLineEditZel>;

TEST_F(BoundLineEdit, canBeCalledChangedOrNotWithoutTellingAnyone)
{
  page_.act([this] { widget_->setContentChanged(true); });
  EXPECT_TRUE(widget_->hasChangedContent());
  page_.act([this] { widget_->setContentChanged(false); });
  EXPECT_FALSE(widget_->hasChangedContent());
  EXPECT_EQ(changes_, 0);
}

using BoundTextArea = BoundEdit<WTextAreaZel>;

TEST_F(BoundTextArea, limitsWhatTheBrowserLetsAPersonType)
{
  page_.act([this] { widget_->setMaxLength(128); });
  EXPECT_EQ(field()->get("maxlength"), "128");
}
