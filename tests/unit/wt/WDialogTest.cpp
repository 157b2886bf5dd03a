// SPDX-License-Identifier: MIT
#include "WidgetPage.h"

#include <Wt/Test/WTestEnvironment>
#include <Wt/WDialog>
#include <Wt/WException>
#include <Wt/WLineEdit>
#include <Wt/WPushButton>
#include <Wt/WText>
#include <Wt/WTimer>
#include <gtest/gtest.h>

using namespace Wt;
using namespace std::chrono_literals;

namespace
{

WPushButton *button(const char *text, WContainerWidget *parent, std::function<void()> action)
{
  auto *made = new WPushButton(text, parent);
  made->clicked().connect(std::bind(std::move(action)));
  return made;
}

const char *name(WDialog::DialogCode code)
{
  return code == WDialog::Accepted ? "accepted" : "rejected";
}

/// A page with the button "Ask", which runs a dialog with "Yes" and "No" and tells the outcome.
class AskingPage
{
public:
  AskingPage()
      : page([this](WContainerWidget *root) {
          outcome = new WText("none", root);
          button("Ask", root, [this] { ask(); });
          button("Below", root, record.note("below"));
        })
  {
  }

  void ask()
  {
    WDialog dialog("Question");
    shown = &dialog;
    dialog.finished().connect(std::bind([this, &dialog] {
      record.note(std::string("finished-") + name(dialog.result()) +
                  (dialog.isHidden() ? "-hidden" : "-shown"))();
    }));
    if (escape)
      dialog.rejectWhenEscapePressed();
    button("Yes", dialog.contents(), [&dialog] { dialog.accept(); });
    button("No", dialog.contents(), [&dialog] { dialog.reject(); });
    button("Again", dialog.contents(), [this] { ask(); });
    const WDialog::DialogCode code = dialog.exec();
    record.note(std::string("returned-") + name(code) + (dialog.isHidden() ? "-hidden" : "-shown"))();
    outcome->setText(name(code));
    shown = nullptr;
  }

  Testing::Node *frame(int index = 0) const { return page.styled("Wt-dialog", index); }
  void pressEscape(int index = 0) { page.browser->script(frame(index), "dialog:escape", ""); }

  bool escape = false;
  Record record;
  WText *outcome = nullptr;
  WDialog *shown = nullptr;
  WidgetPage page;
};

/// A page with one dialog that is shown by hand.
class DialogPage
{
public:
  DialogPage()
      : page([this](WContainerWidget *root) {
          button("Below", root, record.note("below"));
          dialog = new WDialog("Title");
          dialog->finished().connect(std::bind(record.note("finished")));
          button("Inside", dialog->contents(), record.note("inside"));
        })
  {
  }

  Record record;
  WDialog *dialog = nullptr;
  WidgetPage page;
};

} // namespace

TEST(WDialog, hangsHiddenOnThePageUntilItIsShown)
{
  DialogPage p;
  EXPECT_TRUE(p.dialog->isHidden());
  EXPECT_TRUE(p.dialog->isModal());
  EXPECT_EQ(nullptr, p.page.styled("Wt-dialog"));
  p.page.run([&] { p.dialog->show(); });
  const Testing::Node *frame = p.page.styled("Wt-dialog");
  ASSERT_NE(nullptr, frame);
  EXPECT_TRUE(frame->hasClass("Wt-outset"));
  EXPECT_EQ("dialog", frame->get("role"));
  EXPECT_EQ("true", frame->get("aria-modal"));
  EXPECT_TRUE(frame->children.at(0)->hasClass("dialog-layout"));
  EXPECT_TRUE(frame->children[0]->hasClass("movable"));
  EXPECT_EQ("h4", frame->children[0]->children.at(0)->children.at(0)->tag);
  EXPECT_EQ("Title", p.page.tag("h4")->text);
  EXPECT_TRUE(frame->children[0]->children.at(1)->hasClass("body"));
}

TEST(WDialog, showsItsTitleAsText)
{
  DialogPage p;
  p.page.run([&] {
    p.dialog->setWindowTitle("<i>& co");
    p.dialog->show();
  });
  EXPECT_EQ("<i>& co", p.page.tag("h4")->text);
  EXPECT_EQ("<i>& co", p.dialog->windowTitle().toUTF8());
  p.page.run([&] { p.dialog->setTitleBarEnabled(false); });
  EXPECT_EQ(nullptr, p.page.styled("titlebar"));
}

