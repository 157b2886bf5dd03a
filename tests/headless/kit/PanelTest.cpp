// SPDX-License-Identifier: MIT
#include "KitPage.h"
#include "WCollapsingContextPanel.h"
#include "WContextPanel.h"
#include "WNavAccordion.h"
#include "WNavAccordionStdCell.h"

#include <Wt/WLink>
#include <Wt/WText>
#include <Wt/WVBoxLayout>
#include <gtest/gtest.h>

namespace
{

const char kOpenMark[] = "resources/themes/halden/context-panel-button-expanded-idle.png";
const char kFoldedMark[] = "resources/themes/halden/context-panel-button-collapsed-idle.png";

// Sizes are told of what stands in a layout.
void layOut(Wt::WContainerWidget &root, Wt::WWidget *widget)
{
  Wt::WVBoxLayout *layout = new Wt::WVBoxLayout();
  layout->addWidget(widget);
  root.setLayout(layout);
}

// A panel that folds, with the text "Content" in it.
class FoldingPanel : public testing::Test
{
protected:
  explicit FoldingPanel(WCollapsingContextPanel::HeightType type = WCollapsingContextPanel::HeightFixed)
      : page_([this, type](Wt::WContainerWidget &root) {
          panel_ = new WCollapsingContextPanel("Details", type, 260);
          layOut(root, panel_);
          panel_->setContent(new Wt::WText("Content"), 1, Wt::AlignJustify);
        }),
        visitor_(page_.visitor)
  {
  }

  void clickTitle() { ASSERT_TRUE(visitor_.click("Details")); }
  std::string height() { return visitor_.panel("Details")->get("*height"); }
  bool contentShows() { return visitor_.shows("Content"); }
  bool markSaysOpen()
  {
    EXPECT_NE(visitor_.byAttribute("src", kOpenMark) == nullptr,
              visitor_.byAttribute("src", kFoldedMark) == nullptr);
    return visitor_.byAttribute("src", kOpenMark) != nullptr;
  }
  void resize(int panelHeight) { visitor_.size(visitor_.panel("Details"), 800, panelHeight); }

  WCollapsingContextPanel *panel_ = nullptr;
  KitPage page_;
  Visitor &visitor_;
};

class AdaptivePanel : public FoldingPanel
{
protected:
  AdaptivePanel() : FoldingPanel(WCollapsingContextPanel::HeightAdaptive) {}
};

class Accordion : public testing::Test
{
protected:
  Accordion()
      : page_([this](Wt::WContainerWidget &root) {
          bar_ = new WNavAccordion();
          layOut(root, bar_);
          connect_ = new WNavAccordionStdCell("Connect", "Starts a session.");
          save_ = new WNavAccordionStdCell("Download", "Saves it.");
          bar_->sectionAdd("Sessions", connect_);
          bar_->sectionAdd("Files", save_);
        }),
        visitor_(page_.visitor)
  {
  }

  WNavAccordion *bar_ = nullptr;
  WNavAccordionStdCell *connect_ = nullptr;
  WNavAccordionStdCell *save_ = nullptr;
  KitPage page_;
  Visitor &visitor_;
};

class Presses : public Wt::WObject
{
public:
  void press() { ++count; }
  int count = 0;
};

} // namespace

// ---- A panel that folds

TEST_F(FoldingPanel, foldsToItsTitleByAClickAndOpensByAnother)
{
  EXPECT_EQ(height(), "260px");
  EXPECT_TRUE(contentShows());
  EXPECT_TRUE(markSaysOpen());
  clickTitle();
  EXPECT_EQ(height(), "24px");
  EXPECT_FALSE(contentShows());
  EXPECT_FALSE(markSaysOpen());
  clickTitle();
  EXPECT_EQ(height(), "260px");
  EXPECT_TRUE(contentShows());
  EXPECT_TRUE(markSaysOpen());
}

TEST_F(FoldingPanel, foldsAndOpensByItsMarkToo)
{
  ASSERT_TRUE(visitor_.click(visitor_.byAttribute("src", kOpenMark)));
  EXPECT_FALSE(contentShows());
  EXPECT_FALSE(markSaysOpen());
  ASSERT_TRUE(visitor_.click(visitor_.byAttribute("src", kFoldedMark)));
  EXPECT_TRUE(contentShows());
  EXPECT_TRUE(markSaysOpen());
}

TEST_F(FoldingPanel, keepsMarkAndContentAtOneWhereASecondClickComesBeforeTheFirstOnesAnswer)
{
  Visitor::Node *mark = visitor_.byAttribute("src", kOpenMark);
  // The page still shows the open mark when it is clicked for the second time.
  ASSERT_TRUE(visitor_.click(mark));
  EXPECT_FALSE(contentShows());
  Visitor::Node *title = visitor_.byClass("nevo-context-panel-title-button-collapsing");
  mark->settings.erase("hidden");
  ASSERT_TRUE(visitor_.event(title, "mouseup"));
  ASSERT_TRUE(visitor_.event(mark, "click"));
  EXPECT_TRUE(contentShows());
  EXPECT_TRUE(markSaysOpen());
}

