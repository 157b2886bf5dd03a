// SPDX-License-Identifier: MIT
#include "Db.h"
#include "ZelReq.h"
#include "ZelValue.h"

namespace
{

constexpr unsigned int kLastSwitch = 50; // the most switches that a system has

// Searches the ports of one switch for a device. Returns 1 if they can't be read.
unsigned int findPort(ZelClient_s *client, unsigned int swxNumber, const std::string &eid, bool &found,
                      unsigned int &swxIndex, unsigned int &portIndex)
{
  const ZelResponse response(ZelReq_portStatusRetrieveByIndex(client, swxNumber));
  if (!response)
    return 1;
  const ZelObject ports(ZelObj_collapse(response.get(), "swxIndex", "ports"));
  if (!ports)
    return 1;
  const int rows = ZelRspUtil_numEntries(ports.get());
  for (int i = 0; i < rows; ++i) {
    const auto row = static_cast<unsigned int>(i);
    const char *portEid = ZelRspUtil_getIndexedStringParam(ports.get(), row, "eid");
    if (!portEid || eid != portEid)
      continue;
    portIndex = static_cast<unsigned int>(ZelRspUtil_getIndexedIntegerParam(ports.get(), row, "portIndex"));
    swxIndex = static_cast<unsigned int>(ZelRspUtil_getIntegerParam(response.get(), "swxIndex"));
    found = true;
    return 0;
  }
  return 0;
}

unsigned int findDevice(const char *resource, unsigned int index, unsigned int &swxIndex,
                        unsigned int &portIndex, Db::Errors &errors)
{
  std::string eid;
  ZelClient_s *client = nullptr;
  if (Db_db.readString(resource, index, "eid", eid, errors) || Db_db.getZelClient(client))
    return 1;
  bool found = false;
  for (unsigned int number = 1; number <= kLastSwitch && !found; ++number) {
    if (findPort(client, number, eid, found, swxIndex, portIndex))
      return 1;
  }
  return 0;
}

unsigned int switchName(unsigned int swxIndex, std::string &name, Db::Errors &errors)
{
  return Db_db.readString("swx", swxIndex, "name", name, errors);
}

unsigned int switchNameOrEid(unsigned int swxIndex, std::string &name, Db::Errors &errors)
{
  return Db_db.getSwxNameOrEidFromSwxIndex(swxIndex, name, errors);
}

// The name of the switch that a device hangs at, as `nameOf` has it.
unsigned int nameOfSwitchOf(const char *resource, unsigned int index,
                            unsigned int (*nameOf)(unsigned int, std::string &, Db::Errors &),
                            std::string &name, Db::Errors &errors)
{
  unsigned int swxIndex = 0;
  unsigned int portIndex = 0;
  if (findDevice(resource, index, swxIndex, portIndex, errors))
    return 1;
  // A device on no port hangs at no switch. The store would take the index 0 for all switches and tell the
  // first.
  if (swxIndex == 0) {
    name.clear();
    return 0;
  }
  return nameOf(swxIndex, name, errors);
}

} // namespace

unsigned int Db::getSwxIndexAndPortIndexFromTxIndex(unsigned int txIndex, unsigned int &swxIndex,
                                                    unsigned int &portIndex, Errors &errors)
{
  return findDevice("tx", txIndex, swxIndex, portIndex, errors);
}

unsigned int Db::getSwxIndexAndPortIndexFromRxIndex(unsigned int rxIndex, unsigned int &swxIndex,
                                                    unsigned int &portIndex, Errors &errors)
{
  return findDevice("rx", rxIndex, swxIndex, portIndex, errors);
}

unsigned int Db::getSwxNameOrEidFromTxIndex(unsigned int txIndex, std::string &name, Errors &errors)
{
  return nameOfSwitchOf("tx", txIndex, switchNameOrEid, name, errors);
}

unsigned int Db::getSwxNameOrEidFromRxIndex(unsigned int rxIndex, std::string &name, Errors &errors)
{
  return nameOfSwitchOf("rx", rxIndex, switchNameOrEid, name, errors);
}

unsigned int Db::getSwxNameFromTxIndex(unsigned int txIndex, std::string &name, Errors &errors)
{
  return nameOfSwitchOf("tx", txIndex, switchName, name, errors);
}

unsigned int Db::getSwxNameFromRxIndex(unsigned int rxIndex, std::string &name, Errors &errors)
{
  return nameOfSwitchOf("rx", rxIndex, switchName, name, errors);
}

bool Db::slaveSwxIsInSet(const Indexes &swxIndexes, Errors &errors)
{
  std::string mode;
  // Masters and slaves together merge to an empty text.
  return readStringMerge("swx", swxIndexes, "mode", mode, errors) == 0 && mode != "master";
}
