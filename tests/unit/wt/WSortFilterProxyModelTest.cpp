// SPDX-License-Identifier: MIT
#include "ModelRecorder.h"

#include <Wt/WSortFilterProxyModel>
#include <Wt/WStandardItemModel>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <random>

using namespace Wt;

namespace
{

std::string column(const WAbstractItemModel &model, int number = 0)
{
  std::string result;
  for (int row = 0; row < model.rowCount(); ++row)
    result += asString(model.data(row, number)).toUTF8() + ",";
  return result;
}

void fill(WStandardItemModel &model, const std::vector<std::string> &texts, int number = 0)
{
  for (std::size_t row = 0; row < texts.size(); ++row)
    model.setData(static_cast<int>(row), number, texts[row]);
}

/// Compares the texts by their lengths only.
class ByLength : public WSortFilterProxyModel
{
public:
  using WSortFilterProxyModel::WSortFilterProxyModel;

protected:
  bool lessThan(const WModelIndex &left, const WModelIndex &right) const override
  {
    return asString(left.data()).toUTF8().size() < asString(right.data()).toUTF8().size();
  }
};

/// Shows rows of even number only.
class EvenRows : public WSortFilterProxyModel
{
protected:
  bool filterAcceptRow(int row, const WModelIndex &) const override { return row % 2 == 0; }
};

class SortFilterProxy : public testing::Test
{
protected:
  SortFilterProxy()
  {
    source.insertColumns(0, 2);
    proxy.setSourceModel(&source);
  }

  void showTexts(const std::vector<std::string> &texts)
  {
    source.insertRows(0, static_cast<int>(texts.size()));
    fill(source, texts);
    proxy.invalidate();
    recorder.take();
  }

  WStandardItemModel source;
  WSortFilterProxyModel proxy;
  ModelRecorder recorder{proxy};
};

} // namespace

TEST_F(SortFilterProxy, defaultsAreThoseOfTheApi)
{
  EXPECT_EQ(proxy.sourceModel(), &source);
  EXPECT_EQ(proxy.sortColumn(), -1);
  EXPECT_EQ(proxy.sortOrder(), AscendingOrder);
  EXPECT_FALSE(proxy.dynamicSortFilter());
  EXPECT_EQ(proxy.filterKeyColumn(), 0);
  EXPECT_EQ(proxy.filterRole(), DisplayRole);
  EXPECT_EQ(proxy.sortRole(), DisplayRole);
}

TEST_F(SortFilterProxy, keepsTheOrderOfTheSourceBeforeTheFirstSort)
{
  showTexts({"c", "a", "b"});
  EXPECT_EQ(column(proxy), "c,a,b,");
}

TEST_F(SortFilterProxy, sortsStablyInBothDirections)
{
  showTexts({"b", "a", "b", "a"});
  fill(source, {"0", "1", "2", "3"}, 1);
  recorder.take();
  proxy.sort(0);
  EXPECT_EQ(column(proxy, 1), "1,3,0,2,");
  EXPECT_EQ(recorder.take(), "L");
  proxy.sort(0, DescendingOrder);
  EXPECT_EQ(column(proxy, 1), "0,2,1,3,");
  EXPECT_EQ(proxy.sortColumn(), 0);
  EXPECT_EQ(proxy.sortOrder(), DescendingOrder);
}

TEST_F(SortFilterProxy, emptyCellsComeFirstAndMixedTypesCompareAsTexts)
{
  source.insertRows(0, 4);
  source.setData(0, 0, std::string("9"));
  source.setData(1, 0, 10);
  source.setData(3, 0, 1);
  proxy.sort(0);
  EXPECT_EQ(column(proxy), ",1,10,9,");
  proxy.sort(0, DescendingOrder);
  EXPECT_EQ(column(proxy), "9,10,1,,");
}

