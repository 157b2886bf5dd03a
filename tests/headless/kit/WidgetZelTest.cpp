// SPDX-License-Identifier: MIT
// What all bound widgets have in common.
#include "BoundPage.h"
#include "WLineEditZel.h"

#include <functional>

namespace
{

class ShowingZel : public WWidgetZel
{
public:
  ShowingZel() : WWidgetZel("rx", "s", true) {}
  bool readFromDatabase(std::vector<unsigned int> &, std::vector<std::string> &, bool) override
  {
    return false;
  }
  void getZelParam(json_t *, std::vector<unsigned int> &, bool) override {}
};

} // namespace

TEST(WidgetZel, isNotChangedAtFirstAndThenWhatItIsCalled)
{
  ShowingZel widget;
  EXPECT_FALSE(widget.hasChangedContent());
  widget.setContentChanged();
  EXPECT_TRUE(widget.hasChangedContent());
  widget.clearContentChanged();
  EXPECT_FALSE(widget.hasChangedContent());
}

TEST(WidgetZel, writesNothingUnlessItsClassDoes)
{
  ShowingZel widget;
  widget.setContentChanged();
  std::vector<unsigned int> indexes = {1};
  std::vector<std::string> errors;
  EXPECT_TRUE(widget.writeToDatabase(indexes, errors));
  EXPECT_TRUE(errors.empty());
  const JsonValue params = jsonOf("{}");
  widget.setZelParam(params.get());
  EXPECT_EQ(textOf(params.get()), "{}");
}

TEST(WidgetZel, tellsOfAChangeWhoeverListensUnlessItsSignalIsBlocked)
{
  ShowingZel widget;
  widget.signalAContentChange();
  int told = 0;
  widget.contentChanged().connect(std::bind([&] { ++told; }));
  widget.signalAContentChange();
  EXPECT_EQ(told, 1);
  widget.contentChanged().setBlocked(true);
  widget.signalAContentChange();
  EXPECT_EQ(told, 1);
}

// ---- several widgets together, as a settings table uses them

TEST(WidgetZel, sendsOnlyWhatWasChangedOfARecord)
{
  ScriptedStore store;
  store.setRecords(
      "rx", R"([{"index": 1, "name": "a", "location": "x"}, {"index": 2, "name": "b", "location": "x"}])");
  WLineEditZel *name = nullptr;
  WLineEditZel *location = nullptr;
  KitPage page([&](Wt::WContainerWidget &root) {
    name = new WLineEditZel("rx", "name", true, &root);
    location = new WLineEditZel("rx", "location", true, &root);
    location->setAttributeValue("aria-label", "Location");
  });
  Indexes both = {1, 2};
  page.act([&] {
    std::vector<std::string> errors;
    name->readFromDatabase(both, errors, false);
    location->readFromDatabase(both, errors, false);
  });
  EXPECT_EQ(name->text().toUTF8(), "");
  page.visitor.focusOn(page.visitor.field("Location"));
  page.visitor.typeWithoutLeaving(page.visitor.field("Location"), "y");
  page.visitor.advance(std::chrono::milliseconds(500));
  const JsonValue params = jsonOf(R"({"index": 1})");
  page.act([&] {
    name->setZelParam(params.get());
    location->setZelParam(params.get());
  });
  EXPECT_EQ(textOf(params.get()), R"({"index":1,"location":"y"})");
}
