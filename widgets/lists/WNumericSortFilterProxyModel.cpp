// SPDX-License-Identifier: MIT
#include "WNumericSortFilterProxyModel.h"

#include "NevoUtil.h"
#include "SearchText.h"

#include <Wt/WModelIndex>
#include <algorithm>
#include <boost/any.hpp>
#include <string>

WNumericSortFilterProxyModel::WNumericSortFilterProxyModel(Wt::WObject *parent)
    : Wt::WSortFilterProxyModel(parent)
{
}

void WNumericSortFilterProxyModel::setFilterWords(const std::string &text)
{
  typed = text;
  words = SearchText_words(text);
  invalidate();
}

void WNumericSortFilterProxyModel::refilter()
{
  if (words.empty())
    return;
  for (int row = 0; row < sourceModel()->rowCount(); ++row) {
    const bool shown = mapFromSource(sourceModel()->index(row, 0)).isValid();
    if (shown != filterAcceptRow(row, Wt::WModelIndex())) {
      invalidate();
      return;
    }
  }
}

bool WNumericSortFilterProxyModel::filterAcceptRow(int sourceRow, const Wt::WModelIndex &sourceParent) const
{
  if (!Wt::WSortFilterProxyModel::filterAcceptRow(sourceRow, sourceParent))
    return false;
  if (words.empty())
    return true;
  std::string all;
  for (int column = 1; column < sourceModel()->columnCount(); ++column) {
    const boost::any data = sourceModel()->index(sourceRow, column, sourceParent).data(Wt::EditRole);
    if (const std::string *text = boost::any_cast<std::string>(&data))
      all += *text + '\n';
  }
  const std::string row = SearchText_folded(all);
  return std::all_of(words.begin(), words.end(),
                     [&row](const std::string &word) { return row.find(word) != std::string::npos; });
}

bool WNumericSortFilterProxyModel::lessThan(const Wt::WModelIndex &left, const Wt::WModelIndex &right) const
{
  const boost::any leftData = left.data(Wt::EditRole);
  const boost::any rightData = right.data(Wt::EditRole);
  const std::string *leftText = boost::any_cast<std::string>(&leftData);
  const std::string *rightText = boost::any_cast<std::string>(&rightData);
  return leftText && rightText && NevoUtil_lessThan(*leftText, *rightText);
}
