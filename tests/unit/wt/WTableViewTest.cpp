// SPDX-License-Identifier: MIT
#include "TablePage.h"

#include <Wt/WLink>
#include <Wt/WSortFilterProxyModel>
#include <Wt/WTabWidget>
#include <gtest/gtest.h>

using namespace Wt;

TEST(WTableView, makesTheRowsInSightOnly)
{
  TablePage p(5000);
  EXPECT_LE(p.rows().size(), 22u);
  ASSERT_FALSE(p.rows().empty());
  EXPECT_EQ("0", p.rows().front()->get(".row"));
  EXPECT_EQ("100000px", p.page.styled("Wt-tv-contents")->get("*height"));
  EXPECT_EQ("5001", p.list()->get("aria-rowcount"));
}

TEST(WTableView, scrollingMakesAndRemovesRowsAndChangesNoOther)
{
  TablePage p(5000);
  const auto kept = p.row(15)->id;
  p.browser->resetCounters();
  p.event("table:scroll", "200,200");
  EXPECT_EQ(kept, p.row(15)->id);
  EXPECT_EQ(nullptr, p.browser->page().findIf([](const Testing::Node &n) { return n.get(".row") == "-1"; }));
  EXPECT_EQ("30", p.rows().back()->get(".row"));
  EXPECT_EQ(std::string::npos, p.browser->lastMessage().find("[\"s\"")) << p.browser->lastMessage();
  p.event("table:scroll", "99800,200");
  EXPECT_EQ("4999", p.rows().back()->get(".row"));
  EXPECT_EQ(nullptr, p.row(15));
  p.event("table:scroll", "0,200");
  EXPECT_EQ("0", p.rows().front()->get(".row"));
  EXPECT_LE(p.rows().size(), 22u);
}

TEST(WTableView, aListThatIsEmptiedAndRebuiltWithTheSameRowsCostsNothing)
{
  TablePage p(500);
  p.event("table:scroll", "4000,200");
  p.page.run([&] { p.view->select(p.model->index(205, 0)); });
  p.page.run([&] { p.view->clearSelection(); });
  p.browser->resetCounters();
  p.page.run([&] {
    p.model->removeRows(0, 500);
    p.fill(500);
  });
  EXPECT_EQ(0u, p.browser->bytesReceived()) << p.browser->lastMessage();
}

TEST(WTableView, aModelThatIsClearedAndBuiltAgainCostsNothing)
{
  TablePage p(100);
  p.browser->resetCounters();
  p.page.run([&] {
    p.model->clear();
    p.model->insertColumns(0, 2);
    p.model->setHeaderData(0, std::string("Name"));
    p.model->setHeaderData(1, std::string("State"));
    p.fill(100);
  });
  EXPECT_EQ(0u, p.browser->bytesReceived()) << p.browser->lastMessage();
}

TEST(WTableView, aChangedCellCostsThatCell)
{
  TablePage p(500);
  p.browser->resetCounters();
  p.page.run([&] { p.model->setData(3, 1, boost::any(std::string("new"))); });
  EXPECT_EQ(1u, p.browser->operationsReceived());
  EXPECT_LE(p.browser->bytesReceived(), 60u) << p.browser->lastMessage();
  EXPECT_EQ("new", p.row(3)->children[1]->text);
  p.browser->resetCounters();
  p.page.run([&] { p.model->setData(400, 1, boost::any(std::string("out of sight"))); });
  EXPECT_EQ(0u, p.browser->bytesReceived());
}

TEST(WTableView, showsColumnsWithTheirWidthsAndSevenPixelsMore)
{
  TablePage p(3);
  EXPECT_EQ("157px 157px", p.list()->get("*--wt-columns"));
  EXPECT_DOUBLE_EQ(150, p.view->columnWidth(0).value());
  int emitted = 0;
  p.view->columnResized().connect(std::bind([&] { ++emitted; }));
  p.page.run([&] { p.view->setColumnWidth(1, 80); });
  EXPECT_EQ("157px 87px", p.list()->get("*--wt-columns"));
  EXPECT_EQ(0, emitted);
}

