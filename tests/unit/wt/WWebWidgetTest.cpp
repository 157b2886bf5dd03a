// SPDX-License-Identifier: MIT
#include "testing/TestSite.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WLineEdit>
#include <Wt/WPushButton>
#include <Wt/WTabWidget>
#include <Wt/WText>
#include <Wt/WVBoxLayout>
#include <gtest/gtest.h>

using namespace Wt;
using namespace Wt::Testing;

namespace
{

/// A page whose tree a test changes within the session.
struct Stage {
  WApplication *app = nullptr;
  TestSite site;
  std::unique_ptr<HeadlessBrowser> page;

  explicit Stage(std::function<void(WContainerWidget &)> build)
      : site(TestSite::building([this, build](WApplication &application) {
          app = &application;
          build(*application.root());
        })),
        page(site.openPage())
  {
  }

  void change(std::function<void()> function)
  {
    site.manager->post(app->sessionId(), std::move(function));
    site.scheduler.run();
    page->settle();
  }

  std::string rootTree() { return page->page().dump(page->page().body().children.at(0)->children.at(0)); }
};

} // namespace

TEST(WWebWidget, staysSmall)
{
  EXPECT_LE(sizeof(WText) - sizeof(std::string), 150u);
}

TEST(WWebWidget, rendersItsSettings)
{
  Stage stage([](WContainerWidget &root) {
    auto *text = new WText("T", &root);
    text->setStyleClass("one two");
    text->addStyleClass("two three");
    text->removeStyleClass("one");
    text->resize(WLength(-10), WLength(50, WLength::Percentage));
    text->setMinimumSize(5, WLength::Auto);
    text->setMaximumSize(WLength::Auto, 99);
    text->setMargin(3, Left | Top);
    text->setVerticalAlignment(AlignMiddle);
    text->setToolTip("tip");
    text->setAttributeValue("data-x", "y");
    text->setObjectName("named");
  });
  const Node &node = *stage.page->byText("T");
  EXPECT_EQ("two three", node.get("class"));
  EXPECT_EQ("10px", node.get("*width"));
  EXPECT_EQ("50%", node.get("*height"));
  EXPECT_EQ("5px", node.get("*min-width"));
  EXPECT_EQ("99px", node.get("*max-height"));
  EXPECT_EQ("3px", node.get("*margin-left"));
  EXPECT_FALSE(node.has("*margin-right"));
  EXPECT_EQ("middle", node.get("*vertical-align"));
  EXPECT_EQ("tip", node.get("title"));
  EXPECT_EQ("y", node.get("data-x"));
  EXPECT_EQ(0u, node.get("id").find("named_o"));
  EXPECT_EQ("inline-block", node.get("*display"));
}

TEST(WWebWidget, isNotRenderedWhileItWasNeverShown)
{
  WText *text = nullptr;
  Stage stage([&text](WContainerWidget &root) {
    text = new WText("secret", &root);
    text->hide();
  });
  EXPECT_EQ(std::string::npos, stage.page->tree().find("secret"));
  stage.change([&] { text->show(); });
  EXPECT_TRUE(stage.page->shows("secret"));
  stage.change([&] { text->hide(); });
  EXPECT_FALSE(stage.page->shows("secret"));
  EXPECT_NE(std::string::npos, stage.page->tree().find("secret")) << "it stays for the next time";
}

TEST(WWebWidget, knowsWhetherItIsVisible)
{
  WContainerWidget *box = nullptr;
  WText *text = nullptr;
  Stage stage([&](WContainerWidget &root) {
    box = new WContainerWidget(&root);
    text = new WText("T", box);
    EXPECT_TRUE(text->isVisible());
    box->hide();
    EXPECT_FALSE(text->isVisible());
    EXPECT_FALSE(text->isHidden());
    box->show();
    root.removeWidget(box);
    EXPECT_FALSE(text->isVisible());
    root.addWidget(box);
    EXPECT_TRUE(text->isVisible());
  });
}

TEST(WWebWidget, animatesInAfterItWasMadeAndOutBeforeItIsHidden)
{
  WText *text = nullptr;
  Stage stage([&](WContainerWidget &root) {
    text = new WText("T", &root);
    text->hide();
  });
  const WAnimation fade(WAnimation::Fade, WAnimation::EaseIn, 100);
  stage.change([&] { text->animateShow(fade); });
  ASSERT_EQ(1u, stage.page->page().calls.size());
  EXPECT_NE(std::string::npos, stage.page->page().calls[0].find("anim [0,256,2,100]"));
  stage.change([&] { text->animateHide(fade); });
  ASSERT_EQ(2u, stage.page->page().calls.size());
  EXPECT_NE(std::string::npos, stage.page->page().calls[1].find("anim [1,256,2,100]"));
  EXPECT_FALSE(stage.page->shows("T"));
}

