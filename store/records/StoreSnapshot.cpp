// SPDX-License-Identifier: MIT
#include "StoreSnapshot.h"

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
      connectionByReceiver(&ConnectionRecord::rxIndex), connectionByTransmitter(&ConnectionRecord::txIndex)
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
