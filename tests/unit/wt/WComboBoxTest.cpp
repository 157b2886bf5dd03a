// SPDX-License-Identifier: MIT
#include "WidgetPage.h"

#include <Wt/WComboBox>
#include <Wt/WRegExpValidator>
#include <Wt/WStandardItemModel>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

/// A combo that a test fills and acts on; the page shows it from the start.
class ComboPage
{
public:
  explicit ComboPage(int items)
      : page([this, items](WContainerWidget *root) {
          combo = new WComboBox(root);
          for (int i = 0; i < items; ++i)
            combo->addItem(std::string(1, static_cast<char>('a' + i)));
          combo->changed().connect(std::bind(record.note("changed")));
          combo->activated().connect(std::bind(record.note("activated")));
          combo->sactivated().connect(std::bind(record.note("sactivated")));
        })
  {
  }

  /// What the browser shows, which must be what the server says.
  std::string shown() const
  {
    const Testing::Node *select = page.tag("select");
    const int index = select->has(".value") ? std::stoi(select->get(".value")) : 0;
    EXPECT_EQ(combo->count(), static_cast<int>(select->children.size()));
    if (combo->count() > 0) {
      EXPECT_EQ(combo->currentIndex(), index);
    }
    return combo->currentIndex() < 0 ? "" : select->children[static_cast<std::size_t>(index)]->text;
  }

  Record record;
  WComboBox *combo = nullptr;
  WidgetPage page;
};

} // namespace

TEST(WComboBox, hasNoCurrentItemWhileItIsEmpty)
{
  ComboPage p(0);
  EXPECT_EQ(-1, p.combo->currentIndex());
  EXPECT_EQ("", p.combo->currentText().toUTF8());
  p.combo->setCurrentIndex(3);
  EXPECT_EQ(-1, p.combo->currentIndex());
}

TEST(WComboBox, takesItsFirstItemAsTheCurrentOne)
{
  ComboPage p(2);
  EXPECT_EQ(0, p.combo->currentIndex());
  EXPECT_EQ("a", p.shown());
}

TEST(WComboBox, choosesTheLastItemForAnIndexBeyondTheEnd)
{
  ComboPage p(3);
  p.page.run([&] { p.combo->setCurrentIndex(17); });
  EXPECT_EQ(2, p.combo->currentIndex());
  EXPECT_EQ("c", p.shown());
}

TEST(WComboBox, choosesTheFirstItemForMinusOneUnlessNothingMayBeChosen)
{
  ComboPage p(3);
  p.page.run([&] {
    p.combo->setCurrentIndex(2);
    p.combo->setCurrentIndex(-1);
  });
  EXPECT_EQ(0, p.combo->currentIndex());
  p.page.run([&] {
    p.combo->setNoSelectionEnabled(true);
    p.combo->setCurrentIndex(-1);
  });
  EXPECT_EQ(-1, p.combo->currentIndex());
  EXPECT_EQ("-1", p.page.tag("select")->get(".value"));
}

TEST(WComboBox, keepsItsItemWhenOthersAreInsertedOrRemovedBeforeIt)
{
  ComboPage p(3);
  p.page.run([&] { p.combo->setCurrentIndex(1); });
  p.page.run([&] { p.combo->insertItem(1, "new"); });
  EXPECT_EQ(2, p.combo->currentIndex());
  EXPECT_EQ("b", p.shown());
  p.page.run([&] { p.combo->removeItem(0); });
  EXPECT_EQ(1, p.combo->currentIndex());
  EXPECT_EQ("b", p.shown());
  p.page.run([&] { p.combo->addItem("end"); });
  EXPECT_EQ("b", p.shown());
}

TEST(WComboBox, goesBackToTheFirstItemWhenTheCurrentOneIsRemoved)
{
  ComboPage p(3);
  p.page.run([&] {
    p.combo->setCurrentIndex(2);
    p.combo->removeItem(2);
  });
  EXPECT_EQ(0, p.combo->currentIndex());
  EXPECT_EQ("a", p.shown());
  p.page.run([&] {
    p.combo->removeItem(0);
    p.combo->removeItem(0);
  });
  EXPECT_EQ(-1, p.combo->currentIndex());
  EXPECT_EQ("", p.shown());
}

