// SPDX-License-Identifier: MIT
#include "KitPage.h"
#include "WAutoSizeTableView.h"
#include "WObjListContextPanel.h"

#include <Wt/WStandardItemModel>
#include <boost/any.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class Records : public WObjListContextPanel
{
public:
  Records(int columns, Wt::WContainerWidget *parent) : WObjListContextPanel("Records", columns, parent) {}
  void setHeadings(const ListColumns &columns) { setColumns("index", columns); }
  void readFromDatabase() override {}
};

// A list with the hidden column of indexes and the columns Name, Place and Size.
class TableView : public testing::Test
{
protected:
  explicit TableView(int columns = 4)
      : page_([this, columns](Wt::WContainerWidget &root) {
          records_ = new Records(columns, &root);
          view_ = records_->tableView;
          records_->setHeadings({{"Name"}, {"Place"}, {"Size"}});
        })
  {
  }

  void fill(const std::vector<std::pair<unsigned int, std::string>> &rows)
  {
    page_.act([&] {
      records_->removeAllRows();
      records_->model->insertRows(0, static_cast<int>(rows.size()));
      for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        records_->model->setData(row, 0, boost::any(rows[row].first), Wt::EditRole);
        records_->model->setData(row, 1, boost::any(rows[row].second), Wt::EditRole);
      }
    });
  }
  std::vector<double> widths() const
  {
    std::vector<double> pixels;
    for (int column = 1; column < 4; ++column)
      pixels.push_back(view_->columnWidth(column).toPixels());
    return pixels;
  }
  void adapt(int width)
  {
    page_.act([&] { view_->adaptToWidth(width); });
  }
  void drag(int column, int width)
  {
    page_.visitor.event(page_.visitor.list("Records"), "table:resize",
                        "{\"a\":[" + std::to_string(column) + "," + std::to_string(width) + "]}");
  }
  void select(std::vector<unsigned int> indexes)
  {
    page_.act([&] { view_->setSelectedZelIndexes(indexes); });
  }
  Row selected() { return page_.visitor.selected("Records"); }

  Records *records_ = nullptr;
  WAutoSizeTableView *view_ = nullptr;
  KitPage page_;
};

class TableViewOfNoColumns : public TableView
{
protected:
  TableViewOfNoColumns() : TableView(0) {}
};

bool nameIsLong(void *calls, Wt::WModelIndex index)
{
  ++*static_cast<int *>(calls);
  const boost::any name = index.model()->data(index.row(), 1, Wt::EditRole);
  return boost::any_cast<std::string>(name).size() > 3;
}

} // namespace

// ---- Widths: 20 pixels for frame and scroll bar, 7 for each column's padding

TEST_F(TableView, sharesItsWidthAmongTheVisibleColumns)
{
  adapt(620);
  EXPECT_THAT(widths(), ElementsAre(193, 193, 193));
}

TEST_F(TableView, cutsWidthsToWholePixels)
{
  adapt(622); // 602 / 3 - 7 = 193.67
  EXPECT_THAT(widths(), ElementsAre(193, 193, 193));
}

TEST_F(TableView, leavesAColumnThatTheUserSizedAndSharesTheRest)
{
  adapt(620);
  drag(1, 100);
  EXPECT_THAT(widths(), ElementsAre(100, 239, 239)); // (620 - 20 - 7 - 100) / 2 - 7 = 239.5
  adapt(820);
  EXPECT_THAT(widths(), ElementsAre(100, 339, 339));
}

TEST_F(TableView, changesNothingOnceTheUserSizedAllColumns)
{
  adapt(620);
  drag(1, 100);
  drag(2, 110);
  drag(3, 120);
  adapt(1000);
  EXPECT_THAT(widths(), ElementsAre(100, 110, 120));
}

