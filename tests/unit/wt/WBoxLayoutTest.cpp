// SPDX-License-Identifier: MIT
#include "WidgetPage.h"

#include <Wt/WGridLayout>
#include <Wt/WHBoxLayout>
#include <Wt/WText>
#include <Wt/WVBoxLayout>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

WText *text(const std::string &name)
{
  return new WText(name, PlainText);
}

Testing::Node *node(const WidgetPage &page, const std::string &name)
{
  return page.browser->byText(name);
}

/// Notes the sizes that it is told of.
class SizedWidget : public WContainerWidget
{
public:
  explicit SizedWidget(WContainerWidget *parent = nullptr) : WContainerWidget(parent)
  {
    setObjectName("sized");
    setLayoutSizeAware(true);
  }
  std::string told;
  bool feedback = true;

protected:
  void layoutSizeChanged(int width, int height) override
  {
    told += std::to_string(width) + 'x' + std::to_string(height) + ' ';
    if (!feedback)
      setLayoutSizeAware(false);
  }
};

} // namespace

TEST(WBoxLayout, makesItsWidgetsChildrenOfTheContainer)
{
  WHBoxLayout *layout = nullptr;
  WContainerWidget *container = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    container = new WContainerWidget(root);
    layout = new WHBoxLayout(container);
    layout->addWidget(text("a"));
    layout->addSpacing(20);
    layout->addStretch(1);
    layout->insertWidget(0, text("first"));
  });
  EXPECT_EQ(layout, container->layout());
  EXPECT_EQ(4, layout->count());
  EXPECT_EQ(container, layout->itemAt(0)->widget()->parent());
  Testing::Node *box = node(page, "a")->parent;
  EXPECT_EQ("flex", box->get("*display"));
  EXPECT_EQ("9px 9px 9px 9px", box->get("*padding"));
  EXPECT_EQ("6px", box->get("*gap"));
  ASSERT_EQ(4u, box->children.size());
  EXPECT_EQ("first", box->children[0]->text);
  EXPECT_EQ("0 0 20px", box->children[2]->get("*flex"));
  EXPECT_EQ("1 1 0%", box->children[3]->get("*flex"));
}

TEST(WBoxLayout, hasMarginsOnItsOutermostLayoutOnly)
{
  WVBoxLayout *outer = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    outer = new WVBoxLayout(new WContainerWidget(root));
    auto *inner = new WHBoxLayout();
    EXPECT_EQ(nullptr, inner->parentLayout());
    inner->addWidget(text("inside"));
    outer->addLayout(inner, 1);
    EXPECT_EQ(outer, inner->parentLayout());
    EXPECT_EQ(nullptr, outer->itemAt(0)->widget());
  });
  Testing::Node *inner = node(page, "inside")->parent;
  EXPECT_EQ("flex", inner->get("*display"));
  EXPECT_FALSE(inner->has("*padding"));
  EXPECT_EQ("9px 9px 9px 9px", inner->parent->get("*padding"));
  page.run([&] { outer->setContentsMargins(1, 2, 3, 4); });
  EXPECT_EQ("2px 3px 4px 1px", inner->parent->get("*padding"));
  page.run([&] {
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
  });
  EXPECT_FALSE(inner->parent->has("*padding"));
  EXPECT_FALSE(inner->parent->has("*gap"));
}

TEST(WBoxLayout, sharesTheRestByStretch)
{
  WText *second = nullptr;
  WHBoxLayout *layout = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    layout = new WHBoxLayout(new WContainerWidget(root));
    layout->addWidget(text("a"));
    layout->addWidget(second = text("b"));
  });
  EXPECT_EQ(node(page, "a")->get("*flex"), node(page, "b")->get("*flex"));
  page.run([&] { EXPECT_TRUE(layout->setStretchFactor(second, 3)); });
  EXPECT_EQ("none", node(page, "a")->get("*flex"));
  EXPECT_EQ("3 1 0%", node(page, "b")->get("*flex"));
}

