// SPDX-License-Identifier: MIT
// The bound widgets that only show a text: as it is, and as a link.
#include "BoundPage.h"
#include "WAnchorZel.h"
#include "WTextZel.h"

#include <Wt/WLink>

using testing::ElementsAre;
using testing::SizeIs;

namespace
{

constexpr char kWithoutBrackets[] = "ZELKEYS_SWX_NETWORK_IPV6_IP_ADDRESS";

template <class Widget> class BoundText : public BoundPage<Widget>
{
protected:
  explicit BoundText(const char *resource = "rx", const char *param = "s", bool indexed = true)
      : BoundPage<Widget>(
            [=](Wt::WContainerWidget &root) { return new Widget(resource, param, indexed, &root); })
  {
    this->store_.setRecords("rx", R"([{"index": 1, "s": "fe80::1"}, {"index": 2, "s": "fe80::1"},
                                      {"index": 3, "s": "fe80::3"}, {"index": 4, "s": "<b>&lt;"},
                                      {"index": 5, "ZELKEYS_SWX_NETWORK_IPV6_IP_ADDRESS": "10.0.0.5"}])");
    this->store_.setRecords("systemGlobals", R"({"s": "one"})");
  }
};

using Texts = testing::Types<WTextZel, WAnchorZel>;
TYPED_TEST_SUITE(BoundText, Texts);

class BoundAnchor : public BoundText<WAnchorZel>
{
protected:
  explicit BoundAnchor(const char *resource = "rx", const char *param = "s", bool indexed = true)
      : BoundText(resource, param, indexed)
  {
  }
  std::string link() const { return widget_->link().url(); }
};

class BareBoundAnchor : public BoundAnchor
{
protected:
  BareBoundAnchor() : BoundAnchor("rx", kWithoutBrackets) {}
};

class UnindexedBoundAnchor : public BoundAnchor
{
protected:
  UnindexedBoundAnchor() : BoundAnchor("systemGlobals", "s", false) {}
};

} // namespace

TYPED_TEST(BoundText, showsTheValueOnWhichAllRecordsAgree)
{
  EXPECT_FALSE(this->read({1, 2}));
  EXPECT_EQ(this->text(), "fe80::1");
  EXPECT_EQ(this->requestCount(), 2U);
}

TYPED_TEST(BoundText, isBlankWhereRecordsDifferAndReadsNoneBehindTheFirstThatDiffers)
{
  this->read({1});
  EXPECT_FALSE(this->read({1, 3, 2}));
  EXPECT_EQ(this->text(), "");
  EXPECT_EQ(this->requestCount(), 3U);
}

TYPED_TEST(BoundText, isBlankAfterAFailure)
{
  this->read({1});
  this->setChanged();
  EXPECT_TRUE(this->read({1, 99}, true));
  EXPECT_EQ(this->text(), "");
  EXPECT_TRUE(this->widget_->hasChangedContent());
  EXPECT_THAT(this->errors_, SizeIs(1));
}

TYPED_TEST(BoundText, isBlankForNoRecordsWithoutARequest)
{
  this->read({1});
  this->store_.forgetRequests();
  EXPECT_FALSE(this->read({}));
  EXPECT_EQ(this->text(), "");
  this->bulkRead(R"({"s": "a"})", {1});
  this->setChanged();
  this->bulkRead(R"({"s": "a"})", {}, true);
  EXPECT_EQ(this->text(), "");
  EXPECT_TRUE(this->widget_->hasChangedContent());
  EXPECT_EQ(this->requestCount(), 0U);
}

TYPED_TEST(BoundText, takesItsTextFromAResponse)
{
  this->setChanged();
  this->bulkRead(R"({"s": "new"})", {1}, true);
  EXPECT_EQ(this->text(), "new");
  EXPECT_FALSE(this->widget_->hasChangedContent());
  this->bulkRead(R"([{"index": 4, "s": "a"}, {"index": 9, "s": "a"}])", {9, 4});
  EXPECT_EQ(this->text(), "a");
  this->bulkRead(R"([{"index": 4, "s": "a"}, {"index": 9, "s": "b"}])", {9, 4});
  EXPECT_EQ(this->text(), "");
  this->bulkRead(R"({"s": "new"})", {1});
  this->bulkRead(R"([{"index": 4, "s": "a"}])", {9, 4});
  EXPECT_EQ(this->text(), "");
  EXPECT_EQ(this->requestCount(), 0U);
}

