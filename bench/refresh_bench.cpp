// SPDX-License-Identifier: MIT
// What one refresh of the long lists costs: the calls to the store that the Sessions and the Events tab make,
// on a switch of 1,000 devices with 500 sessions and 2,000 events in the history. Prints one JSON object:
// milliseconds of the calling thread's own time and, in "_wall", of waiting with it; medians.
#include "Db.h"
#include "Main.h"
#include "NevoSite.h"
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

// Times `refresh` after each `change`; returns the medians.
struct Times {
  double cpu;
  double wall;
};

Times timesOf(const std::function<void(int)> &change, const std::function<void()> &refresh)
{
  std::vector<double> cpu;
  std::vector<double> wall;
  for (int i = 0; i < kRefreshes; ++i) {
    change(i);
    const double cpuBefore = threadMs();
    const double wallBefore = wallMs();
    refresh();
    wall.push_back(wallMs() - wallBefore);
    cpu.push_back(threadMs() - cpuBefore);
  }
  return {median(cpu), median(wall)};
}

// The store as the changes between refreshes write to it.
class Switch
{
public:
  using Change = std::function<void(int)>;
  struct NamedChange {
    const char *name;
    Change change;
  };

  Switch() : store_(options())
  {
    // Nobody touches the page for longer than an administrator may be away.
    store_.set("systemGlobals", 0, "nevoInactivityTimeout", "0");
  }

  std::vector<NamedChange> sessionChanges()
  {
    return {{"unchanged", [](int) {}},
            {"one_renamed", [this](int i) { set("rx", "name", "Desk " + std::to_string(i)); }},
            {"every_resource_changed", [this](int i) { changeAll("Changed " + std::to_string(i)); }}};
  }
  std::vector<NamedChange> eventChanges()
  {
    return {{"unchanged", [](int) {}}, {"one_raised", [this](int) {
                                          store_.control({"alert", "FanFault"});
                                        }}};
  }

private:
  static TestStore::Options options()
  {
    TestStore::Options options;
    options.fleet = kDevices;
    options.more = {"--sessions", std::to_string(kDevices), "--alerts", "2000"};
    return options;
  }
  void set(const char *resource, const char *parameter, const std::string &value)
  {
    if (!store_.set(resource, 1, parameter, value))
      fail("the store refuses a change");
  }
  void changeAll(const std::string &name)
  {
    set("rx", "name", name);
    set("tx", "name", name);
    set("user", "fullName", name);
    set("userSession", "sessionStartTime", std::to_string(++time_));
    set("connection", "sessionStartTime", std::to_string(time_));
  }

  TestStore store_;
  unsigned time_ = 1000;
};

void measureCalls(const char *tab, const std::vector<Switch::NamedChange> &changes, std::size_t (*read)())
{
  read();
  for (const auto &[name, change] : changes) {
    const Times times = timesOf(change, [read] { read(); });
    std::printf("  \"%s_calls_%s_ms\": %.2f,\n  \"%s_calls_%s_wall_ms\": %.2f,\n", tab, name, times.cpu, tab,
                name, times.wall);
  }
}

// The page's tab of that name, refreshed by its timer.
void measureTab(NevoSite &site, Visitor &page, const char *title, const char *rowCount, const char *tab,
                const std::vector<Switch::NamedChange> &changes)
{
  page.click(title);
  if (!page.byAttribute("aria-rowcount", rowCount))
    fail("the tab does not show its list");
  page.advance(std::chrono::seconds(10));
  for (const auto &[name, change] : changes) {
    std::vector<double> bytes;
    const Times times = timesOf(
        [&, &change = change](int i) {
          // What the browser does with the last refresh is not the server's time.
          page.settle();
          if (i > 0)
            bytes.push_back(static_cast<double>(page.bytesReceived()));
          page.resetCounters();
          change(i);
        },
        [&site] { site.scheduler.advance(std::chrono::seconds(5)); });
    std::printf("  \"%s_tab_%s_ms\": %.2f,\n  \"%s_tab_%s_wall_ms\": %.2f,\n  \"%s_tab_%s_bytes\": %.0f,\n",
                tab, name, times.cpu, tab, name, times.wall, tab, name, median(bytes));
  }
}

void measureTabs(Switch &device)
{
  std::snprintf(Main_docRoot, sizeof Main_docRoot, "%s", NEVO_SOURCE_DIR);
  setenv("NEVO_ATTRIBUTES", NEVO_SOURCE_DIR "/tests/headless/attributes", 1);
  NevoSite site;
  Visitor page(site);
  page.open();
  page.logIn();
  measureTab(site, page, "Sessions", "501", "sessions", device.sessionChanges());
  measureTab(site, page, "Events", "2001", "events", device.eventChanges());
}

} // namespace

int main()
{
  Switch device;
  std::printf("{\n");
  {
    TestSession session;
    measureCalls("sessions", device.sessionChanges(), readSessions);
    measureCalls("events", device.eventChanges(), readEvents);
  }
  measureTabs(device);
  std::printf("  \"sessions\": %u\n}\n", kDevices);
}
