// SPDX-License-Identifier: MIT
#ifndef WT_VIEW_CELL_CONTENT_H_
#define WT_VIEW_CELL_CONTENT_H_

#include <Wt/WModelIndex>
#include <string>
#include <vector>

namespace Wt
{

namespace Dom
{
class Element;
class Owner;
} // namespace Dom

namespace Engine
{

/// What a cell of a view shows: its text, and as the model wants a check box, an icon, a link or markup.
class CellContent
{
public:
  /// Looks at an index, which must be valid.
  explicit CellContent(const WModelIndex &index) : index_(index) {}

  std::string styleClass() const;
  std::string toolTip() const;

  /// Makes `cell` show it. The parts that it needs belong to `owner`.
  void renderInto(Dom::Element &cell, Dom::Owner *owner) const;

  /// The user has checked or cleared the check box of a cell: the browser shows it already.
  static void noteChecked(Dom::Element &cell, bool checked);

private:
  void renderText(Dom::Element &e, const std::string &text) const;
  std::string textOf(int role) const;

  const WModelIndex &index_;
};

} // namespace Engine
} // namespace Wt

#endif // WT_VIEW_CELL_CONTENT_H_
