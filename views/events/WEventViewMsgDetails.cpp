// SPDX-License-Identifier: MIT
#include "WEventViewMsgDetails.h"

#include "Text.h"

#include <Wt/WTableCell>
#include <Wt/WTableColumn>

namespace
{

// Pixels
const int kMarginAround = 8;
const int kLabelWidth = 100;

} // namespace

WEventViewMsgDetails::WEventViewMsgDetails(Wt::WContainerWidget *parent)
    : WAttributeTable(text("Field"), text("Value"),
                      {text("Type"), text("Date and Time"), text("Originator EID"), text("Message")}, parent)
{
  setMargin(Wt::WLength(kMarginAround));
  columnAt(0)->setWidth(Wt::WLength(kLabelWidth));
  elementAt(0, 0)->setContentAlignment(Wt::AlignRight);
  elementAt(0, 1)->setContentAlignment(Wt::AlignLeft);
}

void WEventViewMsgDetails::setContent(const Wt::WString &type, const Wt::WString &date,
                                      const Wt::WString &eid, const Wt::WString &message)
{
  int row = 0;
  for (const Wt::WString *value : {&type, &date, &eid, &message})
    setValue(++row, value->toUTF8());
}
