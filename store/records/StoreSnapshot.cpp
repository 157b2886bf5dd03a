// SPDX-License-Identifier: MIT
#include "StoreSnapshot.h"

#include "Convert.h"
#include "OverallStatus.h"
#include "PortRecord.h"

namespace
{

template <Info_DeviceType Type> std::optional<std::vector<DeviceName>> readDevices()
{
  return DeviceName::readAll(Type);
}

} // namespace

StoreSnapshot::StoreSnapshot()
    : receivers{RecordsOnce<DeviceName>(readDevices<Info_DeviceType_Rx>), RecordIndex(&DeviceName::index)},
      transmitters{RecordsOnce<DeviceName>(readDevices<Info_DeviceType_Tx>), RecordIndex(&DeviceName::index)},
      switches{RecordsOnce<DeviceName>(readDevices<Info_DeviceType_Swx>), RecordIndex(&DeviceName::index)},
      users(UserRecord::readAll), userIndex(&UserRecord::index), logins(UserSessionRecord::readAll),
      loginByReceiver(&UserSessionRecord::rxIndex), connections(ConnectionRecord::readSelected),
      connectionByReceiver(&ConnectionRecord::rxIndex), connectionByTransmitter(&ConnectionRecord::txIndex),
      portsAreRead(false)
{
}

std::string StoreSnapshot::Devices::nameOf(unsigned int device)
{
  const DeviceName *found = index.find(records.all(), device);
  return found ? found->nameOrEid() : std::string();
}

std::string StoreSnapshot::receiver(unsigned int rxIndex)
{
  return receivers.nameOf(rxIndex);
}

std::string StoreSnapshot::transmitter(unsigned int txIndex)
{
  return transmitters.nameOf(txIndex);
}

std::string StoreSnapshot::networkSwitch(unsigned int swxIndex)
{
  return switches.nameOf(swxIndex);
}

std::string StoreSnapshot::switchOf(const std::string &eid)
{
  if (!portsAreRead)
    readPorts();
  const auto found = switchByEid.find(eid);
  return found == switchByEid.end() ? std::string() : networkSwitch(found->second);
}

void StoreSnapshot::readPorts()
{
  portsAreRead = true;
  for (const DeviceName &one : switches.records.all())
    for (const PortRecord &port : PortRecord::readOfSwitch(one.index).value_or(std::vector<PortRecord>()))
      if (!port.eid.empty())
        switchByEid.emplace(port.eid, one.index);
}

std::string StoreSnapshot::overallStatus(const DeviceRecord &device)
{
  const auto upgradeStatus = Convert_deviceUpgradeStatusStringToEnum(device.upgradeStatus.c_str());
  if (device.type == Info_DeviceType_Swx)
    return OverallStatus_ofSwitch(Convert_swxStatusStringToEnum(device.status.c_str()), upgradeStatus,
                                  Convert_swxUsageStringToEnum(device.usage.c_str()));
  DeviceState state;
  state.status = Convert_deviceStatusStringToEnum(device.status.c_str());
  state.upgradeStatus = upgradeStatus;
  state.usage = Convert_deviceUsageStringToEnum(device.usage.c_str());
  state.upgradePercent = device.upgradePercent;
  if (device.type == Info_DeviceType_Rx)
    return OverallStatus_ofReceiver(state, isUserAt(device.index));
  const ConnectionRecord *connection = connectionOfTransmitter(device.index);
  return OverallStatus_ofTransmitter(state, connection != nullptr,
                                     connection ? connection->mode : static_cast<Info_ConnectionMode>(0));
}

const UserRecord *StoreSnapshot::user(unsigned int index)
{
  return userIndex.find(users.all(), index);
}

const UserSessionRecord *StoreSnapshot::loginAt(unsigned int rxIndex)
{
  return loginByReceiver.find(logins.all(), rxIndex);
}

bool StoreSnapshot::isUserAt(unsigned int rxIndex)
{
  const UserSessionRecord *login = loginAt(rxIndex);
  return login && login->userIndex != 0;
}

std::string StoreSnapshot::userAt(unsigned int rxIndex)
{
  const UserSessionRecord *login = loginAt(rxIndex);
  const UserRecord *found = login ? user(login->userIndex) : nullptr;
  return found ? found->shownName() : std::string();
}

const ConnectionRecord *StoreSnapshot::connectionOfReceiver(unsigned int rxIndex)
{
  return connectionByReceiver.find(connections.all(), rxIndex);
}

const ConnectionRecord *StoreSnapshot::connectionOfTransmitter(unsigned int txIndex)
{
  return connectionByTransmitter.find(connections.all(), txIndex);
}