TEST(WBoxLayout, placesAnItemWithAnAlignmentInItsCell)
{
  WidgetPage page([&](WContainerWidget *root) {
    auto *layout = new WVBoxLayout(new WContainerWidget(root));
    layout->addWidget(text("filling"), 0, AlignJustify);
    layout->addWidget(text("placed"), 0, AlignRight | AlignMiddle);
  });
  const Testing::Node *cell = node(page, "placed")->parent;
  EXPECT_EQ("end", cell->get("*justify-items"));
  EXPECT_EQ("center", cell->get("*align-items"));
  EXPECT_FALSE(node(page, "placed")->has("*flex"));
  EXPECT_EQ(cell->parent, node(page, "filling")->parent);
}

TEST(WBoxLayout, goesInItsDirection)
{
  WBoxLayout *layout = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    layout = new WBoxLayout(WBoxLayout::BottomToTop, new WContainerWidget(root));
    layout->addWidget(text("a"));
  });
  EXPECT_EQ("column-reverse", node(page, "a")->parent->get("*flex-direction"));
  page.run([&] { layout->setDirection(WBoxLayout::LeftToRight); });
  EXPECT_FALSE(node(page, "a")->parent->has("*flex-direction"));
}

TEST(WBoxLayout, hasHandlesWhereItemsCanBeResized)
{
  WHBoxLayout *layout = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    layout = new WHBoxLayout(new WContainerWidget(root));
    layout->addWidget(text("a"));
    layout->addWidget(text("b"), 1);
    layout->setResizable(0, true, 120);
    layout->setResizable(1);
    layout->setResizable(7);
    EXPECT_TRUE(layout->isResizable(0));
    EXPECT_FALSE(layout->isResizable(7));
  });
  const Testing::Node *box = node(page, "a")->parent;
  ASSERT_EQ(3u, box->children.size()) << "none after the last";
  const Testing::Node *handle = box->children[1];
  EXPECT_TRUE(handle->hasClass("Wt-vrh2"));
  EXPECT_EQ("separator", handle->get("role"));
  EXPECT_EQ("0", handle->get("tabindex"));
  EXPECT_EQ("\"x\"", handle->get("!split"));
  EXPECT_EQ("0 0 120px", node(page, "a")->get("*flex"));
  page.run([&] { layout->setResizable(0, false); });
  EXPECT_EQ(nullptr, page.styled("Wt-vrh2"));
}

TEST(WBoxLayout, hasNoHandleBesideWhatIsHidden)
{
  WHBoxLayout *layout = nullptr;
  WText *late = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    late = text("late");
    late->hide();
    layout = new WHBoxLayout(new WContainerWidget(root));
    layout->addWidget(text("a"));
    WVBoxLayout *nested = new WVBoxLayout();
    nested->addWidget(text("b"));
    nested->addWidget(late);
    layout->addLayout(nested);
    layout->addWidget(text("c"));
    layout->setResizable(0);
    layout->setResizable(1);
  });
  const auto handles = [&page] { return !page.styled("Wt-vrh2") ? 0 : page.styled("Wt-vrh2", 1) ? 2 : 1; };
  EXPECT_EQ(2, handles());
  WWidget *first = layout->itemAt(0)->widget();
  page.run([&] { first->hide(); });
  EXPECT_EQ(1, handles());
  WWidget *inner = layout->itemAt(1)->layout()->itemAt(0)->widget();
  page.run([&] {
    first->show();
    inner->hide();
  });
  EXPECT_EQ(0, handles());
  page.run([&] { late->show(); });
  EXPECT_EQ(2, handles());
}

TEST(WBoxLayout, aWidgetMayBeDeletedWhileItsLayoutHasNoContainer)
{
  WHBoxLayout *layout = nullptr;
  WContainerWidget *container = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    container = new WContainerWidget(root);
    layout = new WHBoxLayout();
    WText *gone = text("gone");
    layout->addWidget(gone);
    layout->addWidget(text("stays"));
    WVBoxLayout *nested = new WVBoxLayout();
    WText *goneToo = text("gone too");
    nested->addWidget(goneToo);
    layout->addLayout(nested);
    delete gone;
    delete goneToo;
    EXPECT_EQ(2, layout->count());
    EXPECT_EQ(0, nested->count());
    container->setLayout(layout);
  });
  EXPECT_TRUE(page.browser->shows("stays"));
  page.run([&] { delete layout->itemAt(0)->widget(); });
  EXPECT_EQ(1, layout->count());
}