TEST_F(FoldingPanel, fadesFor300Milliseconds)
{
  visitor_.page().calls.clear();
  clickTitle();
  bool faded = false;
  for (const std::string &call : visitor_.page().calls)
    faded = faded || (call.find("anim") != std::string::npos && call.find("300") != std::string::npos);
  EXPECT_TRUE(faded);
}

TEST_F(FoldingPanel, opensWithItsContentStillHiddenWhereThereIsNothingToShow)
{
  clickTitle();
  page_.act([&] { panel_->hideContent(); });
  clickTitle();
  EXPECT_TRUE(markSaysOpen());
  EXPECT_EQ(height(), "260px");
  EXPECT_FALSE(contentShows());
  page_.act([&] { panel_->showContent(); });
  EXPECT_TRUE(contentShows());
}

TEST_F(FoldingPanel, hidesItsContentWithoutFolding)
{
  page_.act([&] { panel_->hideContent(); });
  EXPECT_FALSE(contentShows());
  EXPECT_EQ(height(), "260px");
  EXPECT_TRUE(markSaysOpen());
}

TEST_F(FoldingPanel, doesNotFollowItsLayoutWhereItsHeightIsFixed)
{
  EXPECT_FALSE(visitor_.panel("Details")->has("!size"));
  resize(50);
  EXPECT_TRUE(contentShows());
  EXPECT_EQ(height(), "260px");
}

TEST_F(FoldingPanel, cannotFoldBeforeItHasContent)
{
  KitPage empty([](Wt::WContainerWidget &root) {
    WCollapsingContextPanel *panel =
        new WCollapsingContextPanel("Empty", WCollapsingContextPanel::HeightAdaptive, 100);
    layOut(root, panel);
    panel->hideContent();
    panel->showContent();
  });
  empty.visitor.click("Empty");
  EXPECT_EQ(empty.visitor.panel("Empty")->get("*height"), "100px");
  empty.visitor.size(empty.visitor.panel("Empty"), 800, 50);
  EXPECT_EQ(empty.visitor.panel("Empty")->get("*height"), "100px");
}

TEST_F(FoldingPanel, carriesTheClassesThatTheThemesKnow)
{
  EXPECT_TRUE(visitor_.byClass("nevo-context-panel"));
  EXPECT_TRUE(visitor_.byClass("nevo-context-panel-title-button-collapsing"));
}

// ---- One that follows its layout

TEST_F(AdaptivePanel, foldsBelow90PixelsAndOpensFrom90)
{
  resize(90);
  EXPECT_TRUE(contentShows());
  EXPECT_EQ(height(), "90px");
  resize(89);
  EXPECT_FALSE(contentShows());
  EXPECT_EQ(height(), "24px");
  EXPECT_FALSE(markSaysOpen());
  resize(89);
  EXPECT_FALSE(contentShows());
  resize(90);
  EXPECT_TRUE(contentShows());
  EXPECT_EQ(height(), "90px");
  EXPECT_TRUE(markSaysOpen());
}

TEST_F(AdaptivePanel, saysItsHeightAnewWhereADraggedBorderHasFoldedIt)
{
  const auto drag = [this](int to) {
    visitor_.script(visitor_.panel("Details"), "size", "800," + std::to_string(to) + ",1");
  };
  drag(89);
  EXPECT_EQ(height(), "24px");
  visitor_.panel("Details")->settings["*height"] = "64px"; // the border goes on
  drag(64);
  EXPECT_EQ(height(), "24px");
  EXPECT_FALSE(contentShows());
}

TEST_F(AdaptivePanel, opensToTheHeightThatItHadLast)
{
  resize(333);
  clickTitle();
  EXPECT_EQ(height(), "24px");
  clickTitle();
  EXPECT_EQ(height(), "333px");
}

TEST_F(AdaptivePanel, opensToItsFirstHeightWhereItsLayoutGaveNone)
{
  clickTitle();
  clickTitle();
  EXPECT_EQ(height(), "260px");
}

TEST_F(AdaptivePanel, remembersOnlyClicksAsFolding)
{
  resize(333);
  resize(50);
  clickTitle(); // still counts as the first click: it folds what lack of room has folded
  EXPECT_EQ(height(), "24px");
  EXPECT_FALSE(contentShows());
  clickTitle();
  EXPECT_EQ(height(), "333px");
  EXPECT_TRUE(contentShows());
}

