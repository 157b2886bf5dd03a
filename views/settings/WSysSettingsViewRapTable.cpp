// SPDX-License-Identifier: MIT
#include "WSysSettingsViewRapTable.h"

#include "EventLog.h"
#include "Text.h"
#include "WEnableDisable.h"
#include "WPasswordZel.h"

WSysSettingsViewRapTable::WSysSettingsViewRapTable(Wt::WContainerWidget *parent)
    : WSettingsTable("systemGlobals/rapParameters", SingleRecord | ToleratesErrors,
                     {text("Item"), text("Value")}, parent)
{
  WEnableDisable *telnet = add<WEnableDisable>(tr("SystemSettings.Rap.TelnetAccess"), "telnetAccess");
  Wt::WWidget *telnetPort =
      addNumber(tr("SystemSettings.Rap.TelnetPort"), "telnetPort", Wt::WString(), 1024, 65535, false);
  WEnableDisable *ssh = add<WEnableDisable>(tr("SystemSettings.Rap.SshAccess"), "sshAccess");
  Wt::WWidget *sshPort =
      addNumber(tr("SystemSettings.Rap.SshPort"), "sshPort", Wt::WString(), 1024, 65535, false);
  password = add<WPasswordZel>(tr("SystemSettings.Rap.SshPassword"), "sshPassword");
  confirmation = add<WPasswordZel>(tr("SystemSettings.Rap.SshConfirmPassword"), "sshPassword");
  add<WLineEditUInt32Zel>(tr("SystemSettings.Rap.SessionTimeout"), "sessionInactivityTimeout");
  enableWhile(telnetPort, [telnet] { return telnet->isChosenEnabled(); });
  for (Wt::WWidget *field : {sshPort, static_cast<Wt::WWidget *>(password)})
    enableWhile(field, [ssh] { return ssh->isChosenEnabled(); });
  sendWhile(password, [this] { return passwordIsSent(); });
  sendWhile(confirmation, [] { return false; });
}

bool WSysSettingsViewRapTable::passwordIsSent() const
{
  return !password->text().empty() && password->text() == confirmation->text();
}

void WSysSettingsViewRapTable::readFromDatabase(std::vector<unsigned int> indexes, bool force)
{
  WSettingsTable::readFromDatabase(indexes, force);
  if (isUnread())
    EventLog_write(2, 7, "readFromDatabase", "Unable to retrieve RAP parameters.");
}

bool WSysSettingsViewRapTable::writeToDatabase(std::vector<unsigned int> indexes,
                                               std::vector<std::string> &errors)
{
  const bool differ = password->text() != confirmation->text();
  if (passwordIsSent() && confirmation->hasChangedContent()) {
    // Also where only the second was put right.
    password->setContentChanged();
    confirmation->removeStyleClass("Wt-invalid");
  }
  const bool failed = WSettingsTable::writeToDatabase(indexes, errors);
  if (differ) {
    confirmation->addStyleClass("Wt-invalid");
    confirmation->setText("");
  }
  return failed;
}
