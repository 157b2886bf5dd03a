// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WPROGRESS_DIALOG_H_
#define WIDGETS_WPROGRESS_DIALOG_H_

#include <Wt/WDialog>
#include <Wt/WString>

namespace Wt
{
class WProgressBar;
class WPushButton;
class WText;
} // namespace Wt

/// A dialog that tells of the progress of something that takes its time, with one button to end it.
class WProgressDialog : public Wt::WDialog
{
public:
  WProgressDialog(const char *iconUrl, const Wt::WString &title, const Wt::WString &message,
                  const Wt::WString &buttonText);

  virtual void titleSet(const Wt::WString &title);
  virtual void buttonTextSet(const Wt::WString &text);
  virtual void msgSet(const Wt::WString &message);

  /// Sets the bar, 0 to 100.
  virtual void progressUpdate(double value);
  virtual void buttonClickedHandler();

private:
  Wt::WText *title;
  Wt::WText *message;
  Wt::WProgressBar *bar;
  Wt::WPushButton *button;
};

#endif // WIDGETS_WPROGRESS_DIALOG_H_
