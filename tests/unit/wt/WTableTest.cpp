// SPDX-License-Identifier: MIT
#include "WidgetPage.h"

#include <Wt/WLineEdit>
#include <Wt/WTable>
#include <Wt/WText>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

class TablePage
{
public:
  TablePage(int rows, int columns)
      : page([this, rows, columns](WContainerWidget *root) {
          table = new WTable(root);
          for (int r = 0; r < rows; ++r)
            for (int c = 0; c < columns; ++c)
              new WText(std::to_string(r) + "." + std::to_string(c), table->elementAt(r, c));
        })
  {
  }

  /// The texts of all rows: cells apart by blanks, rows by a bar.
  std::string shown() const
  {
    std::string text;
    for (const Testing::Node *row :
         page.browser->page().findAll([](const Testing::Node &n) { return n.tag == "tr" && n.visible(); }))
      text += (text.empty() ? "" : "|") + row->allText();
    return text;
  }

  WTable *table = nullptr;
  WidgetPage page;
};

} // namespace

TEST(WTable, growsToTheCellThatIsAskedFor)
{
  TablePage p(0, 0);
  EXPECT_EQ(0, p.table->rowCount());
  EXPECT_EQ(0, p.table->columnCount());
  p.page.run([&] { EXPECT_NE(nullptr, p.table->elementAt(2, 3)); });
  EXPECT_EQ(3, p.table->rowCount());
  EXPECT_EQ(4, p.table->columnCount());
  EXPECT_EQ(12u, p.page.browser->page().findAll([](const Testing::Node &n) { return n.tag == "td"; }).size());
  p.page.run([&] {
    p.table->rowAt(4);
    p.table->columnAt(5);
  });
  EXPECT_EQ(5, p.table->rowCount());
  EXPECT_EQ(6, p.table->columnCount());
}

TEST(WTable, isRowsBelowABodyAndSaysThatItIsForLayout)
{
  TablePage p(2, 2);
  const Testing::Node *table = p.page.tag("table");
  EXPECT_EQ("presentation", table->get("role"));
  ASSERT_EQ(1u, table->children.size());
  EXPECT_EQ("tbody", table->children[0]->tag);
  EXPECT_EQ("0.0 0.1|1.0 1.1", p.shown());
}

TEST(WTable, insertsAndDeletesRowsAndColumns)
{
  TablePage p(2, 2);
  p.page.run([&] {
    p.table->insertRow(1);
    new WText("new", p.table->elementAt(1, 0));
  });
  EXPECT_EQ("0.0 0.1|new|1.0 1.1", p.shown());
  p.page.run([&] { p.table->deleteRow(0); });
  EXPECT_EQ("new|1.0 1.1", p.shown());
  p.page.run([&] {
    p.table->insertColumn(0);
    new WText("left", p.table->elementAt(1, 0));
  });
  EXPECT_EQ("new|left 1.0 1.1", p.shown());
  p.page.run([&] { p.table->deleteColumn(1); });
  EXPECT_EQ("left 1.1", p.shown()) << "the first row has one empty cell";
  p.page.run([&] { p.table->clear(); });
  EXPECT_EQ("", p.shown());
  EXPECT_EQ(0, p.table->columnCount());
}

TEST(WTable, deletesTheContentsOfARowWithIt)
{
  bool gone = false;
  TablePage p(1, 1);
  p.page.run(
      [&] { p.table->elementAt(0, 0)->widget(0)->destroyed().connect(std::bind([&] { gone = true; })); });
  p.page.run([&] { p.table->deleteRow(0); });
  EXPECT_TRUE(gone);
}

TEST(WTable, takesARowAwayInOneOperation)
{
  TablePage p(3, 3);
  p.page.browser->resetCounters();
  p.page.run([&] { p.table->deleteRow(1); });
  EXPECT_EQ(1u, p.page.browser->operationsReceived());
}

TEST(WTable, makesHeaderCellsOfTheFirstRowsAndColumns)
{
  TablePage p(2, 2);
  p.page.run([&] { p.table->setHeaderCount(1); });
  const Testing::Node *table = p.page.tag("table");
  EXPECT_FALSE(table->has("role"));
  ASSERT_EQ("thead", table->children.at(0)->tag);
  EXPECT_EQ("th", table->children[0]->children.at(0)->children.at(1)->tag);
  EXPECT_EQ("col", table->children[0]->children[0]->children[1]->get("scope"));
  EXPECT_EQ("0.0 0.1|1.0 1.1", p.shown());
  p.page.run([&] {
    p.table->setHeaderCount(0);
    p.table->setHeaderCount(1, Vertical);
  });
  EXPECT_EQ("0.0 0.1|1.0 1.1", p.shown());
  EXPECT_EQ("row", p.page.tag("th")->get("scope"));
}