TEST(WTableView, tellsOfAColumnThatTheUserHasResized)
{
  TablePage p(3);
  std::string told;
  p.view->columnResized().connect(std::bind(
      [&](int column, const WLength &width) {
        told += std::to_string(column) + ':' + width.cssText() + '=' + p.view->columnWidth(column).cssText() +
                ' ';
      },
      std::placeholders::_1, std::placeholders::_2));
  p.event("table:resize", "1,90");
  EXPECT_EQ("1:90px=90px ", told);
  EXPECT_EQ("157px 97px", p.list()->get("*--wt-columns"));
  p.event("table:resize", "7,90");
  p.event("table:resize", "-1,90");
  EXPECT_EQ("1:90px=90px ", told);
  p.page.run([&] { p.view->setColumnResizeEnabled(false); });
  p.event("table:resize", "0,20");
  EXPECT_EQ("1:90px=90px ", told);
  EXPECT_TRUE(p.head(0)->hasClass("Wt-tv-no-rh"));
}

TEST(WTableView, hidesColumns)
{
  TablePage p(3);
  p.page.run([&] { p.view->hideColumn(0); });
  EXPECT_TRUE(p.view->isColumnHidden(0));
  EXPECT_FALSE(p.browser->shows("row 1"));
  EXPECT_TRUE(p.browser->shows("state 1"));
  EXPECT_EQ(nullptr, p.head(0));
  p.page.run([&] { p.view->setColumnHidden(0, false); });
  EXPECT_EQ("row 1", p.row(1)->children[0]->text);
  EXPECT_EQ("state 1", p.row(1)->children[1]->text);
}

TEST(WTableView, toleratesSettingsOfColumnsThatTheModelDoesNotHave)
{
  TablePage p(3);
  p.page.run([&] {
    for (const int column : {-1, 2, 9}) {
      p.view->setColumnHidden(column, true);
      p.view->setColumnWidth(column, 10);
      p.view->setColumnAlignment(column, AlignRight);
      p.view->setHeaderAlignment(column, AlignRight);
      p.view->setSortingEnabled(column, false);
    }
    EXPECT_FALSE(p.view->isColumnHidden(-1));
    EXPECT_TRUE(p.view->isColumnHidden(9));
  });
  EXPECT_EQ("157px 157px", p.list()->get("*--wt-columns"));
  p.page.run([&] {
    p.view->setModel(p.model.get());
    EXPECT_FALSE(p.view->isColumnHidden(9));
  });
  EXPECT_TRUE(p.browser->shows("row 1"));
}

TEST(WTableView, followsColumnsThatComeAndGo)
{
  TablePage p(2);
  p.page.run([&] {
    p.view->setColumnWidth(1, 50);
    p.model->insertColumns(0, 1);
  });
  EXPECT_EQ("157px 157px 57px", p.list()->get("*--wt-columns"));
  EXPECT_EQ("row 1", p.row(1)->children[1]->text);
  p.page.run([&] { p.model->removeColumns(0, 2); });
  EXPECT_EQ("57px", p.list()->get("*--wt-columns"));
  EXPECT_EQ("state 1", p.row(1)->children[0]->text);
}

TEST(WTableView, sortsWhenAHeadIsClickedAndTogglesTheOrder)
{
  TablePage p(3);
  EXPECT_EQ(-1, p.view->sortColumn());
  EXPECT_EQ("none", p.head(0)->get("aria-sort"));
  p.event("table:sort", "0");
  EXPECT_EQ(0, p.view->sortColumn());
  EXPECT_EQ(AscendingOrder, p.view->sortOrder());
  EXPECT_EQ("ascending", p.head(0)->get("aria-sort"));
  EXPECT_TRUE(p.head(0)->children[1]->hasClass("Wt-tv-sh-up"));
  p.event("table:sort", "0");
  EXPECT_EQ(DescendingOrder, p.view->sortOrder());
  EXPECT_TRUE(p.head(0)->children[1]->hasClass("Wt-tv-sh-down"));
  EXPECT_EQ("row 2", p.row(0)->children[0]->text);
  p.event("table:sort", "1");
  EXPECT_EQ(AscendingOrder, p.view->sortOrder());
  EXPECT_TRUE(p.head(0)->children[1]->hasClass("Wt-tv-sh-none"));
  p.event("table:sort", "0");
  EXPECT_EQ(DescendingOrder, p.view->sortOrder()) << "the first click uses the column's last order";
}

