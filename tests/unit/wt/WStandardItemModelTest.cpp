// SPDX-License-Identifier: MIT
#include "ModelRecorder.h"

#include <Wt/WStandardItemModel>
#include <gtest/gtest.h>
#include <malloc.h>

using namespace Wt;

namespace
{

std::string textAt(const WAbstractItemModel &model, int row, int column, int role = DisplayRole)
{
  return asString(model.data(row, column, role)).toUTF8();
}

std::string column(const WAbstractItemModel &model, int number)
{
  std::string result;
  for (int row = 0; row < model.rowCount(); ++row)
    result += textAt(model, row, number) + ",";
  return result;
}

void fill(WStandardItemModel &model, int number, const std::vector<std::string> &texts)
{
  for (std::size_t row = 0; row < texts.size(); ++row)
    if (texts[row] != "-")
      model.setData(static_cast<int>(row), number, texts[row]);
}

class CapitalItem : public WStandardItem
{
public:
  boost::any data(int role) const override
  {
    return role == DisplayRole ? boost::any(std::string("CAPITAL")) : WStandardItem::data(role);
  }
};

} // namespace

TEST(WStandardItemModel, beginsEmptyOrOfTheGivenSize)
{
  WStandardItemModel empty;
  EXPECT_EQ(empty.rowCount(), 0);
  EXPECT_EQ(empty.columnCount(), 0);
  WStandardItemModel sized(2, 3);
  EXPECT_EQ(sized.rowCount(), 2);
  EXPECT_EQ(sized.columnCount(), 3);
  EXPECT_EQ(sized.rowCount(sized.index(0, 0)), 0);
}

TEST(WStandardItemModel, editAndDisplayRoleAreOneValue)
{
  WStandardItemModel model(1, 2);
  model.setData(0, 0, std::string("a"));
  EXPECT_EQ(textAt(model, 0, 0, DisplayRole), "a");
  EXPECT_EQ(textAt(model, 0, 0, EditRole), "a");
  model.setData(0, 0, std::string("b"), DisplayRole);
  EXPECT_EQ(textAt(model, 0, 0, EditRole), "b");
  model.setData(0, 0, std::string("tip"), ToolTipRole);
  EXPECT_EQ(textAt(model, 0, 0, ToolTipRole), "tip");
  EXPECT_EQ(textAt(model, 0, 0), "b");
  EXPECT_TRUE(model.data(0, 0, UserRole).empty());
}

TEST(WStandardItemModel, keepsTheTypeOfAValue)
{
  WStandardItemModel model(1, 1);
  model.setData(0, 0, 17u);
  EXPECT_EQ(boost::any_cast<unsigned>(model.data(0, 0, EditRole)), 17u);
}

TEST(WStandardItemModel, freshCellsHaveNoItemNoDataAndNoFlags)
{
  WStandardItemModel model(0, 2);
  model.insertRows(0, 1);
  EXPECT_EQ(model.item(0, 0), nullptr);
  EXPECT_TRUE(model.data(0, 0).empty());
  EXPECT_EQ(model.index(0, 0).flags().value(), 0);
  model.setData(0, 0, std::string("a"));
  EXPECT_EQ(model.index(0, 0).flags().value(), ItemIsSelectable);
  EXPECT_EQ(model.index(0, 1).flags().value(), 0);
  EXPECT_NE(model.item(0, 0), nullptr);
  EXPECT_EQ(model.item(0, 1), nullptr);
}

TEST(WStandardItemModel, cellsThatDoNotExistAreRefused)
{
  WStandardItemModel model(1, 1);
  EXPECT_FALSE(model.setData(1, 0, 1));
  EXPECT_FALSE(model.setData(0, -1, 1));
  EXPECT_TRUE(model.data(5, 5).empty());
  EXPECT_FALSE(model.index(1, 0).isValid());
  EXPECT_FALSE(model.setData(WModelIndex(), 1));
  EXPECT_EQ(model.item(3, 3), nullptr);
  EXPECT_FALSE(model.insertRows(2, 1));
  EXPECT_FALSE(model.removeRows(0, 2));
  EXPECT_FALSE(model.removeRows(-1, 1));
  EXPECT_FALSE(model.removeColumns(1, 1));
}

TEST(WStandardItemModel, tellsWhatChanges)
{
  WStandardItemModel model;
  ModelRecorder recorder(model);
  model.insertColumns(0, 2);
  model.insertRows(0, 3);
  EXPECT_EQ(recorder.take(), "|+0-1 +0-2");
  model.setData(1, 1, std::string("x"));
  model.removeRows(1, 2);
  model.removeColumns(0, 1);
  EXPECT_EQ(recorder.take(), "=1:1-1:1 -1-2 |-0-0");
  model.clear();
  EXPECT_EQ(recorder.take(), "R");
  EXPECT_EQ(model.rowCount() + model.columnCount(), 0);
}

TEST(WStandardItemModel, insertRowsWithoutColumnsMakesOne)
{
  WStandardItemModel model;
  model.insertRows(0, 2);
  EXPECT_EQ(model.columnCount(), 1);
  EXPECT_EQ(model.rowCount(), 2);
}

