// SPDX-License-Identifier: MIT
// The choice among the targets that a tab supplies.
#include "BoundPage.h"
#include "WTarget.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class Target : public BoundPage<WTarget>
{
protected:
  Target() : BoundPage([](Wt::WContainerWidget &root) { return new WTarget("user", "txEID", true, &root); })
  {
  }

  void populate()
  {
    std::vector<TargetItem> items = {{1, false, "AAAAAA-000001", "mail"},
                                     {2, false, "AAAAAA-000002", ""},
                                     {3, true, "AAAAAA-000003", "in conflict"},
                                     {4, false, "AAAAAA-000004", "a (b) & <c>"}};
    page_.act([&] { widget_->populateChoices(items); });
  }
  void show(std::string eid)
  {
    page_.act([&] { widget_->setCurrentChoiceByEid(eid); });
  }
  std::vector<std::string> items()
  {
    std::vector<std::string> texts;
    for (int i = 0; i < widget_->count(); ++i)
      texts.push_back(widget_->itemText(i).toUTF8());
    return texts;
  }
  std::string shown() { return widget_->currentText().toUTF8(); }
};

} // namespace

TEST_F(Target, offersTheTargetsThatAreNotInConflict)
{
  populate();
  EXPECT_THAT(items(), ElementsAre("AAAAAA-000001 (mail)", "AAAAAA-000002", "AAAAAA-000004 (a (b) & <c>)"));
  populate();
  EXPECT_EQ(widget_->count(), 3);
}

TEST_F(Target, selectsATargetByItsEid)
{
  populate();
  show("AAAAAA-000004");
  EXPECT_EQ(widget_->currentIndex(), 2);
  show("AAAAAA-000001");
  EXPECT_EQ(widget_->currentIndex(), 0);
  EXPECT_EQ(widget_->count(), 3);
}

TEST_F(Target, isBlankForATargetThatIsNotInTheListUntilOneIs)
{
  populate();
  for (const char *eid : {"AAAAAA-000009", "AAAAAA-000003", "AAAAAA", ""}) {
    show(eid);
    EXPECT_EQ(widget_->count(), 4);
    EXPECT_EQ(widget_->currentIndex(), 3);
    EXPECT_EQ(shown(), "");
  }
  show("AAAAAA-000002");
  EXPECT_EQ(widget_->count(), 3);
  EXPECT_EQ(shown(), "AAAAAA-000002");
}

TEST_F(Target, forgetsTheBlankItemWithTheChoices)
{
  populate();
  show("");
  populate();
  EXPECT_EQ(widget_->count(), 3);
  show("");
  EXPECT_EQ(widget_->count(), 4);
}

TEST_F(Target, addsTheEidWhetherItWasChangedOrNot)
{
  populate();
  show("AAAAAA-000004");
  EXPECT_FALSE(widget_->hasChangedContent());
  EXPECT_EQ(added(), R"({"txEID":"AAAAAA-000004"})");
  setChanged();
  EXPECT_EQ(added(), R"({"txEID":"AAAAAA-000004"})");
}

TEST_F(Target, addsNothingForTheBlankItemAndWithoutTargets)
{
  EXPECT_EQ(added(), "{}");
  populate();
  show("");
  EXPECT_EQ(added(), "{}");
}

TEST_F(Target, tellsOfAChoice)
{
  populate();
  EXPECT_TRUE(visitor_.choose(field(), "AAAAAA-000002"));
  EXPECT_EQ(changes_, 1);
  EXPECT_TRUE(widget_->hasChangedContent());
}

TEST_F(Target, readsAndWritesNothingByItself)
{
  populate();
  show("AAAAAA-000002");
  setChanged();
  EXPECT_TRUE(read({1}, true));
  EXPECT_TRUE(write({1}));
  bulkRead(R"([{"index": 1, "txEID": "AAAAAA-000001"}])", {1}, true);
  EXPECT_EQ(shown(), "AAAAAA-000002");
  EXPECT_TRUE(widget_->hasChangedContent());
  EXPECT_THAT(store_.requests(), IsEmpty());
  EXPECT_THAT(errors_, IsEmpty());
}
