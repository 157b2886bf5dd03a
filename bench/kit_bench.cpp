// SPDX-License-Identifier: MIT
// What it costs the server to show the settings of many selected records: a table of sixteen fields that one
// request reads, over fifty receivers of a zelsim of its own, which agree in all but their names and EIDs.
// Prints one JSON object: milliseconds from the call until the fields are set.
#include "ClientSession.h"
#include "Db.h"
#include "TestStore.h"
#include "WCheckBoxZel.h"
#include "WComboBoxZel.h"
#include "WSettingsTable.h"
#include "WTextZel.h"
#include "ZelValue.h"

#include <Wt/Test/WTestEnvironment>
#include <Wt/WApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <numeric>
#include <vector>

namespace
{

constexpr unsigned kRecords = 50;
constexpr int kReads = 400;

constexpr WComboBoxPlus::Triplet kModes[] = {{"share_mode", "Shared", 1}, {"private_mode", "Private", 2}};
constexpr WComboBoxPlus::Triplet kAccess[] = {
    {"share_mode", "Shared", 1}, {"private_mode", "Private", 2}, {"share_or_private_mode", "Either", 3}};
constexpr WComboBoxPlus::Triplet kUsb[] = {{"disabled", "None", 1}, {"all_devices", "All", 4}};
constexpr WComboBoxPlus::Triplet kLevels[] = {{"none", "None", 0}, {"info", "Some", 1}, {"debug", "All", 2}};

constexpr const char *kTexts[] = {"location", "description", "notes"};

class Table : public WSettingsTable
{
public:
  Table() : WSettingsTable("rx", ReadsAtOnce, {"Setting", "Value"})
  {
    for (const char *param : {"name", "location", "description"})
      add<WLineEditZel>(param, param, "");
    add<WTextAreaZel>("notes", "notes", "");
    for (const char *param : {"sessionInactivityTimeout", "sharingInactivityTimeout", "autoLoginUserIndex"})
      add<WLineEditUInt32Zel>(param, param, "");
    addCombo("autoConnectMode", kModes, 2);
    addCombo("modeAllowed", kAccess, 3);
    addCombo("usbMode", kUsb, 2);
    addCombo("usbLogLevel", kLevels, 3);
    for (const char *param : {"audioControl", "autoConnectControl", "microphoneControl", "videoScaling"})
      add<WCheckBoxZel>(param, param, "");
    addReadOnly<WTextZel>("eid", "eid");
  }

private:
  void addCombo(const char *param, const WComboBoxPlus::Triplet *table, int count)
  {
    addField(param, new WComboBoxZel("rx", param, true, table, count), "", param);
  }
};

class Application : public Wt::WApplication, public ClientSession
{
public:
  explicit Application(const Wt::WEnvironment &environment) : Wt::WApplication(environment) {}
  ~Application() override { root()->clear(); }
};

// So that no field can stop at a difference.
bool makeAlike(unsigned index)
{
  std::vector<std::string> errors;
  bool failed = false;
  for (const char *param : kTexts)
    failed = Db_db.writeString("rx", index, param, "the same in all of them", errors) != 0 || failed;
  failed = Db_db.writeString("rx", index, "modeAllowed", "share_or_private_mode", errors) != 0 || failed;
  return !failed;
}

struct Times {
  double median;
  double highest;
};

// `touch` runs before each read, outside of the measured time.
template <class Touch> Times measure(Table &table, const std::vector<unsigned int> &indexes, Touch touch)
{
  std::vector<double> samples;
  for (int i = 0; i < kReads; ++i) {
    touch(i);
    const auto start = std::chrono::steady_clock::now();
    table.readFromDatabase(indexes, true);
    samples.push_back(
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
  }
  std::sort(samples.begin(), samples.end());
  return {samples[samples.size() / 2], samples[samples.size() * 99 / 100]};
}

} // namespace

int main()
{
  TestStore::Options options;
  options.fleet = kRecords;
  const TestStore store(options);
  Wt::Test::WTestEnvironment environment;
  Application application(environment);
  Table *table = new Table();
  application.root()->addWidget(table);
  std::vector<unsigned int> indexes(kRecords);
  std::iota(indexes.begin(), indexes.end(), 1U);
  if (!std::all_of(indexes.begin(), indexes.end(), makeAlike)) {
    std::fprintf(stderr, "kit_bench: a write failed\n");
    return 1;
  }
  const Times unchanged = measure(*table, indexes, [](int) {});
  const Times changed = measure(
      *table, indexes, [&store](int i) { store.set("rx", 1, "name", "Renamed " + std::to_string(i)); });
  std::printf("{\n  \"fields\": 16,\n  \"records\": %u,\n  \"bulk_read_median_ms\": %.3f,\n"
              "  \"bulk_read_p99_ms\": %.3f,\n  \"bulk_read_unchanged_median_ms\": %.3f,\n"
              "  \"bulk_read_unchanged_p99_ms\": %.3f\n}\n",
              kRecords, changed.median, changed.highest, unchanged.median, unchanged.highest);
}
