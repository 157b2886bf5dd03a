// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WLINE_EDIT_PLUS_H_
#define WIDGETS_WLINE_EDIT_PLUS_H_

#include <Wt/WLineEdit>
#include <Wt/WSignal>
#include <Wt/WString>
#include <memory>
#include <string>

namespace Wt
{
class WTimer;
}

/**
 * A line edit that tells of an edit while the field still has the focus: it looks at its text twice a second.
 *
 * A text set by the program never disturbs the user: it is dropped while the field has the focus or holds an
 * edit that was not yet told.
 */
class WLineEditPlus : public Wt::WLineEdit
{
public:
  explicit WLineEditPlus(Wt::WContainerWidget *parent = 0);
  explicit WLineEditPlus(const Wt::WString &text, Wt::WContainerWidget *parent = 0);
  ~WLineEditPlus() override;

  /// Emitted with the text as UTF-8 when the user has changed it.
  Wt::Signal<std::string> &valueChanged() { return valueChangedSignal; }

  void setText(const Wt::WString &text) override;

  /// How often to look, in milliseconds.
  void timerIntervalSet(unsigned int milliseconds);

private:
  void init();
  void gainedFocusHandler();
  void lostFocusHandler();
  void timerExpiredHandler();
  void lookForChange();

  Wt::Signal<std::string> valueChangedSignal;
  Wt::WString lastValue;
  std::unique_ptr<Wt::WTimer> changeTimer;
};

#endif // WIDGETS_WLINE_EDIT_PLUS_H_
