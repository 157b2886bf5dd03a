// SPDX-License-Identifier: MIT
#include "WUsrViewOsdFxTable.h"

#include "Convert.h"
#include "Db.h"
#include "DbExchange.h"
#include "Text.h"
#include "WOsdHotkeyFunc.h"
#include "WTarget.h"
#include "ZelReq.h"
#include "ZelValue.h"

#include <Wt/WLength>

namespace
{

constexpr int kActionWidth = 270; ///< pixels
constexpr int kTargetWidth = 277;

struct KeyTexts {
  const char *label;
  const char *actionTip;
  const char *targetTip;
};

constexpr KeyTexts kTexts[] = {
    {"[RSnnn]F1", wholeKey("tt.usr.osd.fx.f1.action"), wholeKey("tt.usr.osd.fx.f1.target")},
    {"[RSnnn]F2", wholeKey("tt.usr.osd.fx.f2.action"), wholeKey("tt.usr.osd.fx.f2.target")},
    {"[RSnnn]F3", wholeKey("tt.usr.osd.fx.f3.action"), wholeKey("tt.usr.osd.fx.f3.target")},
    {"[RSnnn]F4", wholeKey("tt.usr.osd.fx.f4.action"), wholeKey("tt.usr.osd.fx.f4.target")},
    {"[RSnnn]F5", wholeKey("tt.usr.osd.fx.f5.action"), wholeKey("tt.usr.osd.fx.f5.target")},
    {"[RSnnn]F6", wholeKey("tt.usr.osd.fx.f6.action"), wholeKey("tt.usr.osd.fx.f6.target")},
    {"[RSnnn]F7", wholeKey("tt.usr.osd.fx.f7.action"), wholeKey("tt.usr.osd.fx.f7.target")},
    {"[RSnnn]F8", wholeKey("tt.usr.osd.fx.f8.action"), wholeKey("tt.usr.osd.fx.f8.target")},
    {"[RSnnn]F9", wholeKey("tt.usr.osd.fx.f9.action"), wholeKey("tt.usr.osd.fx.f9.target")},
    {"[RSnnn]F10", wholeKey("tt.usr.osd.fx.f10.action"), wholeKey("tt.usr.osd.fx.f10.target")},
    {"[RSnnn]F11", wholeKey("tt.usr.osd.fx.f11.action"), wholeKey("tt.usr.osd.fx.f11.target")},
    {"[RSnnn]F12", wholeKey("tt.usr.osd.fx.f12.action"), wholeKey("tt.usr.osd.fx.f12.target")},
};

/// The key of a row; rows count from 0.
Info_FunctionKey keyOf(std::size_t row)
{
  return static_cast<Info_FunctionKey>(Info_FunctionKey_F1 + static_cast<int>(row));
}

} // namespace

WUsrViewOsdFxTable::WUsrViewOsdFxTable(const TargetsOf &offered, Wt::WContainerWidget *parent)
    : WSettingsTable("user", Plain, {text("Key"), text("Action"), text("Target")}, parent), targetsOf(offered)
{
  for (std::size_t i = 0; i < keys.size(); ++i) {
    Key &key = keys[i];
    key.action = addField(Wt::WString::tr(kTexts[i].label), new WOsdHotkeyFunc("user", "action", true),
                          Wt::WString::tr(kTexts[i].actionTip));
    key.action->resize(Wt::WLength(kActionWidth), Wt::WLength::Auto);
    key.target = addBeside(new WTarget("user", "txEID", true), Wt::WString::tr(kTexts[i].targetTip));
    key.target->resize(Wt::WLength(kTargetWidth), Wt::WLength::Auto);
    key.target->setAttributeValue(
        "aria-label",
        Wt::WString::fromUTF8(Wt::WString::tr(kTexts[i].label).toUTF8() + ' ' + text("Target").toUTF8()));
  }
}

// ---- Reading

void WUsrViewOsdFxTable::readFromDatabase(std::vector<unsigned int> users, bool discardEdits)
{
  Slots slots;
  if (discardEdits)
    clearContentChanged();
  if (fetch(users, slots))
    return;
  std::vector<TargetItem> targets = targetsOf(users);
  for (std::size_t i = 0; i < keys.size(); ++i)
    show(keys[i], slots[i], targets, discardEdits);
  setRecords(users);
}

