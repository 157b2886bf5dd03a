// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WESTAB_SES_DIALOG_H_
#define VIEWS_SESSIONS_WESTAB_SES_DIALOG_H_

#include "Info.h"
#include "WListDialog.h"

namespace Wt
{
class WPushButton;
class WTable;
class WTableCell;
class WWidget;
} // namespace Wt

class WEstabSesRxTable;
class WEstabSesTxTable;
class WEstabSesUsrTable;
class WSesMode;

/// Asks for what a new KVM session needs: its mode, then user, receiver and transmitter, where each choice
/// narrows the next list. Built on the stack, run with exec() and asked; it connects nothing itself.
class WEstabSesDialog : public WListDialog
{
public:
  WEstabSesDialog();

  /// 1 after "Connect", otherwise 0.
  int buttonClicked() const { return buttonClickedNumber; }

  /// The choices. True, a failure, unless one row is selected in each list.
  bool getSelectedParameters(unsigned int &user, unsigned int &rx, unsigned int &tx,
                             Info_ConnectionMode &mode);

private:
  void addLists(Wt::WTableCell *cell);
  void addButtons(Wt::WTableCell *cell);
  void readUsers();
  Info_ConnectionMode mode();
  void modeSelectionChangedHandler();
  void usrSelectionChangedHandler();
  void rxSelectionChangedHandler();
  void txSelectionChangedHandler();
  void enterPressedInList();
  void connectButtonClickedHandler();
  void cancelButtonClickedHandler();

  WSesMode *modeSelector;
  WEstabSesUsrTable *usrTable;
  WEstabSesRxTable *rxTable;
  WEstabSesTxTable *txTable;
  Wt::WPushButton *cancelButton;
  Wt::WPushButton *connectButton;
  int buttonClickedNumber;
};

#endif // VIEWS_SESSIONS_WESTAB_SES_DIALOG_H_
