// SPDX-License-Identifier: MIT
#ifndef VIEWS_USERS_WCHANGEPASSWORD_H_
#define VIEWS_USERS_WCHANGEPASSWORD_H_

#include "WComboBoxPlus.h"

/// Whether the password of users is to be changed.
class WChangePassword : public WComboBoxPlus
{
public:
  enum Item { Disabled, Enabled };

  explicit WChangePassword(Wt::WContainerWidget *parent = 0);

  /// Adds an item without a text behind the others, or takes it away.
  void includeBlankItem(bool included);
  void showBlankItem();

private:
  bool blankIncluded;
};

#endif // VIEWS_USERS_WCHANGEPASSWORD_H_