TEST_F(TableView, givesFreeColumnsANegativeWidthWhereTheSizedOnesLeaveNoRoom)
{
  adapt(620);
  drag(1, 600);
  adapt(320);
  EXPECT_THAT(widths(), ElementsAre(600, -160, -160)); // (320 - 20 - 7 - 600) / 2 - 7 = -160.5
}

TEST_F(TableView, countsHiddenColumnsOnlyTheFirstTimeAndPassesOverThemLater)
{
  adapt(620);
  page_.act([&] { view_->setColumnHidden(3, true); });
  adapt(620);
  EXPECT_THAT(widths(), ElementsAre(293, 293, 193)); // 600 / 2 - 7
}

TEST_F(TableView, doesNothingTheFirstTimeWhereAllColumnsAreHidden)
{
  page_.act([&] {
    for (int column = 1; column < 4; ++column)
      view_->setColumnHidden(column, true);
  });
  const std::vector<double> before = widths();
  adapt(620);
  EXPECT_EQ(widths(), before);
  // Done once, the hidden columns are not counted again: each that shows now is a free one.
  page_.act([&] {
    for (int column = 1; column < 4; ++column)
      view_->setColumnHidden(column, false);
  });
  adapt(620);
  EXPECT_THAT(widths(), ElementsAre(193, 193, 193));
}

TEST_F(TableViewOfNoColumns, doesNothing)
{
  const std::vector<double> before = widths();
  adapt(620);
  adapt(720);
  drag(1, 100);
  EXPECT_EQ(widths()[1], before[1]);
}

TEST_F(TableView, livesWithColumnsThatDoNotExist)
{
  adapt(620);
  for (const int column : {-1, 4, 100000})
    drag(column, 50);
  page_.act([&] { view_->columnResizedHandler(77, Wt::WLength(10)); });
  EXPECT_THAT(widths(), ElementsAre(193, 193, 193));
}

TEST_F(TableView, fitsTheSizeThatItsPanelGivesIt)
{
  Visitor::Node *table = page_.visitor.list("Records");
  ASSERT_TRUE(page_.visitor.size(table, 620, 300));
  EXPECT_THAT(widths(), ElementsAre(193, 193, 193));
  EXPECT_EQ(table->get("*height"), "300px");
  EXPECT_EQ(table->get("*width"), "620px");
  page_.visitor.resetCounters();
  page_.visitor.size(table, 620, 300);
  EXPECT_EQ(page_.visitor.operationsReceived(), 0U);
}

TEST_F(TableView, keepsUserSizesOverARebuildOfItsRows)
{
  fill({{4, "b"}, {9, "a"}});
  adapt(620);
  drag(1, 100);
  fill({{9, "a"}});
  adapt(820);
  EXPECT_THAT(widths(), ElementsAre(100, 339, 339));
}

// ---- Selection by store index

