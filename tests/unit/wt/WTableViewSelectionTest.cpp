// SPDX-License-Identifier: MIT
#include "TablePage.h"

#include <Wt/WSortFilterProxyModel>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

WModelIndexSet indexes(const TablePage &p, std::initializer_list<int> rows)
{
  WModelIndexSet set;
  for (const int row : rows)
    set.insert(p.model->index(row, 1));
  return set;
}

} // namespace

TEST(WTableViewSelection, isOfRowsAndOffByDefault)
{
  TablePage p(5, NoSelection);
  EXPECT_EQ(SelectRows, p.view->selectionBehavior());
  p.press(1);
  p.key(Key_Down);
  p.page.run([&] { p.view->select(p.model->index(2, 0)); });
  EXPECT_EQ("", p.selected());
  EXPECT_EQ(0, p.changes);
}

TEST(WTableViewSelection, ofARowIsItsIndexInColumnZeroWhateverColumnIsGiven)
{
  TablePage p(5, ExtendedSelection);
  p.page.run([&] {
    p.view->hideColumn(0);
    p.view->select(p.model->index(3, 1));
    p.view->select(p.model->index(1, 1));
    ASSERT_EQ(2u, p.view->selectedIndexes().size());
    EXPECT_EQ(p.model->index(1, 0), *p.view->selectedIndexes().begin());
    EXPECT_TRUE(p.view->isSelected(p.model->index(3, 1)));
    EXPECT_FALSE(p.view->isSelected(p.model->index(2, 0)));
  });
  EXPECT_EQ("1 3", p.shownSelected());
}

TEST(WTableViewSelection, leavesOutRowsWhoseFirstCellIsNotSelectable)
{
  TablePage p(2);
  p.page.run([&] {
    p.model->insertRow(0);
    p.view->select(p.model->index(0, 0));
  });
  EXPECT_EQ("", p.selected());
  p.press(0);
  EXPECT_EQ(0, p.changes);
  p.page.run([&] {
    p.model->setData(0, 0, boost::any(std::string("now")));
    p.view->select(p.model->index(0, 1));
  });
  EXPECT_EQ("0", p.selected());
}

TEST(WTableViewSelection, selectTellsOnlyOfChanges)
{
  TablePage p(5, ExtendedSelection);
  const auto select = [&](int row, SelectionFlag flag) {
    p.page.run([&p, row, flag] { p.view->select(p.model->index(row, 0), flag); });
    return p.changes;
  };
  EXPECT_EQ(1, select(1, Select));
  EXPECT_EQ(1, select(1, Select));
  EXPECT_EQ(1, select(1, ClearAndSelect)) << "the sole selected row";
  EXPECT_EQ(2, select(2, Select));
  EXPECT_EQ("1 2", p.selected());
  EXPECT_EQ(3, select(1, ClearAndSelect));
  EXPECT_EQ("1", p.selected());
  EXPECT_EQ(4, select(3, ToggleSelect));
  EXPECT_EQ(5, select(3, ToggleSelect));
  EXPECT_EQ(5, select(3, Deselect));
  EXPECT_EQ(6, select(1, Deselect));
  EXPECT_EQ("", p.selected());
}

TEST(WTableViewSelection, settingItTellsOnceEvenIfItIsEqualButNotEmptyOntoEmpty)
{
  TablePage p(5, ExtendedSelection);
  p.page.run([&] { p.view->setSelectedIndexes(WModelIndexSet()); });
  EXPECT_EQ(0, p.changes);
  p.page.run([&] { p.view->setSelectedIndexes(indexes(p, {1, 3})); });
  EXPECT_EQ(1, p.changes);
  p.page.run([&] { p.view->setSelectedIndexes(indexes(p, {1, 3})); });
  EXPECT_EQ(2, p.changes);
  EXPECT_EQ("1 3", p.shownSelected());
  p.page.run([&] { p.view->setSelectedIndexes(WModelIndexSet()); });
  EXPECT_EQ(3, p.changes);
  EXPECT_EQ("", p.shownSelected());
}

TEST(WTableViewSelection, clearingIsSilent)
{
  TablePage p(5);
  p.press(1);
  EXPECT_EQ(1, p.changes);
  p.page.run([&] { p.view->clearSelection(); });
  EXPECT_EQ(1, p.changes);
  EXPECT_EQ("", p.shownSelected());
}

