// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WNUMERIC_SORT_FILTER_PROXY_MODEL_H_
#define WIDGETS_WNUMERIC_SORT_FILTER_PROXY_MODEL_H_

#include <Wt/WSortFilterProxyModel>
#include <string>
#include <vector>

/// The sort and filter layer between a record list's model and its view: orders texts so that numbers inside
/// them count by value ("Rx 9" before "Rx 10"), and lets pass the rows in which all words of the filter
/// occur. Column 0 holds store indexes and takes no part in either.
class WNumericSortFilterProxyModel : public Wt::WSortFilterProxyModel
{
public:
  explicit WNumericSortFilterProxyModel(Wt::WObject *parent = 0);

  /// The words, in UTF-8, that must occur somewhere in a row; case and accents make no difference. All rows
  /// pass an empty text.
  void setFilterWords(const std::string &words);
  const std::string &filterWords() const { return typed; }

  /// Filters anew where the rows' texts have changed so that others pass now. While rows change, only the key
  /// column is watched.
  void refilter();

protected:
  bool filterAcceptRow(int sourceRow, const Wt::WModelIndex &sourceParent) const override;

  /// Compares the edit data of two source cells. Data that is no std::string never orders anything.
  bool lessThan(const Wt::WModelIndex &left, const Wt::WModelIndex &right) const override;

private:
  std::string typed;
  std::vector<std::string> words; ///< folded
};

#endif // WIDGETS_WNUMERIC_SORT_FILTER_PROXY_MODEL_H_
