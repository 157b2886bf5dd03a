// SPDX-License-Identifier: MIT
#include "BoundPage.h"
#include "WCheckBoxZel.h"

#include <cstdlib>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

thread_local bool sNoMemory = false;

// While it lives, no request can be made on this thread for want of memory.
class NoMemory
{
public:
  NoMemory()
  {
    json_set_alloc_funcs([](std::size_t size) { return sNoMemory ? nullptr : std::malloc(size); }, std::free);
    sNoMemory = true;
  }
  ~NoMemory() { sNoMemory = false; }
  NoMemory(const NoMemory &) = delete;
  NoMemory &operator=(const NoMemory &) = delete;
};

class BoundCheckBox : public BoundPage<WCheckBoxZel>
{
protected:
  explicit BoundCheckBox(bool indexed = true)
      : BoundPage([=](Wt::WContainerWidget &root) {
          return new WCheckBoxZel(indexed ? "rx" : "systemGlobals", "flag", indexed, &root);
        })
  {
    store_.setRecords("rx", R"([{"index": 1, "flag": true}, {"index": 2, "flag": true},
                                {"index": 3, "flag": false}, {"index": 4, "flag": true}])");
    store_.setRecords("systemGlobals", R"({"flag": true})");
  }
  Wt::CheckState state() const { return widget_->checkState(); }
  void check(bool checked) { visitor_.check(field(), checked); }
};

class UnindexedBoundCheckBox : public BoundCheckBox
{
protected:
  UnindexedBoundCheckBox() : BoundCheckBox(false) {}
};

} // namespace

// ---- reading

TEST_F(BoundCheckBox, showsTheFlagOfOneRecord)
{
  EXPECT_FALSE(read({1}));
  EXPECT_EQ(state(), Wt::Checked);
  EXPECT_FALSE(read({3}));
  EXPECT_EQ(state(), Wt::Unchecked);
  EXPECT_EQ(changes_, 0);
  EXPECT_EQ(store_.requests().front(),
            R"({"method":"GET","query":{"index":1},"resource":"rx","select":["flag"]})");
}

TEST_F(BoundCheckBox, showsTheFlagOnWhichAllRecordsAgree)
{
  EXPECT_FALSE(read({1, 2, 4}));
  EXPECT_EQ(state(), Wt::Checked);
  EXPECT_THAT(store_.requests(),
              ElementsAre(R"({"method":"GET","query":{"index":1},"resource":"rx","select":["flag"]})",
                          R"({"method":"GET","query":{"index":2},"resource":"rx","select":["flag"]})",
                          R"({"method":"GET","query":{"index":4},"resource":"rx","select":["flag"]})"));
}

