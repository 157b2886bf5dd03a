// SPDX-License-Identifier: MIT
#include "base/ModelAccess.h"

#include "base/ItemCell.h"
#include "base/Value.h"

#include <Wt/WStandardItemModel>
#include <typeinfo>

namespace Wt
{
namespace Engine
{

const boost::any *ModelAccess::peek(const WAbstractItemModel &model, const WModelIndex &index, int role)
{
  // A derived model may have its own data().
  if ((role != DisplayRole && role != EditRole) || typeid(model) != typeid(WStandardItemModel))
    return nullptr;
  const ItemCell *cell = static_cast<const WStandardItemModel &>(model).cell(index);
  return cell ? cell->display() : nullptr;
}

int compareCells(const WAbstractItemModel &model, const WModelIndex &left, const WModelIndex &right, int role)
{
  const boost::any *leftValue = ModelAccess::peek(model, left, role);
  const boost::any *rightValue = ModelAccess::peek(model, right, role);
  if (leftValue && rightValue)
    return compareValues(*leftValue, *rightValue);
  return compareValues(left.data(role), right.data(role));
}

} // namespace Engine
} // namespace Wt
