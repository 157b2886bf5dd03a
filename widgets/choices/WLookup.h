// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WLOOKUP_H_
#define WIDGETS_WLOOKUP_H_

#include "WComboBoxZel.h"

#include <iterator>

/**
 * A combo box that is a table and nothing else: its choices are the constant table `Choice::sLookup`, in that
 * order. `Choice` is the class that derives from it, `Combo` a WComboBoxZel or, for a choice that the store
 * does not hold, a WComboBoxPlus.
 */
template <class Choice, class Combo = WComboBoxZel> class WLookup : public Combo
{
public:
  explicit WLookup(Wt::WContainerWidget *parent = 0) : Combo(Choice::sLookup, numberOfChoices(), parent) {}
  WLookup(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0)
      : Combo(resource, param, indexed, Choice::sLookup, numberOfChoices(), parent)
  {
  }

private:
  static int numberOfChoices() { return static_cast<int>(std::size(Choice::sLookup)); }
};

#endif // WIDGETS_WLOOKUP_H_
