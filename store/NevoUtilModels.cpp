// SPDX-License-Identifier: MIT
#include "NevoUtil.h"

#include <Wt/WModelIndex>
#include <Wt/WSortFilterProxyModel>
#include <Wt/WStandardItemModel>
#include <boost/any.hpp>
#include <cstdio>

namespace
{

constexpr std::size_t kEidSize = 14; // the 13 characters of an EID and a NUL

boost::any sourceData(const Wt::WModelIndex &index, Wt::WStandardItemModel *model,
                      Wt::WSortFilterProxyModel *proxy, int column)
{
  const Wt::WModelIndex source = proxy->mapToSource(index);
  return model->data(source.row(), column, Wt::EditRole);
}

} // namespace

void NevoUtil_modelIndexToZelIndex(const Wt::WModelIndex &index, Wt::WStandardItemModel *model,
                                   Wt::WSortFilterProxyModel *proxy, unsigned int &zelIndex)
{
  zelIndex = boost::any_cast<unsigned int>(sourceData(index, model, proxy, 0));
}

void NevoUtil_modelIndexToEid(const Wt::WModelIndex &index, Wt::WStandardItemModel *model,
                              Wt::WSortFilterProxyModel *proxy, unsigned int column, char *eid)
{
  const auto value = boost::any_cast<std::string>(sourceData(index, model, proxy, static_cast<int>(column)));
  std::snprintf(eid, kEidSize, "%s", value.c_str());
}

void NevoUtil_modelIndexSetToZelIndexVect(const std::set<Wt::WModelIndex> &indexes,
                                          Wt::WStandardItemModel *model, Wt::WSortFilterProxyModel *proxy,
                                          std::vector<unsigned int> &zelIndexes)
{
  for (const Wt::WModelIndex &index : indexes) {
    unsigned int zelIndex = 0;
    NevoUtil_modelIndexToZelIndex(index, model, proxy, zelIndex);
    zelIndexes.push_back(zelIndex);
  }
}
