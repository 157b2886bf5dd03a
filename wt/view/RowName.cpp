// SPDX-License-Identifier: MIT
#include "view/RowName.h"

#include <Wt/WAbstractItemModel>
#include <Wt/WString>
#include <functional>
#include <map>
#include <tuple>

namespace Wt
{
namespace Engine
{

namespace
{

std::string valueOf(const WAbstractItemModel &model, int row)
{
  const boost::any value = model.columnCount() > 0 ? model.index(row, 0).data(EditRole) : boost::any();
  return value.empty() ? std::string() : asString(value).toUTF8();
}

void *identityOf(const WAbstractItemModel &model, int row)
{
  return model.columnCount() > 0 ? model.toRawIndex(model.index(row, 0)) : nullptr;
}

} // namespace

std::vector<RowName> RowName::ofRows(const WAbstractItemModel &model, int first, int last)
{
  std::vector<RowName> names;
  std::map<std::string, int> times;
  for (int row = first; row < last; ++row) {
    RowName name;
    name.value_ = valueOf(model, row);
    name.number_ = row;
    ++times[name.value_];
    names.push_back(std::move(name));
  }
  for (RowName &name : names) {
    if (!name.value_.empty() && times[name.value_] == 1) {
      name.kind_ = ByValue;
      continue;
    }
    name.identity_ = identityOf(model, name.number_);
    name.kind_ = name.identity_ ? ByIdentity : ByNumber;
  }
  return names;
}

bool RowName::fits(const WAbstractItemModel &model, int row) const
{
  switch (kind_) {
  case ByValue:
    return valueOf(model, row) == value_;
  case ByIdentity:
    return identityOf(model, row) == identity_;
  case ByNumber:
    return row == number_;
  case None:
    break;
  }
  return false;
}

int RowName::find(const WAbstractItemModel &model, int likely) const
{
  const int count = model.rowCount();
  if (kind_ == None)
    return -1;
  if (likely >= 0 && likely < count && fits(model, likely))
    return likely;
  int found = -1;
  for (int row = 0; row < count; ++row) {
    if (!fits(model, row))
      continue;
    if (found >= 0)
      return -1;
    found = row;
  }
  return found;
}

void RowName::rowsMoved(bool removed)
{
  // An identity may be given to another row once its own is gone.
  if (kind_ == ByNumber || (kind_ == ByIdentity && removed))
    kind_ = None;
}

bool RowName::operator==(const RowName &other) const
{
  return kind_ != None && !(*this < other) && !(other < *this);
}

bool RowName::operator<(const RowName &other) const
{
  if (kind_ != other.kind_)
    return kind_ < other.kind_;
  switch (kind_) {
  case ByValue:
    return value_ < other.value_;
  case ByIdentity:
    return std::less<void *>()(identity_, other.identity_);
  case ByNumber:
    return number_ < other.number_;
  case None:
    break;
  }
  return false;
}

} // namespace Engine
} // namespace Wt
