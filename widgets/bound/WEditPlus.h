// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WEDIT_PLUS_H_
#define WIDGETS_WEDIT_PLUS_H_

#include <Wt/WContainerWidget>
#include <Wt/WSignal>
#include <Wt/WString>
#include <Wt/WTimer>
#include <memory>
#include <string>

/**
 * What WLineEditPlus and WTextAreaPlus add to their Wt base `Edit`: telling of an edit while the field still
 * has the focus, by a look at its text twice a second.
 *
 * A text set by the program never disturbs the user: it is dropped while the field has the focus or holds an
 * edit that was not yet told, unless the field is told to give way.
 */
template <class Edit> class WEditPlus : public Edit
{
public:
  explicit WEditPlus(Wt::WContainerWidget *parent) : Edit(parent), changeTimer(new Wt::WTimer()) { init(); }
  WEditPlus(const Wt::WString &text, Wt::WContainerWidget *parent)
      : Edit(text, parent), lastValue(text), changeTimer(new Wt::WTimer())
  {
    init();
  }
  ~WEditPlus() override
  {
    if (changeTimer->isActive())
      changeTimer->stop();
  }

  /// Emitted with the text as UTF-8 when the user has changed it.
  Wt::Signal<std::string> &valueChanged() { return valueChangedSignal; }

  void setText(const Wt::WString &newText) override
  {
    if (!yields && (holdsUntoldEdit() || this->hasFocus()))
      return;
    lastValue = newText;
    Edit::setText(newText);
  }

  /// How often to look, in milliseconds.
  void timerIntervalSet(unsigned int milliseconds)
  {
    changeTimer->setInterval(static_cast<int>(milliseconds));
  }

  /// Whether the user has changed the text since it was last set or told.
  bool holdsUntoldEdit() const { return lastValue != this->text(); }
  /// Tells of such an edit.
  void lookForChange()
  {
    if (!holdsUntoldEdit())
      return;
    const Wt::WString changed = this->text();
    valueChangedSignal.emit(changed.toUTF8());
    // A slot may have set another text, which is no edit.
    if (holdsUntoldEdit())
      lastValue = changed;
  }

protected:
  /// Whether texts are set in spite of the user.
  void setYields(bool yielding) { yields = yielding; }

private:
  void init()
  {
    changeTimer->setInterval(500);
    changeTimer->timeout().connect(this, &WEditPlus::timerExpiredHandler);
    this->focussed().connect(this, &WEditPlus::gainedFocusHandler);
    this->blurred().connect(this, &WEditPlus::lostFocusHandler);
  }

  void gainedFocusHandler() { changeTimer->start(); }

  void lostFocusHandler()
  {
    changeTimer->stop();
    lookForChange();
  }

  void timerExpiredHandler() { lookForChange(); }

  Wt::Signal<std::string> valueChangedSignal;
  Wt::WString lastValue;
  bool yields = false;
  std::unique_ptr<Wt::WTimer> changeTimer;
};

#endif // WIDGETS_WEDIT_PLUS_H_
