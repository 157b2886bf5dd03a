// SPDX-License-Identifier: MIT
#include "RecordList.h"

#include "KitPage.h"
#include "WAutoSizeTableView.h"
#include "WNumericSortFilterProxyModel.h"
#include "WObjListContextPanel.h"

#include <Wt/WStandardItemModel>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

const char kTitle[] = "Devices";

class Devices : public WObjListContextPanel
{
public:
  explicit Devices(Wt::WContainerWidget *parent)
      : WObjListContextPanel(kTitle, "index", {{"Name"}, {"Kind"}, {"Size", Wt::AlignRight, 80}}, parent)
  {
    tableView->setSelectionMode(Wt::ExtendedSelection);
    records->setEmptyText("There are no devices.");
  }
  void readFromDatabase() override { showRecords(rows); }
  RecordList &list() { return *records; }

  std::optional<ListRows> rows;
};

// A list of devices of two kinds, each with indexes of its own.
class RecordsOfTwoKinds : public testing::Test
{
protected:
  RecordsOfTwoKinds()
      : page_([this](Wt::WContainerWidget &root) {
          devices_ = new Devices(&root);
          devices_->list().setKindColumn(2);
          devices_->selectionChanged().connect(std::bind([this] { ++told_; }));
          const auto count = std::bind([this] { ++changes_; });
          devices_->model->rowsInserted().connect(count);
          devices_->model->rowsRemoved().connect(count);
          devices_->model->dataChanged().connect(count);
          devices_->model->layoutChanged().connect(count);
        })
  {
  }

  void show(const std::optional<ListRows> &rows)
  {
    page_.act([&] {
      devices_->rows = rows;
      devices_->readFromDatabase();
    });
    shown_ = told_;
  }
  // Changes of the model and messages to the view since the last call.
  int changes()
  {
    const int count = changes_;
    changes_ = 0;
    return count;
  }
  Row names() const
  {
    Row texts;
    for (const Row &row : page_.visitor.rows(kTitle))
      texts.push_back(row[0] + " " + row[1]);
    return texts;
  }
  void select(int row) { page_.visitor.selectRow(kTitle, row); }
  Row selected() const { return page_.visitor.selected(kTitle); }
  void filter(const std::string &words)
  {
    page_.act([&] { devices_->list().setFilter(words); });
  }
  std::string why() const { return page_.visitor.list(kTitle)->get("data-empty"); }

  const ListRows kThree = {{1, {"Anna", "rx", "1"}}, {1, {"Bert", "tx", "2"}}, {2, {"Carl", "rx", "3"}}};
  Devices *devices_ = nullptr;
  int told_ = 0;
  int shown_ = 0;
  int changes_ = 0;
  KitPage page_;
};

} // namespace

// ---- Rows

TEST_F(RecordsOfTwoKinds, areShownInTheirOrder)
{
  show(kThree);
  EXPECT_THAT(names(), ElementsAre("Anna rx", "Bert tx", "Carl rx"));
  EXPECT_EQ(devices_->rowCount(), 3);
}

TEST_F(RecordsOfTwoKinds, leaveTheModelAloneWhereNothingChanged)
{
  show(kThree);
  changes();
  show(kThree);
  EXPECT_EQ(changes(), 0);
}

TEST_F(RecordsOfTwoKinds, changeOnlyTheCellThatDiffers)
{
  show(kThree);
  changes();
  ListRows rows = kThree;
  rows[1].cells[0].text = "Berta";
  show(rows);
  EXPECT_EQ(changes(), 1);
  EXPECT_THAT(names(), ElementsAre("Anna rx", "Berta tx", "Carl rx"));
  rows[1].cells[0].styleClass = "loud";
  show(rows);
  EXPECT_EQ(changes(), 1);
}

TEST_F(RecordsOfTwoKinds, comeAndGoOneByOne)
{
  show(kThree);
  changes();
  show(ListRows{{7, {"Zoe", "rx", "0"}}, kThree[0], kThree[1], kThree[2]});
  EXPECT_LE(changes(), 1 + 4) << "the row and its cells";
  EXPECT_THAT(names(), ElementsAre("Zoe rx", "Anna rx", "Bert tx", "Carl rx"));
  show(ListRows{{7, {"Zoe", "rx", "0"}}, kThree[0], kThree[2]});
  EXPECT_EQ(changes(), 1);
  EXPECT_THAT(names(), ElementsAre("Zoe rx", "Anna rx", "Carl rx"));
}

TEST_F(RecordsOfTwoKinds, mayChangePlaces)
{
  show(kThree);
  show(ListRows{kThree[2], kThree[0], kThree[1]});
  EXPECT_THAT(names(), ElementsAre("Carl rx", "Anna rx", "Bert tx"));
  show(ListRows{kThree[0], kThree[0], kThree[2]});
  EXPECT_THAT(names(), ElementsAre("Anna rx", "Anna rx", "Carl rx"));
  show(kThree);
  EXPECT_THAT(names(), ElementsAre("Anna rx", "Bert tx", "Carl rx"));
}

