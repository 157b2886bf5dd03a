// SPDX-License-Identifier: MIT
#include "StoreTest.h"

using testing::IsEmpty;
using testing::SizeIs;

class DbMerge : public StoreTest
{
protected:
  DbMerge()
  {
    store.setRecords("rx", R"([{"index": 2, "n": 5, "s": "a"}, {"index": 3, "n": 5, "s": "a"},
                               {"index": 4, "n": 6, "s": "b"}, {"index": 5, "n": 5, "s": "a"}])");
  }
  unsigned int number = 77;
  std::string word = "before";
  bool allEqual = false;
};

TEST_F(DbMerge, givesTheValueOnWhichAllRecordsAgree)
{
  EXPECT_EQ(Db_db.readUInt32Merge("rx", {2, 3, 5}, "n", number, allEqual, errors), 0U);
  EXPECT_EQ(number, 5U);
  EXPECT_TRUE(allEqual);
  EXPECT_EQ(Db_db.readStringMerge("rx", {2, 3, 5}, "s", word, errors), 0U);
  EXPECT_EQ(word, "a");
}

TEST_F(DbMerge, givesNothingWhereTheRecordsDifferAndThatIsNoFailure)
{
  EXPECT_EQ(Db_db.readUInt32Merge("rx", {2, 3, 4}, "n", number, allEqual, errors), 0U);
  EXPECT_EQ(number, 0U);
  EXPECT_FALSE(allEqual);
  EXPECT_EQ(Db_db.readStringMerge("rx", {2, 3, 4}, "s", word, errors), 0U);
  EXPECT_EQ(word, "");
}

TEST_F(DbMerge, readsNoRecordBehindTheFirstThatDiffers)
{
  Db_db.readUInt32Merge("rx", {2, 4, 5, 3}, "n", number, allEqual, errors);
  EXPECT_THAT(store.requests(), SizeIs(2));
}

TEST_F(DbMerge, givesNothingForNoRecordsWithoutARequest)
{
  EXPECT_EQ(Db_db.readUInt32Merge("rx", {}, "n", number, allEqual, errors), 0U);
  EXPECT_EQ(number, 0U);
  EXPECT_TRUE(allEqual);
  EXPECT_EQ(Db_db.readStringMerge("rx", {}, "s", word, errors), 0U);
  EXPECT_EQ(word, "");
  EXPECT_THAT(store.requests(), IsEmpty());
}

TEST_F(DbMerge, failsWhereOneRecordCannotBeRead)
{
  EXPECT_EQ(Db_db.readUInt32Merge("rx", {2, 3, 99}, "n", number, allEqual, errors), 1U);
  EXPECT_EQ(number, 0U);
  EXPECT_EQ(Db_db.readStringMerge("rx", {99, 2}, "s", word, errors), 1U);
  EXPECT_EQ(word, "");
  EXPECT_THAT(errors, SizeIs(2));
}