TYPED_TEST(BoundText, showsMarkupOfTheStoreAsPlainText)
{
  EXPECT_FALSE(this->read({4}));
  EXPECT_EQ(this->text(), "<b>&lt;");
  EXPECT_NE(this->visitor_.byText("<b>&lt;"), nullptr);
  this->bulkRead(R"({"s": "<i>x</i>"})", {1});
  EXPECT_NE(this->visitor_.byText("<i>x</i>"), nullptr);
}

TYPED_TEST(BoundText, writesNothingAndCallsThatAFailure)
{
  this->setChanged();
  EXPECT_TRUE(this->write({1}));
  EXPECT_EQ(this->added(), "{}");
  EXPECT_EQ(this->requestCount(), 0U);
}

TYPED_TEST(BoundText, isReadOnlyByForceWhileItCountsAsChanged)
{
  this->read({1});
  this->setChanged();
  EXPECT_FALSE(this->read({3}));
  this->bulkRead(R"({"s": "a"})", {1});
  EXPECT_EQ(this->text(), "fe80::1");
  EXPECT_FALSE(this->read({3}, true));
  EXPECT_EQ(this->text(), "fe80::3");
  EXPECT_FALSE(this->widget_->hasChangedContent());
}

// ---- the link

TEST_F(BoundAnchor, linksToTheAddressInBracketsInANewWindow)
{
  EXPECT_FALSE(read({1}));
  EXPECT_EQ(link(), "https://[fe80::1]");
  EXPECT_EQ(widget_->target(), Wt::TargetNewWindow);
  bulkRead(R"({"s": "fe80::2"})", {1});
  EXPECT_EQ(link(), "https://[fe80::2]");
  EXPECT_EQ(field()->get("target"), "_blank");
}

TEST_F(BareBoundAnchor, linksToTheAddressWithoutBracketsForOneParameter)
{
  EXPECT_FALSE(read({5}));
  EXPECT_EQ(text(), "10.0.0.5");
  EXPECT_EQ(link(), "https://10.0.0.5");
  bulkRead(R"({"ZELKEYS_SWX_NETWORK_IPV6_IP_ADDRESS": "10.0.0.6"})", {5});
  EXPECT_EQ(link(), "https://10.0.0.6");
  EXPECT_EQ(widget_->target(), Wt::TargetNewWindow);
}

TEST_F(BoundAnchor, keepsItsLinkWithoutRecordsAndAfterAReadThatFailed)
{
  read({1});
  read({});
  EXPECT_EQ(link(), "https://[fe80::1]");
  bulkRead(R"({"s": "a"})", {});
  EXPECT_EQ(text(), "");
  EXPECT_EQ(link(), "https://[fe80::1]");
  EXPECT_TRUE(read({99}));
  EXPECT_EQ(link(), "https://[fe80::1]");
}

TEST_F(BoundAnchor, linksToEmptyBracketsWhereRecordsDifferOrABulkReadFailed)
{
  read({1});
  EXPECT_FALSE(read({1, 3}));
  EXPECT_EQ(link(), "https://[]");
  read({1});
  bulkRead(R"({"t": "a"})", {1});
  EXPECT_EQ(text(), "");
  EXPECT_EQ(link(), "https://[]");
  read({1});
  bulkRead(R"([{"index": 4, "s": "a"}, {"index": 9, "s": "b"}])", {9, 4});
  EXPECT_EQ(link(), "https://[]");
}

TEST_F(UnindexedBoundAnchor, readsTheOneRecord)
{
  EXPECT_FALSE(read({8, 9}));
  EXPECT_EQ(text(), "one");
  EXPECT_THAT(store_.requests(),
              ElementsAre(R"({"method":"GET","resource":"systemGlobals","select":["s"]})"));
}
