// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTARGET_H_
#define WIDGETS_WTARGET_H_

#include "TargetItem.h"
#include "WWidgetZel.h"

#include <Wt/WComboBox>
#include <string>
#include <vector>

/**
 * A choice among the targets that its owner supplies. What it holds is an EID.
 *
 * Its owner also tells it what to show: it reads nothing by itself, and writes nothing but into a request
 * that others compose.
 */
class WTarget : public Wt::WComboBox, public WWidgetZel
{
public:
  WTarget(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

  /// Offers these targets, except those in conflict.
  void populateChoices(std::vector<TargetItem> &items);
  /// Selects the target with this EID; if there is none, a blank item, which goes with the next EID found.
  void setCurrentChoiceByEid(std::string &eid);

  /// Does nothing, and fails.
  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  /// Adds the EID, changed or not, unless the blank item is selected.
  void setZelParam(json_t *params) override;
  /// Does nothing.
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;
  virtual void contentChangedHandler();

private:
  /// The number of targets, which is also the index of the blank item.
  int targetCount() const { return count() - (blankItemPresent ? 1 : 0); }

  bool blankItemPresent;
};

#endif // WIDGETS_WTARGET_H_
