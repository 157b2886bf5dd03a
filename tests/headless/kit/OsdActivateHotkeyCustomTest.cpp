// SPDX-License-Identifier: MIT
#include "BoundPage.h"
#include "WOsdActivateHotkeyCustom.h"

using testing::IsEmpty;
using testing::SizeIs;

namespace
{

class OsdActivateHotkeyCustom : public BoundPage<WOsdActivateHotkeyCustom>
{
protected:
  explicit OsdActivateHotkeyCustom(bool indexed = true)
      : BoundPage([=](Wt::WContainerWidget &root) {
          return new WOsdActivateHotkeyCustom("user", "customKeys", indexed, &root);
        })
  {
  }

  Wt::Testing::Node *selector(int number) { return visitor_.byTag("select", number); }
  // The text of a selector's choice, 0 or 1.
  std::string shown(int number)
  {
    const Wt::Testing::Node *list = selector(number);
    if (!list)
      return "";
    const std::string index = list->get(".value");
    // A browser shows the first item where it was told of none.
    return list->children[index.empty() ? 0 : static_cast<std::size_t>(std::stoi(index))]->allText();
  }
  std::string shown() { return shown(0) + ", " + shown(1); }
  void choose(int number, const std::string &key)
  {
    EXPECT_TRUE(visitor_.choose(selector(number), key));
    leave();
  }
};

class UnindexedOsdActivateHotkeyCustom : public OsdActivateHotkeyCustom
{
protected:
  UnindexedOsdActivateHotkeyCustom() : OsdActivateHotkeyCustom(false) {}
};

// Sequences as the store sends them: A alone, A and B, B and A, Enter and B.
constexpr char kA[] = R"("sequence": "BAA=", "length": 1)";
constexpr char kAB[] = R"("sequence": "BAU=", "length": 2)";
constexpr char kBA[] = R"("sequence": "BQQ=", "length": 2)";
constexpr char kEnterB[] = R"("sequence": "KAU=", "length": 2)";

std::string row(unsigned int index, const std::string &members)
{
  return R"({"index": )" + std::to_string(index) + ", " + members + "}";
}

} // namespace

TEST_F(OsdActivateHotkeyCustom, isTwoSelectorsSideBySide)
{
  ASSERT_TRUE(selector(1));
  EXPECT_FALSE(selector(2));
  EXPECT_EQ(shown(), "0 - None, 0 - None");
  for (int i = 0; i < 2; ++i) {
    EXPECT_TRUE(selector(i)->hasClass("nevo-attribute-table-read-write-line-edit"));
    EXPECT_EQ(selector(i)->parent->tag, "td");
  }
  EXPECT_EQ(selector(0)->parent->parent, selector(1)->parent->parent);
  EXPECT_TRUE(widget_->isValid());
}

TEST_F(OsdActivateHotkeyCustom, showsAsManyKeysAsTheLengthSays)
{
  bulkRead("[" + row(1, kAB) + "]", {1});
  EXPECT_EQ(shown(), "4 - A, 5 - B");
  bulkRead("[" + row(1, kA) + "]", {1});
  EXPECT_EQ(shown(), "4 - A, 0 - None");
  bulkRead(R"([{"index": 1, "sequence": "BAU=", "length": 0}])", {1});
  EXPECT_EQ(shown(), "0 - None, 0 - None");
  bulkRead(R"([{"index": 1, "sequence": "BAU=", "length": 7}])", {1});
  EXPECT_EQ(shown(), "4 - A, 5 - B");
}

TEST_F(OsdActivateHotkeyCustom, showsNoKeyForACodeThatCannotBeChosen)
{
  bulkRead("[" + row(1, kEnterB) + "]", {1});
  EXPECT_EQ(shown(), "0 - None, 5 - B");
}

TEST_F(OsdActivateHotkeyCustom, showsNoKeysForAResponseWithoutThem)
{
  for (const char *response : {R"([{"index": 1}])", R"([{"index": 1, "sequence": 7, "length": "x"}])", "[]",
                               R"([{"index": 1, "sequence": "%%%", "length": 2}])"}) {
    bulkRead("[" + row(1, kAB) + "]", {1});
    bulkRead(response, {1});
    EXPECT_EQ(shown(), "0 - None, 0 - None") << response;
  }
}

TEST_F(OsdActivateHotkeyCustom, showsTheKeysOnWhichRecordsAgree)
{
  bulkRead("[" + row(9, kA) + "," + row(1, kAB) + "," + row(2, kAB) + "]", {1, 2});
  EXPECT_EQ(shown(), "4 - A, 5 - B");
}

TEST_F(OsdActivateHotkeyCustom, showsNoKeysWhereRecordsDifferInKeysOrLength)
{
  for (const char *other :
       {kBA, R"("sequence": "BAU=", "length": 1)", R"("sequence": "BAY=", "length": 2)"}) {
    bulkRead("[" + row(1, kAB) + "]", {1});
    setChanged();
    bulkRead("[" + row(1, kAB) + "," + row(2, other) + "]", {1, 2}, true);
    EXPECT_EQ(shown(), "0 - None, 0 - None");
    EXPECT_FALSE(widget_->hasChangedContent());
  }
}

