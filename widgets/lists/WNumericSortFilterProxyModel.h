// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WNUMERIC_SORT_FILTER_PROXY_MODEL_H_
#define WIDGETS_WNUMERIC_SORT_FILTER_PROXY_MODEL_H_

#include <Wt/WSortFilterProxyModel>

/// The sort and filter layer between a record list's model and its view: orders texts so that numbers inside
/// them count by value ("Rx 9" before "Rx 10").
class WNumericSortFilterProxyModel : public Wt::WSortFilterProxyModel
{
public:
  explicit WNumericSortFilterProxyModel(Wt::WObject *parent = 0);

protected:
  /// Compares the edit data of two source cells. Data that is no std::string never orders anything.
  bool lessThan(const Wt::WModelIndex &left, const Wt::WModelIndex &right) const override;
};

#endif // WIDGETS_WNUMERIC_SORT_FILTER_PROXY_MODEL_H_
