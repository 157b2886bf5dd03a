// SPDX-License-Identifier: MIT
#ifndef WIDGETS_LIST_FILTER_H_
#define WIDGETS_LIST_FILTER_H_

#include <Wt/WEvent>
#include <Wt/WObject>

namespace Wt
{
class WContainerWidget;
class WInteractWidget;
class WPushButton;
class WText;
} // namespace Wt

class RecordList;

/**
 * Typing in a list filters its rows. What is typed, how many rows show of how many, and a button that ends it
 * stand in a small mark at the list's lower right corner, which also tells a screen reader. Backspace takes
 * the last character away, Escape the whole filter.
 */
class ListFilter : public Wt::WObject
{
public:
  /// Hears the keys in `scope`, which holds the list and nothing else that is typed into, and adds the mark
  /// to `place`. Both live at least as long as the list.
  ListFilter(RecordList &list, Wt::WInteractWidget &scope, Wt::WContainerWidget &place);

  bool isActive() const;

  /// Takes the filter away.
  void clear();

  /// Says in the mark that one can type, and gives the list the keyboard.
  void invite();

  /// Somebody else hears Escape and calls clear(), as a dialog does.
  void leaveEscape() { hearsEscape = false; }

  /// The mark: an inline part of `place` that the style sheet puts into the corner.
  Wt::WContainerWidget *mark() const { return chip; }

private:
  void keyPressed(Wt::WKeyEvent event);
  void keyWentDown(Wt::WKeyEvent event);
  void set(const std::string &words);
  void showMark();

  RecordList &list;
  Wt::WContainerWidget *chip;
  Wt::WText *words;
  Wt::WPushButton *end;
  bool inviting = false;
  bool hearsEscape = true;
};

#endif // WIDGETS_LIST_FILTER_H_
