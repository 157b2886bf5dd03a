// SPDX-License-Identifier: MIT
#include "WidgetPage.h"

#include <Wt/WAnchor>
#include <Wt/WIconPair>
#include <Wt/WImage>
#include <Wt/WProgressBar>
#include <Wt/WPushButton>
#include <Wt/WResource>
#include <Wt/WText>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

class EmptyResource : public WResource
{
public:
  ~EmptyResource() override { beingDeleted(); }
  void handleRequest(const Http::Request &, Http::Response &) override {}
};

} // namespace

// --- WImage

TEST(WImage, showsItsLinkAndItsAlternateText)
{
  WImage *image = nullptr;
  WidgetPage page([&](WContainerWidget *root) { image = new WImage(WLink("a.png"), "A picture", root); });
  EXPECT_EQ("a.png", page.tag("img")->get("src"));
  EXPECT_EQ("A picture", page.tag("img")->get("alt"));
  page.run([&] {
    image->setImageLink(WLink("b.png"));
    image->setAlternateText("");
  });
  EXPECT_EQ("b.png", page.tag("img")->get("src"));
  EXPECT_TRUE(page.tag("img")->has("alt")) << "an image without text is decoration";
}

TEST(WImage, sendsNothingForTheSameLinkAgain)
{
  WImage *image = nullptr;
  WidgetPage page([&](WContainerWidget *root) { image = new WImage(WLink("a.png"), root); });
  page.browser->resetCounters();
  page.run([&] { image->setImageLink(WLink("a.png")); });
  EXPECT_EQ(0u, page.browser->operationsReceived());
}

TEST(WImage, followsTheResourceBehindItsLinkAndForgetsOneThatGoes)
{
  EmptyResource *resource = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    resource = new EmptyResource();
    new WImage(WLink(resource), root);
  });
  const std::string before = page.tag("img")->get("src");
  EXPECT_NE("", before);
  page.run([&] { resource->setChanged(); });
  EXPECT_NE(before, page.tag("img")->get("src"));
  page.run([&] { delete resource; });
  EXPECT_FALSE(page.tag("img")->has("src"));
}

// --- WAnchor

TEST(WAnchor, leadsToItsLinkInTheWindowThatWasAskedFor)
{
  WAnchor *anchor = nullptr;
  WidgetPage page([&](WContainerWidget *root) { anchor = new WAnchor(WLink("x.html"), "<b>Go</b>", root); });
  EXPECT_EQ("x.html", page.tag("a")->get("href"));
  EXPECT_EQ("<b>Go</b>", anchor->text().toUTF8());
  EXPECT_FALSE(page.tag("a")->has("target"));
  page.run([&] { anchor->setTarget(TargetNewWindow); });
  EXPECT_EQ("_blank", page.tag("a")->get("target"));
  EXPECT_EQ("noopener noreferrer", page.tag("a")->get("rel"));
  page.run([&] { anchor->setLink(WLink("y.html")); });
  EXPECT_EQ(TargetSelf, anchor->target()) << "a different link brings its own target";
  EXPECT_FALSE(page.tag("a")->has("target"));
}

TEST(WAnchor, leadsNowhereWithoutALinkOrDisabledButIsClickedAllTheSame)
{
  WAnchor *anchor = nullptr;
  Record record;
  WidgetPage page([&](WContainerWidget *root) {
    anchor = new WAnchor(root);
    anchor->setText("Forgot");
    anchor->clicked().connect(std::bind(record.note("clicked")));
  });
  EXPECT_FALSE(page.tag("a")->has("href"));
  EXPECT_TRUE(page.tag("a")->has("!press")) << "the keyboard must reach it";
  page.browser->click("Forgot");
  EXPECT_EQ("clicked", record.text);
  page.run([&] { anchor->setLink(WLink("x.html")); });
  EXPECT_TRUE(page.tag("a")->has("href"));
  EXPECT_FALSE(page.tag("a")->has("!press"));
  page.run([&] { anchor->disable(); });
  EXPECT_FALSE(page.tag("a")->has("href"));
}

TEST(WAnchor, neverLeadsToScript)
{
  WidgetPage page([](WContainerWidget *root) {
    for (const char *url : {"javascript:alert(1)", " java\nscript:alert(1)", "JavaScript:x", "vbscript:x",
                            "data:text/html,<script>"})
      new WAnchor(WLink(url), "x", root);
    new WAnchor(WLink("https://[fe80::1]"), "y", root);
  });
  for (int i = 0; i < 5; ++i)
    EXPECT_FALSE(page.tag("a", i)->has("href")) << page.tag("a", i)->get("href");
  EXPECT_EQ("https://[fe80::1]", page.tag("a", 5)->get("href"));
}

