// SPDX-License-Identifier: MIT
#include "WidgetPage.h"

#include <Wt/WGridLayout>
#include <Wt/WText>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

/// A grid in a container; `fill` puts its items in.
struct GridPage {
  explicit GridPage(std::function<void(WGridLayout &)> fill)
      : page([this, fill = std::move(fill)](WContainerWidget *root) {
          grid = new WGridLayout(container = new WContainerWidget(root));
          fill(*grid);
        })
  {
  }
  Testing::Node *node(const std::string &text) const { return page.browser->byText(text); }

  WContainerWidget *container = nullptr;
  WGridLayout *grid = nullptr;
  WidgetPage page;
};

WText *text(const std::string &name)
{
  return new WText(name, PlainText);
}

} // namespace

TEST(WGridLayout, placesItemsInRowsAndColumns)
{
  GridPage p([](WGridLayout &grid) {
    grid.addWidget(text("right"), 0, 1);
    grid.addWidget(text("left"), 0, 0);
    grid.addWidget(text("wide"), 1, 0, 1, 2);
  });
  EXPECT_EQ(2, p.grid->rowCount());
  EXPECT_EQ(2, p.grid->columnCount());
  const Testing::Node *box = p.node("left")->parent;
  EXPECT_EQ("grid", box->get("*display"));
  EXPECT_EQ("9px 9px 9px 9px", box->get("*padding"));
  EXPECT_EQ("6px 6px", box->get("*gap"));
  EXPECT_EQ("1", p.node("right")->get("*grid-row"));
  EXPECT_EQ("2", p.node("right")->get("*grid-column"));
  EXPECT_EQ("1 / span 2", p.node("wide")->get("*grid-column"));
  EXPECT_EQ("left", box->children[0]->text) << "in reading order, whatever the order of adding";
}

TEST(WGridLayout, settersMakeItGrow)
{
  GridPage p([](WGridLayout &grid) { grid.addWidget(text("a"), 0, 0); });
  p.page.run([&] {
    p.grid->setRowStretch(2, 1);
    p.grid->setColumnStretch(3, 2);
    p.grid->setHorizontalSpacing(1);
    p.grid->setVerticalSpacing(2);
  });
  EXPECT_EQ(3, p.grid->rowCount());
  EXPECT_EQ(4, p.grid->columnCount());
  EXPECT_EQ(1, p.grid->rowStretch(2));
  EXPECT_EQ(0, p.grid->rowStretch(9));
  EXPECT_EQ(2, p.grid->columnStretch(3));
  const Testing::Node *box = p.node("a")->parent;
  EXPECT_EQ("auto auto minmax(0,1fr)", box->get("*grid-template-rows"));
  EXPECT_EQ("auto auto auto minmax(0,2fr)", box->get("*grid-template-columns"));
  EXPECT_EQ("2px 1px", box->get("*gap"));
}

TEST(WGridLayout, keepsThePreferredSizeOfAlignedItems)
{
  GridPage p([](WGridLayout &grid) {
    grid.addWidget(text("placed"), 0, 0, AlignCenter | AlignBottom);
    grid.addWidget(text("filling"), 0, 1);
  });
  EXPECT_EQ("center", p.node("placed")->get("*justify-self"));
  EXPECT_EQ("end", p.node("placed")->get("*align-self"));
  EXPECT_FALSE(p.node("filling")->has("*justify-self"));
}

TEST(WGridLayout, hasHandlesWhereRowsAndColumnsCanBeResized)
{
  GridPage p([](WGridLayout &grid) {
    grid.addWidget(text("a"), 0, 0);
    grid.addWidget(text("b"), 1, 1);
    grid.setRowResizable(0);
    grid.setColumnResizable(0, true, 100);
  });
  EXPECT_TRUE(p.grid->rowIsResizable(0));
  EXPECT_FALSE(p.grid->rowIsResizable(1));
  ASSERT_NE(nullptr, p.page.styled("Wt-hrh2"));
  EXPECT_EQ("\"y\"", p.page.styled("Wt-hrh2")->get("!split"));
  ASSERT_NE(nullptr, p.page.styled("Wt-vrh2"));
  EXPECT_EQ("100px auto", p.node("a")->parent->get("*grid-template-columns"));
  p.page.run([&] { p.grid->setRowStretch(9, 1); });
  EXPECT_EQ(nullptr, p.page.styled("Wt-hrh2", 1)) << "no handle is left over when the grid grows";
  p.page.run([&] { p.grid->setRowResizable(0, false); });
  EXPECT_EQ(nullptr, p.page.styled("Wt-hrh2"));
}

TEST(WGridLayout, takesNestedLayouts)
{
  WGridLayout *inner = nullptr;
  GridPage p([&](WGridLayout &grid) {
    grid.addLayout(inner = new WGridLayout(), 0, 1, 2, 1);
    inner->addWidget(text("inside"), 0, 0);
  });
  EXPECT_EQ(p.container, inner->parentWidget());
  EXPECT_EQ("1 / span 2", p.node("inside")->parent->get("*grid-row"));
  EXPECT_FALSE(p.node("inside")->parent->has("*padding"));
  p.page.run([&] {
    p.grid->removeItem(inner);
    EXPECT_EQ(nullptr, inner->parentWidget());
    EXPECT_EQ(nullptr, inner->parentLayout());
    delete inner;
  });
  EXPECT_EQ(0, p.grid->count());
}

TEST(WGridLayout, survivesWidgetsAndContainersInAnyOrder)
{
  WText *widget = nullptr;
  GridPage p([&](WGridLayout &grid) {
    grid.addWidget(widget = text("a"), 0, 0);
    grid.addWidget(text("b"), 1, 0);
  });
  p.page.run([&] { delete widget; });
  EXPECT_EQ(1, p.grid->count());
  p.page.run([&] { p.grid->addWidget(text("new"), 0, 0); });
  EXPECT_TRUE(p.page.browser->shows("new"));
  p.page.run([&] { p.container->clear(); });
  EXPECT_EQ(nullptr, p.container->layout());
  p.page.run([&] { p.container->addWidget(text("flat")); });
  ASSERT_NE(nullptr, p.node("flat"));
  EXPECT_FALSE(p.node("flat")->parent->has("*grid-template-rows"));
  EXPECT_FALSE(p.node("flat")->parent->has("*padding"));
  p.page.run([&] { delete p.container; });
  EXPECT_EQ(nullptr, p.node("flat"));
}
