// SPDX-License-Identifier: MIT
#include "KitPage.h"
#include "WMsgBox.h"
#include "WMsgBoxDbErr.h"
#include "WMsgBoxSimple.h"
#include "WProgressDialog.h"

#include <gtest/gtest.h>
#include <memory>

using namespace std::chrono_literals;

namespace
{

// A page whose button "Ask" shows a WMsgBox and keeps what came of it.
class MessageBox : public testing::Test
{
protected:
  explicit MessageBox()
      : page_([this](Wt::WContainerWidget &root) { KitPage::addButton(root, "Ask", [this] { ask(); }); }),
        visitor_(page_.visitor)
  {
  }

  void ask()
  {
    WMsgBox box(type_);
    box.titleSet("Title");
    box.msgSet(Wt::WString("Message"));
    for (const std::string &text : buttons_)
      box.buttonAdd(Wt::WString::fromUTF8(text));
    if (withCheckBox_)
      box.checkBoxSet("Do not show this message again.");
    code_ = milliseconds_ ? box.execWithTimeout(milliseconds_) : box.exec();
    clicked_ = box.buttonClicked();
    checked_ = withCheckBox_ && box.isCheckBoxChecked();
    done_ = true;
  }
  void open() { ASSERT_TRUE(visitor_.click(visitor_.button("Ask"))); }
  void escape() { visitor_.event(visitor_.dialog(), "dialog:escape"); }
  Visitor::Node *checkBox() { return visitor_.byAttribute("type", "checkbox"); }

  WMsgBox::MsgType type_ = WMsgBox::MsgWarning;
  std::vector<std::string> buttons_ = {"Delete", "Cancel"};
  bool withCheckBox_ = false;
  unsigned int milliseconds_ = 0;
  bool done_ = false;
  bool checked_ = false;
  int clicked_ = -1;
  Wt::WDialog::DialogCode code_ = Wt::WDialog::Rejected;
  KitPage page_;
  Visitor &visitor_;
};

// A page on which a dialog of that kind is built and shown.
class Shown
{
public:
  explicit Shown(std::function<Wt::WDialog *()> make)
      : page([this, make = std::move(make)](Wt::WContainerWidget &) {
          dialog.reset(make());
          dialog->show();
        })
  {
  }
  ~Shown()
  {
    page.act([this] { dialog.reset(); });
  }

  std::unique_ptr<Wt::WDialog> dialog;
  KitPage page;
};

const char *const kSigns[] = {"resources/themes/halden/event-severity-info.png",
                              "resources/themes/halden/event-severity-warning.png",
                              "resources/themes/halden/event-severity-error.png"};

} // namespace

// ---- WMsgBox

TEST_F(MessageBox, showsTitleMessageAndSeverity)
{
  for (const int type : {0, 1, 2}) {
    type_ = static_cast<WMsgBox::MsgType>(type);
    open();
    EXPECT_EQ(visitor_.dialogText(), "Title Message Cancel Delete");
    EXPECT_TRUE(visitor_.byAttribute("src", kSigns[type]));
    EXPECT_EQ(visitor_.byAttribute("src", kSigns[type])->get("*height"), "16px");
    escape();
  }
}

TEST_F(MessageBox, putsTheFirstButtonRightmostAndGivesItTheFocus)
{
  buttons_ = {"One", "Two", "Three"};
  open();
  EXPECT_EQ(visitor_.dialogText(), "Title Message Three Two One");
  EXPECT_EQ(visitor_.page().find(visitor_.page().focus), visitor_.button("One"));
}

TEST_F(MessageBox, tellsWhichButtonWasPressed)
{
  buttons_ = {"One", "Two", "Three"};
  for (int number = 1; number <= 3; ++number) {
    open();
    ASSERT_TRUE(visitor_.click(visitor_.button(buttons_[number - 1])));
    EXPECT_TRUE(done_);
    EXPECT_EQ(clicked_, number);
    EXPECT_EQ(code_, Wt::WDialog::Accepted);
    EXPECT_FALSE(visitor_.dialog());
  }
}

