// SPDX-License-Identifier: MIT
#include "WVideoResolution.h"

#include <Wt/WString>
#include <cstdio>

WVideoResolution::WVideoResolution(const char *resourceName, const char *nameOfHorizontal,
                                   const char *nameOfVertical, bool isIndexed, Wt::WContainerWidget *parent)
    : Wt::WText("", Wt::PlainText, parent), WWidgetZel(resourceName, "", isIndexed),
      horizontalParam(nameOfHorizontal), verticalParam(nameOfVertical), horizontal(0), vertical(0)
{
}

bool WVideoResolution::readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                                        bool force)
{
  if (keepsEdit(force))
    return false;
  const Agreement ofHorizontal = readCommon(indexes, horizontalParam, horizontal, errors);
  const Agreement ofVertical =
      ofHorizontal == Unreadable ? Unreadable : readCommon(indexes, verticalParam, vertical, errors);
  return endRead(show(ofHorizontal, ofVertical));
}

void WVideoResolution::getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force)
{
  if (keepsEdit(force))
    return;
  const Agreement ofHorizontal = extractCommon(response, indexes, horizontalParam, horizontal);
  const Agreement ofVertical = extractCommon(response, indexes, verticalParam, vertical);
  endBulkRead(show(ofHorizontal, ofVertical));
}

WWidgetZel::Agreement WVideoResolution::show(Agreement ofHorizontal, Agreement ofVertical)
{
  char text[32] = "";
  if (ofHorizontal == Agreeing && ofVertical == Agreeing) {
    std::snprintf(text, sizeof text, "%d x %d", static_cast<int>(horizontal), static_cast<int>(vertical));
  } else {
    horizontal = 0;
    vertical = 0;
  }
  setText(Wt::WString::fromUTF8(text));
  if (ofHorizontal == Unreadable || ofVertical == Unreadable)
    return Unreadable;
  return ofHorizontal == Agreeing ? ofVertical : ofHorizontal;
}