TEST(WTableView, sortsNothingWhereSortingIsOffOrThereIsNoColumn)
{
  TablePage p(3);
  p.event("table:sort", "7");
  p.event("table:sort", "-1");
  EXPECT_EQ(-1, p.view->sortColumn());
  p.page.run([&] { p.view->setSortingEnabled(1, false); });
  EXPECT_FALSE(p.head(1)->has("aria-sort"));
  p.event("table:sort", "1");
  EXPECT_EQ(-1, p.view->sortColumn());
  p.page.run([&] { p.view->setSortingEnabled(false); });
  p.event("table:sort", "0");
  EXPECT_EQ(-1, p.view->sortColumn());
}

TEST(WTableView, aSortOfTheModelItselfDoesNotShowInTheHead)
{
  TablePage p(3);
  p.page.run([&] { p.model->sort(0, DescendingOrder); });
  EXPECT_EQ("row 2", p.row(0)->children[0]->text);
  EXPECT_EQ(-1, p.view->sortColumn());
  EXPECT_EQ("none", p.head(0)->get("aria-sort"));
}

TEST(WTableView, scrollsToARowThatCameWithTheSameUpdate)
{
  TablePage p(10);
  p.browser->resetCounters();
  p.page.run([&] {
    p.fill(500);
    p.view->scrollTo(p.model->index(499, 0), WAbstractItemView::PositionAtBottom);
  });
  ASSERT_FALSE(p.browser->page().calls.empty());
  EXPECT_NE(std::string::npos, p.browser->page().calls.back().find("tableScroll"))
      << p.browser->page().calls.back();
  EXPECT_NE(std::string::npos, p.browser->page().calls.back().find("499"));
  EXPECT_LT(p.browser->lastMessage().find("*height"), p.browser->lastMessage().find("tableScroll"));
  EXPECT_NE(nullptr, p.row(499));
}

TEST(WTableView, scrollsToARowBeforeItIsRendered)
{
  WStandardItemModel model(1000, 1);
  WidgetPage page([&](WContainerWidget *root) {
    auto *view = new WTableView(root);
    view->setModel(&model);
    view->scrollTo(model.index(700, 0), WAbstractItemView::PositionAtTop);
  });
  ASSERT_EQ(1u, page.browser->page().calls.size());
  EXPECT_NE(std::string::npos, page.browser->page().calls[0].find("700"));
  EXPECT_NE(nullptr, page.browser->byAttribute(".row", "700"));
}

TEST(WTableView, noScrollingThatABrowserTellsDoesHarm)
{
  TablePage p(50);
  for (const char *arguments : {"2147483647,2147483647", "-5,-5", "\"x\",\"y\"", "", "1e9,200", "100000,200"})
    p.event("table:scroll", arguments);
  p.event("table:scroll", "100000,200");
  EXPECT_EQ("49", p.rows().back()->get(".row"));
  EXPECT_EQ("30", p.rows().front()->get(".row")) << "a list that is shorter shows its end";
  p.event("table:key", "-3,-3");
  p.event("table:down", "-4,99");
  p.event("table:click", "2147483647,0");
  p.event("table:check", "0,0,1");
  p.event("table:nonsense", "0");
  EXPECT_FALSE(p.browser->hasQuit());
  EXPECT_TRUE(p.model->data(0, 0, CheckStateRole).empty());
}

