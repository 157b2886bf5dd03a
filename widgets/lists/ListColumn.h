// SPDX-License-Identifier: MIT
#ifndef WIDGETS_LIST_COLUMN_H_
#define WIDGETS_LIST_COLUMN_H_

#include <Wt/WGlobal>
#include <Wt/WString>
#include <vector>

/// A column of a record list. The hidden column of store indexes, which stands before them all, is none.
struct ListColumn {
  Wt::WString heading;
  Wt::AlignmentFlag alignment = Wt::AlignLeft; ///< of heading and cells
  int width = 0;                               ///< pixels; 0: the view's own
};

using ListColumns = std::vector<ListColumn>;

#endif // WIDGETS_LIST_COLUMN_H_