TEST(WDialog, coversThePageBelowWhichGetsNoEvents)
{
  DialogPage p;
  p.page.run([&] {
    p.dialog->addStyleClass("mine");
    p.dialog->show();
  });
  const Testing::Node *cover = p.page.styled("Wt-dialogcover");
  ASSERT_NE(nullptr, cover);
  EXPECT_TRUE(cover->hasClass("in"));
  EXPECT_TRUE(cover->hasClass("mine-cover"));
  p.page.browser->click("Below");
  p.page.browser->click("Inside");
  EXPECT_EQ("inside", p.record.text);
  p.page.run([&] { p.dialog->hide(); });
  EXPECT_EQ(nullptr, p.page.styled("Wt-dialogcover"));
  p.page.browser->click("Below");
  EXPECT_EQ("inside below", p.record.text);
}

TEST(WDialog, leavesThePageUsableWhereItIsNotModal)
{
  DialogPage p;
  p.page.run([&] {
    p.dialog->setModal(false);
    p.dialog->show();
  });
  EXPECT_EQ(nullptr, p.page.styled("Wt-dialogcover"));
  EXPECT_FALSE(p.page.styled("Wt-dialog")->has("aria-modal"));
  p.page.browser->click("Below");
  EXPECT_EQ("below", p.record.text);
}

TEST(WDialog, doesNothingWhenItIsDoneWhileHidden)
{
  DialogPage p;
  p.page.run([&] {
    p.dialog->accept();
    p.dialog->done(WDialog::Rejected);
  });
  EXPECT_EQ("", p.record.text);
}

TEST(WDialog, hidesAndThenTellsWhenItIsDoneOutsideExec)
{
  DialogPage p;
  bool hidden = false;
  p.dialog->finished().connect(std::bind([&] { hidden = p.dialog->isHidden(); }));
  p.page.run([&] { p.dialog->show(); });
  p.page.run([&] { p.dialog->accept(); });
  EXPECT_TRUE(hidden);
  EXPECT_EQ("finished", p.record.text);
  EXPECT_EQ(WDialog::Accepted, p.dialog->result());
}

TEST(WDialog, tellsNothingWhenItIsHiddenOrDeleted)
{
  DialogPage p;
  p.page.run([&] {
    p.dialog->show();
    p.dialog->hide();
    p.dialog->show();
  });
  p.page.run([&] { delete p.dialog; });
  EXPECT_EQ("", p.record.text);
  EXPECT_EQ(nullptr, p.page.styled("Wt-dialogcover"));
  p.page.browser->click("Below");
  EXPECT_EQ("below", p.record.text);
}

TEST(WDialog, mayBeDeletedByWhoHearsThatItIsFinished)
{
  DialogPage p;
  p.dialog->finished().connect(std::bind([&] { delete p.dialog; }));
  p.page.run([&] { p.dialog->show(); });
  p.page.run([&] { p.dialog->reject(); });
  EXPECT_EQ(nullptr, p.page.styled("Wt-dialog"));
  EXPECT_TRUE(p.page.browser->connected());
}

TEST(WDialog, goesWithItsParent)
{
  WObject *parent = nullptr;
  WidgetPage page([&](WContainerWidget *) {
    parent = new WObject();
    (new WDialog("Child", parent))->show();
  });
  EXPECT_NE(nullptr, page.styled("Wt-dialog"));
  page.run([&] { delete parent; });
  EXPECT_EQ(nullptr, page.styled("Wt-dialog"));
  EXPECT_EQ(nullptr, page.styled("Wt-dialogcover"));
}

TEST(WDialog, returnsFromExecWithTheUsersChoice)
{
  AskingPage p;
  p.page.browser->click("Ask");
  EXPECT_EQ("none", p.outcome->text().toUTF8());
  ASSERT_NE(nullptr, p.frame());
  p.page.browser->click("Below");
  p.page.browser->click("Yes");
  EXPECT_EQ("finished-accepted-shown returned-accepted-hidden", p.record.text);
  EXPECT_EQ("accepted", p.outcome->text().toUTF8());
  EXPECT_EQ(nullptr, p.frame());
  p.page.browser->click("Ask");
  p.page.browser->click("No");
  EXPECT_EQ("rejected", p.outcome->text().toUTF8());
}

TEST(WDialog, finishesOnceHoweverOftenItIsDone)
{
  AskingPage p;
  p.page.browser->click("Ask");
  const std::string yes = std::to_string(p.page.browser->byText("Yes")->id);
  p.page.browser->sendRaw("{\"n\":2,\"a\":1,\"e\":[[" + yes + ",\"click\"],[" + yes + ",\"click\"]]}");
  EXPECT_EQ("finished-accepted-shown returned-accepted-hidden", p.record.text);
}

