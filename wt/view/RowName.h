// SPDX-License-Identifier: MIT
#ifndef WT_VIEW_ROW_NAME_H_
#define WT_VIEW_ROW_NAME_H_

#include <string>
#include <vector>

namespace Wt
{

class WAbstractItemModel;

namespace Engine
{

/**
 * What the record of a row is known by while its list is on the page, whatever number the row has by then.
 *
 * The value in column 0 names the record if no other row in sight has it: such a name lasts, even if the
 * model is emptied and filled again. Else the model's own identity of the row does, until rows are removed,
 * or only the row's number, until rows move.
 */
class RowName
{
public:
  /// Names no row.
  RowName() = default;

  /// The names of the rows from `first` to before `last`.
  static std::vector<RowName> ofRows(const WAbstractItemModel &model, int first, int last);

  /// The row of that name in the model as it is now, or -1. Where it stands most likely is looked at first. A
  /// name that several rows have by now names none of them.
  int find(const WAbstractItemModel &model, int likely) const;

  /// False if the name may end when rows come, go or change places.
  bool lasts() const { return kind_ == ByValue || kind_ == None; }

  /// Rows have come, gone or changed places: a name that does not tell records apart any more names no row.
  void rowsMoved(bool removed);

  bool operator==(const RowName &other) const;
  /// An order for containers.
  bool operator<(const RowName &other) const;

private:
  enum Kind { None, ByValue, ByIdentity, ByNumber };

  bool fits(const WAbstractItemModel &model, int row) const;

  Kind kind_ = None;
  std::string value_;
  void *identity_ = nullptr;
  int number_ = -1;
};

} // namespace Engine
} // namespace Wt

#endif // WT_VIEW_ROW_NAME_H_
