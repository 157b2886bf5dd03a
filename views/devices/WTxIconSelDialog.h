// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WTXICONSELDIALOG_H_
#define VIEWS_DEVICES_WTXICONSELDIALOG_H_

#include <Wt/WDialog>

/// Lets the user choose an icon for transmitters. Modal; built on the stack and run with exec().
class WTxIconSelDialog : public Wt::WDialog
{
public:
  WTxIconSelDialog();

  /// The icon that was clicked; 0 if the dialog ended otherwise.
  unsigned int selection() const { return chosen; }
  void iconClickedHandler(unsigned int index);

private:
  unsigned int chosen;
};

#endif // VIEWS_DEVICES_WTXICONSELDIALOG_H_