TEST_F(MessageBox, dropsAFourthButton)
{
  buttons_ = {"One", "Two", "Three", "Four"};
  open();
  EXPECT_FALSE(visitor_.shows("Four"));
  EXPECT_EQ(visitor_.dialogText(), "Title Message Three Two One");
}

TEST_F(MessageBox, endsByEscapeWithoutAButtonButWithWhatWasTicked)
{
  withCheckBox_ = true;
  open();
  ASSERT_TRUE(visitor_.check(checkBox(), true));
  escape();
  EXPECT_TRUE(done_);
  EXPECT_EQ(clicked_, 0);
  EXPECT_TRUE(checked_);
  EXPECT_EQ(code_, Wt::WDialog::Rejected);
}

TEST_F(MessageBox, tellsTheCheckBoxAsItWasLeft)
{
  withCheckBox_ = true;
  open();
  EXPECT_TRUE(visitor_.shows("Do not show this message again."));
  visitor_.click(visitor_.button("Cancel"));
  EXPECT_FALSE(checked_);
  open();
  visitor_.check(checkBox(), true);
  visitor_.check(checkBox(), false);
  visitor_.click(visitor_.button("Delete"));
  EXPECT_FALSE(checked_);
}

TEST_F(MessageBox, endsByItselfAfterItsTime)
{
  milliseconds_ = 1000;
  buttons_.clear();
  open();
  visitor_.advance(999ms);
  EXPECT_TRUE(visitor_.dialog());
  visitor_.advance(1ms);
  EXPECT_TRUE(done_);
  EXPECT_EQ(clicked_, 0);
  EXPECT_EQ(code_, Wt::WDialog::Accepted);
  EXPECT_FALSE(visitor_.dialog());
}

TEST_F(MessageBox, hasNoTimeLeftOnceAButtonWasPressed)
{
  milliseconds_ = 1000;
  const std::size_t alarms = page_.site.scheduler.alarms();
  open();
  visitor_.click(visitor_.button("Delete"));
  EXPECT_EQ(clicked_, 1);
  EXPECT_EQ(page_.site.scheduler.alarms(), alarms);
  visitor_.resetCounters();
  visitor_.advance(5s);
  EXPECT_EQ(visitor_.bytesReceived(), 0U);
}

TEST(MessageBoxText, isPlainWhereItWasMadeAlready)
{
  Shown shown([] {
    WMsgBox *box = new WMsgBox(WMsgBox::MsgInfo);
    box->msgSet("<b>Rx</b> &amp; \xc3\xa9");
    return box;
  });
  ASSERT_TRUE(shown.page.visitor.byText("<b>Rx</b> &amp; \xc3\xa9"));
}

TEST(MessageBoxText, canBeSetAgain)
{
  Shown shown([] {
    WMsgBox *box = new WMsgBox(WMsgBox::MsgInfo);
    box->msgSet("First");
    box->msgSet("Second");
    return box;
  });
  EXPECT_EQ(shown.page.visitor.dialogText(), "Second");
}

// ---- WMsgBoxDbErr

TEST(StoreErrorBox, headsTheStoresMessagesWithWhatFailed)
{
  const struct {
    int type;
    const char *heading;
  } cases[] = {{0, "Error reading value(s)."},     {1, "Error writing value(s)."},
               {2, "Error creating record(s)."},   {3, "Error deleting record(s)."},
               {4, "Error performing operation."}, {17, "Error performing operation."}};
  for (const auto &one : cases) {
    Shown shown([&one] {
      std::vector<std::string> errors = {"Too long.", "<b>Not</b> found."};
      return new WMsgBoxDbErr(static_cast<WMsgBoxDbErr::AccessType>(one.type), errors);
    });
    EXPECT_EQ(shown.page.visitor.dialogText(),
              std::string("Error ") + one.heading + " Too long. <b>Not</b> found. Close");
    EXPECT_TRUE(shown.page.visitor.byAttribute("src", kSigns[2]));
  }
}

TEST(StoreErrorBox, showsTheHeadingAloneWhereThereAreNoMessages)
{
  Shown shown([] {
    std::vector<std::string> errors;
    return new WMsgBoxDbErr(WMsgBoxDbErr::AccessRead, errors);
  });
  EXPECT_TRUE(shown.page.visitor.shows("Error reading value(s)."));
}

