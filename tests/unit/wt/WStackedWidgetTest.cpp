// SPDX-License-Identifier: MIT
#include "WidgetPage.h"

#include <Wt/WStackedWidget>
#include <Wt/WText>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

class StackPage
{
public:
  explicit StackPage(int count)
      : page([this, count](WContainerWidget *root) {
          stack = new WStackedWidget(root);
          for (int i = 0; i < count; ++i)
            stack->addWidget(new WText("page " + std::to_string(i)));
        })
  {
  }

  /// The texts that the browser shows.
  std::string shown() const
  {
    return page.styled("Wt-stack") ? visibleText(*page.styled("Wt-stack")) : "none";
  }

  WStackedWidget *stack = nullptr;
  WidgetPage page;

private:
  static std::string visibleText(const Testing::Node &node)
  {
    std::string text;
    for (const Testing::Node *child : node.children)
      if (child->visible())
        text += child->allText();
    return text;
  }
};

} // namespace

TEST(WStackedWidget, hasNoCurrentChildWhileItIsEmpty)
{
  StackPage p(0);
  EXPECT_EQ(-1, p.stack->currentIndex());
  EXPECT_EQ(nullptr, p.stack->currentWidget());
  EXPECT_TRUE(p.stack->hasStyleClass("Wt-stack"));
}

TEST(WStackedWidget, showsTheFirstChildThatIsAddedAndHidesTheOthers)
{
  StackPage p(3);
  EXPECT_EQ(0, p.stack->currentIndex());
  EXPECT_EQ("page 0", p.shown());
  EXPECT_TRUE(p.stack->widget(1)->isHidden());
}

TEST(WStackedWidget, showsExactlyTheCurrentChild)
{
  StackPage p(3);
  p.page.run([&] { p.stack->setCurrentIndex(2); });
  EXPECT_EQ("page 2", p.shown());
  EXPECT_EQ(p.stack->widget(2), p.stack->currentWidget());
  p.page.run([&] { p.stack->setCurrentWidget(p.stack->widget(1)); });
  EXPECT_EQ("page 1", p.shown());
  EXPECT_EQ(1, p.stack->currentIndex());
}

TEST(WStackedWidget, keepsItsIndexWhenChildrenComeOrGoBeforeIt)
{
  StackPage p(3);
  p.page.run([&] { p.stack->setCurrentIndex(1); });
  p.page.run([&] { p.stack->insertWidget(0, new WText("new")); });
  EXPECT_EQ(1, p.stack->currentIndex());
  EXPECT_EQ("page 0", p.shown());
  p.page.run([&] { delete p.stack->widget(0); });
  EXPECT_EQ(1, p.stack->currentIndex());
  EXPECT_EQ("page 1", p.shown());
}

TEST(WStackedWidget, fallsBackToTheLastChildWhenTheLastOnesGo)
{
  StackPage p(3);
  p.page.run([&] {
    p.stack->setCurrentIndex(2);
    delete p.stack->widget(2);
  });
  EXPECT_EQ(1, p.stack->currentIndex());
  EXPECT_EQ("page 1", p.shown());
  p.page.run([&] { p.stack->clear(); });
  EXPECT_EQ(-1, p.stack->currentIndex());
}

TEST(WStackedWidget, changesWithAnAnimationWhichTheBrowserIsTold)
{
  StackPage p(2);
  p.page.run([&] { p.stack->setTransitionAnimation(WAnimation(WAnimation::SlideInFromLeft), true); });
  p.page.run([&] { p.stack->setCurrentIndex(1); });
  EXPECT_FALSE(p.page.browser->page().calls.empty());
  EXPECT_TRUE(p.stack->widget(0)->isHidden());
}