TEST_F(OsdActivateHotkeyCustom, showsNoKeysWhereARecordIsMissing)
{
  bulkRead("[" + row(1, kAB) + "]", {1});
  bulkRead("[" + row(1, kAB) + "]", {1, 2});
  EXPECT_EQ(shown(), "0 - None, 0 - None");
}

TEST_F(OsdActivateHotkeyCustom, showsNoKeysWithoutRecords)
{
  bulkRead("[" + row(1, kAB) + "]", {1});
  bulkRead("[" + row(1, kAB) + "]", {});
  EXPECT_EQ(shown(), "0 - None, 0 - None");
}

TEST_F(OsdActivateHotkeyCustom, addsNothingUntouched)
{
  bulkRead("[" + row(1, kAB) + "]", {1});
  EXPECT_EQ(added(), "{}");
}

TEST_F(OsdActivateHotkeyCustom, tellsOfAChoiceInEitherSelector)
{
  choose(0, "4 - A");
  EXPECT_EQ(changes_, 1);
  EXPECT_TRUE(widget_->hasChangedContent());
  choose(1, "5 - B");
  EXPECT_EQ(changes_, 2);
}

TEST_F(OsdActivateHotkeyCustom, addsBothKeysInOrder)
{
  choose(0, "5 - B");
  choose(1, "4 - A");
  EXPECT_EQ(added(), R"({"length":2,"sequence":"BQQ="})");
}

TEST_F(OsdActivateHotkeyCustom, addsASingleKeyAsTheFirstWhicheverSelectorHasIt)
{
  choose(0, "4 - A");
  EXPECT_EQ(added(), R"({"length":1,"sequence":"BAA="})");
  choose(0, "0 - None");
  choose(1, "4 - A");
  EXPECT_EQ(added(), R"({"length":1,"sequence":"BAA="})");
  bulkRead("[" + row(1, kA) + "]", {1}, true);
  EXPECT_EQ(shown(), "4 - A, 0 - None");
}

TEST_F(OsdActivateHotkeyCustom, addsNoKeysAsAnEmptySequence)
{
  bulkRead("[" + row(1, kAB) + "]", {1});
  choose(0, "0 - None");
  choose(1, "0 - None");
  EXPECT_EQ(added(), R"({"length":0,"sequence":"AAA="})");
}

TEST_F(OsdActivateHotkeyCustom, takesTheHighestCode)
{
  choose(0, "255 - Reserved");
  choose(1, "254 - Reserved");
  EXPECT_EQ(added(), R"({"length":2,"sequence":"//4="})");
  bulkRead(R"([{"index": 1, "sequence": "//4=", "length": 2}])", {1}, true);
  EXPECT_EQ(shown(), "255 - Reserved, 254 - Reserved");
}

TEST_F(OsdActivateHotkeyCustom, leavesAChangeAloneUnlessForced)
{
  choose(0, "5 - B");
  bulkRead("[" + row(1, kA) + "]", {1});
  EXPECT_EQ(shown(), "5 - B, 0 - None");
  EXPECT_TRUE(widget_->hasChangedContent());
  bulkRead("[" + row(1, kA) + "]", {1}, true);
  EXPECT_EQ(shown(), "4 - A, 0 - None");
  EXPECT_FALSE(widget_->hasChangedContent());
}

TEST_F(OsdActivateHotkeyCustom, leavesTheKeysAloneWhileEitherSelectorHasTheFocus)
{
  for (int i = 0; i < 2; ++i) {
    bulkRead("[" + row(1, kAB) + "]", {1}, true);
    visitor_.choose(selector(i), i == 0 ? "4 - A" : "5 - B"); // without leaving it
    bulkRead("[" + row(1, kBA) + "]", {1}, true);
    EXPECT_EQ(shown(), "4 - A, 5 - B");
    leave();
    bulkRead("[" + row(1, kBA) + "]", {1}, true);
    EXPECT_EQ(shown(), "5 - B, 4 - A");
  }
}

TEST_F(OsdActivateHotkeyCustom, isEnabledAndSizedAsOne)
{
  page_.act([&] {
    widget_->setEnabled(false);
    widget_->setWidth(Wt::WLength(250));
  });
  for (int i = 0; i < 2; ++i) {
    EXPECT_TRUE(selector(i)->has("disabled"));
    EXPECT_EQ(selector(i)->get("*width"), "128px");
  }
  page_.act([&] { widget_->setEnabled(true); });
  for (int i = 0; i < 2; ++i)
    EXPECT_FALSE(selector(i)->has("disabled"));
}

TEST_F(OsdActivateHotkeyCustom, readsAndWritesNothingByItself)
{
  choose(0, "4 - A");
  EXPECT_TRUE(read({1}, true));
  EXPECT_TRUE(write({1}));
  EXPECT_EQ(shown(), "4 - A, 0 - None");
  EXPECT_TRUE(widget_->hasChangedContent());
  EXPECT_THAT(store_.requests(), IsEmpty());
  EXPECT_THAT(errors_, IsEmpty());
}

TEST_F(UnindexedOsdActivateHotkeyCustom, takesTheKeysOfTheOneRecord)
{
  bulkRead(std::string("{") + kBA + "}", {});
  EXPECT_EQ(shown(), "5 - B, 4 - A");
}
