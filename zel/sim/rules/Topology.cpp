// SPDX-License-Identifier: MIT
#include "rules/Topology.h"

#include "rules/Connections.h"
#include "rules/Ports.h"

namespace zelsim
{

namespace
{

unsigned placeOf(const World &world, const char *resource, unsigned index)
{
  return static_cast<unsigned>(world.store.number(resource, index, "attachedSwx"));
}

} // namespace

unsigned linksInUse(const World &world, unsigned swxIndex)
{
  unsigned links = 0;
  for (const Connection &connection : connectionsOf(world)) {
    const unsigned rxSwx = placeOf(world, "rx", connection.rx), txSwx = placeOf(world, "tx", connection.tx);
    if (rxSwx != txSwx && (rxSwx == swxIndex || txSwx == swxIndex))
      ++links;
  }
  return links;
}

Problem pathBetween(const World &world, unsigned rxIndex, unsigned txIndex)
{
  const unsigned ends[] = {placeOf(world, "rx", rxIndex), placeOf(world, "tx", txIndex)};
  if (!ends[0] || !ends[1] || world.store.text("rx", rxIndex, "usage") != "usable" ||
      world.store.text("tx", txIndex, "usage") != "usable")
    return kTopologyError;
  for (const unsigned swx : ends)
    if (world.store.text("swx", swx, "status") != "ready")
      return kNoPath;
  if (ends[0] == ends[1])
    return kOk;
  for (const unsigned swx : ends)
    if (swx != 1 && linksInUse(world, swx) >= kLinksPerSlave)
      return kNoPath;
  return kOk;
}

} // namespace zelsim
