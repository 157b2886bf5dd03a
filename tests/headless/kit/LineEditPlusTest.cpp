// SPDX-License-Identifier: MIT
#include "KitPage.h"
#include "WLineEditPlus.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

// A field that starts with "old", and another to leave it for.
class LineEditPlus : public testing::Test
{
protected:
  LineEditPlus()
      : page_([this](Wt::WContainerWidget &root) {
          edit_ = new WLineEditPlus("old", &root);
          edit_->setAttributeValue("aria-label", "Edit");
          edit_->valueChanged().connect(this, &LineEditPlus::record);
          Wt::WLineEdit *other = new Wt::WLineEdit(&root);
          other->focussed().connect(std::bind([] {})); // only then is its focus told
          other->setAttributeValue("aria-label", "Other");
        }),
        visitor_(page_.visitor)
  {
  }

  void record(const std::string &value) { changes_.push_back(value); }
  void enter() { visitor_.focusOn(visitor_.field("Edit")); }
  void leave() { visitor_.focusOn(visitor_.field("Other")); }
  void type(const std::string &text) { visitor_.typeWithoutLeaving(visitor_.field("Edit"), text); }
  void set(const std::string &text)
  {
    page_.act([&] { edit_->setText(Wt::WString::fromUTF8(text)); });
  }
  std::string shown() { return visitor_.field("Edit")->get(".value"); }

  std::vector<std::string> changes_;
  WLineEditPlus *edit_ = nullptr;
  KitPage page_;
  Visitor &visitor_;
};

} // namespace

TEST_F(LineEditPlus, tellsOfAnEditWithinHalfASecondWhileItHasTheFocus)
{
  enter();
  type("ne\xc3\xa9");
  EXPECT_THAT(changes_, IsEmpty());
  visitor_.advance(500ms);
  EXPECT_THAT(changes_, ElementsAre("ne\xc3\xa9"));
  visitor_.advance(5s);
  EXPECT_EQ(changes_.size(), 1U);
}

TEST_F(LineEditPlus, tellsOfAnEditAtOnceWhenItIsLeft)
{
  enter();
  type("new");
  leave();
  EXPECT_THAT(changes_, ElementsAre("new"));
  visitor_.advance(5s);
  EXPECT_EQ(changes_.size(), 1U);
}

TEST_F(LineEditPlus, tellsOfNothingWhereNothingWasTyped)
{
  enter();
  visitor_.advance(5s);
  leave();
  EXPECT_THAT(changes_, IsEmpty());
}

TEST_F(LineEditPlus, tellsOfEveryEdit)
{
  enter();
  type("a");
  visitor_.advance(500ms);
  type("ab");
  visitor_.advance(500ms);
  type("a");
  visitor_.advance(500ms);
  EXPECT_THAT(changes_, ElementsAre("a", "ab", "a"));
}

TEST_F(LineEditPlus, looksAsOftenAsItIsToldTo)
{
  page_.act([&] { edit_->timerIntervalSet(2000); });
  enter();
  type("new");
  visitor_.advance(1999ms);
  EXPECT_THAT(changes_, IsEmpty());
  visitor_.advance(1ms);
  EXPECT_THAT(changes_, ElementsAre("new"));
}

TEST_F(LineEditPlus, looksOnlyWhileItHasTheFocus)
{
  const std::size_t alarms = page_.site.scheduler.alarms();
  enter();
  EXPECT_EQ(page_.site.scheduler.alarms(), alarms + 1);
  leave();
  EXPECT_EQ(page_.site.scheduler.alarms(), alarms);
}

TEST_F(LineEditPlus, takesATextOfTheProgramWithoutCallingItAnEdit)
{
  set("set");
  EXPECT_EQ(shown(), "set");
  enter();
  visitor_.advance(1s);
  leave();
  EXPECT_THAT(changes_, IsEmpty());
}

TEST_F(LineEditPlus, dropsATextOfTheProgramWhileItHasTheFocus)
{
  enter();
  set("set");
  EXPECT_EQ(shown(), "old");
  leave();
  set("set");
  EXPECT_EQ(shown(), "set");
}

TEST_F(LineEditPlus, dropsATextOfTheProgramWhileAnEditWasNotToldYet)
{
  // A change without the focus, as a browser's filling-in makes it.
  visitor_.type(visitor_.field("Edit"), "typed");
  visitor_.page().focus = 0;
  set("set");
  EXPECT_EQ(page_.visitor.field("Edit")->get(".value"), "typed");
}

TEST_F(LineEditPlus, mayDieWhileItLooks)
{
  enter();
  type("new");
  page_.act([&] { delete edit_; });
  visitor_.advance(5s);
  EXPECT_THAT(changes_, IsEmpty());
}
