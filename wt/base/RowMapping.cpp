// SPDX-License-Identifier: MIT
#include "base/RowMapping.h"

#include <algorithm>

namespace Wt
{
namespace Engine
{

namespace
{

/// How far from its hint a row is looked for before all hints are made anew.
const int kFarthestLook = 64;

} // namespace

void RowMapping::assign(std::vector<int> rows, int sourceCount)
{
  rows_ = std::move(rows);
  hints_.assign(static_cast<std::size_t>(sourceCount), -1);
  renewHints();
}

void RowMapping::renewHints() const
{
  for (std::size_t position = 0; position < rows_.size(); ++position)
    hints_[static_cast<std::size_t>(rows_[position])] = static_cast<int>(position);
}

int RowMapping::position(int sourceRow) const
{
  if (sourceRow < 0 || sourceRow >= static_cast<int>(hints_.size()))
    return -1;
  int &hint = hints_[static_cast<std::size_t>(sourceRow)];
  if (hint < 0)
    return -1;
  for (int distance = 0; distance <= kFarthestLook; ++distance) {
    for (int candidate : {hint - distance, hint + distance}) {
      if (candidate >= 0 && candidate < size() && source(candidate) == sourceRow)
        return hint = candidate;
    }
  }
  renewHints();
  return hint;
}

void RowMapping::insert(int position, int sourceRow)
{
  rows_.insert(rows_.begin() + position, sourceRow);
  hints_[static_cast<std::size_t>(sourceRow)] = position;
}

void RowMapping::erase(int first, int last)
{
  for (int position = first; position <= last; ++position)
    hints_[static_cast<std::size_t>(source(position))] = -1;
  rows_.erase(rows_.begin() + first, rows_.begin() + last + 1);
}

void RowMapping::sourceInserted(int first, int count)
{
  if (count <= 0)
    return;
  hints_.insert(hints_.begin() + std::min<std::ptrdiff_t>(first, static_cast<std::ptrdiff_t>(hints_.size())),
                static_cast<std::size_t>(count), -1);
  for (int &row : rows_)
    if (row >= first)
      row += count;
}

void RowMapping::sourceRemoved(int first, int count)
{
  const int known = static_cast<int>(hints_.size());
  if (count <= 0 || first < 0 || first >= known)
    return;
  hints_.erase(hints_.begin() + first, hints_.begin() + std::min(first + count, known));
  for (int &row : rows_)
    if (row >= first)
      row -= count;
}

} // namespace Engine
} // namespace Wt
