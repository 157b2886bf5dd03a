// SPDX-License-Identifier: MIT
#include "WidgetPage.h"

#include <Wt/WCheckBox>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

class BoxPage
{
public:
  explicit BoxPage(const char *text)
      : page([this, text](WContainerWidget *root) {
          box = new WCheckBox(text, root);
          box->changed().connect(
              std::bind([this] { record.note("changed" + std::to_string(box->checkState()))(); }));
          box->clicked().connect(
              std::bind([this] { record.note("clicked" + std::to_string(box->checkState()))(); }));
          box->checked().connect(std::bind(record.note("checked")));
          box->unChecked().connect(std::bind(record.note("unchecked")));
        })
  {
  }

  Testing::Node *input() const { return page.tag("input"); }

  Record record;
  WCheckBox *box = nullptr;
  WidgetPage page;
};

} // namespace

TEST(WCheckBox, isALabelWithAnInputAndItsText)
{
  BoxPage p("<i>On</i>");
  const Testing::Node *label = p.page.tag("label");
  ASSERT_NE(nullptr, label);
  ASSERT_EQ(2u, label->children.size());
  EXPECT_EQ("checkbox", label->children[0]->get("type"));
  EXPECT_EQ("<i>On</i>", label->children[1]->text);
}

TEST(WCheckBox, isABareInputWithoutText)
{
  BoxPage p("");
  EXPECT_EQ(nullptr, p.page.tag("label"));
  EXPECT_EQ("checkbox", p.input()->get("type"));
}

TEST(WCheckBox, startsUncheckedAndShowsWhatTheProgramSets)
{
  BoxPage p("");
  EXPECT_FALSE(p.box->isChecked());
  EXPECT_EQ(Unchecked, p.box->checkState());
  p.page.run([&] { p.box->setChecked(); });
  EXPECT_TRUE(p.box->isChecked());
  EXPECT_EQ("1", p.input()->get(".checked"));
  p.page.run([&] { p.box->setUnChecked(); });
  EXPECT_EQ("0", p.input()->get(".checked"));
  p.page.run([&] { p.box->setChecked(true); });
  EXPECT_EQ(Checked, p.box->checkState());
  EXPECT_EQ("", p.record.text) << "the program's changes emit nothing";
}

TEST(WCheckBox, hasItsNewStateWhenSlotsRun)
{
  for (const char *text : {"", "With a text"}) {
    BoxPage p(text);
    ASSERT_TRUE(p.page.browser->check(p.input(), true));
    EXPECT_EQ("checked changed2 clicked2", p.record.text);
    ASSERT_TRUE(p.page.browser->check(p.input(), false));
    EXPECT_EQ("checked changed2 clicked2 unchecked changed0 clicked0", p.record.text);
  }
}

TEST(WCheckBox, maybePartiallyCheckedByTheProgramAtAnyTimeWhichIsNotChecked)
{
  BoxPage p("");
  p.page.run([&] { p.box->setCheckState(PartiallyChecked); });
  EXPECT_FALSE(p.box->isTristate());
  EXPECT_EQ(PartiallyChecked, p.box->checkState());
  EXPECT_FALSE(p.box->isChecked());
  EXPECT_EQ("-", p.input()->get(".checked"));
}

TEST(WCheckBox, leavesThePartialStateByAClick)
{
  BoxPage p("");
  p.page.run([&] { p.box->setCheckState(PartiallyChecked); });
  p.page.browser->check(p.input(), true);
  EXPECT_EQ(Checked, p.box->checkState());
}

TEST(WCheckBox, letsAUserChooseThePartialStateOnlyWhereThatWasAllowed)
{
  BoxPage p("");
  const std::string id = std::to_string(p.input()->id);
  p.page.browser->sendRaw("{\"n\":1,\"a\":0,\"v\":{\"" + id + "\":\"-\"}}");
  EXPECT_EQ(Unchecked, p.box->checkState());
  p.page.run([&] {
    p.box->setTristate();
    p.box->setPartialStateSelectable(true);
  });
  EXPECT_TRUE(p.box->isTristate());
  EXPECT_TRUE(p.input()->has("!tri"));
  p.page.browser->sendRaw("{\"n\":2,\"a\":0,\"v\":{\"" + id + "\":\"-\"}}");
  EXPECT_EQ(PartiallyChecked, p.box->checkState());
}

TEST(WCheckBox, ignoresTheBrowserWhileItIsDisabledOrReadOnly)
{
  BoxPage p("Text");
  p.page.run([&] { p.box->disable(); });
  EXPECT_TRUE(p.page.tag("label")->children[0]->has("disabled"));
  const std::string id = std::to_string(p.page.tag("label")->children[0]->id);
  p.page.browser->sendRaw("{\"n\":1,\"a\":0,\"v\":{\"" + id + "\":\"1\"}}");
  EXPECT_FALSE(p.box->isChecked());
  p.page.run([&] {
    p.box->enable();
    p.box->setReadOnly(true);
  });
  p.page.browser->sendRaw("{\"n\":2,\"a\":0,\"v\":{\"" + id + "\":\"1\"}}");
  EXPECT_FALSE(p.box->isChecked());
}

TEST(WCheckBox, keepsItsStateWhenItGetsATextLater)
{
  BoxPage p("");
  p.page.run([&] { p.box->setChecked(); });
  p.page.run([&] { p.box->setText("Late"); });
  ASSERT_NE(nullptr, p.page.tag("label"));
  EXPECT_EQ("1", p.input()->get(".checked"));
}
