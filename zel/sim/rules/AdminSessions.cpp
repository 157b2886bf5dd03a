// SPDX-License-Identifier: MIT
#include "rules/AdminSessions.h"

#include <algorithm>
#include <cstdlib>

namespace zelsim
{

namespace
{

constexpr char kSessions[] = "adminSession";
constexpr std::int64_t kLingerSeconds = 10 * 60;
// A page that is watched reads every few seconds, and connects anew when it finds its connection gone.
constexpr std::int64_t kRenewalSeconds = 60;

bool isOver(const World &world, unsigned session, std::uint64_t client)
{
  return world.store.number(kSessions, session, "client") == static_cast<std::int64_t>(client);
}

bool isSomebodys(const World &world, std::uint64_t client)
{
  return world.store.findNumber(kSessions, "client", static_cast<std::int64_t>(client)) != 0;
}

// The connection that the session's person is likely to have made anew, or 0.
std::uint64_t renewedConnection(const World &world, unsigned session)
{
  const std::int64_t left = world.store.number(kSessions, session, "leftAt");
  const std::int64_t process = world.store.number(kSessions, session, "process");
  std::uint64_t best = 0;
  std::int64_t bestDistance = kRenewalSeconds + 1;
  for (const auto &[id, client] : world.clients) {
    const std::int64_t distance = client.since - left;
    if (client.process == process && distance >= -1 && distance < bestDistance && !isSomebodys(world, id)) {
      best = id;
      bestDistance = distance;
    }
  }
  return best;
}

void bind(World &world, unsigned session, std::uint64_t client, std::int64_t leftAt)
{
  world.store.setNumber(kSessions, session, "client", static_cast<std::int64_t>(client));
  world.store.setNumber(kSessions, session, "leftAt", leftAt);
}

void decide(World &world, unsigned session)
{
  // It may be another one by now, or have lost its connection once more: then this isn't its moment.
  const std::int64_t leftAt = world.store.number(kSessions, session, "leftAt");
  if (leftAt == 0 || leftAt + kLingerSeconds > world.clock.now() + 1)
    return;
  if (const std::uint64_t client = renewedConnection(world, session))
    bind(world, session, client, 0);
  else
    world.store.remove(kSessions, session);
}

void linger(World &world, unsigned session)
{
  const std::int64_t rest =
      world.store.number(kSessions, session, "leftAt") + kLingerSeconds - world.clock.now();
  world.clock.after(std::clamp<std::int64_t>(rest, 0, kLingerSeconds) * 1000,
                    [&world, session] { decide(world, session); });
}

} // namespace

void noteClient(World &world, std::uint64_t client, std::int64_t process)
{
  world.clients[client] = {process, world.clock.now()};
}

void noteClientGone(World &world, std::uint64_t client)
{
  world.clients.erase(client);
  for (const unsigned session : world.store.indexes(kSessions))
    if (isOver(world, session, client)) {
      bind(world, session, 0, world.clock.now());
      linger(world, session);
    }
}

void resumeAdminSessions(World &world)
{
  for (const unsigned session : world.store.indexes(kSessions)) {
    if (world.store.number(kSessions, session, "leftAt") == 0)
      bind(world, session, 0, world.clock.now());
    linger(world, session);
  }
}

void makeRoomForAdminSession(World &world)
{
  const Resource &resource = *findResource(kSessions);
  if (world.store.count(kSessions) < resource.capacity)
    return;
  // Whose connection is gone, before others; of these, who came first.
  const auto age = [&world](unsigned session) {
    return std::make_pair(world.store.number(kSessions, session, "leftAt") == 0,
                          world.store.number(kSessions, session, "sessionStartTime"));
  };
  const std::vector<unsigned> all = world.store.indexes(kSessions);
  world.store.remove(kSessions, *std::min_element(all.begin(), all.end(), [&age](unsigned a, unsigned b) {
                       return age(a) < age(b);
                     }));
}

} // namespace zelsim