TEST(WStandardItemModel, rowsAndColumnsMoveWithTheirData)
{
  WStandardItemModel model(2, 2);
  fill(model, 0, {"a", "b"});
  fill(model, 1, {"c", "d"});
  model.insertRows(1, 1);
  EXPECT_EQ(column(model, 0), "a,,b,");
  model.insertColumns(1, 1);
  EXPECT_EQ(column(model, 1), ",,,");
  EXPECT_EQ(column(model, 2), "c,,d,");
  model.removeRows(0, 1);
  model.removeColumns(0, 1);
  EXPECT_EQ(column(model, 1), ",d,");
}

TEST(WStandardItemModel, headersAreReadByTheDisplayRoleOnly)
{
  WStandardItemModel model(1, 2);
  ModelRecorder recorder(model);
  EXPECT_TRUE(model.setHeaderData(1, Horizontal, std::string("Name")));
  EXPECT_EQ(recorder.take(), "H1-1");
  EXPECT_EQ(asString(model.headerData(1)).toUTF8(), "Name");
  EXPECT_TRUE(model.headerData(1, Horizontal, EditRole).empty());
  EXPECT_TRUE(model.setHeaderData(0, std::string("Index")));
  EXPECT_EQ(asString(model.headerData(0)).toUTF8(), "Index");
  EXPECT_FALSE(model.setHeaderData(2, std::string("x")));
  model.insertColumns(0, 1);
  EXPECT_EQ(asString(model.headerData(2)).toUTF8(), "Name");
  model.setHeaderData(0, Vertical, std::string("row"));
  model.insertRows(0, 1);
  EXPECT_EQ(asString(model.headerData(1, Vertical)).toUTF8(), "row");
}

TEST(WStandardItemModel, sortIsStableAndUnsetCellsAreTheGreatest)
{
  WStandardItemModel model(5, 2);
  fill(model, 0, {"b", "-", "a", "b", "a"});
  fill(model, 1, {"0", "1", "2", "3", "4"});
  ModelRecorder recorder(model);
  model.sort(0);
  EXPECT_EQ(column(model, 1), "2,4,0,3,1,");
  EXPECT_EQ(recorder.take(), "L");
  model.sort(0, DescendingOrder);
  EXPECT_EQ(column(model, 1), "1,0,3,2,4,");
}

TEST(WStandardItemModel, sortComparesNumbersAsNumbers)
{
  WStandardItemModel model(3, 1);
  model.setData(0, 0, 10);
  model.setData(1, 0, 9);
  model.setData(2, 0, -1);
  model.sort(0);
  EXPECT_EQ(column(model, 0), "-1,9,10,");
}

TEST(WStandardItemModel, sortsByTheSortRole)
{
  WStandardItemModel model(2, 1);
  fill(model, 0, {"a", "b"});
  model.setData(0, 0, 2, UserRole);
  model.setData(1, 0, 1, UserRole);
  model.setSortRole(UserRole);
  model.sort(0);
  EXPECT_EQ(column(model, 0), "b,a,");
}

TEST(WStandardItemModel, rawIndexesLastThroughASort)
{
  WStandardItemModel model(3, 2);
  fill(model, 0, {"c", "b", "a"});
  void *raw = model.toRawIndex(model.index(0, 1));
  model.sort(0);
  EXPECT_EQ(model.fromRawIndex(raw), model.index(2, 1));
  EXPECT_FALSE(model.fromRawIndex(nullptr).isValid());
}

TEST(WStandardItem, anItemAndItsCellShareTheirData)
{
  WStandardItemModel model(1, 1);
  ModelRecorder recorder(model);
  model.setData(0, 0, std::string("a"));
  WStandardItem *item = model.item(0, 0);
  EXPECT_EQ(item->text().toUTF8(), "a");
  EXPECT_EQ(recorder.take(), "=0:0-0:0");
  item->setText("b");
  EXPECT_EQ(textAt(model, 0, 0), "b");
  EXPECT_EQ(recorder.take(), "=0:0-0:0");
  model.setData(0, 0, std::string("c"));
  EXPECT_EQ(item->text().toUTF8(), "c");
  EXPECT_EQ(recorder.take(), "=0:0-0:0");
  item->setFlags(ItemIsSelectable | ItemIsXHTMLText);
  EXPECT_EQ(model.index(0, 0).flags().value(), 0x41);
  EXPECT_EQ(recorder.take(), "=0:0-0:0");
}

TEST(WStandardItem, knowsItsPlaceWhereverItMoves)
{
  WStandardItemModel model(3, 2);
  fill(model, 1, {"c", "b", "a"});
  WStandardItem *item = model.item(0, 1);
  EXPECT_EQ(model.indexFromItem(item), model.index(0, 1));
  model.sort(1);
  EXPECT_EQ(item->row(), 2);
  model.insertRows(0, 4);
  model.insertColumns(0, 1);
  EXPECT_EQ(item->row(), 6);
  EXPECT_EQ(item->column(), 2);
  EXPECT_EQ(model.itemFromIndex(item->index()), item);
}