TEST(WWebWidget, disablesAllThatIsInside)
{
  WContainerWidget *box = nullptr;
  WLineEdit *edit = nullptr;
  WLineEdit *late = nullptr;
  Stage stage([&](WContainerWidget &root) {
    box = new WContainerWidget(&root);
    edit = new WLineEdit(new WContainerWidget(box));
  });
  stage.change([&] {
    box->disable();
    late = new WLineEdit(box);
  });
  EXPECT_FALSE(edit->isEnabled());
  EXPECT_FALSE(edit->isDisabled());
  EXPECT_TRUE(edit->hasStyleClass("Wt-disabled"));
  EXPECT_TRUE(late->hasStyleClass("Wt-disabled"));
  EXPECT_TRUE(stage.page->byTag("input")->has("disabled"));
  stage.change([&] { box->enable(); });
  EXPECT_FALSE(stage.page->byTag("input", 0)->has("disabled"));
  EXPECT_FALSE(late->hasStyleClass("Wt-disabled"));
}

TEST(WWebWidget, turnsFromASpanToADivWithAllThatIsInside)
{
  WContainerWidget *box = nullptr;
  Stage stage([&](WContainerWidget &root) {
    box = new WContainerWidget(&root);
    new WText("inner", box);
  });
  stage.change([&] { box->setInline(true); });
  EXPECT_EQ("div *height=\"100%\"\n  span\n    span: inner\n", stage.rootTree());
}

TEST(WWebWidget, movesBetweenParentsWithoutBeingMadeAnew)
{
  WContainerWidget *left = nullptr;
  WContainerWidget *right = nullptr;
  WText *text = nullptr;
  Stage stage([&](WContainerWidget &root) {
    left = new WContainerWidget(&root);
    right = new WContainerWidget(&root);
    text = new WText("mover", left);
  });
  const auto id = stage.page->byText("mover")->id;
  stage.page->resetCounters();
  stage.change([&] {
    left->removeWidget(text);
    right->addWidget(text);
  });
  EXPECT_EQ(id, stage.page->byText("mover")->id);
  EXPECT_EQ(1u, stage.page->operationsReceived());
}

TEST(WWebWidget, removesAWholeTreeInOneOperation)
{
  WContainerWidget *box = nullptr;
  Stage stage([&](WContainerWidget &root) {
    box = new WContainerWidget(&root);
    for (int i = 0; i < 50; ++i)
      new WText("x", box);
  });
  stage.page->resetCounters();
  stage.change([&] { delete box; });
  EXPECT_EQ(1u, stage.page->operationsReceived());
}

TEST(WWebWidget, asksForFocusEvenBeforeItIsShownAndKnowsWhoHasIt)
{
  WLineEdit *first = nullptr;
  WLineEdit *second = nullptr;
  Stage stage([&](WContainerWidget &root) {
    first = new WLineEdit(&root);
    second = new WLineEdit(&root);
    second->setFocus();
    EXPECT_TRUE(second->hasFocus());
    EXPECT_FALSE(first->hasFocus());
  });
  EXPECT_EQ(stage.page->byTag("input", 1)->id, stage.page->page().focus);
  stage.page->focusOn(stage.page->byTag("input", 0));
  stage.change([&] {
    EXPECT_TRUE(first->hasFocus());
    first->setFocus(false);
    EXPECT_FALSE(first->hasFocus());
  });
  EXPECT_EQ(0u, stage.page->page().focus);
}

TEST(WWebWidget, listensOnlyWhileSomebodyIsConnected)
{
  WText *text = nullptr;
  Stage stage([&](WContainerWidget &root) { text = new WText("T", &root); });
  EXPECT_FALSE(stage.page->byText("T")->has("@click"));
  Signals::connection connection;
  stage.change([&] { connection = text->clicked().connect(std::bind([] {})); });
  EXPECT_TRUE(stage.page->byText("T")->has("@click"));
  stage.change([&] { connection.disconnect(); });
  EXPECT_FALSE(stage.page->byText("T")->has("@click"));
}

