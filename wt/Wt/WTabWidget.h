// SPDX-License-Identifier: MIT
#ifndef WT_WTABWIDGET_H_
#define WT_WTABWIDGET_H_

#include <Wt/WCompositeWidget>
#include <Wt/WMenuItem>
#include <Wt/WSignal>
#include <vector>

namespace Wt
{

class WContainerWidget;
class WStackedWidget;

/**
 * Pages of which one shows, and a strip of tabs to choose it.
 *
 * A lazily loaded page stays outside the widget tree until it is first chosen. currentChanged() tells of
 * changes by the user and by the program alike, but not of the first page that becomes current when it is
 * added.
 */
class WTabWidget : public WCompositeWidget
{
public:
  enum LoadPolicy { LazyLoading, PreLoading };

  explicit WTabWidget(WContainerWidget *parent = nullptr);
  ~WTabWidget() override;

  WMenuItem *addTab(WWidget *child, const WString &label, LoadPolicy policy = LazyLoading);
  /// The caller owns the child then.
  void removeTab(WWidget *child);

  int count() const { return static_cast<int>(items_.size()); }
  /// The child that was given to addTab().
  WWidget *widget(int index) const;
  /// -1 if the widget is no page.
  int indexOf(WWidget *widget) const;
  WMenuItem *itemAt(int index) const;

  /// The index must be that of a page; it is ignored otherwise.
  void setCurrentIndex(int index);
  /// -1 while there is no page.
  int currentIndex() const { return currentIndex_; }
  void setCurrentWidget(WWidget *widget);
  WWidget *currentWidget() const;
  WMenuItem *currentItem() const;

  void setTabText(int index, const WString &label);
  const WString &tabText(int index) const;
  /// Hiding or disabling the current tab chooses another one.
  void setTabEnabled(int index, bool enabled);
  bool isTabEnabled(int index) const;
  void setTabHidden(int index, bool hidden);
  bool isTabHidden(int index) const;
  void setTabToolTip(int index, const WString &tip);
  WString tabToolTip(int index) const;

  Signal<int> &currentChanged() { return currentChanged_; }
  WStackedWidget *contentsStack() const { return stack_; }

private:
  friend class WMenuItem;

  bool valid(int index) const { return index >= 0 && index < count(); }
  bool selectable(int index) const;
  int indexOfItem(const WMenuItem *item) const;
  void showPage(int index);
  /// Chooses another page than that of `item`, which cannot show any longer.
  void leave(const WMenuItem *item);

  WContainerWidget *strip_;
  WStackedWidget *stack_;
  std::vector<WMenuItem *> items_;
  int currentIndex_ = -1;
  Signal<int> currentChanged_;
};

} // namespace Wt

#endif // WT_WTABWIDGET_H_