TEST(WStandardItem, itemsAreSelectableAndStandAlone)
{
  WStandardItem item("text");
  EXPECT_EQ(item.flags().value(), ItemIsSelectable);
  EXPECT_EQ(item.text().toUTF8(), "text");
  item.setData(5);
  EXPECT_EQ(boost::any_cast<int>(item.data(UserRole)), 5);
  item.setStyleClass("nevo-warning");
  item.setToolTip("tip");
  EXPECT_EQ(item.styleClass().toUTF8(), "nevo-warning");
  EXPECT_EQ(item.toolTip().toUTF8(), "tip");
  EXPECT_EQ(item.model(), nullptr);
  EXPECT_EQ(item.row(), -1);
}

TEST(WStandardItem, puttingItemsInGrowsTheModel)
{
  WStandardItemModel model;
  model.setItem(2, 1, new WStandardItem("x"));
  EXPECT_EQ(model.rowCount(), 3);
  EXPECT_EQ(model.columnCount(), 2);
  EXPECT_EQ(textAt(model, 2, 1), "x");
  EXPECT_EQ(model.item(0, 0), nullptr);
  model.appendRow({new WStandardItem("a"), nullptr, new WStandardItem("c")});
  EXPECT_EQ(model.columnCount(), 3);
  EXPECT_EQ(textAt(model, 3, 0) + textAt(model, 3, 2), "ac");
  model.insertRow(0, {new WStandardItem("first")});
  EXPECT_EQ(textAt(model, 0, 0), "first");
  model.setItem(0, 0, nullptr);
  EXPECT_EQ(model.item(0, 0), nullptr);
}

TEST(WStandardItem, anItemThatGoesLeavesAnEmptyCell)
{
  WStandardItemModel model(1, 1);
  model.setItem(0, 0, new WStandardItem("x"));
  delete model.item(0, 0);
  EXPECT_EQ(model.item(0, 0), nullptr);
  EXPECT_TRUE(model.data(0, 0).empty());
}

TEST(WStandardItem, anItemHasOneModelAtATime)
{
  WStandardItemModel first(1, 1);
  WStandardItemModel second(1, 1);
  auto *item = new WStandardItem("x");
  first.setItem(0, 0, item);
  second.setItem(0, 0, item);
  EXPECT_EQ(item->model(), &second);
  EXPECT_EQ(first.item(0, 0), nullptr);
}

TEST(WStandardItem, aDerivedItemMayComputeItsData)
{
  WStandardItemModel model(1, 1);
  model.setItem(0, 0, new CapitalItem());
  EXPECT_EQ(textAt(model, 0, 0), "CAPITAL");
}

TEST(WAbstractItemModel, matchFindsTextsInTheWayOfTheFlags)
{
  WStandardItemModel model(4, 1);
  fill(model, 0, {"Alpha", "beta", "ALPHABET", "a.c"});
  const auto rows = [&model](const boost::any &value, WFlags<MatchFlag> flags, int from = 0, int hits = -1) {
    std::string result;
    for (const WModelIndex &index : model.match(model.index(from, 0), DisplayRole, value, hits, flags))
      result += std::to_string(index.row());
    return result;
  };
  EXPECT_EQ(rows(std::string("alpha"), MatchStringExactly), "0");
  EXPECT_EQ(rows(std::string("alpha"), MatchStringExactly | MatchCaseSensitive), "");
  EXPECT_EQ(rows(std::string("alpha"), MatchStartsWith), "02");
  EXPECT_EQ(rows(std::string("BET"), MatchEndsWith), "2");
  EXPECT_EQ(rows(std::string("a.*a"), MatchRegExp), "0");
  EXPECT_EQ(rows(std::string("a?c"), MatchWildCard), "3");
  EXPECT_EQ(rows(std::string("*bet*"), MatchWildCard), "12");
  EXPECT_EQ(rows(std::string("beta"), MatchExactly), "1");
  EXPECT_EQ(rows(WString("beta"), MatchExactly), "");
  EXPECT_EQ(rows(std::string("alpha"), MatchStartsWith, 1), "2");
  EXPECT_EQ(rows(std::string("alpha"), MatchStartsWith | MatchWrap, 1), "20");
  EXPECT_EQ(rows(std::string("alpha"), MatchStartsWith, 0, 1), "0");
  EXPECT_EQ(rows(std::string("("), MatchRegExp), "");
}

#ifdef __GLIBC__
TEST(WStandardItemModel, costsAtMostAHundredAndTenBytesPerTextCell)
{
  const int rows = 5000;
  const int columns = 6;
  const std::size_t before = mallinfo2().uordblks;
  WStandardItemModel model(rows, columns);
  for (int row = 0; row < rows; ++row)
    for (int i = 0; i < columns; ++i)
      model.setData(row, i, std::string("cell ") + std::to_string(row));
  const std::size_t used = mallinfo2().uordblks - before;
  if (used == 0)
    return; // an allocator of a sanitizer, which does not count here
  EXPECT_LE(used / static_cast<std::size_t>(rows * columns), 110u);
}
#endif
