// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WFOLD_TITLE_H_
#define WIDGETS_WFOLD_TITLE_H_

#include <Wt/WObject>
#include <Wt/WString>

namespace Wt
{
class WContainerWidget;
class WIconPair;
class WTable;
} // namespace Wt

/// The inside of a title that folds what stands below it: a fold mark and the title's text. The mark switches
/// by itself when it is clicked, by what the page showed then; what counts is the state that was set last.
class WFoldTitle : public Wt::WObject
{
public:
  /// Builds the line in `parent`, which owns it. `expandedIcon` and `collapsedIcon` are file names in the
  /// theme's folder.
  WFoldTitle(const Wt::WString &title, const char *expandedIcon, const char *collapsedIcon,
             Wt::WContainerWidget *parent);

  /// 0: open, 1: folded.
  void setState(int newState);

  /// The whole line.
  Wt::WTable *table() const { return line; }

private:
  void showState();

  Wt::WIconPair *mark;
  Wt::WTable *line;
  int state = 0;
};

#endif // WIDGETS_WFOLD_TITLE_H_