TEST(WTableViewSelection, ofOneRowTakesThePlaceOfTheLast)
{
  TablePage p(5);
  p.page.run([&] { p.view->select(p.model->index(1, 0)); });
  p.page.run([&] { p.view->select(p.model->index(2, 0)); });
  EXPECT_EQ("2", p.selected());
  p.page.run([&] { p.view->setSelectedIndexes(indexes(p, {0, 3})); });
  EXPECT_EQ("3", p.selected());
}

TEST(WTableViewSelection, ofOneRowByTheMouseAndWithControlOff)
{
  TablePage p(5);
  p.press(1);
  EXPECT_EQ("1", p.shownSelected());
  p.press(1);
  EXPECT_EQ(1, p.changes);
  p.press(3, 0, 4);
  EXPECT_EQ("1", p.selected()) << "the right button";
  p.press(-1, 0, 1, -1);
  EXPECT_EQ("1", p.selected()) << "empty space";
  p.press(1, ControlModifier);
  EXPECT_EQ("", p.selected());
  EXPECT_EQ(2, p.changes);
}

TEST(WTableViewSelection, ofSeveralWithControlAndShift)
{
  TablePage p(10, ExtendedSelection);
  EXPECT_EQ("true", p.list()->get("aria-multiselectable"));
  p.press(4);
  p.press(6, ControlModifier);
  EXPECT_EQ("4 6", p.selected());
  p.press(8, MetaModifier);
  p.press(6, ControlModifier);
  EXPECT_EQ("4 8", p.selected());
  p.press(6, ShiftModifier);
  EXPECT_EQ("4 5 6", p.selected());
  p.press(2, ShiftModifier);
  EXPECT_EQ("2 3 4 5 6", p.selected());
  EXPECT_EQ("2 3 4 5 6", p.shownSelected());
  p.press(9);
  EXPECT_EQ("9", p.selected());
}

TEST(WTableViewSelection, movesByKeys)
{
  TablePage p(50);
  p.key(Key_Down);
  EXPECT_EQ("0", p.selected());
  p.key(Key_Down);
  EXPECT_EQ("1", p.selected());
  p.key(Key_Up);
  p.key(Key_Up);
  EXPECT_EQ("0", p.selected());
  p.key(Key_PageDown);
  EXPECT_EQ("9", p.selected());
  p.key(Key_PageUp);
  EXPECT_EQ("0", p.selected());
  p.key(Key_End);
  EXPECT_EQ("49", p.shownSelected()) << "the row is in sight";
  p.key(Key_Home);
  EXPECT_EQ("0", p.selected());
}

TEST(WTableViewSelection, keysGoOnFromWhatTheProgramSelected)
{
  TablePage p(50);
  p.page.run([&] { p.view->select(p.model->index(20, 0)); });
  p.key(Key_Down);
  EXPECT_EQ("21", p.selected());
}

TEST(WTableViewSelection, extendsByKeys)
{
  TablePage p(50, ExtendedSelection);
  p.press(3);
  p.key(Key_Down, ShiftModifier);
  p.key(Key_Down, ShiftModifier);
  EXPECT_EQ("3 4 5", p.selected());
}

TEST(WTableViewSelection, keysMoveSelectOneByOneExtendAndSelectAll)
{
  TablePage p(30, ExtendedSelection);
  const auto selected = [&p] {
    std::string rows;
    for (const WModelIndex &index : p.view->selectedIndexes())
      rows += std::to_string(index.row()) + ' ';
    return rows;
  };
  p.press(5);
  p.key(Key_Down, ControlModifier);
  p.key(Key_Down, ControlModifier);
  EXPECT_EQ("5 ", selected()) << "Control moves only";
  EXPECT_TRUE(p.row(7)->hasClass("Wt-current"));
  EXPECT_FALSE(p.row(5)->hasClass("Wt-current"));
  p.key(Key_Space, ControlModifier);
  EXPECT_EQ("5 7 ", selected());
  p.key(Key_Space, ControlModifier);
  EXPECT_EQ("5 ", selected());
  p.key(Key_Space);
  EXPECT_EQ("7 ", selected());
  p.key(Key_Up, ShiftModifier);
  p.key(Key_Up, ShiftModifier);
  EXPECT_EQ("5 6 7 ", selected());
  p.key(Key_Down, ShiftModifier);
  p.key(Key_Down, ShiftModifier);
  p.key(Key_Down, ShiftModifier);
  EXPECT_EQ("7 8 ", selected()) << "the range turns about where it began";
  p.key(Key_Home, ShiftModifier);
  EXPECT_EQ("0 1 2 3 4 5 6 7 ", selected());
  p.key(Key_End);
  EXPECT_EQ("29 ", selected());
  p.key(Key_A);
  EXPECT_EQ("29 ", selected()) << "a letter alone is no command";
  p.key(Key_A, ControlModifier);
  EXPECT_EQ(30u, p.view->selectedIndexes().size());
}

