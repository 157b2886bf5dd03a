// SPDX-License-Identifier: MIT
#ifndef APP_WPREFS_H_
#define APP_WPREFS_H_

#include <Wt/WDialog>

namespace Wt
{
class WPushButton;
}

class WPrefsTable;

/// The dialog in which users turn the warnings on and off that they are shown. Modal; built on the stack and
/// run with exec().
class WPrefs : public Wt::WDialog
{
public:
  WPrefs();

private:
  void saveButtonClickedHandler();
  void cancelButtonClickedHandler();
  void contentChangedHandler();

  WPrefsTable *table;
  Wt::WPushButton *saveButton;
  Wt::WPushButton *cancelButton;
};

#endif // APP_WPREFS_H_
