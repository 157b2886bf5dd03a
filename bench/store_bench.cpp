// SPDX-License-Identifier: MIT
// Times of the store as the interface meets it, through the client library, against a zelsim of its own.
// Prints one JSON object: microseconds, milliseconds, writes per second, megabytes.
#include "TestStore.h"
#include "ZelClient.h"
#include "ZelObj.h"
#include "ZelReq.h"
#include "ZelReqUtil.h"
#include "ZelRspUtil.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace
{

using Time = std::chrono::steady_clock::time_point;

struct ClientCloser {
  void operator()(ZelClient_s *client) const { ZelClient_close(client); }
};
using Client = std::unique_ptr<ZelClient_s, ClientCloser>;

constexpr const char *kSixParameters =
    "[\"index\",\"eid\",\"name\",\"status\",\"firmwareVersion\",\"detailedDeviceType\"]";

double micros(Time since)
{
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - since).count();
}

double at(std::vector<double> &samples, double share)
{
  std::sort(samples.begin(), samples.end());
  return samples[static_cast<std::size_t>(static_cast<double>(samples.size() - 1) * share)];
}

bool succeeded(json_t *response)
{
  return response && !ZelRspUtil_getObjectParam(response, "errors");
}

bool readOne(ZelClient_s *client, const char *resource, unsigned index, const char *parameter)
{
  json_t *request = ZelReqUtil_newGetResource(resource);
  ZelObj_setUInt32Object(request, "query", "index", index);
  ZelObj_setSelect(request, parameter);
  json_t *response = ZelClient_getResponse(client, request);
  bool good = succeeded(response) && ZelRspUtil_getObjectParam(response, parameter);
  ZelReqUtil_free(request);
  ZelRspUtil_free(response);
  return good;
}

bool writeOne(ZelClient_s *client, unsigned index, unsigned number)
{
  json_t *request = ZelReqUtil_newSetResource("rx");
  ZelReqUtil_setIntegerParam(request, "index", index);
  ZelReqUtil_setStringParam(request, "description", std::to_string(number).c_str());
  json_t *response = ZelReqUtil_submit(request, client);
  bool good = succeeded(response);
  ZelReqUtil_free(request);
  ZelRspUtil_free(response);
  return good;
}

int readList(ZelClient_s *client)
{
  json_t *response = ZelReq_rxRetrieve(client, kSixParameters);
  int rows = ZelRspUtil_numEntries(response);
  ZelRspUtil_free(response);
  return rows;
}

// Resident megabytes of a process.
double residentMb(pid_t pid)
{
  std::ifstream status("/proc/" + std::to_string(pid) + "/status");
  std::string word;
  double kilobytes = 0;
  while (status >> word)
    if (word == "VmRSS:")
      status >> kilobytes;
  return kilobytes / 1024;
}

void measureReadsOf(ZelClient_s *client, const char *figure, const char *resource, unsigned records,
                    const char *parameter)
{
  std::vector<double> samples;
  for (unsigned i = 0; i < 21000; ++i) {
    Time start = std::chrono::steady_clock::now();
    if (!readOne(client, resource, 1 + i % records, parameter))
      std::fprintf(stderr, "store_bench: a read failed\n");
    if (i >= 1000)
      samples.push_back(micros(start));
  }
  std::printf("  \"%s_median_us\": %.1f,\n  \"%s_p99_us\": %.1f,\n", figure, at(samples, 0.5), figure,
              at(samples, 0.99));
}

// What the client holds and sees to be right, and what it has to ask for each time since it is computed.
void measureReads(ZelClient_s *client)
{
  measureReadsOf(client, "read_one", "rx", 16, "name");
  measureReadsOf(client, "read_one_asked", "swx", 1, "currentSysTime");
}

