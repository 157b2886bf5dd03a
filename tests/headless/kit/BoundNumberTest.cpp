// SPDX-License-Identifier: MIT
// The bound widgets of numbers.
#include "BoundPage.h"
#include "WLineEditUInt32Zel.h"
#include "WUInt32Zel.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

template <class Widget> class BoundNumber : public BoundPage<Widget>
{
protected:
  explicit BoundNumber(bool indexed = true)
      : BoundPage<Widget>([=](Wt::WContainerWidget &root) {
          return new Widget(indexed ? "rx" : "systemGlobals", "n", indexed, &root);
        })
  {
    this->store_.setRecords("rx", R"([{"index": 1, "n": 42}, {"index": 2, "n": 42}, {"index": 3, "n": 7},
        {"index": 4, "n": 1234567890}, {"index": 5, "n": 999999999}])");
    this->store_.setRecords("systemGlobals", R"({"n": 13})");
  }
};

class NumberEdit : public BoundNumber<WLineEditUInt32Zel>
{
};

class UnindexedNumberEdit : public BoundNumber<WLineEditUInt32Zel>
{
protected:
  UnindexedNumberEdit() : BoundNumber(false) {}
};

class NumberText : public BoundNumber<WUInt32Zel>
{
};

class UnindexedNumberText : public BoundNumber<WUInt32Zel>
{
protected:
  UnindexedNumberText() : BoundNumber(false) {}
};

} // namespace

// ---- the editor

TEST_F(NumberEdit, showsTheNumberOnWhichAllRecordsAgree)
{
  EXPECT_FALSE(read({1, 2}));
  EXPECT_EQ(text(), "42");
  EXPECT_EQ(requestCount(), 2U);
}

TEST_F(NumberEdit, isBlankWhereRecordsDiffer)
{
  read({1});
  EXPECT_FALSE(read({1, 3, 2}));
  EXPECT_EQ(text(), "");
  EXPECT_EQ(requestCount(), 3U);
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(NumberEdit, showsNineDigitsOfANumberThatItReadsItself)
{
  EXPECT_FALSE(read({4}));
  EXPECT_EQ(text(), "123456789");
  read({5});
  EXPECT_EQ(text(), "999999999");
}

TEST_F(NumberEdit, showsTenDigitsAfterABulkReadAndWhenItIsSet)
{
  bulkRead(R"({"n": 4294967295})", {1});
  EXPECT_EQ(text(), "4294967295");
  page_.act([this] { widget_->setValue(1234567890); });
  EXPECT_EQ(text(), "1234567890");
}

TEST_F(NumberEdit, doesNotCallANumberThatWasSetAChange)
{
  page_.act([this] { widget_->setValue(5); });
  EXPECT_EQ(field()->get(".value"), "5");
  EXPECT_FALSE(widget_->hasChangedContent());
  EXPECT_EQ(changes_, 0);
}

TEST_F(NumberEdit, keepsWhatItShowsWhereARecordCannotBeRead)
{
  read({1});
  EXPECT_TRUE(read({3, 99}));
  EXPECT_EQ(text(), "42");
}

TEST_F(NumberEdit, isEmptyForNoRecords)
{
  read({1});
  setChanged();
  EXPECT_FALSE(read({}, true));
  EXPECT_EQ(text(), "");
  EXPECT_FALSE(widget_->hasChangedContent());
  setChanged();
  bulkRead(R"({"n": 4})", {}, true);
  EXPECT_EQ(text(), "");
  EXPECT_TRUE(widget_->hasChangedContent());
}

TEST_F(NumberEdit, takesItsNumberFromTheRowsOfAResponse)
{
  bulkRead(R"([{"index": 2, "n": 6}, {"index": 1, "n": 6}])", {1, 2});
  EXPECT_EQ(text(), "6");
  setChanged();
  bulkRead(R"([{"index": 2, "n": 6}, {"index": 1, "n": 7}])", {1, 2}, true);
  EXPECT_EQ(text(), "");
  EXPECT_FALSE(widget_->hasChangedContent());
  bulkRead(R"([{"index": 2, "n": 6}])", {2, 3});
  EXPECT_EQ(text(), "");
}

TEST_F(NumberEdit, keepsItsEditAndItsFocus)
{
  edit("5");
  EXPECT_FALSE(read({1}));
  bulkRead(R"({"n": 4})", {1});
  EXPECT_EQ(text(), "5");
  enter();
  EXPECT_FALSE(read({1}, true));
  EXPECT_EQ(text(), "5");
}

TEST_F(NumberEdit, writesItsNumberToEveryRecord)
{
  edit("250");
  EXPECT_FALSE(write({1, 3}));
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"n":250})", R"({"index":3,"n":250})"));
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(NumberEdit, writesTheDigitsThatAFieldBeginsWith)
{
  edit("12abc");
  EXPECT_EQ(added(), R"({"n":12})");
  EXPECT_FALSE(write({1}));
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"n":12})"));
}