TEST(StoreErrorBox, endsWithClose)
{
  bool done = false;
  KitPage page([&done](Wt::WContainerWidget &root) {
    KitPage::addButton(root, "Fail", [&done] {
      std::vector<std::string> errors;
      WMsgBoxDbErr box(WMsgBoxDbErr::AccessWrite, errors);
      done = box.exec() == Wt::WDialog::Accepted;
    });
  });
  page.visitor.click(page.visitor.button("Fail"));
  EXPECT_FALSE(done);
  ASSERT_TRUE(page.visitor.click(page.visitor.button("Close")));
  EXPECT_TRUE(done);
  EXPECT_FALSE(page.visitor.dialog());
}

// ---- WMsgBoxSimple

TEST(SimpleBox, hasOneButtonWhereTheSecondHasNoText)
{
  Shown shown([] { return new WMsgBoxSimple(WMsgBoxSimple::MsgInfo, "Title", "Message", "Ok", ""); });
  EXPECT_EQ(shown.page.visitor.dialogText(), "Title Message Ok");
  EXPECT_EQ(shown.page.visitor.page()
                .findAll([](const Visitor::Node &n) { return n.tag == "button" && n.visible(); })
                .size(),
            1U);
  EXPECT_EQ(dynamic_cast<WMsgBoxSimple &>(*shown.dialog).button2, nullptr);
}

TEST(SimpleBox, showsTheSignOfAnErrorForAnyOtherSeverity)
{
  for (const int type : {0, 1, 2, 3, -1}) {
    Shown shown([type] {
      return new WMsgBoxSimple(static_cast<WMsgBoxSimple::MsgType>(type), "Title", "Message", "One", "Two");
    });
    EXPECT_EQ(shown.page.visitor.dialogText(), "Title Message One Two");
    EXPECT_TRUE(shown.page.visitor.byAttribute("src", kSigns[type >= 0 && type < 2 ? type : 2])) << type;
  }
}

TEST(SimpleBox, endsByEscapeAndTellsIt)
{
  int finished = 0;
  Shown shown([&finished] {
    WMsgBoxSimple *box = new WMsgBoxSimple(WMsgBoxSimple::MsgInfo, "Title", "Message", "Ok");
    box->finished().connect(std::bind([&finished] { ++finished; }));
    return box;
  });
  shown.page.visitor.event(shown.page.visitor.dialog(), "dialog:escape");
  EXPECT_EQ(finished, 1);
  EXPECT_FALSE(shown.page.visitor.dialog());
}

TEST(SimpleBox, wiresItsButtonsToNothing)
{
  Shown shown([] { return new WMsgBoxSimple(WMsgBoxSimple::MsgInfo, "Title", "Message", "Ok"); });
  shown.page.visitor.click(shown.page.visitor.button("Ok"));
  EXPECT_TRUE(shown.page.visitor.dialog());
}

// ---- WProgressDialog

TEST(ProgressDialog, tellsOfProgressAndEndsWithItsButton)
{
  WProgressDialog *progress = nullptr;
  Shown shown([&progress] {
    progress = new WProgressDialog(kSigns[0], "Update", "Sending", "Stop");
    return progress;
  });
  Visitor &visitor = shown.page.visitor;
  EXPECT_TRUE(visitor.shows("Update"));
  EXPECT_TRUE(visitor.shows("Sending"));
  EXPECT_TRUE(visitor.byAttribute("src", kSigns[0]));
  shown.page.act([&] { progress->progressUpdate(42); });
  EXPECT_NE(visitor.dialogText().find("42"), std::string::npos) << visitor.tree();
  shown.page.act([&] {
    progress->titleSet("Restart");
    progress->msgSet("Waiting");
    progress->buttonTextSet("Close");
  });
  EXPECT_TRUE(visitor.shows("Restart"));
  EXPECT_TRUE(visitor.shows("Waiting"));
  ASSERT_TRUE(visitor.click(visitor.button("Close")));
  EXPECT_FALSE(visitor.dialog());
}
