// SPDX-License-Identifier: MIT
#ifndef WT_BASE_MODEL_ACCESS_H_
#define WT_BASE_MODEL_ACCESS_H_

#include <boost/any.hpp>

namespace Wt
{

class WAbstractItemModel;
class WModelIndex;

namespace Engine
{

/// Shortcuts into models whose insides the toolkit knows.
struct ModelAccess {
  /// The value that model.data(index, role) would copy, or null if it must be asked.
  static const boost::any *peek(const WAbstractItemModel &model, const WModelIndex &index, int role);
};

/// Compares two cells of a model by their values of a role, without copies where that can be.
int compareCells(const WAbstractItemModel &model, const WModelIndex &left, const WModelIndex &right,
                 int role);

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_MODEL_ACCESS_H_
