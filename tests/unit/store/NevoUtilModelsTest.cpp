// SPDX-License-Identifier: MIT
#include "NevoUtil.h"

#include <Wt/WSortFilterProxyModel>
#include <Wt/WStandardItem>
#include <Wt/WStandardItemModel>
#include <boost/any.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

// A list as the views keep it: column 0 the store index, column 1 an EID, sorted by the EID downwards.
class NevoUtilModels : public testing::Test
{
protected:
  NevoUtilModels()
  {
    addRow(11U, std::string("AAAAAA-111111"));
    addRow(12U, std::string("BBBBBB-222222"));
    addRow(13U, std::string("CCCCCC-333333-and-more"));
    proxy.setSourceModel(&model);
    proxy.setSortRole(Wt::EditRole);
    proxy.sort(1, Wt::DescendingOrder);
  }

  void addRow(const boost::any &index, const boost::any &eid)
  {
    const int row = model.rowCount();
    model.insertRow(row);
    model.setData(row, 0, index, Wt::EditRole);
    model.setData(row, 1, eid, Wt::EditRole);
  }

  Wt::WStandardItemModel model{0, 2};
  Wt::WSortFilterProxyModel proxy;
};

TEST_F(NevoUtilModels, findTheStoreIndexOfAShownRow)
{
  unsigned int zelIndex = 0;
  NevoUtil_modelIndexToZelIndex(proxy.index(0, 1), &model, &proxy, zelIndex);
  EXPECT_EQ(zelIndex, 13U);
  NevoUtil_modelIndexToZelIndex(proxy.index(2, 0), &model, &proxy, zelIndex);
  EXPECT_EQ(zelIndex, 11U);
}

TEST_F(NevoUtilModels, findTheEidOfAShownRowAndCutItToItsThirteenCharacters)
{
  char eid[14];
  NevoUtil_modelIndexToEid(proxy.index(1, 0), &model, &proxy, 1, eid);
  EXPECT_STREQ(eid, "BBBBBB-222222");
  NevoUtil_modelIndexToEid(proxy.index(0, 0), &model, &proxy, 1, eid);
  EXPECT_STREQ(eid, "CCCCCC-333333");
}

TEST_F(NevoUtilModels, appendTheStoreIndexesOfASelectionInItsOrder)
{
  std::vector<unsigned int> zelIndexes = {99};
  const std::set<Wt::WModelIndex> selection = {proxy.index(2, 0), proxy.index(0, 0)};
  NevoUtil_modelIndexSetToZelIndexVect(selection, &model, &proxy, zelIndexes);
  EXPECT_THAT(zelIndexes, ElementsAre(99, 13, 11));
}

TEST_F(NevoUtilModels, throwForAColumnThatHoldsAnotherType)
{
  addRow(std::string("no number"), std::string("DDDDDD-444444"));
  proxy.invalidate();
  unsigned int zelIndex = 7;
  char eid[14] = "before";
  const Wt::WModelIndex wrong = proxy.index(0, 0);
  EXPECT_THROW(NevoUtil_modelIndexToZelIndex(wrong, &model, &proxy, zelIndex), boost::bad_any_cast);
  EXPECT_THROW(NevoUtil_modelIndexToEid(proxy.index(1, 0), &model, &proxy, 0, eid), boost::bad_any_cast);
  EXPECT_EQ(zelIndex, 7U);
  EXPECT_STREQ(eid, "before");
}
