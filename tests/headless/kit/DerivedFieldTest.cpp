// SPDX-License-Identifier: MIT
// The fields that show a value of the store in another form.
#include "BoundPage.h"
#include "WNtpStatus.h"
#include "WNtpTime.h"
#include "WVideoResolution.h"
#include "WVideoSyncPolarity.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

template <class Field> class DerivedField : public BoundPage<Field>
{
protected:
  DerivedField()
      : BoundPage<Field>([](Wt::WContainerWidget &root) { return new Field("swx", "s", true, &root); })
  {
  }
  // Texts are translated within the session only.
  std::string text()
  {
    std::string shown;
    this->page_.act([&] { shown = this->widget_->text().toUTF8(); });
    return shown;
  }
  // What one record with this value shows.
  std::string shownFor(const std::string &json)
  {
    this->store_.setRecords("swx", R"([{"index": 1, "s": )" + json + "}]");
    EXPECT_FALSE(this->read({1}));
    const std::string shown = text();
    this->bulkRead("[]", {});
    this->bulkRead(R"([{"index": 1, "s": )" + json + "}]", {1});
    EXPECT_EQ(text(), shown);
    return shown;
  }
};

class NtpStatus : public DerivedField<WNtpStatus>
{
};
class VideoSyncPolarity : public DerivedField<WVideoSyncPolarity>
{
};
class NtpTime : public DerivedField<WNtpTime>
{
};

// What the fields that translate a word have in common.
template <class Field> class TranslatedField : public DerivedField<Field>
{
};
using TranslatedFields = testing::Types<WNtpStatus, WVideoSyncPolarity>;
TYPED_TEST_SUITE(TranslatedField, TranslatedFields);

class UnindexedNtpTime : public BoundPage<WNtpTime>
{
protected:
  UnindexedNtpTime()
      : BoundPage([](Wt::WContainerWidget &root) { return new WNtpTime("systemGlobals", "s", false, &root); })
  {
  }
};

class VideoResolution : public BoundPage<WVideoResolution>
{
protected:
  explicit VideoResolution(bool indexed = true)
      : BoundPage([=](Wt::WContainerWidget &root) {
          return new WVideoResolution(indexed ? "tx" : "systemGlobals", "h", "v", indexed, &root);
        })
  {
    store_.setRecords("tx", R"([{"index": 1, "h": 1920, "v": 1080}, {"index": 2, "h": 1920, "v": 1080},
        {"index": 3, "h": 1920, "v": 1200}, {"index": 4, "h": 640, "v": 1080}])");
    store_.setRecords("systemGlobals", R"({"h": 800, "v": 600})");
  }
  void expectBlank()
  {
    EXPECT_EQ(text(), "");
    EXPECT_EQ(widget_->horizontalResolution(), 0U);
    EXPECT_EQ(widget_->verticalResolution(), 0U);
  }
};

class UnindexedVideoResolution : public VideoResolution
{
protected:
  UnindexedVideoResolution() : VideoResolution(false) {}
};

} // namespace

// ---- words

TEST_F(NtpStatus, hasATextForEachWord)
{
  EXPECT_EQ(shownFor(R"("unknown")"), "Initializing");
  EXPECT_EQ(shownFor(R"("inactive")"), "Inactive");
  EXPECT_EQ(shownFor(R"("bad_configuration")"), "Incorrect configuration");
  EXPECT_EQ(shownFor(R"("pending")"), "Synchronization pending");
  EXPECT_EQ(shownFor(R"("network_unreachable")"), "Server unreachable");
  EXPECT_EQ(shownFor(R"("server_unresponsive")"), "Server unresponsive");
  EXPECT_EQ(shownFor(R"("success")"), "Successful");
  EXPECT_EQ(shownFor(R"("Success")"), "Unknown");
  EXPECT_EQ(shownFor(R"("<b>new</b>")"), "Unknown");
  EXPECT_EQ(shownFor(R"("")"), "Unknown");
}