TEST(WWebWidget, bubblesAClickOnAChildToItsParent)
{
  std::string order;
  Stage stage([&](WContainerWidget &root) {
    root.clicked().connect(std::bind([&] { order += "parent "; }));
    (new WText("T", &root))->clicked().connect(std::bind([&] { order += "child "; }));
  });
  stage.page->click("T");
  EXPECT_EQ("child parent ", order);
}

TEST(WWebWidget, maySurviveTheDeletionOfItselfInItsOwnSlot)
{
  WText *text = nullptr;
  Stage stage([&](WContainerWidget &root) {
    text = new WText("T", &root);
    text->clicked().connect(std::bind([&] { delete text; }));
  });
  stage.page->click("T");
  EXPECT_FALSE(stage.page->shows("T"));
  EXPECT_TRUE(stage.page->connected());
}

TEST(WWebWidget, refusesAttributesThatWouldRunScript)
{
  Stage stage([](WContainerWidget &root) {
    auto *text = new WText("T", &root);
    text->setAttributeValue("onclick", "alert(1)");
    text->setAttributeValue("*width", "1px");
    text->setAttributeValue("", "x");
  });
  EXPECT_EQ("div *height=\"100%\"\n  span: T\n", stage.rootTree());
}

TEST(WWebWidget, isToldTheSizeThatTheBrowserGaveIt)
{
  class Aware : public WContainerWidget
  {
  public:
    explicit Aware(WContainerWidget *parent) : WContainerWidget(parent) { setLayoutSizeAware(true); }
    int width_ = 0;
    int height_ = 0;

  protected:
    void layoutSizeChanged(int width, int height) override
    {
      width_ = width;
      height_ = height;
    }
  };
  Aware *aware = nullptr;
  Stage stage([&](WContainerWidget &root) {
    aware = new Aware(nullptr);
    (new WVBoxLayout(&root))->addWidget(aware);
  });
  Node *node = stage.page->page().findIf([](const Node &n) { return n.has("!size"); });
  EXPECT_TRUE(stage.page->size(node, 640, 480));
  EXPECT_EQ(640, aware->width_);
  EXPECT_EQ(480, aware->height_);
  stage.change([&] { aware->disable(); });
  stage.page->sendRaw("{\"n\":2,\"a\":1,\"e\":[[" + std::to_string(node->id) +
                      ",\"size\",{\"a\":[320,200]}]]}");
  EXPECT_EQ(320, aware->width_) << "a disabled widget has a size too";
  stage.change([&] { aware->enable(); });
}

TEST(WWebWidget, ignoresSizesThatCannotBe)
{
  class Aware : public WContainerWidget
  {
  public:
    explicit Aware(WContainerWidget *parent) : WContainerWidget(parent) { setLayoutSizeAware(true); }
    int told_ = 0;

  protected:
    void layoutSizeChanged(int, int) override { ++told_; }
  };
  Aware *aware = nullptr;
  Stage stage([&](WContainerWidget &root) {
    aware = new Aware(nullptr);
    (new WVBoxLayout(&root))->addWidget(aware);
  });
  Node *node = stage.page->page().findIf([](const Node &n) { return n.has("!size"); });
  stage.page->script(node, "size", "-1,5");
  stage.page->script(node, "size", "\"x\"");
  stage.page->script(node, "size", "");
  EXPECT_EQ(0, aware->told_);
}

TEST(WContainerWidget, keepsTheOrderOfItsChildren)
{
  WContainerWidget *box = nullptr;
  WText *b = nullptr;
  Stage stage([&](WContainerWidget &root) {
    box = &root;
    b = new WText("b", &root);
    root.insertBefore(new WText("a"), b);
    root.insertWidget(2, new WText("d"));
    root.insertWidget(2, new WText("c"));
  });
  EXPECT_EQ("div *height=\"100%\"\n  span: a\n  span: b\n  span: c\n  span: d\n", stage.rootTree());
  stage.change([&] {
    EXPECT_EQ(1, box->indexOf(b));
    EXPECT_EQ(4, box->count());
    box->addWidget(b);
    EXPECT_EQ(1, box->indexOf(b)) << "adding again changes nothing";
    delete b;
  });
  EXPECT_EQ("div *height=\"100%\"\n  span: a\n  span: c\n  span: d\n", stage.rootTree());
}

