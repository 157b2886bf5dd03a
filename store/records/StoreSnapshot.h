// SPDX-License-Identifier: MIT
#ifndef STORE_STORE_SNAPSHOT_H_
#define STORE_STORE_SNAPSHOT_H_

#include "ConnectionRecord.h"
#include "DeviceRecord.h"
#include "RecordIndex.h"
#include "UserRecord.h"
#include "UserSessionRecord.h"

#include <string>
#include <unordered_map>

/// What the rows of a list need from other resources: names of devices and users, who works where.
///
/// Each resource is asked for with one request, when the first question needs it, and not again. So a list
/// makes one of these for each refresh, and asks the store as often for a thousand rows as for one. What
/// cannot be read is as if there were none.
class StoreSnapshot
{
public:
  StoreSnapshot();

  /// The name or EID of a device, empty for an index that there is not.
  std::string receiver(unsigned int rxIndex);
  std::string transmitter(unsigned int txIndex);
  std::string networkSwitch(unsigned int swxIndex);
  /// The name or EID of the switch at one of whose ports the device with that EID hangs, empty for none.
  std::string switchOf(const std::string &eid);

  /// The status of a device as one text for people, as Db::getRxOverallStatus() and its like give it.
  std::string overallStatus(const DeviceRecord &device);

  /// The record of an index, or null. It lives as long as this object, as those below do.
  const UserRecord *user(unsigned int userIndex);
  /// The first login at a receiver, or null.
  const UserSessionRecord *loginAt(unsigned int rxIndex);
  /// Whether somebody is logged in at a receiver.
  bool isUserAt(unsigned int rxIndex);
  /// The name of the user who is logged in at a receiver, empty for nobody.
  std::string userAt(unsigned int rxIndex);
  /// The first KVM session of a receiver or of a transmitter, or null.
  const ConnectionRecord *connectionOfReceiver(unsigned int rxIndex);
  const ConnectionRecord *connectionOfTransmitter(unsigned int txIndex);

private:
  struct Devices {
    RecordsOnce<DeviceName> records;
    RecordIndex<DeviceName> index;

    std::string nameOf(unsigned int device);
  };

  void readPorts();

  Devices receivers;
  Devices transmitters;
  Devices switches;
  RecordsOnce<UserRecord> users;
  RecordIndex<UserRecord> userIndex;
  RecordsOnce<UserSessionRecord> logins;
  RecordIndex<UserSessionRecord> loginByReceiver;
  RecordsOnce<ConnectionRecord> connections;
  RecordIndex<ConnectionRecord> connectionByReceiver;
  RecordIndex<ConnectionRecord> connectionByTransmitter;
  std::unordered_map<std::string, unsigned int> switchByEid;
  bool portsAreRead;
};

#endif // STORE_STORE_SNAPSHOT_H_
