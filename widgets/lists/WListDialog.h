// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WLIST_DIALOG_H_
#define WIDGETS_WLIST_DIALOG_H_

#include <Wt/WDialog>
#include <vector>

namespace Wt
{
class WContainerWidget;
}

class ListFilter;
class RecordList;

/// A dialog with record lists that can be filtered. Escape first takes their filters away, and rejects the
/// dialog when there are none.
class WListDialog : public Wt::WDialog
{
public:
  void done(DialogCode result) override;

protected:
  /// Makes a list filterable by typing in it; its mark is added to `place`, which holds the list.
  void addFilter(RecordList &list, Wt::WContainerWidget &place);

  /// Rejects the dialog, filters or not, as a button does.
  void rejectAtOnce();

private:
  bool takeFiltersAway();

  std::vector<ListFilter *> filters; ///< each owned by its list
};

#endif // WIDGETS_WLIST_DIALOG_H_
