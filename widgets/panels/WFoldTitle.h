// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WFOLD_TITLE_H_
#define WIDGETS_WFOLD_TITLE_H_

#include <Wt/WString>

namespace Wt
{
class WContainerWidget;
class WIconPair;
class WTable;
} // namespace Wt

/// The inside of a title that folds what stands below it: a fold mark and the title's text.
struct WFoldTitle {
  Wt::WIconPair *mark; ///< state 0: open, 1: folded; owned by the table
  Wt::WTable *table;   ///< the whole line; owned by the parent that it was built in

  /// Builds the line in `parent`. `expandedIcon` and `collapsedIcon` are file names in the theme's folder.
  static WFoldTitle build(const Wt::WString &title, const char *expandedIcon, const char *collapsedIcon,
                          Wt::WContainerWidget *parent);
};

#endif // WIDGETS_WFOLD_TITLE_H_
