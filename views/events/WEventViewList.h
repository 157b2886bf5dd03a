// SPDX-License-Identifier: MIT
#ifndef VIEWS_EVENTS_WEVENT_VIEW_LIST_H_
#define VIEWS_EVENTS_WEVENT_VIEW_LIST_H_

#include "AlertRows.h"
#include "WObjListContextPanel.h"

#include <string>

/// What the events tab's two lists have in common: one of the store's lists of alerts, the newest on top.
class WEventViewList : public WObjListContextPanel
{
public:
  void readFromDatabase() override;

  /// The texts of the one selected row, in UTF-8, and its instance. True if there is no such row, which
  /// leaves the texts empty, or if it cannot be read, which the message then says.
  virtual bool getCurrentlySelectedRecord(unsigned int &index, std::string &date, std::string &type,
                                          std::string &eid, std::string &message);

protected:
  /// `retrieve` gets the store's list; `emptyText` is what an empty list says.
  WEventViewList(const Wt::WString &title, AlertRows::Retrieve retrieve, const Wt::WString &emptyText,
                 Wt::WContainerWidget *parent);

private:
  AlertRows::Retrieve retrieve;
};

#endif // VIEWS_EVENTS_WEVENT_VIEW_LIST_H_
