// SPDX-License-Identifier: MIT
#include "WTargetAny.h"

#include "TargetItem.h"
#include "ZelObj.h"
#include "ZelRspUtil.h"

WTargetAny::WTargetAny(bool isIndexed, Wt::WContainerWidget *parent)
    : WComboBoxZelDynamic("rx", "autoConnectTxEid", isIndexed, "tx", "eid", parent)
{
}

void WTargetAny::selectChoices(json_t *request) const
{
  WComboBoxZelDynamic::selectChoices(request);
  ZelObj_setSelect(request, "name");
}

std::list<std::string> WTargetAny::choicesIn(json_t *response) const
{
  std::list<std::string> choices;
  const int rows = ZelRspUtil_numEntries(response);
  for (int i = 0; i < rows; ++i) {
    const auto row = static_cast<unsigned int>(i);
    const char *eid = ZelRspUtil_getIndexedStringParam(response, row, "eid");
    const char *name = ZelRspUtil_getIndexedStringParam(response, row, "name");
    if (eid)
      choices.push_back(TargetItem_text(eid, name ? name : ""));
  }
  return choices;
}

std::string WTargetAny::choiceOf(const std::string &itemText) const
{
  return TargetItem_eidOf(itemText);
}