TEST_F(SortFilterProxy, mapsThereAndBack)
{
  showTexts({"c", "a", "b"});
  proxy.sort(0);
  for (int row = 0; row < 3; ++row) {
    const WModelIndex shown = proxy.index(row, 1);
    const WModelIndex mapped = proxy.mapToSource(shown);
    EXPECT_EQ(mapped.model(), &source);
    EXPECT_EQ(mapped.column(), 1);
    EXPECT_EQ(proxy.mapFromSource(mapped), shown);
  }
  EXPECT_EQ(proxy.mapToSource(proxy.index(0, 0)).row(), 1);
  EXPECT_FALSE(proxy.mapToSource(WModelIndex()).isValid());
  EXPECT_FALSE(proxy.mapToSource(source.index(0, 0)).isValid());
  EXPECT_FALSE(proxy.mapFromSource(WModelIndex()).isValid());
}

TEST_F(SortFilterProxy, aFilterMustMatchTheWholeText)
{
  showTexts({"rx1", "tx1", "rx12", "my rx1"});
  proxy.setFilterRegExp("rx.");
  EXPECT_EQ(column(proxy), "rx1,");
  proxy.setFilterRegExp("rx.*");
  EXPECT_EQ(column(proxy), "rx1,rx12,");
  EXPECT_FALSE(proxy.mapFromSource(source.index(1, 0)).isValid());
  EXPECT_EQ(proxy.filterRegExp().toUTF8(), "rx.*");
  proxy.setFilterRegExp("(");
  EXPECT_EQ(proxy.rowCount(), 0);
  proxy.setFilterRegExp("");
  EXPECT_EQ(proxy.rowCount(), 4);
}

TEST_F(SortFilterProxy, filtersByTheKeyColumnAndRole)
{
  showTexts({"a", "b"});
  source.setData(1, 1, std::string("yes"), ToolTipRole);
  proxy.setFilterKeyColumn(1);
  proxy.setFilterRole(ToolTipRole);
  proxy.setFilterRegExp("yes");
  EXPECT_EQ(column(proxy), "b,");
}

TEST_F(SortFilterProxy, withoutDynamicsInsertedRowsWaitForInvalidate)
{
  showTexts({"b"});
  proxy.sort(0);
  recorder.take();
  source.insertRows(0, 1);
  source.setData(0, 0, std::string("a"));
  EXPECT_EQ(recorder.take(), "");
  EXPECT_EQ(column(proxy), "b,");
  EXPECT_EQ(proxy.mapToSource(proxy.index(0, 0)).row(), 1);
  proxy.invalidate();
  EXPECT_EQ(recorder.take(), "L");
  EXPECT_EQ(column(proxy), "a,b,");
}

TEST_F(SortFilterProxy, withoutDynamicsChangesAndRemovalsPassThrough)
{
  showTexts({"b", "a", "c"});
  proxy.sort(0);
  recorder.take();
  source.setData(1, 0, std::string("z"));
  EXPECT_EQ(recorder.take(), "=0:0-0:0");
  EXPECT_EQ(column(proxy), "z,b,c,");
  source.removeRows(0, 1);
  EXPECT_EQ(recorder.take(), "-1-1");
  EXPECT_EQ(column(proxy), "z,c,");
}

TEST_F(SortFilterProxy, withDynamicsEachInsertedRowIsPlacedAtOnce)
{
  showTexts({"b"});
  proxy.setDynamicSortFilter(true);
  proxy.sort(0);
  recorder.take();
  source.insertRows(1, 2);
  EXPECT_EQ(recorder.take(), "+0-0 +1-1");
  EXPECT_EQ(column(proxy), ",,b,");
}

TEST_F(SortFilterProxy, withDynamicsAChangeOfTheSortColumnReplacesTheRow)
{
  showTexts({"a", "b", "c"});
  proxy.setDynamicSortFilter(true);
  proxy.sort(0);
  recorder.take();
  source.setData(0, 0, std::string("z"));
  EXPECT_EQ(recorder.take(), "-0-0 +2-2");
  EXPECT_EQ(column(proxy), "b,c,z,");
  source.setData(0, 0, std::string("y"));
  EXPECT_EQ(recorder.take(), "=2:0-2:0");
  source.setData(0, 1, std::string("other column"));
  EXPECT_EQ(recorder.take(), "=2:1-2:1");
}

