// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTARGET_ANY_H_
#define WIDGETS_WTARGET_ANY_H_

#include "WComboBoxZelDynamic.h"

/// The target to which a receiver connects by itself: a choice among all transmitters, held as an EID.
class WTargetAny : public WComboBoxZelDynamic
{
public:
  explicit WTargetAny(bool indexed, Wt::WContainerWidget *parent = 0);

protected:
  void selectChoices(json_t *request) const override;
  std::list<std::string> choicesIn(json_t *response) const override;
  std::string choiceOf(const std::string &itemText) const override;
};

#endif // WIDGETS_WTARGET_ANY_H_