TEST(WTable, leavesOutTheCellsThatASpanCovers)
{
  TablePage p(2, 3);
  p.page.run([&] {
    p.table->elementAt(0, 0)->setColumnSpan(2);
    p.table->elementAt(0, 2)->setRowSpan(2);
  });
  EXPECT_EQ("0.0 0.2|1.0 1.1", p.shown());
  EXPECT_EQ("2", p.page.tag("td")->get("colspan"));
  p.page.run([&] { p.table->elementAt(0, 0)->setColumnSpan(1); });
  EXPECT_EQ("0.0 0.1 0.2|1.0 1.1", p.shown());
}

TEST(WTable, tellsACellsPlace)
{
  TablePage p(2, 3);
  const WTableCell *cell = p.table->elementAt(1, 2);
  EXPECT_EQ(1, cell->row());
  EXPECT_EQ(2, cell->column());
  EXPECT_EQ(p.table, cell->table());
  EXPECT_EQ(1, p.table->rowAt(1)->rowNum());
  EXPECT_EQ(cell, p.table->rowAt(1)->elementAt(2));
  EXPECT_EQ(cell, p.table->columnAt(2)->elementAt(1));
}

TEST(WTable, stylesRowsAndColumns)
{
  TablePage p(2, 2);
  p.page.run([&] {
    p.table->rowAt(0)->setHeight(24);
    p.table->rowAt(0)->setStyleClass("one two");
    p.table->rowAt(0)->removeStyleClass("one");
    p.table->rowAt(0)->addStyleClass("three");
    p.table->columnAt(1)->setWidth(WLength(33, WLength::Percentage));
  });
  const Testing::Node *row = p.page.tag("tr");
  EXPECT_EQ("24px", row->get("*height"));
  EXPECT_EQ("two three", row->get("class"));
  EXPECT_EQ("33%", p.page.tag("col", 1)->get("*width"));
  p.page.run([&] { p.table->rowAt(0)->hide(); });
  EXPECT_EQ("1.0 1.1", p.shown());
  p.page.run([&] { p.table->rowAt(0)->show(); });
  EXPECT_EQ("0.0 0.1|1.0 1.1", p.shown());
}

TEST(WTable, movesAWidgetFromCellToCell)
{
  TablePage p(1, 2);
  p.page.run([&] {
    WWidget *widget = p.table->elementAt(0, 0)->widget(0);
    p.table->elementAt(0, 0)->removeWidget(widget);
    p.table->elementAt(0, 1)->addWidget(widget);
  });
  EXPECT_EQ("0.1 0.0", p.shown());
}

TEST(WTable, alignsWhatIsInACellByClass)
{
  TablePage p(1, 1);
  EXPECT_EQ("", p.page.tag("td")->get("class"));
  p.page.run([&] { p.table->elementAt(0, 0)->setContentAlignment(AlignRight | AlignMiddle); });
  EXPECT_TRUE(p.page.tag("td")->hasClass("Wt-cell-middle"));
}

TEST(WTable, disablesWhatItHoldsAndWhatIsAddedLater)
{
  TablePage p(1, 1);
  p.page.run([&] {
    p.table->disable();
    new WLineEdit(p.table->elementAt(0, 1));
  });
  EXPECT_TRUE(p.page.tag("input")->has("disabled"));
  p.page.run([&] { p.table->enable(); });
  EXPECT_FALSE(p.page.tag("input")->has("disabled"));
}

TEST(WTable, showsFortyRowsWithFewBytes)
{
  TablePage p(0, 0);
  p.page.browser->resetCounters();
  p.page.run([&] {
    for (int r = 0; r < 40; ++r) {
      new WText("Setting " + std::to_string(r), p.table->elementAt(r, 0));
      auto *edit = new WLineEdit("Setting " + std::to_string(r), p.table->elementAt(r, 1));
      edit->setToolTip("A tool tip");
    }
  });
  // Before compression, which takes off four parts in five.
  EXPECT_LT(p.page.browser->bytesReceived(), 40u * 160u);
}

TEST(WTable, showsAFormOfFiveHundredFieldsWithFewBytesEach)
{
  TablePage p(0, 0);
  p.page.browser->resetCounters();
  std::size_t texts = 0;
  p.page.run([&] {
    for (int r = 0; r < 250; ++r) {
      const std::string text = "Setting " + std::to_string(r);
      new WText(text, p.table->elementAt(r, 0));
      new WLineEdit(text, p.table->elementAt(r, 1));
      texts += 2 * text.size();
    }
  });
  EXPECT_LT(p.page.browser->bytesReceived(), texts + 500u * 100u);
}