TEST(WBoxLayout, aWidgetMayBeDeletedAfterItsNestedLayoutWasTakenOut)
{
  WVBoxLayout *nested = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    auto *outer = new WHBoxLayout(new WContainerWidget(root));
    nested = new WVBoxLayout();
    nested->addWidget(text("inside"));
    outer->addLayout(nested);
    outer->removeItem(nested);
    delete nested->itemAt(0)->widget();
  });
  EXPECT_EQ(0, nested->count());
  page.run([&] { delete nested; });
}

TEST(WBoxLayout, forgetsAWidgetThatIsDeletedOrRemoved)
{
  WText *a = nullptr;
  WText *b = nullptr;
  WVBoxLayout *outer = nullptr;
  WHBoxLayout *inner = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    outer = new WVBoxLayout(new WContainerWidget(root));
    inner = new WHBoxLayout();
    outer->addLayout(inner);
    inner->addWidget(a = text("a"), 0, AlignLeft);
    inner->addWidget(b = text("b"));
  });
  page.run([&] { delete a; });
  EXPECT_EQ(1, inner->count());
  EXPECT_EQ(nullptr, node(page, "a"));
  EXPECT_EQ(nullptr, page.styled("Wt-cell"));
  page.run([&] {
    inner->removeWidget(b);
    EXPECT_EQ(nullptr, b->parent());
    delete b;
  });
  EXPECT_EQ(0, inner->count());
  page.run([&] {
    outer->removeItem(inner);
    delete inner;
  });
  EXPECT_EQ(0, outer->count());
}

TEST(WBoxLayout, clearingDeletesTheWidgetsOfNestedLayoutsToo)
{
  WVBoxLayout *outer = nullptr;
  int gone = 0;
  WContainerWidget *container = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    outer = new WVBoxLayout(container = new WContainerWidget(root));
    auto *inner = new WGridLayout();
    outer->addLayout(inner);
    outer->addWidget(text("outer"));
    inner->addWidget(text("inner"), 0, 0);
    for (WWidget *widget : {outer->itemAt(1)->widget(), inner->itemAt(0)->widget()})
      widget->destroyed().connect(std::bind([&] { ++gone; }));
  });
  page.run([&] { outer->clear(); });
  EXPECT_EQ(2, gone);
  EXPECT_EQ(0, outer->count());
  EXPECT_EQ(0, container->count());
}

TEST(WBoxLayout, diesWithItsContainerAndMayDieBeforeIt)
{
  WContainerWidget *first = nullptr;
  WContainerWidget *second = nullptr;
  WLayout *layout = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    for (WContainerWidget **container : {&first, &second}) {
      *container = new WContainerWidget(root);
      auto *outer = new WVBoxLayout(*container);
      auto *inner = new WHBoxLayout();
      outer->addLayout(inner);
      inner->addWidget(text("inside"));
      layout = outer;
    }
  });
  page.run([&] { delete first; });
  page.run([&] { delete layout; });
  EXPECT_EQ(nullptr, second->layout());
  ASSERT_NE(nullptr, node(page, "inside")) << "the widgets stay the container's";
  const Testing::Node *inside = node(page, "inside");
  EXPECT_FALSE(inside->has("*flex"));
  EXPECT_FALSE(inside->has("data-li"));
  EXPECT_FALSE(inside->parent->has("*padding"));
  EXPECT_FALSE(inside->parent->has("*gap"));
  page.run([&] { delete second; });
  EXPECT_EQ(nullptr, node(page, "inside"));
}