TEST(WDialog, returnsFromAnOuterExecOnlyAfterTheInnerOne)
{
  AskingPage p;
  p.page.browser->click("Ask");
  WDialog *outer = p.shown;
  p.page.browser->click("Again");
  EXPECT_EQ(
      2u,
      p.page.browser->page().findAll([](const Testing::Node &n) { return n.hasClass("Wt-dialog"); }).size());
  p.page.run([&] { outer->accept(); });
  EXPECT_EQ("finished-accepted-shown", p.record.text);
  p.page.browser->click(
      p.page.browser->page().findAll([](const Testing::Node &n) { return n.text == "No"; }).at(1));
  EXPECT_EQ(
      "finished-accepted-shown finished-rejected-shown returned-rejected-hidden returned-accepted-hidden",
      p.record.text);
  EXPECT_EQ(nullptr, p.frame());
}

TEST(WDialog, refusesASecondExecWhileItRuns)
{
  AskingPage p;
  p.page.browser->click("Ask");
  p.page.run([&] { EXPECT_THROW(p.shown->exec(), WException); });
  p.page.browser->click("Yes");
  EXPECT_EQ("accepted", p.outcome->text().toUTF8());
}

TEST(WDialog, isNotEndedByHide)
{
  AskingPage p;
  p.page.browser->click("Ask");
  p.page.run([&] { p.shown->hide(); });
  EXPECT_EQ("none", p.outcome->text().toUTF8());
  p.page.run([&] { p.shown->show(); });
  p.page.browser->click("Yes");
  EXPECT_EQ("accepted", p.outcome->text().toUTF8());
}

TEST(WDialog, letsTimersTickWhileItRuns)
{
  int ticks = 0;
  WidgetPage page([&](WContainerWidget *root) {
    auto *timer = new WTimer(root);
    timer->setInterval(1000);
    timer->timeout().connect(std::bind([&ticks] { ++ticks; }));
    timer->start();
    button("Ask", root, [] { WDialog("Waits").exec(); });
  });
  page.browser->click("Ask");
  page.browser->advance(3500ms);
  EXPECT_EQ(3, ticks);
  EXPECT_NE(nullptr, page.styled("Wt-dialog"));
}

TEST(WDialog, isDestroyedWhenItsSessionEndsWhileItRuns)
{
  bool unwound = false;
  {
    WidgetPage page([&](WContainerWidget *root) {
      button("Ask", root, [&unwound] {
        WDialog dialog("Waits");
        dialog.destroyed().connect(std::bind([&unwound] { unwound = true; }));
        dialog.exec();
      });
    });
    page.browser->click("Ask");
    EXPECT_FALSE(unwound);
  }
  EXPECT_TRUE(unwound);
}

TEST(WDialog, endsExecWhenItIsDeletedMeanwhile)
{
  WDialog *dialog = nullptr;
  std::string outcome;
  WidgetPage page([&](WContainerWidget *root) {
    button("Ask", root, [&] {
      dialog = new WDialog("Waits");
      outcome = name(dialog->exec());
    });
  });
  page.browser->click("Ask");
  page.run([&] { delete dialog; });
  EXPECT_EQ("rejected", outcome);
  EXPECT_EQ(nullptr, page.styled("Wt-dialogcover"));
}

TEST(WDialog, isRejectedByEscapeOnlyWhereThatWasAskedForBeforeItWasShown)
{
  AskingPage p;
  p.page.browser->click("Ask");
  p.page.run([&] { p.shown->rejectWhenEscapePressed(); });
  p.pressEscape();
  EXPECT_EQ("none", p.outcome->text().toUTF8());
  p.page.browser->click("Yes");
  p.escape = true;
  p.page.browser->click("Ask");
  p.pressEscape();
  EXPECT_EQ("rejected", p.outcome->text().toUTF8());
}

TEST(WDialog, stopsListeningToEscapeAtOnceWhenThatIsSwitchedOff)
{
  AskingPage p;
  p.escape = true;
  p.page.browser->click("Ask");
  p.page.run([&] { p.shown->rejectWhenEscapePressed(false); });
  p.pressEscape();
  EXPECT_NE(nullptr, p.frame());
}

