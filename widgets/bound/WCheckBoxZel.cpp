// SPDX-License-Identifier: MIT
#include "WCheckBoxZel.h"

#include "Db.h"
#include "DbExchange.h"

WCheckBoxZel::WCheckBoxZel(const char *resourceName, const char *parameterName, bool isIndexed,
                           Wt::WContainerWidget *parent)
    : Wt::WCheckBox(parent), WWidgetZel(resourceName, parameterName, isIndexed)
{
  changed().connect(this, &WCheckBoxZel::contentChangedHandler);
}

bool WCheckBoxZel::readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                                    bool force)
{
  if (keepsEdit(force))
    return false;
  bool flag = false;
  const Agreement agreement = readFlags(indexes, flag, errors);
  if (agreement == NoRecords || agreement == Differing)
    setCheckState(Wt::PartiallyChecked);
  else if (agreement == Agreeing)
    setCheckState(flag ? Wt::Checked : Wt::Unchecked);
  return endRead(agreement);
}

WWidgetZel::Agreement WCheckBoxZel::readFlags(const std::vector<unsigned int> &indexes, bool &flag,
                                              std::vector<std::string> &errors) const
{
  if (namesNoRecord(indexes))
    return NoRecords;
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return Unreadable;
  const ZelRequest request(ZelReqUtil_newGetResource(resource));
  if (!request) {
    DbExchange_noRequest("readFromDatabase");
    return Unreadable;
  }
  ZelObj_setSelect(request.get(), param);
  const auto read = [&](unsigned int index, bool &single) {
    if (indexed)
      ZelObj_setUInt32Object(request.get(), "query", "index", index);
    ZelResponse response;
    if (DbExchange_send("readFromDatabase", client, request, nullptr, response, errors))
      return 1U;
    single = ZelRspUtil_getBooleanParam(response.get(), param) != 0;
    return 0U;
  };
  return merge(indexes, read, flag);
}

bool WCheckBoxZel::writeToDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors)
{
  if (!changedContent || namesNoRecord(indexes))
    return false;
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return true;
  const ZelRequest request(ZelReqUtil_newSetResource(resource));
  if (!request)
    return DbExchange_noRequest("writeToDatabase") != 0;
  bool failed = false;
  for (const unsigned int index : addressed(indexes)) {
    if (indexed)
      ZelReqUtil_setIntegerParam(request.get(), "index", index);
    ZelReqUtil_setBooleanParam(request.get(), param, checkState() == Wt::Checked);
    ZelResponse response;
    // Without a response it goes on as after a success.
    if (DbExchange_send("writeToDatabase", client, request, nullptr, response, errors) && response)
      failed = true;
  }
  changedContent = false;
  return failed;
}

void WCheckBoxZel::setZelParam(json_t *params)
{
  if (changedContent && checkState() != Wt::PartiallyChecked)
    ZelObj_setBool32(params, param, checkState() == Wt::Checked);
}

void WCheckBoxZel::getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force)
{
  if (keepsEdit(force))
    return;
  if (namesNoRecord(indexes)) {
    setCheckState(Wt::Unchecked);
    return;
  }
  // Without agreement the flag stays false.
  bool flag = false;
  bool same = true;
  if (indexed && indexes.size() > 1)
    Db_db.extractEnableDisableMerge(response, indexes, param, flag, same);
  else
    Db_db.extractEnableDisable(response, param, flag);
  setCheckState(flag ? Wt::Checked : Wt::Unchecked);
  changedContent = false;
}

void WCheckBoxZel::contentChangedHandler()
{
  endEdit();
}
