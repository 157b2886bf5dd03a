// SPDX-License-Identifier: MIT
#ifndef WT_WTABLECOLUMN_H_
#define WT_WTABLECOLUMN_H_

#include <Wt/WLength>
#include <Wt/WObject>
#include <Wt/WString>

namespace Wt
{

class WTable;
class WTableCell;

/// A column of a table. No widget: it belongs to its table.
class WTableColumn : public WObject
{
public:
  ~WTableColumn() override;

  WTable *table() const { return table_; }
  /// The cell in that row; the table grows to include it.
  WTableCell *elementAt(int row);
  int columnNum() const;

  void setWidth(const WLength &width);
  WLength width() const { return width_; }
  void setStyleClass(const WString &styleClass);
  const WString &styleClass() const { return styleClass_; }

private:
  friend class WTable;

  explicit WTableColumn(WTable *table) : table_(table) {}
  bool plain() const { return width_.isAuto() && styleClass_.empty(); }

  WTable *table_;
  WLength width_;
  WString styleClass_;
};

} // namespace Wt

#endif // WT_WTABLECOLUMN_H_
