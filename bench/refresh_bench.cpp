// SPDX-License-Identifier: MIT
// What one refresh of the long lists costs: the calls to the store that the Sessions and the Events tab make,
// on a switch of 1,000 devices with 500 sessions and 2,000 events in the history. Prints one JSON object:
// milliseconds of the calling thread's own time and, in "_wall", of waiting with it; medians.
#include "Db.h"
#include "TestSession.h"
#include "TestStore.h"
#include "ZelReq.h"
#include "ZelRsp.h"
#include "ZelValue.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

namespace
{

constexpr unsigned kDevices = 500; // of each kind
constexpr int kRefreshes = 60;
constexpr const char *kAlertSelect = "\"date\",\"originatorEid\",\"severity\",\"alertMsg\"";

double threadMs()
{
  timespec now;
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double wallMs()
{
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

void fail(const char *problem)
{
  std::fprintf(stderr, "refresh_bench: %s\n", problem);
  std::exit(1);
}

double median(std::vector<double> &samples)
{
  std::sort(samples.begin(), samples.end());
  return samples[samples.size() / 2];
}

// Reads everything that a row of the Sessions list shows; the sum of the texts' lengths keeps it honest.
std::size_t readSessions()
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    fail("no client");
  const ZelResponse response(ZelReq_connectionRetrieve(client, nullptr));
  const int rows = ZelRspUtil_numEntries(response.get());
  if (rows != static_cast<int>(kDevices))
    fail("not all sessions are there");
  std::size_t size = 0;
  for (int i = 0; i < rows; ++i) {
    const json_t *row = ZelObj_getRow(response.get(), static_cast<unsigned>(i));
    Db::Errors errors;
    std::string user, rx, tx;
    Db_db.getLoggedInUsernameFromRxIndex(ZelRsp_connectionGetRxIndex(row), user, errors);
    Db_db.getRxNameOrEidFromRxIndex(ZelRsp_connectionGetRxIndex(row), rx, errors);
    Db_db.getTxNameOrEidFromTxIndex(ZelRsp_connectionGetTxIndex(row), tx, errors);
    size += user.size() + rx.size() + tx.size() + ZelRsp_connectionGetSessionStartTime(row);
    if (user.empty() || rx.empty() || tx.empty() || !errors.empty())
      fail("a session lacks a name");
  }
  return size;
}

std::size_t readAlerts(json_t *answer, int fewest)
{
  const ZelResponse response(answer);
  const int rows = ZelRspUtil_numEntries(response.get());
  if (rows < fewest)
    fail("not all events are there");
  std::size_t size = 0;
  for (int i = 0; i < rows; ++i) {
    const auto row = static_cast<unsigned>(i);
    size += static_cast<std::size_t>(ZelRspUtil_getIndexedIntegerParam(response.get(), row, "instanceId"));
    size += static_cast<std::size_t>(ZelRspUtil_getIndexedIntegerParam(response.get(), row, "date"));
    for (const char *name : {"severity", "originatorEid", "alertMsg"})
      size += std::string(ZelRspUtil_getIndexedStringParam(response.get(), row, name)).size();
  }
  return size;
}

std::size_t readEvents()
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    fail("no client");
  return readAlerts(ZelReq_unacknowledgedAlertsRetrieve(client, kAlertSelect), 100) +
         readAlerts(ZelReq_historicalAlertsRetrieve(client, kAlertSelect), 2000);
}

void measure(const char *name, const std::function<void(int)> &change,
             const std::function<std::size_t()> &refresh)
{
  std::vector<double> cpu;
  std::vector<double> wall;
  refresh();
  refresh();
  for (int i = 0; i < kRefreshes; ++i) {
    change(i);
    const double cpuBefore = threadMs();
    const double wallBefore = wallMs();
    refresh();
    wall.push_back(wallMs() - wallBefore);
    cpu.push_back(threadMs() - cpuBefore);
  }
  std::printf("  \"%s_ms\": %.2f,\n  \"%s_wall_ms\": %.2f,\n", name, median(cpu), name, median(wall));
}

} // namespace

int main()
{
  TestStore::Options options;
  options.fleet = kDevices;
  options.more = {"--sessions", std::to_string(kDevices), "--alerts", "2000"};
  TestStore store(options);
  TestSession session;
  auto set = [&store](const char *resource, const char *parameter, const std::string &value) {
    if (!store.set(resource, 1, parameter, value))
      fail("the store refuses a change");
  };
  auto nothing = [](int) {};
  std::printf("{\n");
  measure("sessions_unchanged", nothing, readSessions);
  measure(
      "sessions_one_renamed", [&](int i) { set("rx", "name", "Desk " + std::to_string(i)); }, readSessions);
  auto changeAll = [&](int i) {
    const std::string name = "Changed " + std::to_string(i);
    set("rx", "name", name);
    set("tx", "name", name);
    set("user", "fullName", name);
    set("userSession", "sessionStartTime", std::to_string(1000 + i));
    set("connection", "sessionStartTime", std::to_string(1000 + i));
  };
  measure("sessions_everything_changed", changeAll, readSessions);
  measure("events_unchanged", nothing, readEvents);
  measure(
      "events_one_raised",
      [&](int) {
        store.control({"alert", "FanFault"});
      },
      readEvents);
  std::printf("  \"sessions\": %u\n}\n", kDevices);
}