TEST_F(TableView, selectsRowsByStoreIndexAndPassesOverThoseThatAreGone)
{
  page_.act([&] { view_->setSelectionMode(Wt::ExtendedSelection); });
  fill({{4, "b"}, {9, "a"}, {7, "c"}});
  select({9, 7, 12});
  EXPECT_THAT(selected(), ElementsAre("a", "c"));
  select({4});
  EXPECT_THAT(selected(), ElementsAre("b"));
  select({12});
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(TableView, selectsNothingForNoIndexes)
{
  fill({{4, "b"}});
  select({4});
  select({});
  EXPECT_THAT(selected(), IsEmpty());
  select({4});
  page_.act([&] { view_->clearSelection(); });
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(TableView, selectsTheFirstOfTwoRowsWithOneIndex)
{
  fill({{4, "b"}, {4, "c"}});
  select({4});
  EXPECT_THAT(selected(), ElementsAre("b"));
}

TEST_F(TableView, extendsASelectionByRecordsThatAFilterLetsThrough)
{
  page_.act([&] { view_->setSelectionMode(Wt::ExtendedSelection); });
  fill({{4, "long"}, {9, "a"}, {7, "longer"}});
  select({9});
  int calls = 0;
  std::vector<unsigned int> wanted = {7, 9, 12};
  page_.act([&] { view_->setSelectedFilteredZelIndexes(wanted, &calls, nameIsLong); });
  EXPECT_EQ(calls, 2);
  EXPECT_THAT(selected(), ElementsAre("a", "longer"));
}

TEST_F(TableView, findsRecordsWhereverTheUserSortedThem)
{
  fill({{4, "Rx 10"}, {9, "Rx 9"}});
  page_.visitor.event(page_.visitor.list("Records"), "table:sort", "{\"a\":[1]}");
  ASSERT_EQ(page_.visitor.rows("Records").front().front(), "Rx 9");
  select({4});
  EXPECT_THAT(selected(), ElementsAre("Rx 10"));
}

TEST_F(TableView, passesOverARowWhoseIndexIsNoNumber)
{
  fill({{4, "b"}});
  page_.act([&] { records_->model->setData(0, 0, boost::any(std::string("4")), Wt::EditRole); });
  select({4});
  EXPECT_THAT(selected(), IsEmpty());
}

// ---- The list panel

TEST_F(TableView, tellsItsPanelHowManyRowsThereAreAndAreSelected)
{
  page_.act([&] { view_->setSelectionMode(Wt::ExtendedSelection); });
  fill({{4, "b"}, {9, "a"}, {7, "c"}});
  select({9, 7});
  EXPECT_EQ(records_->rowCount(), 3);
  EXPECT_EQ(records_->numSelected(), 2);
  page_.act([&] { records_->removeAllRows(); });
  EXPECT_EQ(records_->rowCount(), 0);
  EXPECT_EQ(records_->numSelected(), 0);
  page_.act([&] { records_->removeAllRows(); });
}

TEST_F(TableView, doesNotShowTheColumnOfIndexes)
{
  fill({{4, "b"}});
  EXPECT_EQ(page_.visitor.rows("Records").front(), Row({"b", "", ""}));
  EXPECT_FALSE(page_.visitor.shows("index"));
}

TEST_F(TableView, letsOneRowBeSelectedByAClickUnlessMoreAreWanted)
{
  fill({{4, "b"}, {9, "a"}});
  page_.visitor.selectRow("Records", 0);
  page_.visitor.selectRow("Records", 1);
  EXPECT_THAT(selected(), ElementsAre("a"));
  page_.visitor.event(page_.visitor.list("Records"), "table:down", R"({"a":[0,1],"b":1,"m":2})");
  EXPECT_THAT(selected(), ElementsAre("b"));
}

TEST_F(TableView, sortsNumbersInsideTextsByTheirValue)
{
  fill({{1, "Rx 10"}, {2, "Rx 9"}, {3, "Rx 1"}});
  Visitor::Node *table = page_.visitor.list("Records");
  Row names;
  page_.visitor.event(table, "table:sort", "{\"a\":[1]}");
  for (const Row &row : page_.visitor.rows("Records"))
    names.push_back(row.front());
  EXPECT_THAT(names, ElementsAre("Rx 1", "Rx 9", "Rx 10"));
  page_.visitor.event(table, "table:sort", "{\"a\":[1]}");
  names.clear();
  for (const Row &row : page_.visitor.rows("Records"))
    names.push_back(row.front());
  EXPECT_THAT(names, ElementsAre("Rx 10", "Rx 9", "Rx 1"));
}

TEST_F(TableView, neverReordersByTheHiddenColumnOfIndexes)
{
  fill({{3, "c"}, {1, "a"}, {2, "b"}});
  page_.visitor.event(page_.visitor.list("Records"), "table:sort", "{\"a\":[0]}");
  Row names;
  for (const Row &row : page_.visitor.rows("Records"))
    names.push_back(row.front());
  EXPECT_THAT(names, ElementsAre("c", "a", "b"));
}