TEST(WTableViewSelection, ofASingleSelectionKeysSelectWhereTheyLead)
{
  TablePage p(5);
  p.press(1);
  p.key(Key_Down, ControlModifier);
  EXPECT_TRUE(p.view->isSelected(p.model->index(2, 0)));
  p.key(Key_A, ControlModifier);
  EXPECT_EQ(1u, p.view->selectedIndexes().size());
  p.key(Key_Space, ControlModifier);
  EXPECT_TRUE(p.view->selectedIndexes().empty());
}

TEST(WTableViewSelection, followsRowsThatAreInsertedAndRemovedSilently)
{
  TablePage p(10, ExtendedSelection);
  p.page.run([&] { p.view->setSelectedIndexes(indexes(p, {2, 5, 8})); });
  p.changes = 0;
  p.page.run([&] { p.model->insertRows(3, 2); });
  EXPECT_EQ("2 7 10", p.selected());
  p.page.run([&] { p.model->removeRows(2, 1); });
  EXPECT_EQ("6 9", p.shownSelected());
  EXPECT_EQ(0, p.changes);
}

TEST(WTableViewSelection, followsItsRowsThroughASortOfTheModel)
{
  TablePage p(10, ExtendedSelection);
  p.page.run([&] { p.view->setSelectedIndexes(indexes(p, {2, 5})); });
  p.page.run([&] { p.model->sort(0, DescendingOrder); });
  EXPECT_EQ("4 7", p.shownSelected());
  EXPECT_EQ("row 5", p.row(4)->children[0]->text);
}

TEST(WTableViewSelection, followsItsRowsThroughAProxyAndForgetsThoseFilteredOut)
{
  TablePage p(10, ExtendedSelection);
  WSortFilterProxyModel proxy;
  p.page.run([&] {
    proxy.setSourceModel(p.model.get());
    p.view->setModel(&proxy);
    p.view->setSelectedIndexes({proxy.index(2, 0), proxy.index(5, 0)});
    proxy.sort(0, DescendingOrder);
  });
  EXPECT_EQ("4 7", p.shownSelected());
  p.page.run([&] { p.model->sort(0, DescendingOrder); });
  EXPECT_EQ("4 7", p.shownSelected());
  p.page.run([&] { proxy.setFilterRegExp("row [2-4]"); });
  EXPECT_EQ("2", p.shownSelected());
  p.page.run([&] { p.view->setModel(nullptr); });
}

TEST(WTableViewSelection, isEmptiedSilentlyByAResetOfTheModel)
{
  TablePage p(10);
  p.press(4);
  p.changes = 0;
  p.page.run([&] { p.model->clear(); });
  EXPECT_EQ("", p.selected());
  EXPECT_EQ(0, p.changes);
}

TEST(WTableViewSelection, ofCellsIsOfCells)
{
  TablePage p(10, ExtendedSelection);
  p.page.run([&] {
    p.view->setSelectionBehavior(SelectItems);
    p.view->select(p.model->index(3, 1));
    EXPECT_FALSE(p.view->isSelected(p.model->index(3, 0)));
    EXPECT_EQ(1, p.view->selectedIndexes().begin()->column());
  });
  EXPECT_TRUE(p.row(3)->children[1]->hasClass("Wt-selected"));
  EXPECT_FALSE(p.row(3)->hasClass("Wt-selected"));
}

TEST(WTableViewSelection, ofADisabledListTakesTheProgramsSelectionOnly)
{
  TablePage p(10);
  p.page.run([&] { p.view->disable(); });
  EXPECT_EQ("true", p.list()->get("aria-disabled"));
  p.press(2);
  EXPECT_EQ("", p.selected());
  p.page.run([&] { p.view->select(p.model->index(3, 0)); });
  EXPECT_EQ("3", p.shownSelected());
}
