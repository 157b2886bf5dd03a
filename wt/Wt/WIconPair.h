// SPDX-License-Identifier: MIT
#ifndef WT_WICONPAIR_H_
#define WT_WICONPAIR_H_

#include <Wt/WCompositeWidget>
#include <Wt/WEvent>
#include <Wt/WSignal>
#include <string>

namespace Wt
{

class WContainerWidget;
class WImage;

/**
 * Two icons of which one shows. With click switching a click shows the other one, and is no click on what the
 * pair stands in (the mouse's going down and up are); the keyboard can do the same. A slot of the icons'
 * clicks that sets the state has the last word.
 */
class WIconPair : public WCompositeWidget
{
public:
  WIconPair(const std::string &icon1Url, const std::string &icon2Url, bool clickIsSwitch = true,
            WContainerWidget *parent = nullptr);
  ~WIconPair() override;

  /// 0 shows the first icon, anything else the second.
  void setState(int state);
  int state() const;
  void showIcon1() { setState(0); }
  void showIcon2() { setState(1); }

  WImage *icon1() const { return icon1_; }
  WImage *icon2() const { return icon2_; }
  EventSignal<WMouseEvent> &icon1Clicked();
  EventSignal<WMouseEvent> &icon2Clicked();

private:
  /// To the icon that shows.
  void moveFocus();

  WContainerWidget *pair_;
  WImage *icon1_;
  WImage *icon2_;
};

} // namespace Wt

#endif // WT_WICONPAIR_H_