TEST(WTableView, showsTextsAsTheyAreUnlessTheItemSaysMarkup)
{
  TablePage p(2);
  const std::string markup = "<b>bold</b><script>alert(1)</script>";
  p.page.run([&] {
    p.model->setData(0, 0, boost::any(markup));
    p.model->setData(1, 0, boost::any(markup));
    p.model->item(1, 0)->setFlags(ItemIsSelectable | ItemIsXHTMLText);
  });
  EXPECT_EQ(markup, p.row(0)->children[0]->get("#"));
  const std::string rich = p.row(1)->children[0]->get("<");
  EXPECT_NE(std::string::npos, rich.find("[\"b\"")) << rich;
  EXPECT_EQ(std::string::npos, rich.find("script")) << rich;
  p.page.run([&] { p.model->setData(1, 0, boost::any(std::string("plain"))); });
  EXPECT_EQ("plain", p.row(1)->children[0]->get("#"));
  EXPECT_FALSE(p.row(1)->children[0]->has("<"));
  p.page.run([&] { p.model->setData(1, 0, boost::any(std::string("<b>not well formed"))); });
  EXPECT_EQ("<b>not well formed", p.row(1)->children[0]->get("#"));
}

TEST(WTableView, showsLinksAndIconsButNoneThatRunScript)
{
  TablePage p(2);
  WLink away("https://example.org/");
  away.setTarget(TargetNewWindow);
  p.page.run([&] {
    p.model->setData(0, 0, boost::any(away), LinkRole);
    p.model->setData(0, 0, boost::any(std::string("icon.png")), DecorationRole);
    p.model->setData(1, 0, boost::any(WLink(" java\tscript:alert(1)")), LinkRole);
    p.model->setData(1, 0, boost::any(std::string("javascript:alert(1)")), DecorationRole);
  });
  const Testing::Node *link = p.browser->byTag("a");
  EXPECT_EQ("https://example.org/", link->get("href"));
  EXPECT_EQ("_blank", link->get("target"));
  EXPECT_EQ("noopener noreferrer", link->get("rel"));
  EXPECT_EQ("row 0", link->text);
  EXPECT_EQ("icon.png", p.browser->byTag("img")->get("src"));
  EXPECT_FALSE(p.browser->byTag("a", 1)->has("href"));
  EXPECT_FALSE(p.browser->byTag("img", 1)->has("src"));
  p.page.run([&] {
    p.model->setData(0, 0, boost::any(), LinkRole);
    p.model->setData(0, 0, boost::any(), DecorationRole);
  });
  EXPECT_EQ("row 0", p.row(0)->children[0]->get("#"));
}

TEST(WTableView, checkBoxesChangeTheModelWhereTheItemAllowsIt)
{
  TablePage p(2);
  p.page.run([&] {
    p.model->setData(0, 0, boost::any(false), CheckStateRole);
    p.model->setData(1, 0, boost::any(false), CheckStateRole);
    p.model->item(0, 0)->setFlags(ItemIsSelectable | ItemIsUserCheckable);
  });
  EXPECT_FALSE(p.browser->byTag("input")->has(".disabled"));
  EXPECT_TRUE(p.browser->byTag("input", 1)->has(".disabled"));
  p.event("table:check", "0,0,1");
  p.event("table:check", "1,0,1");
  EXPECT_TRUE(boost::any_cast<bool>(p.model->data(0, 0, CheckStateRole)));
  EXPECT_FALSE(boost::any_cast<bool>(p.model->data(1, 0, CheckStateRole)));
}

TEST(WTableView, honoursToolTipsStyleClassesAndAlignment)
{
  TablePage p(2);
  p.page.run([&] {
    p.model->setData(0, 1, boost::any(std::string("the tip")), ToolTipRole);
    p.model->setData(0, 1, boost::any(std::string("urgent")), StyleClassRole);
    p.view->setColumnAlignment(1, AlignRight);
    p.view->setHeaderAlignment(1, AlignCenter);
    p.view->setAlternatingRowColors(true);
    p.view->setRowHeight(30);
    p.view->setHeaderHeight(40);
  });
  const Testing::Node *cell = p.row(0)->children[1];
  EXPECT_EQ("the tip", cell->get("title"));
  EXPECT_TRUE(cell->hasClass("urgent"));
  EXPECT_TRUE(cell->hasClass("Wt-right"));
  EXPECT_TRUE(p.head(1)->hasClass("Wt-center"));
  EXPECT_TRUE(p.list()->hasClass("Wt-striped"));
  EXPECT_EQ("30px", p.list()->get("*--wt-row"));
  EXPECT_EQ("40px", p.page.styled("Wt-headerdiv")->get("*height"));
}

