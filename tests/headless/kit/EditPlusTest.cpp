// SPDX-License-Identifier: MIT
#include "KitPage.h"
#include "WLineEditPlus.h"
#include "WTextAreaPlus.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

// A field that starts with "old", and another to leave it for.
template <class Edit> class EditPlus : public testing::Test
{
protected:
  EditPlus()
      : page_([this](Wt::WContainerWidget &root) {
          edit_ = new Edit(&root);
          edit_->setText("old");
          edit_->setAttributeValue("aria-label", "Edit");
          edit_->valueChanged().connect(this, &EditPlus::record);
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
  Edit *edit_ = nullptr;
  KitPage page_;
  Visitor &visitor_;
};

using Edits = testing::Types<WLineEditPlus, WTextAreaPlus>;
TYPED_TEST_SUITE(EditPlus, Edits);

} // namespace

TEST(LineEditPlus, takesItsFirstTextWithoutCallingItAnEdit)
{
  int changes = 0;
  KitPage page([&](Wt::WContainerWidget &root) {
    WLineEditPlus *edit = new WLineEditPlus("first", &root);
    edit->setAttributeValue("aria-label", "Edit");
    edit->valueChanged().connect(std::bind([&] { ++changes; }));
  });
  EXPECT_EQ(page.visitor.field("Edit")->get(".value"), "first");
  page.visitor.focusOn(page.visitor.field("Edit"));
  page.visitor.advance(5s);
  EXPECT_EQ(changes, 0);
}

TYPED_TEST(EditPlus, tellsOfAnEditWithinHalfASecondWhileItHasTheFocus)
{
  this->enter();
  this->type("ne\xc3\xa9");
  EXPECT_THAT(this->changes_, IsEmpty());
  this->visitor_.advance(500ms);
  EXPECT_THAT(this->changes_, ElementsAre("ne\xc3\xa9"));
  this->visitor_.advance(5s);
  EXPECT_EQ(this->changes_.size(), 1U);
}

TYPED_TEST(EditPlus, tellsOfAnEditAtOnceWhenItIsLeft)
{
  this->enter();
  this->type("new");
  this->leave();
  EXPECT_THAT(this->changes_, ElementsAre("new"));
  this->visitor_.advance(5s);
  EXPECT_EQ(this->changes_.size(), 1U);
}

TYPED_TEST(EditPlus, tellsOfNothingWhereNothingWasTyped)
{
  this->enter();
  this->visitor_.advance(5s);
  this->leave();
  EXPECT_THAT(this->changes_, IsEmpty());
}

TYPED_TEST(EditPlus, tellsOfEveryEdit)
{
  this->enter();
  this->type("a");
  this->visitor_.advance(500ms);
  this->type("ab");
  this->visitor_.advance(500ms);
  this->type("a");
  this->visitor_.advance(500ms);
  EXPECT_THAT(this->changes_, ElementsAre("a", "ab", "a"));
}

TYPED_TEST(EditPlus, looksAsOftenAsItIsToldTo)
{
  this->page_.act([&] { this->edit_->timerIntervalSet(2000); });
  this->enter();
  this->type("new");
  this->visitor_.advance(1999ms);
  EXPECT_THAT(this->changes_, IsEmpty());
  this->visitor_.advance(1ms);
  EXPECT_THAT(this->changes_, ElementsAre("new"));
}

TYPED_TEST(EditPlus, looksOnlyWhileItHasTheFocus)
{
  const std::size_t alarms = this->page_.site.scheduler.alarms();
  this->enter();
  EXPECT_EQ(this->page_.site.scheduler.alarms(), alarms + 1);
  this->leave();
  EXPECT_EQ(this->page_.site.scheduler.alarms(), alarms);
}

TYPED_TEST(EditPlus, takesATextOfTheProgramWithoutCallingItAnEdit)
{
  this->set("set");
  EXPECT_EQ(this->shown(), "set");
  this->enter();
  this->visitor_.advance(1s);
  this->leave();
  EXPECT_THAT(this->changes_, IsEmpty());
}

TYPED_TEST(EditPlus, dropsATextOfTheProgramWhileItHasTheFocus)
{
  this->enter();
  this->set("set");
  EXPECT_EQ(this->shown(), "old");
  this->leave();
  this->set("set");
  EXPECT_EQ(this->shown(), "set");
}

TYPED_TEST(EditPlus, dropsATextOfTheProgramWhileAnEditWasNotToldYet)
{
  // A change without the focus, as a browser's filling-in makes it.
  this->visitor_.type(this->visitor_.field("Edit"), "typed");
  this->visitor_.page().focus = 0;
  this->set("set");
  EXPECT_EQ(this->page_.visitor.field("Edit")->get(".value"), "typed");
}

TYPED_TEST(EditPlus, mayDieWhileItLooks)
{
  this->enter();
  this->type("new");
  this->page_.act([&] { delete this->edit_; });
  this->visitor_.advance(5s);
  EXPECT_THAT(this->changes_, IsEmpty());
}
