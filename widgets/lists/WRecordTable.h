// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WRECORD_TABLE_H_
#define WIDGETS_WRECORD_TABLE_H_

#include "ListColumn.h"
#include "RecordList.h"

#include <Wt/WTableView>

/// A list of fixed size from which one record is chosen, as in a dialog. Column 0, which is hidden, holds the
/// store index; the list is sorted by column 1.
class WRecordTable : public Wt::WTableView
{
public:
  /// Sizes in pixels.
  WRecordTable(int width, int height, const ListColumns &columns, Wt::WContainerWidget *parent = 0);

  /// The one selected record. False if there is none.
  bool selectedRecord(unsigned int &zelIndex) const;

  RecordList *const records; ///< owned by this widget
};

#endif // WIDGETS_WRECORD_TABLE_H_
