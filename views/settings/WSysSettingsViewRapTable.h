// SPDX-License-Identifier: MIT
#ifndef VIEWS_SETTINGS_WSYSSETTINGSVIEWRAPTABLE_H_
#define VIEWS_SETTINGS_WSYSSETTINGSVIEWRAPTABLE_H_

#include "WSettingsTable.h"

class WPasswordZel;

/// The remote access of the switch over Telnet and SSH.
class WSysSettingsViewRapTable : public WSettingsTable
{
public:
  explicit WSysSettingsViewRapTable(Wt::WContainerWidget *parent = 0);

  void readFromDatabase(std::vector<unsigned int> indexes, bool force = false) override;
  /// Two passwords that differ are not sent: the second is marked and emptied, the rest is saved.
  bool writeToDatabase(std::vector<unsigned int> indexes, std::vector<std::string> &errors) override;

private:
  bool passwordIsSent() const;

  WPasswordZel *password;
  WPasswordZel *confirmation;
};

#endif // VIEWS_SETTINGS_WSYSSETTINGSVIEWRAPTABLE_H_
