// SPDX-License-Identifier: MIT
#include "WLineEditPlus.h"

#include <Wt/WTimer>

namespace
{

const int lookMilliseconds = 500;

} // namespace

WLineEditPlus::WLineEditPlus(Wt::WContainerWidget *parent) : Wt::WLineEdit(parent)
{
  init();
}

WLineEditPlus::WLineEditPlus(const Wt::WString &text, Wt::WContainerWidget *parent)
    : Wt::WLineEdit(text, parent), lastValue(text)
{
  init();
}

WLineEditPlus::~WLineEditPlus()
{
  if (changeTimer->isActive())
    changeTimer->stop();
}

void WLineEditPlus::init()
{
  changeTimer.reset(new Wt::WTimer());
  changeTimer->setInterval(lookMilliseconds);
  changeTimer->timeout().connect(this, &WLineEditPlus::timerExpiredHandler);
  focussed().connect(this, &WLineEditPlus::gainedFocusHandler);
  blurred().connect(this, &WLineEditPlus::lostFocusHandler);
}

void WLineEditPlus::timerIntervalSet(unsigned int milliseconds)
{
  changeTimer->setInterval(static_cast<int>(milliseconds));
}

void WLineEditPlus::setText(const Wt::WString &newText)
{
  if (lastValue != text() || hasFocus())
    return;
  lastValue = newText;
  Wt::WLineEdit::setText(newText);
}

void WLineEditPlus::gainedFocusHandler()
{
  changeTimer->start();
}

void WLineEditPlus::lostFocusHandler()
{
  changeTimer->stop();
  lookForChange();
}

void WLineEditPlus::timerExpiredHandler()
{
  lookForChange();
}

void WLineEditPlus::lookForChange()
{
  if (lastValue == text())
    return;
  const Wt::WString changed = text();
  valueChangedSignal.emit(changed.toUTF8());
  lastValue = changed;
}