TEST_F(RecordsOfTwoKinds, followAnyOtherListOfRecords)
{
  unsigned int random = 1;
  const auto next = [&random](unsigned int below) {
    random = random * 1103515245 + 12345;
    return random / 65536 % below;
  };
  for (int turn = 0; turn < 200; ++turn) {
    ListRows rows;
    Row expected;
    for (unsigned int count = next(8); count > 0; --count) {
      const std::string kind = next(2) == 0 ? "rx" : "tx";
      const std::string name = "N" + std::to_string(next(3));
      rows.push_back({next(6), {name, kind, "1"}});
      expected.push_back(name + " " + kind);
    }
    show(rows);
    ASSERT_EQ(names(), expected) << turn;
  }
}

// ---- What stands there instead of rows

TEST_F(RecordsOfTwoKinds, sayThatThereAreNoneOnlyAfterHavingBeenRead)
{
  EXPECT_EQ(why(), "");
  show(ListRows());
  EXPECT_EQ(why(), "There are no devices.");
  show(std::nullopt);
  EXPECT_EQ(why(), "");
  show(kThree);
  EXPECT_EQ(why(), "");
}

TEST_F(RecordsOfTwoKinds, areGoneAndLookUnreadWhereTheyCannotBeRead)
{
  show(kThree);
  EXPECT_FALSE(page_.visitor.list(kTitle)->hasClass("nevo-list-unread"));
  show(std::nullopt);
  EXPECT_THAT(names(), IsEmpty());
  EXPECT_TRUE(page_.visitor.list(kTitle)->hasClass("nevo-list-unread"));
  show(kThree);
  EXPECT_FALSE(page_.visitor.list(kTitle)->hasClass("nevo-list-unread"));
}

// ---- Selection

TEST_F(RecordsOfTwoKinds, staySelectedByIndexAndKind)
{
  show(kThree);
  select(1);
  EXPECT_EQ(told_, 1);
  show(ListRows{{1, {"Bert", "tx", "2"}}, {1, {"Anna", "rx", "1"}}});
  EXPECT_THAT(selected(), ElementsAre("Bert"));
  show(ListRows{{1, {"Anna", "rx", "1"}}});
  EXPECT_THAT(selected(), IsEmpty());
  EXPECT_EQ(told_, 1) << "a reading has told of a selection";
}

TEST_F(RecordsOfTwoKinds, staySelectedWhereTheSortingMovesTheirRow)
{
  page_.act([this] { devices_->tableView->sortByColumn(1, Wt::AscendingOrder); });
  show(kThree);
  select(0);
  ListRows rows = kThree;
  rows[0].cells[0].text = "Zoe";
  show(rows);
  EXPECT_THAT(names(), ElementsAre("Bert tx", "Carl rx", "Zoe rx"));
  EXPECT_THAT(selected(), ElementsAre("Zoe"));
  EXPECT_EQ(told_, 1);
}

TEST_F(RecordsOfTwoKinds, giveTheirSelectionToWhateverComesToTheRowIfThatIsWanted)
{
  page_.act([this] { devices_->list().setSelectionStays(RecordList::AtItsRow); });
  show(kThree);
  select(1);
  show(ListRows{{9, {"Zoe", "rx", "1"}}, kThree[0], kThree[1]});
  EXPECT_THAT(selected(), ElementsAre("Anna"));
  EXPECT_EQ(told_, 1);
}

TEST_F(RecordsOfTwoKinds, areUnselectedWithoutAWord)
{
  show(kThree);
  select(1);
  page_.act([this] { devices_->clearSelection(); });
  EXPECT_THAT(selected(), IsEmpty());
  EXPECT_EQ(told_, 1);
  EXPECT_EQ(devices_->numSelected(), 0);
}

// ---- Filter

TEST_F(RecordsOfTwoKinds, passTheFilterWhereEachWordOccursInSomeColumn)
{
  show(ListRows{{1, {"Caf\xC3\xA9 Nord", "rx", "1"}},
                {2, {"CAFE", "tx", "2"}},
                {3,
                 {"\xC3\x85ngstr\xC3\xB6m stra\xC3\x9F"
                  "e",
                  "rx", "3"}}});
  filter("cafe");
  EXPECT_THAT(names(), SizeIs(2));
  filter("RX caf\xC3\x89");
  EXPECT_THAT(names(), ElementsAre("Caf\xC3\xA9 Nord rx"));
  filter("angstrom STRASSE");
  EXPECT_THAT(names(), SizeIs(1));
  filter("cafe 3");
  EXPECT_THAT(names(), IsEmpty());
  filter("");
  EXPECT_THAT(names(), SizeIs(3));
}

