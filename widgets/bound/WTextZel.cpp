// SPDX-License-Identifier: MIT
#include "WTextZel.h"

#include <Wt/WString>

WTextZel::WTextZel(const char *resourceName, const char *parameterName, bool isIndexed,
                   Wt::WContainerWidget *parent)
    : Wt::WText("", Wt::PlainText, parent), WWidgetZel(resourceName, parameterName, isIndexed)
{
}

bool WTextZel::readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                                bool force)
{
  if (keepsEdit(force))
    return false;
  std::string value;
  const Agreement agreement = readCommon(indexes, value, errors);
  setText(agreement == NoRecords || agreement == Unreadable ? Wt::WString() : textOfRead(value));
  return endRead(agreement);
}

void WTextZel::getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force)
{
  if (keepsEdit(force))
    return;
  std::string value;
  const Agreement agreement = extractCommon(response, indexes, value);
  setText(agreement == Agreeing ? textOf(value) : Wt::WString());
  endBulkRead(agreement);
}

Wt::WString WTextZel::textOf(const std::string &value) const
{
  return Wt::WString::fromUTF8(value);
}

Wt::WString WTextZel::textOfRead(const std::string &value) const
{
  return textOf(value);
}
