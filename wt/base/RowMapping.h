// SPDX-License-Identifier: MIT
#ifndef WT_BASE_ROW_MAPPING_H_
#define WT_BASE_ROW_MAPPING_H_

#include <vector>

namespace Wt
{
namespace Engine
{

/// Which source row stands at which position, and back. The way back is kept as hints, which are mended when
/// they prove too old, so that a list can be rebuilt row by row without renumbering all rows each time.
class RowMapping
{
public:
  /// `rows` are the source rows that show, in their order; the source has `sourceCount`.
  void assign(std::vector<int> rows, int sourceCount);

  int size() const { return static_cast<int>(rows_.size()); }
  int source(int position) const { return rows_[static_cast<std::size_t>(position)]; }
  /// -1 if the source row does not show.
  int position(int sourceRow) const;

  void insert(int position, int sourceRow);
  void erase(int first, int last);

  /// New source rows do not show yet.
  void sourceInserted(int first, int count);
  /// The removed rows must not show any more.
  void sourceRemoved(int first, int count);

private:
  void renewHints() const;

  std::vector<int> rows_;
  /// Of every source row: about where it stands, or -1 if it does not show.
  mutable std::vector<int> hints_;
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_ROW_MAPPING_H_