TEST(WDialog, leavesEscapeToTheTopmostOne)
{
  AskingPage p;
  p.escape = true;
  p.page.browser->click("Ask");
  p.page.browser->click("Again");
  p.pressEscape(0);
  EXPECT_EQ("", p.record.text);
  p.pressEscape(1);
  EXPECT_EQ("finished-rejected-shown returned-rejected-hidden", p.record.text);
  p.pressEscape(0);
  EXPECT_EQ("rejected", p.outcome->text().toUTF8());
}

TEST(WDialog, stacksModalOnesInAnyOrderOfTheirEnd)
{
  std::vector<WDialog *> dialogs;
  Record record;
  WidgetPage page([&](WContainerWidget *root) {
    button("Below", root, record.note("below"));
    for (const char *text : {"one", "two", "three"}) {
      auto *dialog = new WDialog(text);
      button(text, dialog->contents(), record.note(text));
      dialogs.push_back(dialog);
    }
  });
  page.run([&] {
    for (WDialog *dialog : dialogs)
      dialog->show();
  });
  const auto clickAll = [&] {
    record.text.clear();
    for (const char *text : {"Below", "one", "two", "three"})
      page.browser->click(page.browser->page().findIf(
          [text](const Testing::Node &n) { return n.text == text && n.tag == "button" && n.visible(); }));
    return record.text;
  };
  EXPECT_EQ("three", clickAll());
  page.run([&] { delete dialogs[1]; });
  EXPECT_EQ("three", clickAll());
  page.run([&] { dialogs[2]->hide(); });
  EXPECT_EQ("one", clickAll());
  page.run([&] { delete dialogs[0]; });
  EXPECT_EQ("below", clickAll());
}

TEST(WDialog, keepsANonModalOneAboveAModalOneUsable)
{
  Record record;
  WDialog *modal = nullptr;
  WDialog *free = nullptr;
  WidgetPage page([&](WContainerWidget *) {
    free = new WDialog("free");
    free->setModal(false);
    button("in free", free->contents(), record.note("free"));
    modal = new WDialog("modal");
    button("in modal", modal->contents(), record.note("modal"));
    modal->show();
    free->show();
  });
  page.browser->click("in free");
  page.browser->click("in modal");
  EXPECT_EQ("free modal", record.text);
  record.text.clear();
  page.run([&] {
    modal->hide();
    modal->show();
  });
  page.browser->click("in free");
  EXPECT_EQ("", record.text) << "the one that was shown last lies on top";
}

TEST(WDialog, isRejectedByItsCloseIcon)
{
  DialogPage p;
  p.page.run([&] {
    p.dialog->setClosable(true);
    p.dialog->show();
  });
  ASSERT_TRUE(p.page.browser->click(p.page.styled("closeicon")));
  EXPECT_EQ("finished", p.record.text);
  EXPECT_EQ(WDialog::Rejected, p.dialog->result());
  p.page.run([&] {
    p.dialog->setClosable(false);
    p.dialog->show();
  });
  EXPECT_EQ(nullptr, p.page.styled("closeicon"));
}

TEST(WDialog, hasAFooterFromTheFirstTimeThatItIsAskedFor)
{
  DialogPage p;
  p.page.run([&] { p.dialog->show(); });
  EXPECT_EQ(nullptr, p.page.styled("footer"));
  p.page.run([&] { EXPECT_EQ(p.dialog->footer(), p.dialog->footer()); });
  EXPECT_NE(nullptr, p.page.styled("footer"));
}

TEST(WDialog, takesSizesAndFlags)
{
  DialogPage p;
  p.page.run([&] {
    p.dialog->resize(460, 361);
    p.dialog->setMaximumSize(500, WLength());
    p.dialog->setResizable(true);
    p.dialog->setMovable(false);
    p.dialog->show();
  });
  const Testing::Node *frame = p.page.styled("Wt-dialog");
  EXPECT_EQ("460px", frame->get("*width"));
  EXPECT_EQ("361px", frame->get("*height"));
  EXPECT_EQ("500px", frame->get("*max-width"));
  EXPECT_TRUE(frame->hasClass("Wt-resizable"));
  EXPECT_FALSE(frame->children[0]->hasClass("movable"));
  EXPECT_EQ("{\"m\":1,\"r\":1}", frame->get("!dialog"));
}

TEST(WDialog, tellsATestWithoutBrowserWhichMustEndIt)
{
  Wt::Test::WTestEnvironment environment;
  WApplication application(environment);
  environment.dialogExecuted().connect(boost::bind(&WDialog::accept, ::_1));
  WDialog dialog("Question");
  EXPECT_EQ(WDialog::Accepted, dialog.exec());
  EXPECT_TRUE(dialog.isHidden());
}
