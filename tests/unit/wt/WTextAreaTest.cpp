// SPDX-License-Identifier: MIT
#include "WidgetPage.h"

#include <Wt/WTextArea>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

class AreaPage
{
public:
  explicit AreaPage(const char *content)
      : page([this, content](WContainerWidget *root) { area = new WTextArea(content, root); })
  {
  }

  Testing::Node *field() const { return page.tag("textarea"); }

  WTextArea *area = nullptr;
  WidgetPage page;
};

} // namespace

TEST(WTextArea, isTwentyByFiveCharactersWhichIsNotSent)
{
  AreaPage p("");
  EXPECT_EQ(20, p.area->columns());
  EXPECT_EQ(5, p.area->rows());
  EXPECT_FALSE(p.field()->has("rows"));
  EXPECT_FALSE(p.field()->has("cols"));
  p.page.run([&] {
    p.area->setColumns(80);
    p.area->setRows(3);
  });
  EXPECT_EQ("80", p.field()->get("cols"));
  EXPECT_EQ("3", p.field()->get("rows"));
}

TEST(WTextArea, takesTheUsersLinesWithoutCarriageReturns)
{
  AreaPage p("one\ntwo");
  EXPECT_EQ("one\ntwo", p.field()->get(".value"));
  p.page.browser->type(p.field(), "three\r\nfour\r");
  EXPECT_EQ("three\nfour", p.area->text().toUTF8());
}

TEST(WTextArea, takesALengthLimitAsAnAttribute)
{
  AreaPage p("");
  p.page.run([&] { p.area->setAttributeValue("maxlength", "12"); });
  EXPECT_EQ("12", p.field()->get("maxlength"));
}

TEST(WTextArea, knowsTheSelectionOfTheFocusedField)
{
  AreaPage p("first\nsecond");
  p.page.run([&] { EXPECT_EQ(-1, p.area->selectionStart()); });
  p.page.browser->focusOn(p.field());
  p.page.browser->script(p.field(), "sel", "6,12");
  p.page.run([&] {
    EXPECT_EQ("second", p.area->selectedText().toUTF8());
    EXPECT_EQ(6, p.area->selectionStart());
    EXPECT_TRUE(p.area->hasSelectedText());
  });
}

TEST(WTextArea, keepsAReadOnlyTextFromTheBrowser)
{
  AreaPage p("fixed");
  p.page.run([&] { p.area->setReadOnly(true); });
  EXPECT_TRUE(p.field()->has("readonly"));
  EXPECT_FALSE(p.page.browser->type(p.field(), "changed"));
  EXPECT_EQ("fixed", p.area->text().toUTF8());
}

TEST(WTextArea, bearsTenThousandCharacters)
{
  AreaPage p("");
  std::string text;
  for (int i = 0; i < 10000; ++i)
    text += "\xc3\xa9";
  p.page.browser->type(p.field(), text);
  EXPECT_EQ(text, p.area->text().toUTF8());
}
