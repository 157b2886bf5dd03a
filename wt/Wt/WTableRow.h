// SPDX-License-Identifier: MIT
#ifndef WT_WTABLEROW_H_
#define WT_WTABLEROW_H_

#include <Wt/WLength>
#include <Wt/WObject>
#include <Wt/WString>
#include <vector>

namespace Wt
{

class WTable;
class WTableCell;

namespace Dom
{
class Element;
}

/// A row of a table. No widget: it belongs to its table.
class WTableRow : public WObject
{
public:
  ~WTableRow() override;

  WTable *table() const { return table_; }
  /// The cell in that column; the table grows to include it.
  WTableCell *elementAt(int column);
  int rowNum() const;

  void setHeight(const WLength &height);
  WLength height() const { return height_; }
  void setStyleClass(const WString &styleClass);
  const WString &styleClass() const { return styleClass_; }
  void addStyleClass(const WString &styleClass);
  void removeStyleClass(const WString &styleClass);
  void setHidden(bool hidden);
  bool isHidden() const { return hidden_; }
  void hide() { setHidden(true); }
  void show() { setHidden(false); }

private:
  friend class WTable;
  friend class WTableCell;

  explicit WTableRow(WTable *table) : table_(table) {}
  int columnOf(const WTableCell *cell) const;
  void render();

  WTable *table_;
  std::vector<WTableCell *> cells_; ///< null where nobody has asked for the cell
  Dom::Element *element_ = nullptr;
  WLength height_;
  WString styleClass_;
  bool hidden_ = false;
};

} // namespace Wt

#endif // WT_WTABLEROW_H_
