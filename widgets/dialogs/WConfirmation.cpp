// SPDX-License-Identifier: MIT
#include "WConfirmation.h"

#include "Db.h"
#include "Text.h"
#include "WMsgBox.h"

namespace
{

const int kBoxWidth = 300; ///< pixels, at most

} // namespace

bool WConfirmation::ask() const
{
  const unsigned int user = Db_db.getIndexOfCurrentlyLoggedInNevoUsr();
  // Nobody sees these errors: a preference that cannot be read or kept only means to be asked again.
  Db::Errors errors;
  bool wanted = asksIfUnreadable;
  if (Db_db.readEnableDisable("user", user, warning, wanted, errors) != 0)
    wanted = asksIfUnreadable;
  if (!wanted)
    return true;

  WMsgBox box(WMsgBox::MsgWarning);
  box.titleSet(title);
  box.msgSet(question);
  box.buttonAdd(action);
  box.dangerSet();
  box.buttonAdd(text("Cancel"));
  box.checkBoxSet(text("Do not show this message again."));
  box.setMaximumSize(Wt::WLength(kBoxWidth), Wt::WLength::Auto);
  box.exec();
  if (box.isCheckBoxChecked())
    Db_db.writeEnableDisable("user", user, warning, false, errors);
  return box.buttonClicked() == 1;
}