TEST_F(SortFilterProxy, withDynamicsAChangeOfTheFilterColumnShowsAndHides)
{
  showTexts({"a", "x"});
  proxy.setDynamicSortFilter(true);
  proxy.setFilterRegExp("[a-c]");
  recorder.take();
  source.setData(1, 0, std::string("b"));
  EXPECT_EQ(recorder.take(), "+1-1");
  source.setData(0, 0, std::string("y"));
  EXPECT_EQ(recorder.take(), "-0-0");
  source.setData(0, 0, std::string("z"));
  EXPECT_EQ(recorder.take(), "");
  EXPECT_EQ(column(proxy), "b,");
}

TEST_F(SortFilterProxy, removedRowsLeaveInRuns)
{
  showTexts({"a", "d", "b", "c"});
  proxy.setDynamicSortFilter(true);
  proxy.sort(0);
  recorder.take();
  source.removeRows(0, 2);
  EXPECT_EQ(recorder.take(), "-3-3 -0-0");
  EXPECT_EQ(column(proxy), "b,c,");
  source.removeRows(0, 2);
  EXPECT_EQ(recorder.take(), "-0-1");
}

TEST_F(SortFilterProxy, sourceSortAndResetPassThrough)
{
  showTexts({"b", "a"});
  source.sort(0);
  EXPECT_EQ(recorder.take(), "L");
  EXPECT_EQ(column(proxy), "a,b,");
  source.clear();
  EXPECT_EQ(recorder.take(), "R");
  EXPECT_EQ(proxy.rowCount(), 0);
}

TEST_F(SortFilterProxy, columnsHeadersAndFlagsAreThoseOfTheSource)
{
  showTexts({"b", "a"});
  proxy.sort(0);
  recorder.take();
  source.setHeaderData(1, std::string("Name"));
  EXPECT_EQ(recorder.take(), "H1-1");
  EXPECT_EQ(asString(proxy.headerData(1)).toUTF8(), "Name");
  proxy.setHeaderData(0, std::string("Index"));
  EXPECT_EQ(asString(source.headerData(0)).toUTF8(), "Index");
  source.insertColumns(2, 1);
  EXPECT_EQ(proxy.columnCount(), 3);
  source.removeColumns(2, 1);
  EXPECT_EQ(recorder.take(), "H0-0 |+2-2 |-2-2");
  source.item(1, 0)->setFlags(ItemIsSelectable | ItemIsEditable);
  EXPECT_EQ(proxy.index(0, 0).flags().value(), 3);
  EXPECT_EQ(proxy.index(0, 1).flags().value(), 0);
}

TEST_F(SortFilterProxy, changesGoThroughToTheSource)
{
  showTexts({"c", "a", "b"});
  proxy.sort(0);
  EXPECT_TRUE(proxy.setData(0, 0, std::string("aa")));
  EXPECT_EQ(column(source), "c,aa,b,");
  EXPECT_TRUE(proxy.removeRows(0, 2));
  EXPECT_EQ(column(source), "c,");
  proxy.setDynamicSortFilter(true);
  EXPECT_TRUE(proxy.insertRows(1, 1));
  EXPECT_EQ(source.rowCount(), 2);
  EXPECT_FALSE(proxy.setData(7, 0, std::string("x")));
}

TEST_F(SortFilterProxy, rawIndexesLastThroughASort)
{
  showTexts({"c", "a", "b"});
  void *raw = proxy.toRawIndex(proxy.index(0, 0));
  proxy.sort(0);
  EXPECT_EQ(proxy.fromRawIndex(raw), proxy.index(2, 0));
}

