// SPDX-License-Identifier: MIT
#ifndef WT_WTABLE_H_
#define WT_WTABLE_H_

#include <Wt/WInteractWidget>
#include <Wt/WTableCell>
#include <Wt/WTableColumn>
#include <Wt/WTableRow>
#include <memory>
#include <vector>

namespace Wt
{

/// Rows and columns of cells. One without header cells is for layout only, and screen readers are told so.
class WTable : public WInteractWidget
{
public:
  explicit WTable(WContainerWidget *parent = nullptr);
  ~WTable() override;

  /// The cell there, never null: the table grows to include it. Negative places count as 0.
  WTableCell *elementAt(int row, int column);
  WTableRow *rowAt(int row);
  WTableColumn *columnAt(int column);

  int rowCount() const { return static_cast<int>(rows_.size()); }
  int columnCount() const { return static_cast<int>(columns_.size()); }

  /// Deletes all cells with their contents.
  void clear();
  WTableRow *insertRow(int row);
  void deleteRow(int row);
  WTableColumn *insertColumn(int column);
  void deleteColumn(int column);

  /// The number of header rows (Horizontal) or header columns (Vertical).
  void setHeaderCount(int count, Orientation orientation = Horizontal);
  int headerCount(Orientation orientation = Horizontal) const;

protected:
  const char *domTag() const override;
  const char *displayStyle() const override;
  void render(Dom::Element &e) override;
  void renderContents(Dom::Element &e) override;
  void domGone(Dom::Element &gone) noexcept override;
  void removeChild(WObject *child) override;

private:
  friend class WTableCell;
  friend class WTableColumn;
  friend class WTableRow;

  void grow(int rows, int columns);
  WTableCell *cellAt(WTableRow &row, std::size_t column);
  void deleteCells(WTableRow &row);
  bool isHeader(const WTableCell &cell) const;
  int rowNumber(const WTableRow &row) const;
  int columnNumber(const WTableColumn &column) const;
  void rowsChanged();
  void spansChanged(WTableCell &cell);
  std::vector<std::vector<bool>> coveredCells() const;
  void renderColumns(Dom::Element &e, std::vector<Dom::Element *> &sections);
  Dom::Element *renderRow(Dom::Element &e, WTableRow &row, const std::vector<bool> &covered);

  std::vector<std::unique_ptr<WTableRow>> rows_;
  std::vector<std::unique_ptr<WTableColumn>> columns_;
  std::vector<Dom::Element *> columnElements_;
  Dom::Element *columnGroup_ = nullptr;
  Dom::Element *head_ = nullptr;
  Dom::Element *body_ = nullptr;
  int headerRows_ = 0;
  int headerColumns_ = 0;
  bool hasSpans_ = false;
};

} // namespace Wt

#endif // WT_WTABLE_H_
