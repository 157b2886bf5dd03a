// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WESTAB_SES_DEVICE_TABLE_H_
#define VIEWS_SESSIONS_WESTAB_SES_DEVICE_TABLE_H_

#include "WRecordTable.h"

#include <functional>
#include <string>

/// A list of devices from which one end of a new session is chosen.
class WEstabSesDeviceTable : public WRecordTable
{
protected:
  struct Device {
    unsigned int index;
    std::string modeAllowed; ///< the store's word
  };

  WEstabSesDeviceTable(const Wt::WString &eidHeading, const Wt::WString &nameHeading,
                       Wt::WContainerWidget *parent);

  /// Adds the devices of resource "rx" or "tx" that the choice takes. True, and nothing is added, if they
  /// cannot be read.
  bool addDevices(const char *resource, const std::function<bool(const Device &)> &offered);
};

#endif // VIEWS_SESSIONS_WESTAB_SES_DEVICE_TABLE_H_