TEST_F(SortFilterProxy, anotherSourceReplacesTheFormer)
{
  showTexts({"a"});
  WStandardItemModel other(2, 1);
  proxy.setSourceModel(&other);
  EXPECT_EQ(recorder.take(), "R");
  EXPECT_EQ(proxy.rowCount(), 2);
  source.removeRows(0, 1);
  EXPECT_EQ(recorder.take(), "");
}

TEST(WSortFilterProxyModel, outlivesItsSource)
{
  auto source = std::make_unique<WStandardItemModel>(2, 1);
  WSortFilterProxyModel proxy;
  proxy.setSourceModel(source.get());
  ModelRecorder recorder(proxy);
  source.reset();
  EXPECT_EQ(recorder.take(), "R");
  EXPECT_EQ(proxy.rowCount(), 0);
  EXPECT_EQ(proxy.columnCount(), 0);
  proxy.invalidate();
  proxy.sort(0);
  EXPECT_EQ(proxy.sourceModel(), nullptr);
}

TEST(WSortFilterProxyModel, aDerivedOneMayCompareInItsOwnWay)
{
  WStandardItemModel source(3, 1);
  fill(source, {"ccc", "a", "bb"});
  ByLength proxy;
  proxy.setSourceModel(&source);
  proxy.sort(0);
  EXPECT_EQ(column(proxy), "a,bb,ccc,");
  proxy.sort(0, DescendingOrder);
  EXPECT_EQ(column(proxy), "ccc,bb,a,");
}

TEST(WSortFilterProxyModel, aDerivedOneMayFilterInItsOwnWay)
{
  WStandardItemModel source(4, 1);
  fill(source, {"0", "1", "2", "3"});
  EvenRows proxy;
  proxy.setSourceModel(&source);
  EXPECT_EQ(column(proxy), "0,2,");
}

TEST(WSortFilterProxyModel, survivesASlotThatChangesTheSourceUnderItsFeet)
{
  WStandardItemModel source(3, 1);
  WSortFilterProxyModel proxy;
  proxy.setSourceModel(&source);
  proxy.setDynamicSortFilter(true);
  proxy.sort(0);
  int left = 3;
  proxy.rowsInserted().connect(std::bind([&] {
    if (left-- > 0)
      source.removeRows(0, 1);
  }));
  source.insertRows(0, 4);
  EXPECT_LE(proxy.rowCount(), source.rowCount());
  proxy.invalidate();
  EXPECT_EQ(proxy.rowCount(), source.rowCount());
}

TEST(WSortFilterProxyModel, keepsItsOrderThroughAnyMixOfChanges)
{
  std::mt19937 random(42);
  const auto upTo = [&random](int limit) { return std::uniform_int_distribution<int>(0, limit)(random); };
  for (SortOrder order : {AscendingOrder, DescendingOrder}) {
    WStandardItemModel source(0, 2);
    WSortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    proxy.setFilterRegExp("[^7]*");
    proxy.setDynamicSortFilter(true);
    proxy.sort(0, order);
    WSortFilterProxyModel fresh;
    fresh.setFilterRegExp("[^7]*");
    fresh.sort(0, order);
    for (int step = 0; step < 600; ++step) {
      const int rows = source.rowCount();
      const int action = upTo(9);
      if (action == 0 || rows == 0)
        source.insertRows(upTo(rows), 1 + upTo(30));
      else if (action == 1)
        source.removeRows(upTo(rows - 1), 1);
      else if (action == 2 && rows > 100)
        source.removeRows(10, 80);
      else
        source.setData(upTo(rows - 1), 0, std::to_string(upTo(40)));
    }
    fresh.setSourceModel(&source);
    ASSERT_EQ(column(proxy), column(fresh));
    for (int row = 0; row < source.rowCount(); ++row)
      ASSERT_EQ(proxy.mapFromSource(source.index(row, 1)).row(),
                fresh.mapFromSource(source.index(row, 1)).row());
  }
}