void measureLists(ZelClient_s *client)
{
  std::vector<double> changed;
  std::vector<double> unchanged;
  int rows = 0;
  for (unsigned i = 0; i < 200; ++i) {
    writeOne(client, 1 + i % 100, i + 1000);
    Time start = std::chrono::steady_clock::now();
    rows = readList(client);
    changed.push_back(micros(start));
    for (int again = 0; again < 20; ++again) {
      start = std::chrono::steady_clock::now();
      readList(client);
      unchanged.push_back(micros(start));
    }
  }
  std::printf(
      "  \"list_rows\": %d,\n  \"list_changed_median_ms\": %.3f,\n  \"list_unchanged_median_us\": %.1f,\n",
      rows, at(changed, 0.5) / 1000, at(unchanged, 0.5));
}

void measureWrites(unsigned clients, unsigned writesEach)
{
  std::vector<std::vector<double>> samples(clients);
  std::vector<std::thread> threads;
  std::atomic<unsigned> failures{0};
  Time start = std::chrono::steady_clock::now();
  for (unsigned c = 0; c < clients; ++c)
    threads.emplace_back([&samples, &failures, c, writesEach] {
      Client client(ZelClient_new());
      for (unsigned i = 0; i < writesEach; ++i) {
        Time sent = std::chrono::steady_clock::now();
        if (!writeOne(client.get(), c + 1, i))
          ++failures;
        samples[c].push_back(micros(sent));
      }
    });
  for (std::thread &thread : threads)
    thread.join();
  double seconds = micros(start) / 1e6;
  std::vector<double> all;
  for (const auto &some : samples)
    all.insert(all.end(), some.begin(), some.end());
  std::printf("  \"write_clients\": %u,\n  \"write_failures\": %u,\n  \"writes_per_second\": %.0f,\n"
              "  \"write_ack_median_ms\": %.2f,\n  \"write_ack_p99_ms\": %.2f,\n",
              clients, failures.load(), clients * writesEach / seconds, at(all, 0.5) / 1000,
              at(all, 0.99) / 1000);
}

// A read of every receiver by its index, as a view does that shows thousands of selected ones. Milliseconds.
double readIndexes(ZelClient_s *client, const char *resource, const std::vector<const char *> &select,
                   unsigned count)
{
  json_t *request = ZelReqUtil_newGetResource(resource);
  json_t *indexes = json_array();
  for (unsigned index = 1; index <= count; ++index)
    json_array_append_new(indexes, json_integer(index));
  json_object_set_new(request, "query", json_pack("{s:o}", "index", indexes));
  for (const char *parameter : select)
    ZelObj_setSelect(request, parameter);
  const Time start = std::chrono::steady_clock::now();
  json_t *response = ZelReqUtil_submit(request, client);
  const double time = micros(start) / 1000;
  if (ZelRspUtil_numEntries(response) != static_cast<int>(count))
    std::fprintf(stderr, "store_bench: a read of %s has too few rows\n", resource);
  ZelReqUtil_free(request);
  ZelRspUtil_free(response);
  return time;
}

struct IndexRead {
  const char *figure;
  const char *resource;
  std::vector<const char *> select;
};

const std::vector<IndexRead> &indexReads()
{
  static const std::vector<IndexRead> reads = {
      {"names", "rx", {"name"}},
      {"timings", "rx", {"inputVideoTiming", "outputVideoTiming", "monPrefVideoTiming"}},
      {"usb_state", "rxUsbDiag", {}}};
  return reads;
}

void measureIndexReads(ZelClient_s *client, unsigned fleet)
{
  for (const IndexRead &read : indexReads()) {
    std::vector<double> samples;
    for (unsigned i = 0; i < 11; ++i) {
      writeOne(client, 1, 5000 + i); // what the client holds of receivers is not right any more
      samples.push_back(readIndexes(client, read.resource, read.select, fleet));
    }
    std::printf("  \"read_%u_%s_median_ms\": %.1f,\n", fleet, read.figure, at(samples, 0.5));
  }
}

