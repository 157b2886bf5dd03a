// SPDX-License-Identifier: MIT
#ifndef WT_WPOPUPWIDGET_H_
#define WT_WPOPUPWIDGET_H_

#include <Wt/WCompositeWidget>
#include <Wt/WSignal>

namespace Wt
{

/// A widget over the page, beside the application's root. It is hidden until it is shown.
class WPopupWidget : public WCompositeWidget
{
public:
  /// Belongs to the page; a parent deletes it earlier.
  explicit WPopupWidget(WWidget *implementation, WObject *parent = nullptr);
  ~WPopupWidget() override;

  void setHidden(bool hidden, const WAnimation &animation = WAnimation()) override;

  Signal<> &hidden() { return hidden_; }
  Signal<> &shown() { return shown_; }

private:
  void parentGone();

  Signal<> hidden_;
  Signal<> shown_;
};

} // namespace Wt

#endif // WT_WPOPUPWIDGET_H_
