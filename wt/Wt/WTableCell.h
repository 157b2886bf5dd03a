// SPDX-License-Identifier: MIT
#ifndef WT_WTABLECELL_H_
#define WT_WTABLECELL_H_

#include <Wt/WContainerWidget>

namespace Wt
{

class WTable;
class WTableColumn;
class WTableRow;

/// A cell of a table: a container, whose contents stand at the left and at the top by default.
class WTableCell : public WContainerWidget
{
public:
  ~WTableCell() override;

  /// Spans of 1 and more. Cells that a span covers exist, but are not shown.
  void setRowSpan(int rows);
  int rowSpan() const { return rowSpan_; }
  void setColumnSpan(int columns);
  int columnSpan() const { return columnSpan_; }

  int row() const;
  int column() const;
  WTable *table() const;
  WTableRow *tableRow() const { return row_; }
  WTableColumn *tableColumn() const;

protected:
  const char *domTag() const override;
  void render(Dom::Element &e) override;
  const char *displayStyle() const override;
  void addOwnClasses(std::string &classes) const override;

private:
  friend class WTable;

  explicit WTableCell(WTableRow *row);

  WTableRow *row_;
  int rowSpan_ = 1;
  int columnSpan_ = 1;
};

} // namespace Wt

#endif // WT_WTABLECELL_H_