TEST(WTableView, tellsOfTheMouseByCellAndOfEmptySpace)
{
  TablePage p(3);
  Record record;
  const auto note = [&](const char *name, const WModelIndex &index) {
    record.note(name +
                (index.isValid() ? std::to_string(index.row()) + std::to_string(index.column()) : "-"))();
  };
  using std::placeholders::_1;
  p.view->mouseWentDown().connect(std::bind([&](const WModelIndex &i) { note("down", i); }, _1));
  p.view->mouseWentUp().connect(std::bind([&](const WModelIndex &i) { note("up", i); }, _1));
  p.view->clicked().connect(std::bind([&](const WModelIndex &i) { note("click", i); }, _1));
  p.view->doubleClicked().connect(std::bind([&](const WModelIndex &i) { note("double", i); }, _1));
  for (const char *name : {"table:down", "table:up", "table:click", "table:dblclick"})
    p.event(name, "2,1");
  p.event("table:click", "-1,-1");
  EXPECT_EQ("down21 up21 click21 double21 click-", record.text);
}

namespace
{

/// What is pressed while the list changes under way: on the page, row 3 is pressed before it hears of
/// `change`. Returns the name of the record that is selected then.
std::string pressedWhile(TablePage &p, const std::function<void()> &change, int modifiers = 0)
{
  p.browser->disconnect();
  p.press(3, modifiers);
  p.page.run(change);
  p.browser->reconnect();
  std::string names;
  for (const WModelIndex &index : p.view->selectedIndexes())
    names += (names.empty() ? "" : " ") + asString(index.data()).toUTF8();
  return names;
}

} // namespace

TEST(WTableView, aPressSelectsTheRecordThatWasPressedWhereverItsRowIsByThen)
{
  TablePage p(30);
  const auto insert = [&] {
    p.model->insertRow(0);
    p.model->setData(0, 0, boost::any(std::string("new on top")));
  };
  EXPECT_EQ("row 3", pressedWhile(p, insert));
  EXPECT_EQ("row 3", asString(p.model->data(4, 0)).toUTF8());
  EXPECT_EQ("4", p.shownSelected());
}

TEST(WTableView, aPressOnARecordThatIsGoneSelectsNothing)
{
  TablePage p(30);
  EXPECT_EQ("", pressedWhile(p, [&] { p.model->removeRow(3); }));
  EXPECT_EQ(0, p.changes);
}

TEST(WTableView, aPressFindsItsRecordInAListThatWasEmptiedAndFilledAnew)
{
  TablePage p(30);
  const auto refill = [&] {
    p.model->removeRows(0, 30);
    p.model->insertRow(0);
    p.model->setData(0, 0, boost::any(std::string("new on top")));
    for (int i = 1; i < 30; ++i) {
      p.model->insertRow(i);
      p.model->setData(i, 0, boost::any("row " + std::to_string(i)));
    }
  };
  EXPECT_EQ("row 3", pressedWhile(p, refill));
}

TEST(WTableView, aPressFindsItsRecordThroughASort)
{
  TablePage p(9);
  EXPECT_EQ("row 3", pressedWhile(p, [&] { p.model->sort(0, DescendingOrder); }));
  EXPECT_EQ("5", p.selected());
}

TEST(WTableView, aShiftedPressExtendsToTheRecordThatWasPressed)
{
  TablePage p(9, ExtendedSelection);
  p.press(1);
  const auto insert = [&] {
    p.model->insertRow(0);
    p.model->setData(0, 0, boost::any(std::string("new on top")));
  };
  EXPECT_EQ("row 1 row 2 row 3", pressedWhile(p, insert, ShiftModifier));
}

