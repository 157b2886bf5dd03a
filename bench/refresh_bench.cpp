// SPDX-License-Identifier: MIT
// What one refresh of the long lists costs: the calls to the store that the Sessions and the Events tab make,
// on a switch of 1,000 devices with 500 sessions and 2,000 events in the history; and those of a list of all
// devices on a switch of 5,000. Prints one JSON object:
// milliseconds of the calling thread's own time and, in "_wall", of waiting with it; medians.
#include "AlertRecord.h"
#include "Main.h"
#include "NevoSite.h"
#include "SessionRecord.h"
#include "StoreSnapshot.h"
#include "TestSession.h"
#include "TestStore.h"

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
constexpr unsigned kManyDevices = 2500; // of each kind, for the list of devices

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

// Reads everything that the Sessions list shows; the sum of the texts' lengths keeps it honest.
std::size_t readSessions()
{
  const auto sessions = SessionRecord::readConnections();
  if (!sessions || sessions->size() != kDevices)
    fail("not all sessions are there");
  std::size_t size = 0;
  for (const SessionRecord &session : *sessions) {
    size += session.user.size() + session.receiver.size() + session.transmitter.size() + session.startTime;
    if (session.user.empty() || session.receiver.empty() || session.transmitter.empty())
      fail("a session lacks a name");
  }
  return size;
}

std::size_t sizeOf(const std::optional<std::vector<AlertRecord>> &alerts, std::size_t fewest)
{
  if (!alerts || alerts->size() < fewest)
    fail("not all events are there");
  std::size_t size = 0;
  for (const AlertRecord &alert : *alerts)
    size += alert.instanceId + static_cast<std::size_t>(alert.date) + alert.severity.size() +
            alert.originatorEid.value_or("").size() + alert.message.size();
  return size;
}

std::size_t readEvents()
{
  return sizeOf(AlertRecord::readUnacknowledged(), 100) + sizeOf(AlertRecord::readHistory(), 2000);
}

// Reads everything that a list of all devices shows.
std::size_t readDevices()
{
  StoreSnapshot snapshot;
  std::size_t size = 0;
  for (const Info_DeviceType type : {Info_DeviceType_Tx, Info_DeviceType_Rx, Info_DeviceType_Swx}) {
    const auto devices = DeviceRecord::readAll(type);
    if (!devices || (type != Info_DeviceType_Swx && devices->size() != kManyDevices))
      fail("not all devices are there");
    for (const DeviceRecord &device : *devices)
      size += device.eid.size() + device.name.size() + device.detailedType.size() +
              device.firmwareVersion.size() + snapshot.overallStatus(device).size();
  }
  return size;
}

// Finds the switch that each device hangs at, as the lists to choose devices from show it.
std::size_t readSwitchesOfDevices()
{
  StoreSnapshot snapshot;
  std::size_t size = 0;
  for (const Info_DeviceType type : {Info_DeviceType_Tx, Info_DeviceType_Rx})
    for (const DeviceName &device : DeviceName::readAll(type).value_or(std::vector<DeviceName>()))
      size += snapshot.switchOf(device.eid).size();
  if (size == 0)
    fail("no device hangs at a switch");
  return size;
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

// A switch, as the changes between refreshes write to it.
class Switch
{
public:
  using Change = std::function<void(int)>;
  struct NamedChange {
    const char *name;
    Change change;
  };

  Switch(unsigned devices, std::vector<std::string> more) : store_(options(devices, std::move(more)))
  {
    // Nobody touches the page for longer than an administrator may be away.
    store_.set("systemGlobals", 0, "nevoInactivityTimeout", "0");
  }

  std::vector<NamedChange> sessionChanges()
  {
    return {unchanged(), renamed(), {"every_resource_changed", [this](int i) {
                                       changeAll("Changed " + std::to_string(i));
                                     }}};
  }
  std::vector<NamedChange> eventChanges()
  {
    return {unchanged(), {"one_raised", [this](int) { store_.control({"alert", "FanFault"}); }}};
  }
  std::vector<NamedChange> deviceChanges() { return {unchanged(), renamed()}; }

private:
  static TestStore::Options options(unsigned devices, std::vector<std::string> more)
  {
    TestStore::Options options;
    options.fleet = devices;
    options.more = std::move(more);
    return options;
  }
  static NamedChange unchanged()
  {
    return {"unchanged", [](int) {}};
  }
  NamedChange renamed()
  {
    return {"one_renamed", [this](int i) { set("rx", "name", "Desk " + std::to_string(i)); }};
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

void measureManyDevices()
{
  Switch device(kManyDevices, {});
  TestSession session;
  measureCalls("devices_5000", device.deviceChanges(), readDevices);
  measureCalls("switches_of_devices_5000", device.deviceChanges(), readSwitchesOfDevices);
}

} // namespace

int main()
{
  std::printf("{\n");
  measureManyDevices();
  Switch device(kDevices, {"--sessions", std::to_string(kDevices), "--alerts", "2000"});
  {
    TestSession session;
    measureCalls("sessions", device.sessionChanges(), readSessions);
    measureCalls("events", device.eventChanges(), readEvents);
  }
  measureTabs(device);
  std::printf("  \"sessions\": %u\n}\n", kDevices);
}
