// SPDX-License-Identifier: MIT
// The texts that show what Db derives.
#include "Clock.h"
#include "KitPage.h"
#include "ScriptedStore.h"
#include "WTextRxKeyboardLayout.h"
#include "WTextRxLoginDuration.h"
#include "WTextRxSesDuration.h"
#include "WTextRxSesMode.h"
#include "WTextRxStatus.h"
#include "WTextRxSwxName.h"
#include "WTextRxSwxPort.h"
#include "WTextRxUsrName.h"
#include "WTextSwxStatus.h"
#include "WTextTxSesDuration.h"
#include "WTextTxSesMode.h"
#include "WTextTxStatus.h"
#include "WTextTxSwxName.h"
#include "WTextTxSwxPort.h"
#include "WTextTxUsrName.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

using Indexes = std::vector<unsigned int>;

// What a class shows of the records 1 and 2, which agree, and of 3, which differs.
struct Derived {
  const char *name;
  WTextDerived *(*make)(Wt::WContainerWidget *parent);
  const char *common;
  const char *other;
};

template <class Text> WTextDerived *make(Wt::WContainerWidget *parent)
{
  return new Text(parent);
}

constexpr Derived kDerived[] = {
    {"RxStatus", make<WTextRxStatus>, "In use", "Offline"},
    {"TxStatus", make<WTextTxStatus>, "In use (shared)", "Updating firmware (37%)"},
    {"SwxStatus", make<WTextSwxStatus>, "Ready", "Offline"},
    {"RxSesMode", make<WTextRxSesMode>, "Shared only", "Private only"},
    {"TxSesMode", make<WTextTxSesMode>, "Shared only", "Private only"},
    {"RxSesDuration", make<WTextRxSesDuration>, "1:01:40", "0:40"},
    {"TxSesDuration", make<WTextTxSesDuration>, "1:01:40", "0:40"},
    {"RxLoginDuration", make<WTextRxLoginDuration>, "1:01:50", "0:50"},
    {"RxUsrName", make<WTextRxUsrName>, "ann", "<b>bob</b>"},
    {"TxUsrName", make<WTextTxUsrName>, "ann", "<b>bob</b>"},
    {"RxSwxName", make<WTextRxSwxName>, "Main", "Side"},
    {"TxSwxName", make<WTextTxSwxName>, "Main", "Side"},
    {"RxKeyboardLayout", make<WTextRxKeyboardLayout>, "us", "german"},
    {"RxSwxPort", make<WTextRxSwxPort>, "4", "5"},
    {"TxSwxPort", make<WTextTxSwxPort>, "7", "8"},
};

time_t fixedTime()
{
  return 1000003700;
}

// A text on a page, and a system of three receivers, each in a session with the transmitter of its number.
class DerivedText : public testing::TestWithParam<Derived>
{
protected:
  explicit DerivedText(WTextDerived *(*make)(Wt::WContainerWidget *parent) = nullptr)
      : page_([this, make](Wt::WContainerWidget &root) { text_ = (make ? make : GetParam().make)(&root); })
  {
    Clock_setSource(fixedTime);
    store_.setRecords("rx", R"([
        {"index": 1, "eid": "A1", "status": "ready", "upgradeStatus": "idle", "usage": "usable",
         "keyboardLayout": "us"},
        {"index": 2, "eid": "A2", "status": "ready", "upgradeStatus": "idle", "usage": "usable",
         "keyboardLayout": "us"},
        {"index": 3, "eid": "A3", "status": "offline", "upgradeStatus": "idle", "usage": "usable",
         "keyboardLayout": "german"},
        {"index": 4, "eid": "A4"}])");
    store_.setRecords("tx", R"([
        {"index": 1, "eid": "B1", "status": "ready", "upgradeStatus": "idle", "usage": "usable"},
        {"index": 2, "eid": "B2", "status": "ready", "upgradeStatus": "idle", "usage": "usable"},
        {"index": 3, "eid": "B3", "status": "ready", "upgradeStatus": "upgrading", "upgradePercent": 37,
         "usage": "usable"}])");
    store_.setRecords("swx", R"([
        {"index": 1, "name": "Main", "status": "ready", "upgradeStatus": "idle", "usage": "usable"},
        {"index": 2, "name": "Main", "status": "ready", "upgradeStatus": "idle", "usage": "usable"},
        {"index": 3, "name": "Side", "status": "offline", "upgradeStatus": "idle", "usage": "usable"}])");
    store_.setRecords("connection", R"([
        {"index": 31, "rxIndex": 1, "txIndex": 1, "mode": "share_mode", "sessionStartTime": 1000000000},
        {"index": 32, "rxIndex": 2, "txIndex": 2, "mode": "share_mode", "sessionStartTime": 1000000000},
        {"index": 33, "rxIndex": 3, "txIndex": 3, "mode": "private_mode", "sessionStartTime": 1000003660}])");
    store_.setRecords("userSession", R"([
        {"index": 21, "rxIndex": 1, "userIndex": 5, "sessionStartTime": 999999990},
        {"index": 22, "rxIndex": 2, "userIndex": 5, "sessionStartTime": 999999990},
        {"index": 23, "rxIndex": 3, "userIndex": 6, "sessionStartTime": 1000003650}])");
    store_.setRecords("user", R"([{"index": 5, "name": "ann"}, {"index": 6, "name": "<b>bob</b>"}])");
    store_.setRecords("portStatus", R"([
        {"index": 1, "swxIndex": 1, "ports": [{"portIndex": 4, "eid": "A1"}, {"portIndex": 7, "eid": "B1"}]},
        {"index": 2, "swxIndex": 2, "ports": [{"portIndex": 4, "eid": "A2"}, {"portIndex": 7, "eid": "B2"}]},
        {"index": 3, "swxIndex": 3, "ports": [{"portIndex": 5, "eid": "A3"}, {"portIndex": 8, "eid": "B3"}]}])");
  }
  ~DerivedText() override { Clock_setSource(nullptr); }

  // Whether the read failed.
  bool read(Indexes indexes)
  {
    bool failed = false;
    page_.act([&] { failed = text_->readFromDatabase(indexes, errors_); });
    return failed;
  }
  std::string shown() const { return text_->text().toUTF8(); }

  ScriptedStore store_;
  std::vector<std::string> errors_;
  WTextDerived *text_ = nullptr;
  KitPage page_;
};