TEST(WAnchor, takesOverItsImageAndDeletesTheFormerOne)
{
  WAnchor *anchor = nullptr;
  bool gone = false;
  WidgetPage page([&](WContainerWidget *root) {
    auto *image = new WImage(WLink("a.png"));
    image->destroyed().connect(std::bind([&] { gone = true; }));
    anchor = new WAnchor(WLink("x.html"), image, root);
  });
  EXPECT_EQ("a", page.tag("img")->parent->tag);
  page.run([&] { anchor->setImage(new WImage(WLink("b.png"))); });
  EXPECT_TRUE(gone);
  EXPECT_EQ("b.png", page.tag("img")->get("src"));
  page.run([&] { delete anchor->image(); });
  EXPECT_EQ(nullptr, anchor->image());
}

// --- WPushButton

TEST(WPushButton, showsItsTextAsTextWithItsClasses)
{
  WPushButton *button = nullptr;
  WidgetPage page([&](WContainerWidget *root) { button = new WPushButton("<b>Go</b>", root); });
  EXPECT_EQ("<b>Go</b>", page.tag("button")->text);
  EXPECT_EQ("Wt-btn with-label", page.tag("button")->get("class"));
  page.run([&] {
    button->setText("");
    button->setDefault(true);
    button->addStyleClass("mine");
  });
  EXPECT_EQ("mine Wt-btn Wt-btn-default", page.tag("button")->get("class"));
  EXPECT_TRUE(button->isDefault());
}

TEST(WPushButton, isPressedByEnterTooWhichEmitsBoth)
{
  Record record;
  WidgetPage page([&](WContainerWidget *root) {
    auto *button = new WPushButton("Go", root);
    button->clicked().connect(std::bind(record.note("clicked")));
    button->enterPressed().connect(std::bind(record.note("enter")));
  });
  page.browser->key(page.tag("button"), Key_Enter);
  EXPECT_EQ("enter clicked", record.text);
}

TEST(WPushButton, dropsTheSecondEventOfOneThatTheFirstDeleted)
{
  WPushButton *button = nullptr;
  Record record;
  WidgetPage page([&](WContainerWidget *root) {
    button = new WPushButton("Go", root);
    const auto once = [&] {
      record.note("gone")();
      delete button;
    };
    button->clicked().connect(std::bind(once));
    button->enterPressed().connect(std::bind(once));
  });
  page.browser->key(page.tag("button"), Key_Enter);
  EXPECT_EQ("gone", record.text);
  EXPECT_TRUE(page.browser->connected());
}

TEST(WPushButton, doesNothingWhileItIsDisabledHoweverItIsPressed)
{
  WPushButton *button = nullptr;
  Record record;
  WidgetPage page([&](WContainerWidget *root) {
    button = new WPushButton("Go", root);
    button->clicked().connect(std::bind(record.note("clicked")));
    button->setEnabled(false);
  });
  EXPECT_TRUE(page.tag("button")->has("disabled"));
  page.browser->sendRaw("{\"n\":1,\"a\":1,\"e\":[[" + std::to_string(page.tag("button")->id) +
                        ",\"click\"]]}");
  EXPECT_EQ("", record.text);
}

TEST(WPushButton, leadsToItsLinkUnlessDisabled)
{
  WPushButton *button = nullptr;
  EmptyResource *resource = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    resource = new EmptyResource();
    button = new WPushButton("Download", root);
    button->setLink(WLink(resource));
  });
  EXPECT_NE(std::string::npos, page.tag("button")->get("!link").find("request=resource"));
  page.run([&] { button->disable(); });
  EXPECT_FALSE(page.tag("button")->has("!link"));
  page.run([&] {
    button->enable();
    delete resource;
  });
  EXPECT_FALSE(page.tag("button")->has("!link"));
}

TEST(WPushButton, showsAnIconBesideItsText)
{
  WPushButton *button = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    button = new WPushButton("Go", root);
    button->setIcon(WLink("go.png"));
  });
  EXPECT_EQ("go.png", page.tag("img")->get("src"));
  EXPECT_EQ("Go", page.tag("button")->allText());
  page.run([&] { button->setIcon(WLink()); });
  EXPECT_EQ(nullptr, page.tag("img"));
  EXPECT_EQ("Go", page.tag("button")->allText());
}

// --- WProgressBar

TEST(WProgressBar, showsItsValueAsWidthAndText)
{
  WProgressBar *bar = nullptr;
  WidgetPage page([&](WContainerWidget *root) { bar = new WProgressBar(root); });
  EXPECT_EQ("0 %", bar->text().toUTF8());
  page.run([&] { bar->setValue(42.4); });
  EXPECT_EQ("42.4%", page.styled("Wt-pgb-bar")->get("*width"));
  EXPECT_EQ("42 %", page.styled("Wt-pgb-label")->text);
  EXPECT_EQ("progressbar", page.styled("Wt-progressbar")->get("role"));
  EXPECT_EQ("42.4", page.styled("Wt-progressbar")->get("aria-valuenow"));
}

