// SPDX-License-Identifier: MIT
#include "WMsgBoxSimple.h"

#include "WDialogTitle.h"

#include <Wt/WContainerWidget>
#include <Wt/WPushButton>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WText>

namespace
{

/// The text as it is now: later changes of the language do not touch it.
Wt::WString resolved(const Wt::WString &text)
{
  return Wt::WString::fromUTF8(text.toUTF8());
}

} // namespace

WMsgBoxSimple::WMsgBoxSimple(MsgType type, const Wt::WString &title, const Wt::WString &message,
                             const Wt::WString &button1Text, const Wt::WString &button2Text)
    : button1(0), button2(0)
{
  WDialogTitle::build(*this, WDialogTitle::severityIcon(type), resolved(title));

  Wt::WTable *table = new Wt::WTable(contents());
  table->setMargin(Wt::WLength(12));
  Wt::WTableCell *messageCell = table->elementAt(0, 0);
  messageCell->setContentAlignment(Wt::AlignLeft | Wt::AlignBottom);
  new Wt::WText(resolved(message), messageCell);

  button1 = new Wt::WPushButton(resolved(button1Text), table->elementAt(1, 0));
  button1->setMargin(Wt::WLength(12), Wt::Top);
  if (!button2Text.empty()) {
    messageCell->setColumnSpan(2);
    button2 = new Wt::WPushButton(resolved(button2Text), table->elementAt(1, 1));
    button2->setMargin(Wt::WLength(12), Wt::Top);
    button2->setMargin(Wt::WLength(8), Wt::Left);
  }
  rejectWhenEscapePressed();
  setMaximumSize(Wt::WLength(500), Wt::WLength::Auto);
}
