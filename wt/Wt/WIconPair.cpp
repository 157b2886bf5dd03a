// SPDX-License-Identifier: MIT
#include "base/RawEvent.h"
#include "dom/Element.h"

#include <Wt/WContainerWidget>
#include <Wt/WIconPair>
#include <Wt/WImage>
#include <cstring>
#include <functional>

namespace Wt
{

namespace
{

/// An icon of a pair: where a click switches, it ends there, and the icon is a button for the keyboard. The
/// pair switches before the application hears of the click, so that a slot has the last word.
class PairIcon : public WImage
{
public:
  PairIcon(const std::string &url, bool switches, WContainerWidget *parent)
      : WImage(WLink(url), parent), switches_(switches)
  {
  }

  std::function<void()> switchPair;

protected:
  void handleDomEvent(Dom::Element &at, const Engine::RawEvent &event) override
  {
    if (switches_ && event.name == "click")
      switchPair();
    WImage::handleDomEvent(at, event);
  }

  void render(Dom::Element &e) override
  {
    WImage::render(e);
    e.setIf(switches_, "!press", "{\"r\":\"button\"}");
  }

  const char *listenerFlags(const char *eventName) const override
  {
    return switches_ && std::strcmp(eventName, "click") == 0 ? "s" : WImage::listenerFlags(eventName);
  }

private:
  bool switches_;
};

} // namespace

WIconPair::WIconPair(const std::string &icon1Url, const std::string &icon2Url, bool clickIsSwitch,
                     WContainerWidget *parent)
    : WCompositeWidget(parent), pair_(new WContainerWidget())
{
  setImplementation(pair_);
  pair_->setInline(true);
  PairIcon *first = new PairIcon(icon1Url, clickIsSwitch, pair_);
  PairIcon *second = new PairIcon(icon2Url, clickIsSwitch, pair_);
  icon1_ = first;
  icon2_ = second;
  icon2_->hide();
  if (!clickIsSwitch)
    return;
  first->switchPair = [this] { setState(1); };
  second->switchPair = [this] { setState(0); };
  icon1_->clicked().connect(this, &WIconPair::moveFocus);
  icon2_->clicked().connect(this, &WIconPair::moveFocus);
}

WIconPair::~WIconPair() = default;

void WIconPair::setState(int state)
{
  icon1_->setHidden(state != 0);
  icon2_->setHidden(state == 0);
}

int WIconPair::state() const
{
  return icon1_->isHidden() ? 1 : 0;
}

EventSignal<WMouseEvent> &WIconPair::icon1Clicked()
{
  return icon1_->clicked();
}

EventSignal<WMouseEvent> &WIconPair::icon2Clicked()
{
  return icon2_->clicked();
}

void WIconPair::moveFocus()
{
  WImage *hidden = state() == 0 ? icon2_ : icon1_;
  WImage *shown = state() == 0 ? icon1_ : icon2_;
  if (hidden->hasFocus())
    shown->setFocus();
}

} // namespace Wt