TEST_F(VideoSyncPolarity, hasATextForEachWord)
{
  EXPECT_EQ(shownFor(R"("negative_polarity")"), "Negative");
  EXPECT_EQ(shownFor(R"("positive_polarity")"), "Positive");
  EXPECT_EQ(shownFor(R"("sideways")"), "Unknown");
}

TYPED_TEST(TranslatedField, callsRecordsThatDifferUnknownInAReadOfItsOwnAndIsBlankInABulkRead)
{
  const char *const rows = R"([{"index": 1, "s": "pending"}, {"index": 2, "s": "success"}])";
  this->store_.setRecords("swx", rows);
  EXPECT_FALSE(this->read({1, 2}));
  EXPECT_EQ(this->text(), "Unknown");
  this->bulkRead(rows, {1, 2});
  EXPECT_EQ(this->text(), "");
}

TYPED_TEST(TranslatedField, isBlankWithoutRecordsAndAfterAFailure)
{
  this->store_.setRecords("swx", R"([{"index": 1, "s": "pending"}])");
  this->read({1});
  EXPECT_FALSE(this->read({}));
  EXPECT_EQ(this->text(), "");
  this->read({1});
  EXPECT_TRUE(this->read({1, 99}));
  EXPECT_EQ(this->text(), "");
  EXPECT_THAT(this->errors_, SizeIs(1));
  this->read({1});
  this->bulkRead("[]", {});
  EXPECT_EQ(this->text(), "");
  this->read({1});
  this->bulkRead(R"([{"index": 1}])", {1});
  EXPECT_EQ(this->text(), "");
}

TYPED_TEST(TranslatedField, writesNothing)
{
  this->setChanged();
  EXPECT_TRUE(this->write({1}));
  EXPECT_EQ(this->added(), "{}");
  EXPECT_THAT(this->store_.requests(), IsEmpty());
}