TEST_F(AdaptivePanel, livesWithHostileSizes)
{
  Visitor::Node *panel = visitor_.panel("Details");
  for (const char *arguments : {"", "1", "-5,-5", "\"x\",\"y\"", "1e9,99999999999"})
    visitor_.script(panel, "size", arguments);
  EXPECT_TRUE(contentShows());
  EXPECT_EQ(height(), "260px");
}

// ---- One that stays

TEST(ContextPanel, showsItsTitleAboveItsContentAndTakesTheHeightOfItsLayout)
{
  KitPage page([](Wt::WContainerWidget &root) {
    WContextPanel *panel = new WContextPanel("List");
    layOut(root, panel);
    panel->setContent(new Wt::WText("Content"), 1, Wt::AlignJustify);
  });
  Visitor::Node *panel = page.visitor.panel("List");
  ASSERT_TRUE(panel);
  EXPECT_EQ(panel->allText(), "List Content");
  EXPECT_TRUE(page.visitor.byClass("nevo-context-panel-title"));
  ASSERT_TRUE(page.visitor.size(panel, 800, 512));
  EXPECT_EQ(panel->get("*height"), "512px");
  EXPECT_TRUE(panel->has("!size"));
  page.visitor.click("List");
  EXPECT_TRUE(page.visitor.shows("Content"));
}

// ---- The action bar

TEST_F(Accordion, showsItsSectionsInOrderAndOpen)
{
  EXPECT_EQ(visitor_.page().body().allText(), "Sessions Connect Starts a session. Files Download Saves it.");
  EXPECT_TRUE(visitor_.byClass("nevo-nav-accordion-title-button", 1));
  EXPECT_TRUE(visitor_.byClass("nevo-nav-accordion-cell-body", 1));
  EXPECT_TRUE(visitor_.byClass("nevo-nav-accordion-action-button", 1));
}

TEST_F(Accordion, foldsEachSectionForItself)
{
  const char *const open = "resources/themes/halden/nav-accordion-title-button-expanded-idle.png";
  const char *const folded = "resources/themes/halden/nav-accordion-title-button-collapsed-idle.png";
  ASSERT_TRUE(visitor_.click("Sessions"));
  EXPECT_FALSE(visitor_.shows("Starts a session."));
  EXPECT_TRUE(visitor_.shows("Saves it."));
  EXPECT_TRUE(visitor_.byAttribute("src", folded));
  ASSERT_TRUE(visitor_.click("Files"));
  EXPECT_FALSE(visitor_.shows("Saves it."));
  EXPECT_FALSE(visitor_.byAttribute("src", open));
  ASSERT_TRUE(visitor_.click("Sessions"));
  EXPECT_TRUE(visitor_.shows("Starts a session."));
  EXPECT_FALSE(visitor_.shows("Saves it."));
}

TEST_F(Accordion, foldsByItsMarkToo)
{
  const char *const open = "resources/themes/halden/nav-accordion-title-button-expanded-idle.png";
  const char *const folded = "resources/themes/halden/nav-accordion-title-button-collapsed-idle.png";
  ASSERT_TRUE(visitor_.click(visitor_.byAttribute("src", open)));
  EXPECT_FALSE(visitor_.shows("Starts a session."));
  ASSERT_TRUE(visitor_.click(visitor_.byAttribute("src", folded)));
  EXPECT_TRUE(visitor_.shows("Starts a session."));
}

TEST_F(Accordion, runsAnActionOnlyWhileItsButtonIsEnabled)
{
  Presses presses;
  page_.act([&] { connect_->connectAction(&presses, &Presses::press); });
  visitor_.click(visitor_.button("Connect"));
  EXPECT_EQ(presses.count, 1);
  page_.act([&] { connect_->disableActionButton(); });
  EXPECT_FALSE(visitor_.click(visitor_.button("Connect")));
  EXPECT_EQ(presses.count, 1);
  page_.act([&] { connect_->enableActionButton(); });
  visitor_.click(visitor_.button("Connect"));
  EXPECT_EQ(presses.count, 2);
}

TEST_F(Accordion, offersALink)
{
  page_.act([&] {
    Wt::WLink link("/files/settings.tar.gz");
    save_->linkSet(link);
  });
  EXPECT_NE(visitor_.button("Download")->get("!link").find("/files/settings.tar.gz"), std::string::npos);
}

TEST_F(Accordion, takesTheWidthOfItsLayout)
{
  Visitor::Node *bar = visitor_.page().findIf([](const Visitor::Node &n) { return n.has("!size"); });
  ASSERT_TRUE(bar);
  ASSERT_TRUE(visitor_.size(bar, 210, 600));
  EXPECT_EQ(bar->get("*width"), "210px");
  EXPECT_TRUE(bar->has("!size"));
}