TEST_F(NumberEdit, writesZeroForAnEmptyFieldAndForWords)
{
  read({1});
  edit("");
  EXPECT_EQ(added(), R"({"n":0})");
  EXPECT_FALSE(write({1}));
  edit("abc");
  EXPECT_FALSE(write({1}));
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"n":0})", R"({"index":1,"n":0})"));
}

TEST_F(NumberEdit, writesNothingThatWasNotChangedOrHasNoRecord)
{
  read({1});
  EXPECT_FALSE(write({1}));
  EXPECT_EQ(added(), "{}");
  edit("5");
  EXPECT_FALSE(write({}));
  EXPECT_TRUE(widget_->hasChangedContent());
  EXPECT_THAT(written(), IsEmpty());
}

TEST_F(NumberEdit, writesNoRecordBehindOneThatFails)
{
  store_.failRecord("SET", "rx", 2, kNotFound);
  edit("5");
  EXPECT_TRUE(write({1, 2, 3}));
  EXPECT_THAT(written(), SizeIs(2));
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(UnindexedNumberEdit, readsAndWritesTheOneRecord)
{
  EXPECT_FALSE(read({8, 9}));
  EXPECT_EQ(text(), "13");
  edit("14");
  EXPECT_FALSE(write({}));
  EXPECT_THAT(written(), ElementsAre(R"({"n":14})"));
}

// ---- the text

TEST_F(NumberText, showsTheNumberOnWhichAllRecordsAgree)
{
  EXPECT_FALSE(read({1, 2}));
  EXPECT_EQ(text(), "42");
  EXPECT_EQ(widget_->getValue(), 42U);
}

TEST_F(NumberText, showsZeroWhereRecordsDiffer)
{
  read({1});
  EXPECT_FALSE(read({1, 3}));
  EXPECT_EQ(text(), "0");
  EXPECT_EQ(widget_->getValue(), 0U);
}

TEST_F(NumberText, isBlankWhereTheRowsOfAResponseDiffer)
{
  read({1});
  bulkRead(R"([{"index": 1, "n": 6}, {"index": 2, "n": 7}])", {1, 2});
  EXPECT_EQ(text(), "");
  EXPECT_EQ(widget_->getValue(), 0U);
}

TEST_F(NumberText, showsTheNumberOfAResponse)
{
  bulkRead(R"({"n": 1234567890})", {1});
  EXPECT_EQ(text(), "1234567890");
  EXPECT_EQ(widget_->getValue(), 1234567890U);
  bulkRead(R"([{"index": 1, "n": 6}, {"index": 2, "n": 6}])", {1, 2});
  EXPECT_EQ(text(), "6");
}

TEST_F(NumberText, showsNineDigitsOfANumberThatItReadsItself)
{
  EXPECT_FALSE(read({4}));
  EXPECT_EQ(text(), "123456789");
  EXPECT_EQ(widget_->getValue(), 1234567890U);
}

TEST_F(NumberText, isBlankAfterAFailure)
{
  read({1});
  EXPECT_TRUE(read({1, 99}));
  EXPECT_EQ(text(), "");
  EXPECT_THAT(errors_, SizeIs(1));
}

TEST_F(NumberText, isBlankForNoRecordsWithoutARequest)
{
  read({1});
  store_.forgetRequests();
  EXPECT_FALSE(read({}));
  EXPECT_EQ(text(), "");
  read({1});
  store_.forgetRequests();
  bulkRead(R"({"n": 4})", {});
  EXPECT_EQ(text(), "");
  EXPECT_EQ(requestCount(), 0U);
}

TEST_F(NumberText, showsAMultipleWithOneDecimal)
{
  page_.act([this] { widget_->setDisplayScaling(0.001); });
  bulkRead(R"({"n": 148500})", {1});
  EXPECT_EQ(text(), "148.5");
  EXPECT_EQ(widget_->getValue(), 148500U);
  read({1});
  EXPECT_EQ(text(), "0.0");
  bulkRead(R"({"n": 25175})", {1});
  EXPECT_EQ(text(), "25.2");
}

TEST_F(NumberText, showsANumberThatIsSetWithoutScaling)
{
  page_.act([this] {
    widget_->setDisplayScaling(0.001);
    widget_->setValue(4000000000U);
  });
  EXPECT_EQ(text(), "4000000000");
  EXPECT_EQ(widget_->getValue(), 4000000000U);
}

TEST_F(NumberText, writesNothingAndCallsThatAFailure)
{
  setChanged();
  EXPECT_TRUE(write({1}));
  EXPECT_EQ(added(), "{}");
  EXPECT_EQ(requestCount(), 0U);
}

TEST_F(NumberText, isReadOnlyByForceWhileItCountsAsChanged)
{
  read({1});
  setChanged();
  EXPECT_FALSE(read({3}));
  bulkRead(R"({"n": 4})", {1});
  EXPECT_EQ(text(), "42");
  EXPECT_FALSE(read({3}, true));
  EXPECT_EQ(text(), "7");
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(UnindexedNumberText, readsTheOneRecord)
{
  EXPECT_FALSE(read({8, 9}));
  EXPECT_EQ(text(), "13");
  EXPECT_EQ(requestCount(), 1U);
}
