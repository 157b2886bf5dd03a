// SPDX-License-Identifier: MIT
#include "WMsgBoxDbErr.h"

#include "NevoUtil.h"
#include "Text.h"
#include "WDialogTitle.h"

#include <Wt/WContainerWidget>
#include <Wt/WEvent>
#include <Wt/WPushButton>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WText>

namespace
{

const int kSeverityError = 2;

Wt::WString heading(WMsgBoxDbErr::AccessType type)
{
  switch (type) {
  case WMsgBoxDbErr::AccessRead:
    return text("Error reading value(s).");
  case WMsgBoxDbErr::AccessWrite:
    return text("Error writing value(s).");
  case WMsgBoxDbErr::AccessCreate:
    return text("Error creating record(s).");
  case WMsgBoxDbErr::AccessDelete:
    return text("Error deleting record(s).");
  default:
    return text("Error performing operation.");
  }
}

} // namespace

WMsgBoxDbErr::WMsgBoxDbErr(AccessType type, std::vector<std::string> &errors)
{
  WDialogTitle::build(*this, WDialogTitle::severityIcon(kSeverityError), text("Error"));

  Wt::WTable *table = new Wt::WTable(contents());
  table->setMargin(Wt::WLength(12));
  Wt::WTableCell *messageCell = table->elementAt(0, 0);
  messageCell->setContentAlignment(Wt::AlignLeft | Wt::AlignBottom);
  Wt::WString message = heading(type);
  NevoUtil_concatErrMsgs(message, errors);
  // The messages may hold texts of the store, which are never markup.
  new Wt::WText(message, Wt::PlainText, messageCell);

  Wt::WTableCell *buttonCell = table->elementAt(1, 0);
  buttonCell->setContentAlignment(Wt::AlignRight | Wt::AlignBottom);
  Wt::WPushButton *button = new Wt::WPushButton(text("Close"), buttonCell);
  button->setMargin(Wt::WLength(12), Wt::Top);
  button->clicked().connect(this, &WMsgBoxDbErr::buttonClickedHandler);
  button->setFocus();
  setMaximumSize(Wt::WLength(500), Wt::WLength::Auto);
}

void WMsgBoxDbErr::buttonClickedHandler()
{
  accept();
}
