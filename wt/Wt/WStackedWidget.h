// SPDX-License-Identifier: MIT
#ifndef WT_WSTACKEDWIDGET_H_
#define WT_WSTACKEDWIDGET_H_

#include <Wt/WContainerWidget>

namespace Wt
{

/// Shows one of its children and hides the others. Children that never were shown are not sent to the
/// browser.
class WStackedWidget : public WContainerWidget
{
public:
  explicit WStackedWidget(WContainerWidget *parent = nullptr);
  ~WStackedWidget() override;

  /// -1 while empty; the first child that is added becomes the current one. Children that come or go before
  /// it do not shift the index.
  int currentIndex() const { return currentIndex_; }
  /// The index must be that of a child.
  void setCurrentIndex(int index);
  void setCurrentIndex(int index, const WAnimation &animation, bool autoReverse = true);
  void setCurrentWidget(WWidget *widget);
  /// Null while empty.
  WWidget *currentWidget() const;

  /// How children come and go. With autoReverse a way back is shown as the reverse.
  void setTransitionAnimation(const WAnimation &animation, bool autoReverse = false);

protected:
  void childAdded(int index, WWidget *child) override;
  void childRemoved(int index, WWidget *child) override;

private:
  void showCurrent(const WAnimation &animation);

  WAnimation animation_;
  bool autoReverse_ = false;
  int currentIndex_ = -1;
};

} // namespace Wt

#endif // WT_WSTACKEDWIDGET_H_