// One class each, for what is true of it alone or need not be seen of all.
template <class Text> class DerivedTextOf : public DerivedText
{
protected:
  DerivedTextOf() : DerivedText(make<Text>) {}
};

using SessionModeText = DerivedTextOf<WTextRxSesMode>;
using PortText = DerivedTextOf<WTextRxSwxPort>;
using LayoutText = DerivedTextOf<WTextRxKeyboardLayout>;
using StatusText = DerivedTextOf<WTextRxStatus>;

} // namespace

INSTANTIATE_TEST_SUITE_P(Texts, DerivedText, testing::ValuesIn(kDerived),
                         [](const auto &derived) { return derived.param.name; });

TEST_P(DerivedText, showsWhatIsTrueOfAllRecords)
{
  EXPECT_EQ(shown(), "");
  EXPECT_FALSE(read({1}));
  EXPECT_EQ(shown(), GetParam().common);
  EXPECT_FALSE(read({3}));
  EXPECT_EQ(shown(), GetParam().other);
  EXPECT_FALSE(read({2, 1, 2}));
  EXPECT_EQ(shown(), GetParam().common);
  EXPECT_THAT(errors_, IsEmpty());
}

TEST_P(DerivedText, isBlankWhereRecordsDifferWhichIsNoFailure)
{
  read({1});
  EXPECT_FALSE(read({1, 2, 3}));
  EXPECT_EQ(shown(), "");
  EXPECT_THAT(errors_, IsEmpty());
}

TEST_P(DerivedText, asksForNoRecordBehindTheFirstThatDiffers)
{
  read({1, 3});
  const std::vector<std::string> both = store_.requests();
  store_.forgetRequests();
  EXPECT_FALSE(read({1, 3, 2, 99}));
  EXPECT_EQ(store_.requests(), both);
}

TEST_P(DerivedText, isBlankForNoRecordsWithoutARequest)
{
  read({1});
  store_.forgetRequests();
  EXPECT_FALSE(read({}));
  EXPECT_EQ(shown(), "");
  EXPECT_THAT(store_.requests(), IsEmpty());
}

TEST_P(DerivedText, showsTextsOfTheStoreAsTheyAre)
{
  read({3});
  EXPECT_TRUE(page_.visitor.shows(GetParam().other));
}

TEST_P(DerivedText, isBlankAndFailsWhereOneRecordCannotBeTold)
{
  // Only the layout can always be told.
  const bool fails = std::string(GetParam().name) != "RxKeyboardLayout";
  for (const Indexes &indexes : {Indexes{1, 2, 99}, Indexes{99, 1}}) {
    read({1});
    EXPECT_EQ(read(indexes), fails);
    EXPECT_EQ(shown(), "");
  }
}

TEST_F(LayoutText, isUnknownWhereItCannotBeRead)
{
  EXPECT_FALSE(read({99}));
  EXPECT_EQ(shown(), "unknown");
  EXPECT_FALSE(read({99, 1}));
  EXPECT_EQ(shown(), "");
}

TEST_F(SessionModeText, isBlankWhereTwoReceiversAgreeAndAThirdHasNoSession)
{
  EXPECT_TRUE(read({1, 2, 4}));
  EXPECT_EQ(shown(), "");
  EXPECT_THAT(errors_, IsEmpty());
}

TEST_F(SessionModeText, isBlankForAModeThatIsNotKnownWhateverWasShownBefore)
{
  store_.setRecords("connection", R"([{"index": 31, "rxIndex": 1, "mode": "share_mode"},
                                      {"index": 32, "rxIndex": 2, "mode": "garbage"}])");
  read({1});
  EXPECT_FALSE(read({2}));
  EXPECT_EQ(shown(), "");
  EXPECT_FALSE(read({1, 2}));
  EXPECT_EQ(shown(), "");
}

TEST_F(PortText, isZeroForAReceiverThatNoSwitchKnows)
{
  EXPECT_FALSE(read({4}));
  EXPECT_EQ(shown(), "0");
}

TEST_F(StatusText, appendsWhatTheStoreSaysToTheErrors)
{
  errors_ = {"before"};
  store_.fail("GET", "rx", R"([{"errno": 7}])");
  EXPECT_TRUE(read({1}));
  EXPECT_THAT(errors_, ElementsAre("before", "Not found."));
  store_.hangUp("GET", "rx");
  EXPECT_TRUE(read({1}));
  EXPECT_THAT(errors_, SizeIs(2));
  EXPECT_EQ(shown(), "");
}
