// SPDX-License-Identifier: MIT
#include "WNotice.h"

#include "NevoUtil.h"
#include "Text.h"

namespace
{

const int kBoxWidth = 300; ///< pixels, at most

} // namespace

void WNotice::show(WMsgBox::MsgType type, const Wt::WString &title, const Wt::WString &message)
{
  WMsgBox box(type);
  box.titleSet(title);
  // What the store says is never markup.
  box.msgSet(message.toUTF8().c_str());
  box.buttonAdd(text("Close"));
  box.setMaximumSize(Wt::WLength(kBoxWidth), Wt::WLength::Auto);
  box.exec();
}

void WNotice::showError(const Wt::WString &message, const std::vector<std::string> &errors)
{
  Wt::WString whole = message;
  std::vector<std::string> details = errors;
  NevoUtil_concatErrMsgs(whole, details);
  show(WMsgBox::MsgError, text("Error"), whole);
}
