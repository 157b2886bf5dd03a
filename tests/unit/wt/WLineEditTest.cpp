// SPDX-License-Identifier: MIT
#include "WidgetPage.h"

#include <Wt/WIntValidator>
#include <Wt/WLabel>
#include <Wt/WLineEdit>
#include <Wt/WPushButton>
#include <Wt/WRegExpValidator>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

class EditPage
{
public:
  explicit EditPage(const char *content = "")
      : page([this, content](WContainerWidget *root) {
          edit = new WLineEdit(WString::fromUTF8(content), root);
          button = new WPushButton("Other", root);
          button->clicked().connect(std::bind([] {}));
        })
  {
  }

  Testing::Node *input() const { return page.tag("input"); }
  void select(int from, int to)
  {
    page.browser->script(input(), "sel", std::to_string(from) + "," + std::to_string(to));
  }

  Record record;
  WLineEdit *edit = nullptr;
  WPushButton *button = nullptr;
  WidgetPage page;
};

} // namespace

TEST(WLineEdit, showsTheProgramsTextAndTakesTheUsers)
{
  EditPage p("first");
  EXPECT_EQ("first", p.input()->get(".value"));
  p.page.run([&] { p.edit->setText("second"); });
  EXPECT_EQ("second", p.input()->get(".value"));
  ASSERT_TRUE(p.page.browser->type(p.input(), "third"));
  EXPECT_EQ("third", p.edit->text().toUTF8());
  EXPECT_EQ("third", p.edit->valueText().toUTF8());
}

TEST(WLineEdit, sendsNothingBackOfWhatTheUserTyped)
{
  EditPage p;
  p.page.browser->resetCounters();
  p.page.browser->type(p.input(), "typed");
  EXPECT_EQ(0u, p.page.browser->operationsReceived());
}

TEST(WLineEdit, emitsChangedForTheUserOnly)
{
  EditPage p;
  p.page.run([&] { p.edit->changed().connect(std::bind(p.record.note("changed"))); });
  p.page.run([&] { p.edit->setText("program"); });
  EXPECT_EQ("", p.record.text);
  p.page.browser->type(p.input(), "user");
  EXPECT_EQ("changed", p.record.text);
}

TEST(WLineEdit, knowsTheTypedTextBeforeTheFieldIsLeft)
{
  EditPage p;
  p.page.browser->typeWithoutLeaving(p.input(), "half");
  EXPECT_EQ("half", p.edit->text().toUTF8());
}

TEST(WLineEdit, isTenCharactersWideWhichIsNotSent)
{
  EditPage p;
  EXPECT_EQ(10, p.edit->textSize());
  EXPECT_FALSE(p.input()->has("size"));
  p.page.run([&] { p.edit->setTextSize(30); });
  EXPECT_EQ("30", p.input()->get("size"));
  p.page.run([&] { p.edit->setTextSize(10); });
  EXPECT_EQ("10", p.input()->get("size"));
}

TEST(WLineEdit, limitsTheLengthInTheBrowserOnly)
{
  EditPage p;
  EXPECT_EQ(-1, p.edit->maxLength());
  p.page.run([&] {
    p.edit->setMaxLength(3);
    p.edit->setText("longer than three");
  });
  EXPECT_EQ("3", p.input()->get("maxlength"));
  EXPECT_EQ("longer than three", p.edit->text().toUTF8());
  p.page.run([&] { p.edit->setMaxLength(-1); });
  EXPECT_FALSE(p.input()->has("maxlength"));
}

TEST(WLineEdit, hidesPasswordsAndForbidsTheirCompletion)
{
  EditPage p;
  EXPECT_EQ(WLineEdit::Normal, p.edit->echoMode());
  EXPECT_TRUE(p.edit->autoComplete());
  p.page.run([&] {
    p.edit->setEchoMode(WLineEdit::Password);
    p.edit->setAutoComplete(false);
  });
  EXPECT_EQ("password", p.input()->get("type"));
  EXPECT_TRUE(p.input()->has("autocomplete"));
}

TEST(WLineEdit, isMarkedWhileItsTextIsNotValid)
{
  EditPage p("ABC");
  p.page.run([&] { p.edit->setValidator(new WRegExpValidator("[a-z]+")); });
  EXPECT_TRUE(p.input()->hasClass("Wt-invalid"));
  EXPECT_EQ("true", p.input()->get("aria-invalid"));
  EXPECT_TRUE(p.input()->has("!valid"));
  p.page.run([&] { p.edit->setText("abc"); });
  EXPECT_FALSE(p.input()->hasClass("Wt-invalid"));
  EXPECT_FALSE(p.input()->has("aria-invalid"));
  p.page.browser->type(p.input(), "ABC");
  EXPECT_TRUE(p.input()->hasClass("Wt-invalid"));
}

TEST(WLineEdit, emitsValidatedForValidateAndNotForSetText)
{
  EditPage p;
  p.page.run([&] {
    p.edit->setValidator(new WIntValidator(1, 10));
    p.edit->validated().connect(std::bind(p.record.note("validated")));
    p.edit->setText("11");
  });
  EXPECT_EQ("", p.record.text);
  p.page.run([&] { EXPECT_EQ(WValidator::Invalid, p.edit->validate()); });
  EXPECT_EQ("validated", p.record.text);
}

TEST(WLineEdit, isValidWithoutAValidator)
{
  EditPage p("anything");
  p.page.run([&] { EXPECT_EQ(WValidator::Valid, p.edit->validate()); });
}

TEST(WLineEdit, tellsTheBrowserItsRangeSoThatItJudgesAlike)
{
  EditPage p;
  p.page.run([&] { p.edit->setValidator(new WIntValidator(-5, 10)); });
  const std::string rule = p.input()->get("!valid");
  EXPECT_NE(std::string::npos, rule.find("\"lo\":-5")) << rule;
  EXPECT_NE(std::string::npos, rule.find("\"hi\":10")) << rule;
}