TEST(WContainerWidget, removesAWidgetWhosesoeverChildItIs)
{
  Stage stage([](WContainerWidget &root) {
    root.removeWidget(&root);
    EXPECT_EQ(nullptr, root.parent());
    auto *text = new WText("T");
    root.removeWidget(text);
    delete text;
  });
  stage.change([&] { delete stage.app->root(); });
  EXPECT_TRUE(stage.page->connected());
}

TEST(WText, filtersMarkupAndShowsTheRestAsElements)
{
  WText *text = nullptr;
  Stage stage(
      [&](WContainerWidget &root) { text = new WText("a <b onclick='x()'>b</b><script>c</script>", &root); });
  EXPECT_EQ("a <b>b</b>", text->text().toUTF8());
  EXPECT_TRUE(stage.page->shows("a b"));
}

TEST(WText, turnsToPlainTextForGoodWhenItIsNotWellFormed)
{
  Stage stage([](WContainerWidget &root) {
    auto *text = new WText(&root);
    EXPECT_TRUE(text->setText("<b>fine</b>"));
    EXPECT_FALSE(text->setText("a < b"));
    EXPECT_EQ(PlainText, text->textFormat());
    EXPECT_TRUE(text->setText("<b>x</b>"));
    EXPECT_EQ(PlainText, text->textFormat());
  });
  EXPECT_TRUE(stage.page->shows("<b>x</b>"));
}

TEST(WText, showsAnUnknownKeyAsItStands)
{
  Stage stage([](WContainerWidget &root) { new WText(WString::tr("no.such<key"), &root); });
  EXPECT_TRUE(stage.page->shows("??no.such<key??"));
}

TEST(WText, breaksLinesOfPlainText)
{
  Stage stage([](WContainerWidget &root) { new WText("one\ntwo", PlainText, &root); });
  EXPECT_TRUE(stage.page->shows("one\ntwo"));
}

TEST(WText, isABlockWhenItsMarkupBeginsWithOne)
{
  Stage stage([](WContainerWidget &root) { new WText("<p>x</p>", &root); });
  EXPECT_EQ("div", stage.page->byText("x")->tag);
}

TEST(WWebWidget, isToldOfSizesThatALayoutGivesAndOfNoOthers)
{
  class Aware : public WContainerWidget
  {
  public:
    explicit Aware(const char *name, WContainerWidget *parent = nullptr) : WContainerWidget(parent)
    {
      setObjectName(name);
      setLayoutSizeAware(true);
    }
  };
  Stage stage([](WContainerWidget &root) {
    new Aware("plain", new WContainerWidget(&root));
    auto *managed = new WContainerWidget(&root);
    auto *layout = new WVBoxLayout(managed);
    layout->addWidget(new Aware("item"));
    auto *tabs = new WTabWidget();
    tabs->addTab(new Aware("tab"), "Tab");
    layout->addWidget(tabs);
    auto *loose = new WTabWidget(&root);
    loose->addTab(new Aware("looseTab"), "Tab");
  });
  const auto asked = [&stage](const char *name) {
    return stage.page->page().findIf([name](const Node &n) {
      return n.has("!size") && n.get("id").find(name) != std::string::npos;
    }) != nullptr;
  };
  EXPECT_TRUE(asked("item"));
  EXPECT_TRUE(asked("tab"));
  EXPECT_FALSE(asked("plain"));
  EXPECT_FALSE(asked("looseTab"));
}

TEST(WWebWidget, hearsNothingWhileItIsHiddenBesidesTheLossOfTheFocus)
{
  std::string heard;
  WContainerWidget *box = nullptr;
  WPushButton *button = nullptr;
  Stage stage([&](WContainerWidget &root) {
    box = new WContainerWidget(&root);
    button = new WPushButton("Press", box);
    button->clicked().connect(std::bind([&heard] { heard += "click "; }));
    button->blurred().connect(std::bind([&heard] { heard += "blur "; }));
  });
  const auto id = std::to_string(stage.page->byTag("button")->id);
  stage.change([&] { box->hide(); });
  stage.page->sendRaw("{\"n\":1,\"a\":1,\"e\":[[" + id + ",\"click\"],[" + id + ",\"blur\"]]}");
  EXPECT_EQ("blur ", heard);
  stage.change([&] { box->show(); });
  stage.page->sendRaw("{\"n\":2,\"a\":1,\"e\":[[" + id + ",\"click\"]]}");
  EXPECT_EQ("blur click ", heard);
}
