// SPDX-License-Identifier: MIT
#include "dom/Element.h"

#include <Wt/WContainerWidget>
#include <Wt/WIconPair>
#include <Wt/WImage>
#include <cstring>

namespace Wt
{

namespace
{

/// An icon of a pair: where a click switches, it ends there, and the icon is a button for the keyboard.
class PairIcon : public WImage
{
public:
  PairIcon(const std::string &url, bool switches, WContainerWidget *parent)
      : WImage(WLink(url), parent), switches_(switches)
  {
  }

protected:
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
  icon1_ = new PairIcon(icon1Url, clickIsSwitch, pair_);
  icon2_ = new PairIcon(icon2Url, clickIsSwitch, pair_);
  icon2_->hide();
  if (clickIsSwitch) {
    icon1_->clicked().connect(this, &WIconPair::switchTo2);
    icon2_->clicked().connect(this, &WIconPair::switchTo1);
  }
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

void WIconPair::switchTo1()
{
  const bool focus = icon2_->hasFocus();
  setState(0);
  if (focus)
    icon1_->setFocus();
}

void WIconPair::switchTo2()
{
  const bool focus = icon1_->hasFocus();
  setState(1);
  if (focus)
    icon2_->setFocus();
}

} // namespace Wt