TEST(WLineEdit, ignoresTheBrowserWhileItIsDisabledOrReadOnly)
{
  EditPage p("kept");
  const std::string id = std::to_string(p.input()->id);
  p.page.run([&] { p.edit->setReadOnly(true); });
  EXPECT_TRUE(p.input()->has("readonly"));
  p.page.browser->sendRaw("{\"n\":1,\"a\":0,\"v\":{\"" + id + "\":\"forged\"}}");
  EXPECT_EQ("kept", p.edit->text().toUTF8());
  p.page.run([&] {
    p.edit->setReadOnly(false);
    p.edit->disable();
  });
  EXPECT_TRUE(p.input()->has("disabled"));
  EXPECT_TRUE(p.input()->hasClass("Wt-disabled"));
  p.page.browser->sendRaw("{\"n\":2,\"a\":0,\"v\":{\"" + id + "\":\"forged\"}}");
  EXPECT_EQ("kept", p.edit->text().toUTF8());
}

TEST(WLineEdit, knowsItsSelectionWhileItHasTheFocus)
{
  EditPage p("a\xf0\x9f\x98\x80"
             "bcd"); // an emoji is two units for the browser and one character for the program
  p.page.browser->focusOn(p.input());
  p.select(1, 4);
  p.page.run([&] {
    EXPECT_TRUE(p.edit->hasSelectedText());
    EXPECT_EQ(1, p.edit->selectionStart());
    EXPECT_EQ("\xf0\x9f\x98\x80"
              "b",
              p.edit->selectedText().toUTF8());
    EXPECT_EQ(3, p.edit->cursorPosition());
  });
  p.select(2, 2);
  p.page.run([&] { EXPECT_FALSE(p.edit->hasSelectedText()); });
  p.select(0, 4000000);
  p.page.run([&] { EXPECT_EQ(p.edit->text().toUTF8(), p.edit->selectedText().toUTF8()); });
  p.page.browser->click("Other");
  p.page.run([&] {
    EXPECT_FALSE(p.edit->hasSelectedText());
    EXPECT_EQ(-1, p.edit->selectionStart());
    EXPECT_EQ(-1, p.edit->cursorPosition());
  });
}

TEST(WLineEdit, shrugsOffASelectionThatIsNone)
{
  EditPage p("text");
  p.page.browser->focusOn(p.input());
  for (const char *arguments : {"", "1", "\"a\",\"b\"", "-3,2", "1,2,3", "99999999999,1"})
    p.page.browser->script(p.input(), "sel", arguments);
  p.page.run([&] { EXPECT_FALSE(p.edit->hasSelectedText()); });
  EXPECT_TRUE(p.page.browser->connected());
}

TEST(WLineEdit, emitsEnterPressedAndFocusAndBlur)
{
  EditPage p;
  p.page.run([&] {
    p.edit->enterPressed().connect(std::bind(p.record.note("enter")));
    p.edit->focussed().connect(std::bind(p.record.note("focus")));
    p.edit->blurred().connect(std::bind(p.record.note("blur")));
    p.edit->keyWentUp().connect(std::bind(p.record.note("up")));
  });
  p.page.browser->focusOn(p.input());
  p.page.browser->key(p.input(), Key_Enter);
  p.page.browser->focusOn(p.page.tag("button"));
  EXPECT_EQ("focus enter up blur", p.record.text);
}

TEST(WLineEdit, showsAHintWhileItIsEmpty)
{
  EditPage p;
  p.page.run([&] { p.edit->setEmptyText("10.0.0.1"); });
  EXPECT_EQ("10.0.0.1", p.input()->get("placeholder"));
}

TEST(WLineEdit, isNamedByItsLabelWhichHidesWithIt)
{
  WLineEdit *edit = nullptr;
  WLabel *label = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    label = new WLabel("Name", root);
    edit = new WLineEdit(root);
    label->setBuddy(edit);
  });
  EXPECT_EQ(label, edit->label());
  ASSERT_NE(nullptr, page.tag("label"));
  EXPECT_EQ(page.tag("label")->get("for"), page.tag("input")->get("id"));
  page.run([&] { edit->hide(); });
  EXPECT_EQ(nullptr, page.tag("label"));
  page.run([&] {
    edit->show();
    delete edit;
  });
  EXPECT_EQ(nullptr, label->buddy());
  EXPECT_FALSE(page.tag("label")->has("for"));
}

TEST(WLineEdit, takesNoMoreThanItsMaximumLengthInBrowsersUnits)
{
  WLineEdit *edit = nullptr;
  WidgetPage page([&edit](WContainerWidget *root) {
    edit = new WLineEdit(root);
    edit->setMaxLength(4);
  });
  page.browser->type(page.tag("input"), "12345");
  EXPECT_EQ("1234", edit->text().toUTF8());
  EXPECT_EQ("1234", page.tag("input")->get(".value"));
  page.browser->type(page.tag("input"), "a\xf0\x9f\x98\x80\xf0\x9f\x98\x80");
  EXPECT_EQ("a\xf0\x9f\x98\x80", edit->text().toUTF8());
}

TEST(WLineEdit, keepsALongerTextOfTheProgramThatAUserMakesShorter)
{
  WLineEdit *edit = nullptr;
  WidgetPage page([&edit](WContainerWidget *root) {
    edit = new WLineEdit("123456", root);
    edit->setMaxLength(4);
  });
  page.browser->type(page.tag("input"), "12346");
  EXPECT_EQ("12346", edit->text().toUTF8());
}