TEST_F(BoundCheckBox, isPartialWhereRecordsDifferAndReadsNoneBehindTheFirstThatDiffers)
{
  EXPECT_FALSE(read({1, 3, 2, 4}));
  EXPECT_EQ(state(), Wt::PartiallyChecked);
  EXPECT_EQ(requestCount(), 2U);
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(BoundCheckBox, isPartialAfterAReadOfNoRecords)
{
  read({1});
  setChanged();
  store_.forgetRequests();
  EXPECT_FALSE(read({}, true));
  EXPECT_EQ(state(), Wt::PartiallyChecked);
  EXPECT_FALSE(widget_->hasChangedContent());
  EXPECT_EQ(requestCount(), 0U);
}

TEST_F(BoundCheckBox, keepsWhatItShowsWhereARecordCannotBeRead)
{
  read({1});
  setChanged();
  LogCapture log;
  EXPECT_TRUE(read({1, 99, 3}, true));
  EXPECT_EQ(state(), Wt::Checked);
  EXPECT_TRUE(widget_->hasChangedContent());
  ASSERT_THAT(errors_, SizeIs(1));
  EXPECT_EQ(log.text(), "1 logZelErrors: " + errors_[0] + "\n");
}

TEST_F(BoundCheckBox, keepsWhatItShowsWithoutAnAnswer)
{
  read({1});
  store_.hangUp("GET", "rx");
  EXPECT_TRUE(read({3}));
  EXPECT_EQ(state(), Wt::Checked);
  EXPECT_THAT(errors_, IsEmpty());
}

TEST_F(BoundCheckBox, failsWithoutAStoreAndKeepsItsState)
{
  read({1});
  check(false);
  store_.hangUp("GET", "rx");
  read({1}, true);
  setenv("NEVO_STORE_SOCKET", "/nonexistent/store.sock", 1);
  EXPECT_TRUE(read({1}, true));
  EXPECT_TRUE(write({1}));
  EXPECT_EQ(state(), Wt::Unchecked);
  EXPECT_TRUE(widget_->hasChangedContent());
  EXPECT_THAT(errors_, IsEmpty());
}

TEST_F(BoundCheckBox, leavesAnEditAloneUnlessForced)
{
  read({1});
  check(false);
  EXPECT_EQ(changes_, 1);
  EXPECT_FALSE(read({1}));
  EXPECT_FALSE(read({}));
  bulkRead(R"({"flag": "enabled"})", {1});
  EXPECT_EQ(state(), Wt::Unchecked);
  EXPECT_FALSE(read({1}, true));
  EXPECT_EQ(state(), Wt::Checked);
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(BoundCheckBox, logsThatNoRequestCouldBeMadeAndKeepsWhatItShows)
{
  read({1});
  LogCapture log;
  {
    const NoMemory noMemory;
    EXPECT_TRUE(read({3}));
  }
  EXPECT_EQ(log.text(), "1 readFromDatabase: Cannot create ZEL request object.\n");
  EXPECT_EQ(state(), Wt::Checked);
  EXPECT_THAT(errors_, IsEmpty());
}

// ---- reading in bulk

TEST_F(BoundCheckBox, takesAWordFromAResponse)
{
  bulkRead(R"({"flag": "enabled"})", {1});
  EXPECT_EQ(state(), Wt::Checked);
  bulkRead(R"({"flag": "disabled"})", {1});
  EXPECT_EQ(state(), Wt::Unchecked);
  bulkRead(R"({"flag": "Enabled"})", {1});
  EXPECT_EQ(state(), Wt::Unchecked);
  bulkRead(R"([{"index": 1, "flag": "enabled"}, {"index": 2, "flag": "enabled"}])", {1, 2});
  EXPECT_EQ(state(), Wt::Checked);
  EXPECT_EQ(requestCount(), 0U);
}

TEST_F(BoundCheckBox, isUncheckedAndNotPartialWhereTheRowsOfAResponseDiffer)
{
  read({1});
  setChanged();
  bulkRead(R"([{"index": 1, "flag": "enabled"}, {"index": 2, "flag": "disabled"}])", {1, 2}, true);
  EXPECT_EQ(state(), Wt::Unchecked);
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(BoundCheckBox, isUncheckedWhereABulkReadFails)
{
  read({1});
  setChanged();
  bulkRead(R"({"flag": true})", {1}, true);
  EXPECT_EQ(state(), Wt::Unchecked);
  EXPECT_FALSE(widget_->hasChangedContent());
  read({1});
  bulkRead(R"([{"index": 1, "flag": "enabled"}])", {1, 2});
  EXPECT_EQ(state(), Wt::Unchecked);
}

TEST_F(BoundCheckBox, isUncheckedAndStaysChangedAfterABulkReadOfNoRecords)
{
  read({1});
  setChanged();
  bulkRead(R"({"flag": "enabled"})", {}, true);
  EXPECT_EQ(state(), Wt::Unchecked);
  EXPECT_TRUE(widget_->hasChangedContent());
}

// ---- writing

TEST_F(BoundCheckBox, writesItsStateToEveryRecord)
{
  read({1, 3});
  check(true);
  EXPECT_EQ(added(), R"({"flag":true})");
  EXPECT_FALSE(write({1, 3}));
  EXPECT_THAT(written(), ElementsAre(R"({"flag":true,"index":1})", R"({"flag":true,"index":3})"));
  EXPECT_FALSE(widget_->hasChangedContent());
  check(false);
  EXPECT_EQ(added(), R"({"flag":false})");
}

TEST_F(BoundCheckBox, writesAPartialStateAsFalseButAddsNothingForIt)
{
  read({1, 3});
  setChanged();
  EXPECT_EQ(added(), "{}");
  EXPECT_FALSE(write({1, 3}));
  EXPECT_THAT(written(), ElementsAre(R"({"flag":false,"index":1})", R"({"flag":false,"index":3})"));
}

TEST_F(BoundCheckBox, goesFromPartialToCheckedAndNeverBackByClicks)
{
  read({1, 3});
  check(true);
  EXPECT_EQ(state(), Wt::Checked);
  check(false);
  EXPECT_EQ(state(), Wt::Unchecked);
  check(true);
  EXPECT_EQ(state(), Wt::Checked);
  EXPECT_FALSE(widget_->isTristate());
  EXPECT_EQ(changes_, 3);
}

TEST_F(BoundCheckBox, writesNothingThatWasNotChangedOrHasNoRecord)
{
  read({1});
  EXPECT_FALSE(write({1}));
  EXPECT_EQ(added(), "{}");
  check(false);
  EXPECT_FALSE(write({}));
  EXPECT_TRUE(widget_->hasChangedContent());
  EXPECT_THAT(written(), IsEmpty());
}

TEST_F(BoundCheckBox, goesOnBehindARecordThatFails)
{
  store_.failRecord("SET", "rx", 2, kNotFound);
  check(true);
  LogCapture log;
  EXPECT_TRUE(write({1, 2, 3}));
  EXPECT_THAT(written(), SizeIs(3));
  ASSERT_THAT(errors_, SizeIs(1));
  EXPECT_EQ(log.text(), "1 logZelErrors: " + errors_[0] + "\n");
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(BoundCheckBox, passesOverAMissingAnswer)
{
  store_.hangUpRecord("SET", "rx", 2);
  check(true);
  LogCapture log;
  EXPECT_FALSE(write({1, 2, 3}));
  EXPECT_EQ(log.text(), "");
  EXPECT_THAT(errors_, IsEmpty());
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(BoundCheckBox, logsThatNoRequestToWriteCouldBeMade)
{
  check(true);
  LogCapture log;
  {
    const NoMemory noMemory;
    EXPECT_TRUE(write({3}));
  }
  EXPECT_EQ(log.text(), "1 writeToDatabase: Cannot create ZEL request object.\n");
  EXPECT_TRUE(widget_->hasChangedContent());
  EXPECT_THAT(written(), IsEmpty());
}

TEST_F(UnindexedBoundCheckBox, readsAndWritesTheOneRecordWhateverTheIndexes)
{
  EXPECT_FALSE(read({}));
  EXPECT_EQ(state(), Wt::Checked);
  EXPECT_FALSE(read({4, 5}));
  EXPECT_EQ(store_.requests().back(), R"({"method":"GET","resource":"systemGlobals","select":["flag"]})");
  check(false);
  EXPECT_FALSE(write({4, 5}));
  EXPECT_THAT(written(), ElementsAre(R"({"flag":false})"));
  bulkRead(R"({"flag": "enabled"})", {});
  EXPECT_EQ(state(), Wt::Checked);
}

TEST_F(UnindexedBoundCheckBox, failsAsItsWriteDoes)
{
  store_.fail("SET", "systemGlobals", kNotFound);
  check(true);
  EXPECT_TRUE(write({}));
  EXPECT_THAT(errors_, SizeIs(1));
}