TYPED_TEST(TranslatedField, leavesAMarkedChangeAloneUnlessForced)
{
  this->store_.setRecords("swx", R"([{"index": 1, "s": "pending"}])");
  this->setChanged();
  EXPECT_FALSE(this->read({1}));
  this->bulkRead(R"([{"index": 1, "s": "pending"}])", {1});
  EXPECT_EQ(this->text(), "");
  EXPECT_FALSE(this->read({1}, true));
  EXPECT_NE(this->text(), "");
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

// ---- time

TEST_F(NtpTime, showsSecondsAsATimeInUtc)
{
  EXPECT_EQ(shownFor("1"), "1970-01-01 00:00:01 UTC");
  EXPECT_EQ(shownFor("951782400"), "2000-02-29 00:00:00 UTC");
  EXPECT_EQ(shownFor("2147483647"), "2038-01-19 03:14:07 UTC");
}

TEST_F(NtpTime, isBlankForZero)
{
  EXPECT_EQ(shownFor("1"), "1970-01-01 00:00:01 UTC");
  EXPECT_EQ(shownFor("0"), "");
  EXPECT_EQ(shownFor(R"("soon")"), "");
}

TEST_F(NtpTime, isBlankForAnyNumberOfSwitchesButOne)
{
  const char *const rows = R"([{"index": 1, "s": 5}, {"index": 2, "s": 5}])";
  store_.setRecords("swx", rows);
  for (const Indexes &indexes : {Indexes{}, Indexes{1, 2}}) {
    EXPECT_FALSE(read({1}));
    EXPECT_EQ(text(), "1970-01-01 00:00:05 UTC");
    store_.forgetRequests();
    EXPECT_FALSE(read(indexes));
    EXPECT_EQ(text(), "");
    EXPECT_EQ(requestCount(), 0U);
    bulkRead(rows, {1});
    EXPECT_EQ(text(), "1970-01-01 00:00:05 UTC");
    bulkRead(rows, indexes);
    EXPECT_EQ(text(), "");
  }
}

TEST_F(NtpTime, isBlankAfterAFailure)
{
  store_.setRecords("swx", R"([{"index": 1, "s": 5}])");
  read({1});
  EXPECT_TRUE(read({99}));
  EXPECT_EQ(text(), "");
  EXPECT_THAT(errors_, SizeIs(1));
  EXPECT_TRUE(write({1}));
}

TEST_F(UnindexedNtpTime, readsTheOneRecordWhateverIndexesItIsGiven)
{
  store_.setRecords("systemGlobals", R"({"s": 86400})");
  EXPECT_FALSE(read({3, 4}));
  EXPECT_EQ(text(), "1970-01-02 00:00:00 UTC");
  bulkRead(R"({"s": 86401})", {});
  EXPECT_EQ(text(), "1970-01-02 00:00:01 UTC");
}

// ---- resolution

TEST_F(VideoResolution, showsBothNumbers)
{
  EXPECT_FALSE(read({3}));
  EXPECT_EQ(text(), "1920 x 1200");
  EXPECT_EQ(widget_->horizontalResolution(), 1920U);
  EXPECT_EQ(widget_->verticalResolution(), 1200U);
  EXPECT_THAT(store_.requests(),
              ElementsAre(R"({"method":"GET","query":{"index":3},"resource":"tx","select":["h"]})",
                          R"({"method":"GET","query":{"index":3},"resource":"tx","select":["v"]})"));
}

TEST_F(VideoResolution, showsWhatRecordsAgreeOn)
{
  EXPECT_FALSE(read({1, 2}));
  EXPECT_EQ(text(), "1920 x 1080");
  EXPECT_EQ(requestCount(), 4U);
}

TEST_F(VideoResolution, isBlankWhereRecordsDifferInEitherNumber)
{
  for (const unsigned int other : {3U, 4U}) {
    read({1});
    EXPECT_FALSE(read({1, other}));
    expectBlank();
  }
}

TEST_F(VideoResolution, isBlankWithoutRecordsAndAfterAFailure)
{
  read({1});
  EXPECT_FALSE(read({}));
  expectBlank();
  read({1});
  EXPECT_TRUE(read({1, 99}));
  expectBlank();
  EXPECT_THAT(errors_, SizeIs(1));
}

TEST_F(VideoResolution, takesBothNumbersOutOfABulkRead)
{
  const char *const rows = R"([{"index": 7, "h": 1, "v": 2}, {"index": 8, "h": 1, "v": 2},
                               {"index": 9, "h": 1, "v": 3}])";
  bulkRead(rows, {7, 8});
  EXPECT_EQ(text(), "1 x 2");
  bulkRead(rows, {7, 9});
  expectBlank();
  bulkRead(rows, {7});
  EXPECT_EQ(widget_->verticalResolution(), 2U);
  bulkRead(rows, {7, 10});
  expectBlank();
  bulkRead(rows, {7});
  bulkRead(rows, {});
  expectBlank();
  EXPECT_EQ(requestCount(), 0U);
}

TEST_F(VideoResolution, showsNumbersAsSignedOnes)
{
  bulkRead(R"([{"index": 1, "h": -1, "v": 2}])", {1});
  EXPECT_EQ(text(), "-1 x 2");
}

TEST_F(VideoResolution, leavesAMarkedChangeAloneUnlessForced)
{
  setChanged();
  EXPECT_FALSE(read({1}));
  bulkRead(R"([{"index": 1, "h": 1, "v": 2}])", {1});
  expectBlank();
  EXPECT_FALSE(read({1}, true));
  EXPECT_EQ(text(), "1920 x 1080");
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(UnindexedVideoResolution, readsTheOneRecord)
{
  EXPECT_FALSE(read({}));
  EXPECT_EQ(text(), "800 x 600");
  EXPECT_EQ(requestCount(), 2U);
  bulkRead(R"({"h": 1, "v": 2})", {});
  EXPECT_EQ(text(), "1 x 2");
}
