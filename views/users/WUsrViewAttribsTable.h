// SPDX-License-Identifier: MIT
#ifndef VIEWS_USERS_WUSRVIEWATTRIBSTABLE_H_
#define VIEWS_USERS_WUSRVIEWATTRIBSTABLE_H_

#include "WSettingsTable.h"

namespace Wt
{
class WStackedWidget;
}

class WChangePassword;
class WEnableDisable;
class WPasswordZel;

/// Who users are, and their passwords.
class WUsrViewAttribsTable : public WSettingsTable
{
public:
  explicit WUsrViewAttribsTable(Wt::WContainerWidget *parent = 0);

  bool isAllValid() override;
  bool isAnyValid() override;
  bool anyWidgetHasFocus() const override;
  void readFromDatabase(std::vector<unsigned int> users, bool discardEdits = false) override;
  /// Two passwords that differ are a failure; the rest is written all the same.
  bool writeToDatabase(std::vector<unsigned int> users, std::vector<std::string> &errors) override;

protected:
  void adjustDependentWidgets() override;

private:
  WPasswordZel *addPassword(const Wt::WString &label, const Wt::WString &toolTip);
  bool changesPassword() const;
  bool passwordsAgree() const;

  WLineEditZel *nameField;
  WLineEditZel *fullNameField;
  WEnableDisable *allowBlank;
  WChangePassword *change;
  WPasswordZel *password;
  WPasswordZel *confirmation;
  std::vector<Wt::WStackedWidget *> stacks; ///< of the passwords
};

#endif // VIEWS_USERS_WUSRVIEWATTRIBSTABLE_H_
