// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_PORTS_H_
#define ZEL_SIM_RULES_PORTS_H_

#include "rules/Device.h"

namespace zelsim
{

/// Every slave switch is joined to this switch by so many links, each of which carries one session.
constexpr unsigned kLinksPerSlave = 8;

/// "portStatus" has this many records, whether or not there is a switch of the number: who looks for a
/// device asks for all of them.
constexpr unsigned kPortStatusRecords = 50;

/// Makes the "portStatus" records and fills them all.
void makePortStatus(World &world);

/// Brings the port list of one switch up to date. A number without a switch gets an empty list.
void refreshPorts(World &world, unsigned swxIndex);

/// The same for the switch that a receiver or transmitter is attached to; for a switch, its own ports.
void refreshPortsOf(World &world, const Device &device);

} // namespace zelsim

#endif // ZEL_SIM_RULES_PORTS_H_
