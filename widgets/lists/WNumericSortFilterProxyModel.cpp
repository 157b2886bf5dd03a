// SPDX-License-Identifier: MIT
#include "WNumericSortFilterProxyModel.h"

#include "NevoUtil.h"

#include <Wt/WModelIndex>
#include <boost/any.hpp>
#include <string>

WNumericSortFilterProxyModel::WNumericSortFilterProxyModel(Wt::WObject *parent)
    : Wt::WSortFilterProxyModel(parent)
{
}

bool WNumericSortFilterProxyModel::lessThan(const Wt::WModelIndex &left, const Wt::WModelIndex &right) const
{
  const boost::any leftData = left.data(Wt::EditRole);
  const boost::any rightData = right.data(Wt::EditRole);
  const std::string *leftText = boost::any_cast<std::string>(&leftData);
  const std::string *rightText = boost::any_cast<std::string>(&rightData);
  return leftText && rightText && NevoUtil_lessThan(*leftText, *rightText);
}