TEST(WProgressBar, emitsEachValueAndItsCompletionAtTheMaximum)
{
  Record record;
  WProgressBar *bar = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    bar = new WProgressBar(root);
    bar->valueChanged().connect(std::bind(record.note("value")));
    bar->progressCompleted().connect(std::bind(record.note("completed")));
  });
  page.run([&] {
    bar->setRange(0, 7);
    bar->setValue(3);
    bar->setValue(3);
    bar->setValue(7);
  });
  EXPECT_EQ("value value value completed", record.text);
}

TEST(WProgressBar, keepsAValueOutsideItsRange)
{
  WProgressBar *bar = nullptr;
  WidgetPage page([&](WContainerWidget *root) { bar = new WProgressBar(root); });
  page.run([&] { bar->setValue(250); });
  EXPECT_EQ(250, bar->value());
  EXPECT_EQ("100%", page.styled("Wt-pgb-bar")->get("*width"));
  page.run([&] {
    bar->setValue(5);
    bar->setRange(5, 5);
  });
  EXPECT_EQ("0%", page.styled("Wt-pgb-bar")->get("*width"));
}

TEST(WProgressBar, takesAFormatThatIsNoneAsAText)
{
  WProgressBar *bar = nullptr;
  WidgetPage page([&](WContainerWidget *root) { bar = new WProgressBar(root); });
  bar->setFormat("at %.1f of 100 %%");
  EXPECT_EQ("at 0.0 of 100 %", bar->text().toUTF8());
  for (const char *format : {"%s%n", "%f %f", "no conversion", "%", "%d", "%.99f"}) {
    bar->setFormat(format);
    EXPECT_EQ(format, bar->text().toUTF8());
  }
}

// --- WIconPair

TEST(WIconPair, showsOneOfItsIcons)
{
  WIconPair *pair = nullptr;
  WidgetPage page([&](WContainerWidget *root) { pair = new WIconPair("1.png", "2.png", false, root); });
  EXPECT_EQ(0, pair->state());
  EXPECT_EQ("1.png", page.tag("img")->get("src"));
  page.run([&] { pair->setState(5); });
  EXPECT_EQ(1, pair->state());
  EXPECT_EQ("2.png", page.tag("img")->get("src"));
  page.run([&] { pair->showIcon1(); });
  EXPECT_EQ("1.png", page.tag("img")->get("src"));
}

TEST(WIconPair, switchesByAClickWhichDoesNotReachWhatItStandsIn)
{
  Record record;
  WIconPair *pair = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    auto *row = new WContainerWidget(root);
    row->clicked().connect(std::bind(record.note("row-click")));
    row->mouseWentUp().connect(std::bind(record.note("row-up")));
    pair = new WIconPair("1.png", "2.png", true, row);
    pair->icon1Clicked().connect(std::bind(record.note("icon1")));
    pair->icon2Clicked().connect(std::bind(record.note("icon2")));
  });
  page.browser->click(page.tag("img"));
  EXPECT_EQ(1, pair->state());
  EXPECT_EQ("row-up icon1", record.text);
  page.browser->click(page.tag("img"));
  EXPECT_EQ(0, pair->state());
  EXPECT_EQ("row-up icon1 row-up icon2", record.text);
}

TEST(WIconPair, leavesTheLastWordToASlotThatSetsTheState)
{
  WIconPair *pair = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    pair = new WIconPair("1.png", "2.png", true, root);
    pair->icon1Clicked().connect(std::bind([&pair] { pair->setState(0); }));
  });
  page.browser->focusOn(page.tag("img"));
  page.browser->click(page.tag("img"));
  EXPECT_EQ(0, pair->state());
  page.run([&] { EXPECT_TRUE(pair->icon1()->hasFocus()); });
}

TEST(WIconPair, letsAClickThroughWhereItDoesNotSwitch)
{
  Record record;
  WIconPair *pair = nullptr;
  WidgetPage page([&](WContainerWidget *root) {
    root->clicked().connect(std::bind(record.note("root")));
    pair = new WIconPair("1.png", "2.png", false, root);
  });
  page.browser->click(page.tag("img"));
  EXPECT_EQ("root", record.text);
  EXPECT_EQ(0, pair->state());
}

TEST(WIconPair, isReachedByTheKeyboardWhereItSwitchesAndKeepsTheFocus)
{
  WIconPair *pair = nullptr;
  WidgetPage page([&](WContainerWidget *root) { pair = new WIconPair("1.png", "2.png", true, root); });
  EXPECT_TRUE(page.tag("img")->has("!press"));
  page.browser->focusOn(page.tag("img"));
  page.browser->click(page.tag("img"));
  page.run([&] { EXPECT_TRUE(pair->icon2()->hasFocus()); });
}
