// SPDX-License-Identifier: MIT
#include "WUInt32Zel.h"

#include "Decimal.h"

#include <Wt/WString>
#include <cstdio>

WUInt32Zel::WUInt32Zel(const char *resourceName, const char *parameterName, bool isIndexed,
                       Wt::WContainerWidget *parent)
    : Wt::WText("", Wt::PlainText, parent), WWidgetZel(resourceName, parameterName, isIndexed),
      scalingEnabled(false), displayScaling(1), value(0)
{
}

bool WUInt32Zel::readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                                  bool force)
{
  if (keepsEdit(force))
    return false;
  value = 0;
  const Agreement agreement = readCommon(indexes, value, errors);
  if (agreement == NoRecords || agreement == Unreadable)
    setText("");
  else
    setText(scalingEnabled ? scaledText() : Decimal_shortText(value));
  return endRead(agreement);
}

void WUInt32Zel::getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force)
{
  if (keepsEdit(force))
    return;
  value = 0;
  const Agreement agreement = extractCommon(response, indexes, value);
  if (agreement != Agreeing)
    setText("");
  else
    setText(scalingEnabled ? scaledText() : Decimal_text(value));
  endBulkRead(agreement);
}

void WUInt32Zel::setValue(unsigned int number)
{
  value = number;
  setText(Decimal_text(value));
}

void WUInt32Zel::setDisplayScaling(double factor)
{
  displayScaling = factor;
  scalingEnabled = true;
}

Wt::WString WUInt32Zel::scaledText() const
{
  char text[400]; // a double has at most 309 digits before the point
  std::snprintf(text, sizeof text, "%.1f", value * displayScaling);
  return Wt::WString::fromUTF8(text);
}
