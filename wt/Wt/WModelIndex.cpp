// SPDX-License-Identifier: MIT
#include "base/Value.h"

#include <Wt/WAbstractItemModel>
#include <Wt/WModelIndex>
#include <Wt/WString>
#include <charconv>
#include <functional>
#include <limits>

namespace Wt
{

namespace
{

int depthOf(WModelIndex index)
{
  int depth = 0;
  for (; index.isValid(); index = index.parent())
    ++depth;
  return depth;
}

} // namespace

WModelIndex WModelIndex::parent() const
{
  return model_ ? model_->parent(*this) : WModelIndex();
}

WModelIndex WModelIndex::child(int row, int column) const
{
  return model_ ? model_->index(row, column, *this) : WModelIndex();
}

boost::any WModelIndex::data(int role) const
{
  return model_ ? model_->data(*this, role) : boost::any();
}

WFlags<ItemFlag> WModelIndex::flags() const
{
  return model_ ? model_->flags(*this) : WFlags<ItemFlag>();
}

bool WModelIndex::operator==(const WModelIndex &other) const
{
  return model_ == other.model_ && row_ == other.row_ && column_ == other.column_ &&
         pointer_ == other.pointer_;
}

bool WModelIndex::operator<(const WModelIndex &other) const
{
  if (model_ != other.model_)
    return std::less<const WAbstractItemModel *>()(model_, other.model_);
  // The usual models are flat: one pointer for all cells.
  WModelIndex left = *this;
  WModelIndex right = other;
  if (pointer_ != other.pointer_ && isValid()) {
    const int leftDepth = depthOf(left);
    const int rightDepth = depthOf(right);
    for (int i = rightDepth; i < leftDepth; ++i)
      left = left.parent();
    for (int i = leftDepth; i < rightDepth; ++i)
      right = right.parent();
    if (left == right)
      return leftDepth < rightDepth;
    for (WModelIndex l = left.parent(), r = right.parent(); l != r; l = l.parent(), r = r.parent()) {
      left = l;
      right = r;
    }
  }
  return left.row_ != right.row_ ? left.row_ < right.row_ : left.column_ < right.column_;
}

WString asString(const boost::any &value)
{
  if (const WString *text = boost::any_cast<WString>(&value))
    return *text;
  return WString::fromUTF8(Engine::valueText(value));
}

double asNumber(const boost::any &value)
{
  const std::string text = Engine::valueText(value);
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size())
    return std::numeric_limits<double>::quiet_NaN();
  return number;
}

} // namespace Wt