TEST(WComboBox, emitsNothingForTheProgramsChanges)
{
  ComboPage p(3);
  p.page.run([&] {
    p.combo->setCurrentIndex(2);
    p.combo->clear();
    p.combo->addItem("x");
  });
  EXPECT_EQ("", p.record.text);
}

TEST(WComboBox, tellsWhatTheUserChoseAsActivatedThenAsItsText)
{
  ComboPage p(3);
  ASSERT_TRUE(p.page.browser->choose(p.page.tag("select"), "c"));
  EXPECT_EQ(2, p.combo->currentIndex());
  EXPECT_EQ("changed activated sactivated", p.record.text);
}

TEST(WComboBox, ignoresAnIndexThatTheBrowserCannotHave)
{
  ComboPage p(2);
  for (const int index : {2, -1, 99999999})
    p.page.browser->choose(p.page.tag("select"), index);
  EXPECT_EQ(0, p.combo->currentIndex());
  const std::string id = std::to_string(p.page.tag("select")->id);
  p.page.browser->sendRaw("{\"n\":4,\"a\":0,\"v\":{\"" + id + "\":\"x1\"}}");
  EXPECT_EQ(0, p.combo->currentIndex());
  EXPECT_TRUE(p.page.browser->connected());
}

TEST(WComboBox, sendsNothingWhenItIsFilledAnewWithTheSame)
{
  ComboPage p(3);
  p.page.browser->resetCounters();
  p.page.run([&] {
    p.combo->clear();
    for (const char *text : {"a", "b", "c"})
      p.combo->addItem(text);
  });
  EXPECT_EQ(0u, p.page.browser->operationsReceived());
}

TEST(WComboBox, showsMarkupAsText)
{
  ComboPage p(0);
  p.page.run([&] { p.combo->addItem("<b>bold</b> & co"); });
  EXPECT_EQ("<b>bold</b> & co", p.shown());
}

TEST(WComboBox, findsItemsByText)
{
  ComboPage p(3);
  EXPECT_EQ(1, p.combo->findText("b"));
  EXPECT_EQ(-1, p.combo->findText("B"));
  EXPECT_EQ(-1, p.combo->findText("zz"));
  EXPECT_EQ(2, p.combo->findText("C", WFlags<MatchFlag>(MatchStartsWith)));
}

TEST(WComboBox, validatesItsCurrentText)
{
  ComboPage p(2);
  p.page.run([&] { p.combo->setValidator(new WRegExpValidator("b")); });
  p.page.run([&] { EXPECT_EQ(WValidator::Invalid, p.combo->validate()); });
  EXPECT_TRUE(p.page.tag("select")->hasClass("Wt-invalid"));
  p.page.run([&] {
    p.combo->setCurrentIndex(1);
    EXPECT_EQ(WValidator::Valid, p.combo->validate());
  });
  EXPECT_FALSE(p.page.tag("select")->hasClass("Wt-invalid"));
}

TEST(WComboBox, followsTheRowsOfAModel)
{
  ComboPage p(0);
  WStandardItemModel *model = nullptr;
  p.page.run([&] {
    model = new WStandardItemModel(2, 2, p.combo);
    model->setData(0, 1, boost::any(std::string("zero")), DisplayRole);
    model->setData(1, 1, boost::any(std::string("one")), DisplayRole);
    p.combo->setModel(model);
    p.combo->setModelColumn(1);
    p.combo->setCurrentIndex(1);
  });
  EXPECT_EQ("one", p.shown());
  p.page.run([&] { model->insertRow(0); });
  EXPECT_EQ(2, p.combo->currentIndex());
  EXPECT_EQ("one", p.shown());
  p.page.run([&] { delete model; });
  EXPECT_EQ(0, p.combo->count());
  EXPECT_EQ(-1, p.combo->currentIndex());
}

TEST(WComboBox, mayBeDeletedByWhatTheUserChose)
{
  WidgetPage page([](WContainerWidget *root) {
    WComboBox *combo = new WComboBox(root);
    combo->addItem("a");
    combo->addItem("b");
    combo->sactivated().connect(std::bind([combo] { combo->setCurrentIndex(0); }));
    combo->activated().connect(std::bind([combo] { delete combo; }));
  });
  page.browser->choose(page.tag("select"), 1);
  EXPECT_EQ(nullptr, page.tag("select"));
  EXPECT_TRUE(page.browser->connected());
}