/// True on failure.
bool WUsrViewOsdFxTable::fetch(const std::vector<unsigned int> &users, Slots &slots) const
{
  if (users.empty())
    return false;
  ZelClient_s *client = 0;
  if (Db_db.getZelClient(client) != 0)
    return true;
  ZelRequest request(ZelReqUtil_newGetResource("user"));
  if (!request)
    return DbExchange_noRequest("readFromDatabase") != 0;
  for (const unsigned int user : users)
    ZelReqUtil_setIntegerQuery(request.get(), "index", user);
  ZelReqUtil_setSelect(request.get(), "index");
  ZelReqUtil_setSelect(request.get(), "keySettings");
  ZelResponse response;
  std::vector<std::string> dropped;
  if (DbExchange_send("readFromDatabase", client, request, 0, response, dropped) != 0)
    return true;
  const ZelObject settings(ZelObj_collapse(response.get(), "index", "keySettings"));
  if (!settings)
    return true;
  for (int row = 0; row < static_cast<int>(users.size()); ++row) {
    json_t *list =
        ZelRspUtil_getIndexedObjectParam(settings.get(), static_cast<unsigned int>(row), "osdShortCuts");
    Slots own;
    for (int i = 0; list && i < ZelRspUtil_numEntries(list); ++i) {
      const auto entry = static_cast<unsigned int>(i);
      const char *key = ZelRspUtil_getIndexedStringParam(list, entry, "functionKey");
      const char *action = ZelRspUtil_getIndexedStringParam(list, entry, "action");
      const char *eid = ZelRspUtil_getIndexedStringParam(list, entry, "txEID");
      const int slot =
          key ? static_cast<int>(Convert_functionKeyStringToEnum(key)) - Info_FunctionKey_F1 : -1;
      if (action && eid && slot >= 0 && slot < static_cast<int>(own.size()))
        own[static_cast<std::size_t>(slot)] = {static_cast<int>(Convert_osdCommonActionStringToEnum(action)),
                                               eid};
    }
    if (row == 0)
      slots = own;
    for (std::size_t i = 0; i < own.size(); ++i) {
      if (own[i].action != slots[i].action)
        slots[i].action = 0;
      if (own[i].eid != slots[i].eid)
        slots[i].eid.clear();
    }
  }
  return false;
}

void WUsrViewOsdFxTable::show(const Key &key, const Slot &slot, std::vector<TargetItem> &targets,
                              bool discardEdits)
{
  const auto isLeftAlone = [&](bool focused, WWidgetZel &field) {
    return (focused && !isGivingWay()) || (field.hasChangedContent() && !discardEdits);
  };
  if (!isLeftAlone(key.action->hasFocus(), *key.action)) {
    if (slot.action == 0)
      key.action->showConflict();
    else
      key.action->showValue(
          Convert_osdCommonActionEnumToZelString(static_cast<Info_OsdCommonAction>(slot.action)));
    key.action->clearContentChanged();
  }
  if (isLeftAlone(key.target->hasFocus(), *key.target))
    return;
  std::vector<TargetItem> none;
  const bool connects = key.action->value() == Info_OsdCommonAction_ConnectToTargetX;
  key.target->setEnabled(connects);
  key.target->populateChoices(connects ? targets : none);
  if (connects) {
    std::string eid = slot.eid;
    key.target->setCurrentChoiceByEid(eid);
  }
  key.target->clearContentChanged();
}

// ---- Writing

bool WUsrViewOsdFxTable::writeToDatabase(std::vector<unsigned int> users, std::vector<std::string> &errors)
{
  ZelClient_s *client = 0;
  if (users.empty())
    return false;
  if (Db_db.getZelClient(client) != 0)
    return true;
  bool failed = false;
  for (const unsigned int user : users) {
    ZelRequest request(ZelReq_userNewUpdateReq(user));
    ZelObject settings(ZelObj_new());
    ZelObject list(ZelObj_newArray());
    if (!request || !settings || !list)
      return DbExchange_noRequest("writeToDatabase") != 0;
    addTo(list.get());
    ZelObj_setObject(settings.get(), "osdShortCuts", list.release());
    ZelReqUtil_setObjectParam(request.get(), "keySettings", settings.release());
    ZelResponse response;
    if (DbExchange_send("writeToDatabase", client, request, 0, response, errors) != 0)
      failed = true;
  }
  clearContentChanged();
  return failed;
}

/// A key on which the users differ is named without an action.
void WUsrViewOsdFxTable::addTo(json_t *list)
{
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const Key &key = keys[i];
    json_t *entry = ZelObj_new();
    ZelObj_setString(entry, "functionKey", Convert_functionKeyEnumToZelString(keyOf(i)));
    if (!key.action->isShowingConflict()) {
      key.action->setContentChanged();
      key.action->setZelParam(entry);
      if (key.action->value() != Info_OsdCommonAction_ConnectToTargetX) {
        key.target->clear();
        key.target->disable();
      }
      key.target->setZelParam(entry);
    }
    ZelObj_arrayAppendObject(list, entry);
  }
}