TEST(WTableView, recordsOfEqualNamesAreToldApart)
{
  TablePage p(9);
  for (int row = 0; row < 9; ++row)
    p.page.run([&] { p.model->setData(row, 0, boost::any(std::string("the same"))); });
  pressedWhile(p, [&] { p.model->insertRow(0); });
  EXPECT_EQ("4", p.selected());
  // When they are made anew nobody can tell which of them was meant.
  p.page.run([&] { p.view->clearSelection(); });
  const auto refill = [&] {
    p.model->removeRows(0, p.model->rowCount());
    for (int row = 0; row < 9; ++row) {
      p.model->insertRow(row);
      p.model->setData(row, 0, boost::any(std::string("the same")));
    }
  };
  EXPECT_EQ("", pressedWhile(p, refill));
}

TEST(WTableView, clicksAndTicksAreOfTheRecordThatWasUnderThePointer)
{
  TablePage p(9);
  for (int row = 0; row < 9; ++row)
    p.page.run([&] {
      p.model->setData(row, 1, boost::any(false), CheckStateRole);
      p.model->item(row, 1)->setFlags(ItemIsSelectable | ItemIsUserCheckable);
    });
  std::string told;
  const auto note = [&](const WModelIndex &index) { told += asString(index.data()).toUTF8() + ';'; };
  p.view->clicked().connect(std::bind(note, std::placeholders::_1));
  p.view->doubleClicked().connect(std::bind(note, std::placeholders::_1));
  p.browser->disconnect();
  p.event("table:click", "3,0");
  p.event("table:dblclick", "5,0");
  p.event("table:check", "4,1,1");
  p.page.run([&] { p.model->insertRow(0); });
  p.browser->reconnect();
  EXPECT_EQ("row 3;row 5;", told);
  for (int row = 0; row < 9; ++row)
    EXPECT_EQ(row == 4, boost::any_cast<bool>(p.model->data(row + 1, 1, CheckStateRole))) << row;
}

TEST(WTableView, theKeyboardStaysOnItsRecord)
{
  TablePage p(30, ExtendedSelection);
  p.press(3);
  p.page.run([&] {
    p.model->insertRow(0);
    p.model->setData(0, 0, boost::any(std::string("new on top")));
  });
  p.key(Key_Down);
  EXPECT_EQ("5", p.selected());
  p.key(Key_Up, ShiftModifier);
  EXPECT_EQ("4 5", p.selected());
}

TEST(WTableView, aRowInsertedOnTopCostsThatRow)
{
  TablePage p(500);
  p.event("table:scroll", "0,600");
  p.page.run([&] {
    p.model->insertColumns(2, 5);
    for (int row = 0; row < 500; ++row)
      for (int column = 2; column < 7; ++column)
        p.model->setData(row, column, boost::any("value " + std::to_string(row)));
  });
  p.browser->resetCounters();
  p.page.run([&] {
    p.model->insertRow(0);
    for (int column = 0; column < 7; ++column)
      p.model->setData(0, column, boost::any("new value " + std::to_string(column)));
  });
  EXPECT_LE(p.browser->bytesReceived(), 700u) << p.browser->lastMessage();
  EXPECT_EQ("new value 0", p.row(0)->children[0]->text);
  EXPECT_EQ("row 0", p.row(1)->children[0]->text);
}

TEST(WTableView, thePageTellsOfTheMouseOnlyWhatIsListenedFor)
{
  TablePage p(3, NoSelection);
  EXPECT_EQ("{\"tell\":[]}", p.list()->get("!table"));
  p.page.run([&] { p.view->setSelectionMode(SingleSelection); });
  EXPECT_EQ("{\"select\":1,\"tell\":[\"down\"]}", p.list()->get("!table"));
  p.page.run([&] {
    p.view->clicked().connect(std::bind([] {}));
    p.view->doubleClicked().connect(std::bind([] {}));
    p.view->mouseWentUp().connect(std::bind([] {}));
  });
  EXPECT_EQ("{\"select\":1,\"tell\":[\"down\",\"up\",\"click\",\"dblclick\"]}", p.list()->get("!table"));
}

