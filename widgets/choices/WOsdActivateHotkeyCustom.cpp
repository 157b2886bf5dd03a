// SPDX-License-Identifier: MIT
#include "WOsdActivateHotkeyCustom.h"

#include "Db.h"
#include "WKeyCodeSelector.h"
#include "ZelObj.h"
#include "ZelRspUtil.h"

#include <Wt/WTable>
#include <Wt/WTableCell>

WOsdActivateHotkeyCustom::WOsdActivateHotkeyCustom(const char *resourceName, const char *parameterName,
                                                   bool isIndexed, Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), WWidgetZel(resourceName, parameterName, isIndexed)
{
  Wt::WTable *table = new Wt::WTable(this);
  first = addSelector(table->elementAt(0, 0));
  second = addSelector(table->elementAt(0, 1));
}

WKeyCodeSelector *WOsdActivateHotkeyCustom::addSelector(Wt::WContainerWidget *cell)
{
  cell->setContentAlignment(Wt::WFlags<Wt::AlignmentFlag>(Wt::AlignRight) | Wt::AlignBottom);
  WKeyCodeSelector *selector = new WKeyCodeSelector(cell);
  selector->setStyleClass("nevo-attribute-table-read-write-line-edit");
  selector->activated().connect(this, &WOsdActivateHotkeyCustom::contentChangedHandler);
  return selector;
}

void WOsdActivateHotkeyCustom::setEnabled(bool enabled)
{
  first->setEnabled(enabled);
  second->setEnabled(enabled);
}

void WOsdActivateHotkeyCustom::setWidth(const Wt::WLength &width)
{
  const Wt::WLength half(width.value() / 2 + 3);
  first->resize(half, Wt::WLength::Auto);
  second->resize(half, Wt::WLength::Auto);
}

bool WOsdActivateHotkeyCustom::hasFocus() const
{
  return first->hasFocus() || second->hasFocus();
}

bool WOsdActivateHotkeyCustom::readFromDatabase(std::vector<unsigned int> &, std::vector<std::string> &, bool)
{
  return true;
}

void WOsdActivateHotkeyCustom::setZelParam(json_t *params)
{
  if (!changedContent)
    return;
  Keys keys = {};
  unsigned int length = 0;
  for (WKeyCodeSelector *selector : {first, second}) {
    if (selector->currentIndex() != 0)
      keys[length++] = static_cast<unsigned char>(selector->value());
  }
  ZelObj_setBinary(params, "sequence", keys.data(), keys.size());
  ZelObj_setUInt32(params, "length", length);
}

void WOsdActivateHotkeyCustom::getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force)
{
  if (keepsFocus(hasFocus()) || keepsEdit(force))
    return;
  first->setCurrentIndex(0);
  second->setCurrentIndex(0);
  unsigned int length = 0;
  Keys keys = {};
  const Agreement agreement = extractCommon(response, indexes, "length", length);
  if (agreement == Agreeing && extractKeys(response, indexes, keys) == Agreeing) {
    if (length >= 1)
      first->setCurrentIndexByValue(keys[0]);
    if (length > 1)
      second->setCurrentIndexByValue(keys[1]);
  }
  endBulkRead(agreement);
}

WWidgetZel::Agreement WOsdActivateHotkeyCustom::extractKeys(json_t *response,
                                                            const std::vector<unsigned int> &indexes,
                                                            Keys &keys) const
{
  const bool areSeveral = indexed && indexes.size() > 1;
  const auto read = [&](unsigned int index, Keys &single) {
    if (!areSeveral) {
      ZelRspUtil_getBinaryParam(response, "sequence", single.data(), single.size());
      return 0U;
    }
    unsigned int row = 0;
    std::vector<std::string> unshown;
    if (Db_db.findOffsetOfUInt32KeyInZelRsp(response, "index", index, row, unshown))
      return 1U;
    ZelRspUtil_getIndexedBinaryParam(response, row, "sequence", single.data(), single.size());
    return 0U;
  };
  return merge(indexes, read, keys);
}

void WOsdActivateHotkeyCustom::contentChangedHandler()
{
  endEdit();
}
