// SPDX-License-Identifier: MIT
#include "rules/Connections.h"

namespace zelsim
{

std::vector<Connection> connectionsOf(const World &world)
{
  const Resource &resource = *findResource("connection");
  const int rxAt = resource.position("rxIndex");
  const int txAt = resource.position("txIndex");
  const int modeAt = resource.position("mode");
  std::vector<Connection> all;
  all.reserve(world.store.records(resource).size());
  for (const auto &entry : world.store.records(resource)) {
    const auto number = [&](int position) {
      return static_cast<unsigned>(world.store.value(resource, entry.second, position).number());
    };
    const bool isPrivate = world.store.value(resource, entry.second, modeAt).text() == "private_mode";
    all.push_back({entry.first, number(rxAt), number(txAt), isPrivate});
  }
  return all;
}

} // namespace zelsim
