// SPDX-License-Identifier: MIT
#include "WComboBoxZelDynamic.h"

#include "Db.h"
#include "DbExchange.h"

#include <Wt/WString>

WComboBoxZelDynamic::WComboBoxZelDynamic(const char *resourceName, const char *parameterName, bool isIndexed,
                                         const char *resourceOfChoices, const char *parameterOfChoices,
                                         Wt::WContainerWidget *parent)
    : Wt::WComboBox(parent), WWidgetZel(resourceName, parameterName, isIndexed),
      choicesResource(resourceOfChoices), choicesParam(parameterOfChoices)
{
  changed().connect(this, &WComboBoxZelDynamic::contentChangedHandler);
}

bool WComboBoxZelDynamic::updateListOfChoices()
{
  static constexpr char kFunction[] = "updateListOfChoices";
  clear();
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return true;
  const ZelRequest request(ZelReqUtil_newGetResource(choicesResource));
  if (!request)
    return DbExchange_noRequest(kFunction) != 0;
  selectChoices(request.get());
  ZelResponse response;
  std::vector<std::string> unshown;
  if (DbExchange_send(kFunction, client, request, nullptr, response, unshown))
    return true;
  for (const std::string &choice : choicesIn(response.get()))
    addItem(Wt::WString::fromUTF8(choice));
  addItem("");
  return false;
}

void WComboBoxZelDynamic::selectChoices(json_t *request) const
{
  ZelObj_setSelect(request, choicesParam);
}

std::list<std::string> WComboBoxZelDynamic::choicesIn(json_t *response) const
{
  std::list<std::string> choices;
  const int rows = ZelRspUtil_numEntries(response);
  for (int row = 0; row < rows; ++row) {
    if (const char *found =
            ZelRspUtil_getIndexedStringParam(response, static_cast<unsigned int>(row), choicesParam))
      choices.push_back(found);
  }
  return choices;
}

bool WComboBoxZelDynamic::readFromDatabase(std::vector<unsigned int> &indexes,
                                           std::vector<std::string> &errors, bool force)
{
  if (keepsFocus(hasFocus()) || keepsEdit(force))
    return false;
  updateListOfChoices();
  std::string choice;
  const Agreement agreement = readChoice(indexes, choice, errors);
  return show(agreement, choice);
}

void WComboBoxZelDynamic::getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force)
{
  if (keepsFocus(hasFocus()) || keepsEdit(force))
    return;
  updateListOfChoices();
  std::string choice;
  const Agreement agreement = extractChoice(response, indexes, choice);
  show(agreement, choice);
}

bool WComboBoxZelDynamic::show(Agreement agreement, const std::string &choice)
{
  const int last = count() - 1;
  if (agreement == NoRecords || agreement == Unreadable) {
    setCurrentIndex(last);
    return agreement == Unreadable;
  }
  int index = 0;
  while (index < last && choiceOf(itemText(index).toUTF8()) != choiceOf(choice))
    ++index;
  setCurrentIndex(index);
  return endRead(agreement);
}

bool WComboBoxZelDynamic::writeToDatabase(std::vector<unsigned int> &indexes,
                                          std::vector<std::string> &errors)
{
  if (!changedContent || namesNoRecord(indexes))
    return false;
  const bool isWritten = !indexed || !currentChoice().empty();
  const bool failed = !isWritten || writeChoice(addressed(indexes), currentChoice(), errors);
  changedContent = false;
  return failed;
}

void WComboBoxZelDynamic::setZelParam(json_t *params)
{
  if (changedContent && currentIndex() < count() - 1)
    addChoice(params, currentChoice());
}

void WComboBoxZelDynamic::contentChangedHandler()
{
  endEdit();
}

std::string WComboBoxZelDynamic::currentChoice() const
{
  return choiceOf(currentText().toUTF8());
}

WWidgetZel::Agreement WComboBoxZelDynamic::readChoice(const std::vector<unsigned int> &indexes,
                                                      std::string &choice,
                                                      std::vector<std::string> &errors) const
{
  return readCommon(indexes, choice, errors);
}

WWidgetZel::Agreement WComboBoxZelDynamic::extractChoice(json_t *response,
                                                         const std::vector<unsigned int> &indexes,
                                                         std::string &choice) const
{
  return extractCommon(response, indexes, choice);
}

bool WComboBoxZelDynamic::writeChoice(const std::vector<unsigned int> &records, const std::string &choice,
                                      std::vector<std::string> &errors) const
{
  return writeEach(records, choice, errors);
}

void WComboBoxZelDynamic::addChoice(json_t *params, const std::string &choice) const
{
  addTo(params, choice);
}