TEST(WBoxLayout, aWidgetThatMovesLeavesItsSettingsBehind)
{
  WText *widget = nullptr;
  WContainerWidget *plain = nullptr;
  WHBoxLayout *box = nullptr;
  WGridLayout *grid = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    plain = new WContainerWidget(root);
    box = new WHBoxLayout(new WContainerWidget(root));
    grid = new WGridLayout(new WContainerWidget(root));
    box->addWidget(widget = text("traveller"), 1);
  });
  EXPECT_TRUE(node(page, "traveller")->has("*flex"));
  page.run([&] { grid->addWidget(widget, 0, 0, AlignRight); });
  EXPECT_EQ(0, box->count());
  EXPECT_FALSE(node(page, "traveller")->has("*flex"));
  EXPECT_EQ("end", node(page, "traveller")->get("*justify-self"));
  page.run([&] { box->addWidget(widget, 1); });
  EXPECT_FALSE(node(page, "traveller")->has("*grid-row"));
  EXPECT_FALSE(node(page, "traveller")->has("*justify-self"));
  EXPECT_EQ("1 1 0%", node(page, "traveller")->get("*flex"));
  page.run([&] { plain->addWidget(widget); });
  EXPECT_EQ(0, box->count());
  for (const char *key : {"*flex", "data-li", "*grid-row", "*grid-column", "*justify-self", "*align-self"})
    EXPECT_FALSE(node(page, "traveller")->has(key)) << key;
}

TEST(WBoxLayout, aWidgetThatIsAddedAgainStandsInOnePlace)
{
  WText *widget = nullptr;
  WHBoxLayout *box = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    box = new WHBoxLayout(new WContainerWidget(root));
    box->addWidget(widget = text("a"));
    box->addWidget(text("b"));
  });
  page.run([&] { box->addWidget(widget); });
  EXPECT_EQ(2, box->count());
  EXPECT_EQ(widget, box->itemAt(1)->widget());
  EXPECT_EQ("a", node(page, "b")->parent->children[1]->text);
}

TEST(WBoxLayout, anotherLayoutTakesThePlaceOfTheFirst)
{
  WContainerWidget *container = nullptr;
  WText *widget = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    container = new WContainerWidget(root);
    (new WVBoxLayout(container))->addWidget(widget = text("a"));
  });
  page.run([&] {
    auto *grid = new WGridLayout();
    grid->addWidget(widget, 0, 1);
    container->setLayout(grid);
  });
  const Testing::Node *shown = node(page, "a");
  ASSERT_NE(nullptr, shown);
  EXPECT_EQ("grid", shown->parent->get("*display"));
  EXPECT_FALSE(shown->parent->has("*flex-direction"));
  EXPECT_EQ("2", shown->get("*grid-column"));
  EXPECT_FALSE(shown->has("*flex"));
}

TEST(WBoxLayout, hiddenWidgetsComeAndGo)
{
  WText *widget = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    auto *box = new WHBoxLayout(new WContainerWidget(root));
    box->addWidget(widget = text("a"));
    box->addWidget(text("b"));
    widget->hide();
  });
  EXPECT_EQ(nullptr, node(page, "a"));
  page.run([&] { widget->show(); });
  EXPECT_EQ(node(page, "a"), node(page, "b")->parent->children[0]);
}

TEST(WBoxLayout, tellsTheSizeItGivesToThoseThatAskForIt)
{
  SizedWidget *sized = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    auto *box = new WVBoxLayout(new WContainerWidget(root));
    box->addWidget(sized = new SizedWidget());
    box->addWidget(text("rest"), 1);
  });
  Testing::Node *shown = page.browser->byAttribute("!size", "1");
  ASSERT_NE(nullptr, shown);
  EXPECT_NE(std::string::npos, shown->get("data-li").find('w')) << "its size is the layout's to say";
  EXPECT_TRUE(page.browser->size(shown, 300, 40));
  EXPECT_TRUE(page.browser->size(shown, 310, 40));
  EXPECT_EQ("300x40 310x40 ", sized->told);
  page.browser->script(shown, "size", "-1,5");
  page.browser->script(shown, "size", "\"x\"");
  EXPECT_EQ("300x40 310x40 ", sized->told);
}

TEST(WBoxLayout, sizeReportsAreIgnoredOnceTheyAreSwitchedOff)
{
  SizedWidget *sized = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    auto *box = new WVBoxLayout(new WContainerWidget(root));
    box->addWidget(sized = new SizedWidget());
    sized->feedback = false;
  });
  Testing::Node *shown = page.browser->byAttribute("!size", "1");
  ASSERT_NE(nullptr, shown);
  page.browser->size(shown, 300, 40);
  EXPECT_EQ("300x40 ", sized->told);
  EXPECT_FALSE(shown->has("!size"));
  page.browser->script(shown, "size", "100,100");
  EXPECT_EQ("300x40 ", sized->told);
}