TEST_F(RecordsOfTwoKinds, doNotPassTheFilterByTheirHiddenIndex)
{
  show(ListRows{{77, {"Anna", "rx", "1"}}});
  filter("77");
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(RecordsOfTwoKinds, bearAFilterThatIsNoUtf8)
{
  show(ListRows{{1, {"Anna \xFF", "rx", "1"}}});
  filter("ANNA \xFF");
  EXPECT_EQ(devices_->list().shownCount(), 1);
  filter("\xC3");
  EXPECT_EQ(devices_->list().shownCount(), 0);
}

TEST_F(RecordsOfTwoKinds, tellOnceThatTheFilterHasHiddenASelectedOne)
{
  show(kThree);
  select(1);
  filter("b");
  EXPECT_EQ(told_, 1);
  EXPECT_THAT(selected(), ElementsAre("Bert"));
  filter("bx");
  EXPECT_EQ(told_, 2);
  EXPECT_EQ(devices_->numSelected(), 0);
  filter("");
  EXPECT_EQ(told_, 2);
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(RecordsOfTwoKinds, passTheFilterByWhatTheyAreNow)
{
  show(kThree);
  filter("3");
  EXPECT_THAT(names(), ElementsAre("Carl rx"));
  ListRows rows = kThree;
  rows[0].cells[2].text = "3";
  rows[2].cells[2].text = "1";
  show(rows);
  EXPECT_THAT(names(), ElementsAre("Anna rx"));
  EXPECT_EQ(devices_->rowCount(), 3);
}

TEST_F(RecordsOfTwoKinds, areNotFilteredWhileTheirListIsLocked)
{
  show(kThree);
  page_.act([this] { devices_->tableView->disable(); });
  page_.visitor.typeInto(kTitle, "anna");
  EXPECT_THAT(names(), SizeIs(3));
  page_.act([this] { devices_->tableView->enable(); });
  page_.visitor.typeInto(kTitle, "anna");
  EXPECT_THAT(names(), SizeIs(1));
}

TEST_F(RecordsOfTwoKinds, areCountedInTheMarkWithTheThousandsApart)
{
  ListRows rows;
  for (unsigned int i = 1; i <= 2500; ++i)
    rows.push_back({i, {i % 2 == 0 ? "even" : "odd", "rx", "1"}});
  show(rows);
  page_.visitor.typeInto(kTitle, "even");
  EXPECT_EQ(page_.visitor.filterMark(kTitle), "even \xE2\x80\x94 1,250 of 2,500");
}

TEST_F(RecordsOfTwoKinds, costTheWireOnlyTheRowsInSightWhenFiltered)
{
  ListRows rows;
  for (unsigned int i = 1; i <= 2500; ++i)
    rows.push_back({i, {"Receiver number " + std::to_string(i), "rx", "1"}});
  show(rows);
  page_.visitor.resetCounters();
  page_.visitor.typeInto(kTitle, "2");
  EXPECT_LE(page_.visitor.bytesReceived(), 12000U);
}

TEST_F(RecordsOfTwoKinds, areFilteredByCharactersOnly)
{
  show(kThree);
  page_.visitor.typeInto(kTitle, " ");
  EXPECT_EQ(page_.visitor.filterMark(kTitle), "");
  Visitor::Node *panel = page_.visitor.panel(kTitle);
  page_.visitor.event(panel, "keypress", R"({"k":65,"c":97,"t":"a","m":2})");
  page_.visitor.event(panel, "keypress", R"({"k":13,"c":13,"t":"\r"})");
  page_.visitor.event(panel, "keypress", R"({"k":13})");
  EXPECT_EQ(page_.visitor.filterMark(kTitle), "");
  page_.visitor.typeInto(kTitle, std::string(300, 'a'));
  EXPECT_EQ(devices_->list().filter().size(), 100U);
}

TEST_F(RecordsOfTwoKinds, areFoundByTheTitlesButtonAsWell)
{
  show(kThree);
  Visitor::Node *finder = page_.visitor.byAttribute("aria-label", "Find rows");
  ASSERT_TRUE(page_.visitor.click(finder));
  EXPECT_EQ(page_.visitor.filterMark(kTitle), "Type to find rows.");
  EXPECT_EQ(page_.visitor.page().find(page_.visitor.page().focus), page_.visitor.list(kTitle));
  page_.visitor.typeInto(kTitle, "be");
  EXPECT_THAT(names(), ElementsAre("Bert tx"));
  ASSERT_TRUE(page_.visitor.click(page_.visitor.byAttribute("aria-label", "Show all rows again")));
  EXPECT_THAT(names(), SizeIs(3));
  EXPECT_EQ(page_.visitor.filterMark(kTitle), "");
}
