// SPDX-License-Identifier: MIT
#ifndef WIDGETS_LIST_ROW_H_
#define WIDGETS_LIST_ROW_H_

#include <string>
#include <utility>
#include <vector>

/// What a cell of a record list shows: a text in UTF-8 and, where it has a look of its own, a style class.
struct ListCell {
  ListCell(std::string cellText, std::string cellClass = std::string())
      : text(std::move(cellText)), styleClass(std::move(cellClass))
  {
  }
  ListCell(const char *cellText) : text(cellText) {}

  std::string text;
  std::string styleClass;
};

/// A record as its list shows it: the store index, and a cell for each column.
struct ListRow {
  unsigned int index;
  std::vector<ListCell> cells;
};

using ListRows = std::vector<ListRow>;

#endif // WIDGETS_LIST_ROW_H_