TEST(WTableView, namesTheRowThatTheKeyboardStandsOnForWhoReadsByEar)
{
  TablePage p(100);
  EXPECT_FALSE(p.list()->has("aria-activedescendant"));
  EXPECT_EQ("0", p.list()->get("tabindex"));
  p.press(4);
  EXPECT_EQ("wt-r" + std::to_string(p.row(4)->id), p.list()->get("aria-activedescendant"));
  p.key(Key_Down);
  EXPECT_EQ("wt-r" + std::to_string(p.row(5)->id), p.list()->get("aria-activedescendant"));
  p.event("table:scroll", "1600,200");
  EXPECT_FALSE(p.list()->has("aria-activedescendant")) << "a row that is not on the page cannot be named";
}

TEST(WTableView, aRowThatThePageMakesUpIsPassedOver)
{
  TablePage p(3);
  int told = 0;
  p.view->clicked().connect(std::bind([&] { ++told; }));
  p.page.run([] {});
  const std::string list = std::to_string(p.list()->id);
  for (const char *row : {"1", "999999", "-1", "4294967296"})
    for (const char *name : {"table:down", "table:click", "table:check"})
      p.browser->event(p.list(), name, "{\"a\":[\"" + std::string(row) + "\",0,1]}");
  EXPECT_EQ("", p.selected());
}

TEST(WTableView, aModelMayDieBeforeItsView)
{
  TablePage p(30);
  p.page.run([&] {
    p.view->select(p.model->index(1, 0));
    p.model.reset();
    EXPECT_EQ(nullptr, p.view->model());
    EXPECT_TRUE(p.view->selectedIndexes().empty());
  });
  EXPECT_TRUE(p.rows().empty());
  p.press(0);
  p.key(Key_Down);
  p.event("table:sort", "0");
  EXPECT_FALSE(p.browser->hasQuit());
}

TEST(WTableView, aSlotMayDeleteTheViewOrTakeItsRows)
{
  TablePage p(5);
  p.view->selectionChanged().connect(std::bind([&] { p.model->removeRows(0, 5); }));
  p.press(4);
  EXPECT_TRUE(p.rows().empty());
  TablePage q(5);
  q.view->selectionChanged().connect(std::bind([&] { delete q.view; }));
  q.press(2);
  EXPECT_EQ(nullptr, q.list());
  TablePage r(5);
  r.view->selectionChanged().connect(std::bind([&] { delete r.view; }));
  r.key(Key_Down);
  EXPECT_EQ(nullptr, r.list());
  EXPECT_FALSE(r.browser->hasQuit());
}

TEST(WTableView, takesAnotherModel)
{
  TablePage p(5);
  WStandardItemModel other(2, 3);
  p.page.run([&] {
    p.view->select(p.model->index(1, 0));
    other.setData(0, 2, boost::any(std::string("other")));
    p.changes = 0;
    p.view->setModel(&other);
    EXPECT_TRUE(p.view->selectedIndexes().empty());
    p.model->setData(0, 0, boost::any(std::string("unseen")));
  });
  EXPECT_EQ(0, p.changes);
  EXPECT_EQ("157px 157px 157px", p.list()->get("*--wt-columns"));
  EXPECT_TRUE(p.browser->shows("other"));
  EXPECT_EQ(2u, p.rows().size());
  p.page.run([&] { p.view->setModel(nullptr); });
  EXPECT_TRUE(p.rows().empty());
}

TEST(WTableView, worksInATabThatIsShownLater)
{
  for (const WTabWidget::LoadPolicy policy : {WTabWidget::LazyLoading, WTabWidget::PreLoading}) {
    WStandardItemModel model(500, 1);
    WTableView *view = nullptr;
    WidgetPage page([&](WContainerWidget *root) {
      auto *tabs = new WTabWidget(root);
      tabs->addTab(new WContainerWidget(), "first");
      view = new WTableView();
      view->setModel(&model);
      tabs->addTab(view, "second", policy);
    });
    page.run([&] {
      model.setData(300, 0, boost::any(std::string("wanted")));
      view->scrollTo(model.index(300, 0));
    });
    EXPECT_FALSE(page.browser->shows("wanted"));
    page.browser->click("second");
    EXPECT_TRUE(page.browser->shows("wanted"));
    page.browser->click("first");
    page.run([&] { model.setData(300, 0, boost::any(std::string("changed"))); });
    page.browser->click("second");
    EXPECT_TRUE(page.browser->shows("changed"));
  }
}
