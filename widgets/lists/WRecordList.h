// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WRECORD_LIST_H_
#define WIDGETS_WRECORD_LIST_H_

#include <string>
#include <vector>

namespace Wt
{
class WObject;
class WStandardItemModel;
} // namespace Wt

class WAutoSizeTableView;
class WNumericSortFilterProxyModel;

/// The three parts of a record list, as every list panel builds them: a model of one row per record, the
/// numeric sort layer over it, and the view.
struct WRecordList {
  Wt::WStandardItemModel *model;
  WNumericSortFilterProxyModel *proxyModel;
  WAutoSizeTableView *tableView;

  /// Builds the parts for `columnCount` columns. `owner` becomes the owner of the models; the view has no
  /// parent yet: the panel takes it in as its content.
  static WRecordList build(int columnCount, Wt::WObject *owner);

  /// Inserts columns with these headings (UTF-8) and hides the first one, which holds the store index.
  void setColumns(const std::vector<std::string> &headings) const;
};

#endif // WIDGETS_WRECORD_LIST_H_
