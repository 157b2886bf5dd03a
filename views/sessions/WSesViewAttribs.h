// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WSES_VIEW_ATTRIBS_H_
#define VIEWS_SESSIONS_WSES_VIEW_ATTRIBS_H_

#include "WAttributeTable.h"

#include <vector>

/// The values of the selected sessions; of several, what they have in common.
class WSesViewAttribs : public WAttributeTable
{
public:
  explicit WSesViewAttribs(Wt::WContainerWidget *parent = 0);

  /// Shows the records of resource "connection" with these indexes. What cannot be read stays empty.
  void readFromDatabase(std::vector<unsigned int> indexes);
};

#endif // VIEWS_SESSIONS_WSES_VIEW_ATTRIBS_H_