// One SET for each record, one after the other, as saving the settings of a selection does.
void measureBulkWrites(ZelClient_s *client, unsigned fleet)
{
  std::vector<double> samples;
  for (unsigned index = 1; index <= fleet; ++index) {
    const Time start = std::chrono::steady_clock::now();
    writeOne(client, index, index + 9000);
    samples.push_back(micros(start) / 1000);
  }
  std::printf("  \"bulk_set_median_ms\": %.3f,\n  \"bulk_set_p99_ms\": %.3f,\n", at(samples, 0.5),
              at(samples, 0.99));
}

// How long somebody who asks for one value waits while others read and reset thousands of devices.
void measureWaiting(unsigned fleet)
{
  std::atomic<bool> busy{true};
  std::thread others([&busy, fleet] {
    Client client(ZelClient_new());
    for (unsigned i = 0; i < 5; ++i)
      for (const IndexRead &read : indexReads())
        readIndexes(client.get(), read.resource, read.select, fleet);
    for (unsigned index = 1; index <= fleet; ++index) {
      json_t *request = ZelReqUtil_newSetResource("rx");
      ZelReqUtil_setIntegerParam(request, "index", index);
      ZelReqUtil_setStringParam(request, "reset", "cold_reboot");
      ZelRspUtil_free(ZelReqUtil_submit(request, client.get()));
      ZelReqUtil_free(request);
    }
    std::this_thread::sleep_for(std::chrono::seconds(7)); // until they are back
    busy = false;
  });
  Client client(ZelClient_new());
  std::vector<double> samples;
  while (busy) {
    const Time start = std::chrono::steady_clock::now();
    readOne(client.get(), "swx", 1, "currentSysTime");
    samples.push_back(micros(start) / 1000);
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  others.join();
  std::printf("  \"wait_beside_bulk_p99_ms\": %.1f,\n  \"wait_beside_bulk_most_ms\": %.1f,\n",
              at(samples, 0.99), at(samples, 1));
}

void saveAndLoad(ZelClient_s *client, const std::string &folder)
{
  for (const char *action : {"zip", "unzip"}) {
    json_t *request = ZelReqUtil_newSetResource("swxControl");
    ZelReqUtil_setIntegerParam(request, "index", 1);
    ZelReqUtil_setStringParam(request, "settingsAction", action);
    ZelReqUtil_setStringParam(request, "settingsFilename", (folder + "/settings.tar.gz").c_str());
    ZelReqUtil_setStringParam(request, "settingsPassword", "");
    json_t *response = ZelReqUtil_submit(request, client);
    if (!succeeded(response))
      std::fprintf(stderr, "store_bench: %s failed\n", action);
    ZelReqUtil_free(request);
    ZelRspUtil_free(response);
  }
}

void measureFleet(unsigned fleet)
{
  TestStore::Options options;
  options.fleet = fleet;
  const Time start = std::chrono::steady_clock::now();
  TestStore store(options);
  const double seconds = micros(start) / 1e6;
  Client client(ZelClient_new());
  readList(client.get());
  std::printf("  \"fleet_devices\": %u,\n  \"fleet_start_s\": %.2f,\n  \"resident_fleet_mb\": %.1f,\n",
              2 * fleet, seconds, residentMb(store.pid()));
  measureIndexReads(client.get(), fleet);
  measureBulkWrites(client.get(), fleet);
  measureWaiting(fleet);
  saveAndLoad(client.get(), store.settingsDirectory());
  std::printf("  \"resident_after_save_and_load_mb\": %.1f\n", residentMb(store.pid()));
}

} // namespace

int main()
{
  std::printf("{\n");
  {
    TestStore store;
    Client client(ZelClient_new());
    std::printf("  \"resident_lab_mb\": %.1f,\n", residentMb(store.pid()));
    measureReads(client.get());
    measureWrites(16, 250);
  }
  {
    TestStore::Options options;
    options.fleet = 500;
    TestStore store(options);
    Client client(ZelClient_new());
    measureLists(client.get());
  }
  measureFleet(2500);
  std::printf("}\n");
}
