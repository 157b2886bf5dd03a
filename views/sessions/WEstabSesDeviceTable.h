// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WESTAB_SES_DEVICE_TABLE_H_
#define VIEWS_SESSIONS_WESTAB_SES_DEVICE_TABLE_H_

#include "DeviceRecord.h"
#include "WRecordTable.h"

#include <functional>

/// A list of devices from which one end of a new session is chosen.
class WEstabSesDeviceTable : public WRecordTable
{
protected:
  WEstabSesDeviceTable(const Wt::WString &eidHeading, const Wt::WString &nameHeading,
                       Wt::WContainerWidget *parent);

  /// Shows the receivers or transmitters that are in service and that the choice takes. True, and none shows,
  /// if they cannot be read.
  bool showDevices(Info_DeviceType type, const std::function<bool(const DeviceRecord &)> &offered);
};

#endif // VIEWS_SESSIONS_WESTAB_SES_DEVICE_TABLE_H_
