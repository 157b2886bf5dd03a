// SPDX-License-Identifier: MIT
// Bound widgets over one to fifty records of a live store, at random, against a model of what they should
// show and of what the store should hold.
#include "BoundPage.h"
#include "Db.h"
#include "TestStore.h"
#include "WAnchorZel.h"
#include "WCheckBoxZel.h"
#include "WComboBoxZel.h"
#include "WLineEditUInt32Zel.h"
#include "WLineEditZel.h"
#include "WTextAreaZel.h"
#include "WTextZel.h"
#include "WUInt32Zel.h"
#include "ZelValue.h"

#include <Wt/WLink>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <numeric>
#include <random>

namespace
{

constexpr unsigned int kRecords = 50;
constexpr unsigned int kMissing = 4999; // an index that no record has
constexpr int kSteps = 4000;
constexpr unsigned int kHighestTimeout = 1440; // that the store takes

// One of the store's words is not in the table.
constexpr WComboBoxPlus::Triplet kModes[] = {{"disabled", "[RSnnn]None", 1},
                                             {"keyboard_mouse_only", "[RSnnn]Shared", 2},
                                             {"all_except_mass_storage", "[RSnnn]Private", 3}};
constexpr int kModeCount = 3;

enum Kind { Line, Area, Number, Combo, Check, Text, NumberText, Anchor, KindCount };
constexpr const char *kParameters[KindCount] = {
    "location",     "description", "sessionInactivityTimeout", "usbMode",
    "audioControl", "location",    "sessionInactivityTimeout", "description"};
constexpr const char *kStored[] = {"location", "description", "sessionInactivityTimeout", "usbMode",
                                   "audioControl"};

bool isEditable(int kind)
{
  return kind <= Check;
}

bool isNumber(const std::string &parameter)
{
  return parameter == "sessionInactivityTimeout";
}

// What one widget should be like.
struct Expected {
  std::string shown; // a text, an item's index, "blank", or a state
  std::string link;
  bool changed = false;
  bool hasBlank = false;
};

struct Agreement {
  enum Outcome { NoRecords, Unreadable, Differing, Agreeing } outcome;
  std::string value;
};

class BoundRandom : public testing::Test
{
protected:
  BoundRandom()
      : seed_(std::getenv("NEVO_TEST_SEED") ? std::strtoul(std::getenv("NEVO_TEST_SEED"), nullptr, 10)
                                            : std::random_device()()),
        random_(seed_), store_(options()), page_([this](Wt::WContainerWidget &root) { build(root); }),
        visitor_(page_.visitor)
  {
    std::printf("seed %lu (NEVO_TEST_SEED)\n", seed_);
    page_.act([this] { load(); });
    expected_[Number].shown = "";
    expected_[Combo].shown = "0";
    expected_[Check].shown = "unchecked";
  }

  static TestStore::Options options()
  {
    TestStore::Options options;
    options.fleet = kRecords;
    options.more = {"--database", ":memory:"};
    return options;
  }

  template <class Widget> Widget *bound(Wt::WContainerWidget &root, Kind kind)
  {
    Widget *widget = new Widget("rx", kParameters[kind], true, &root);
    enter(widget, widget, kind);
    return widget;
  }

  void enter(WWidgetZel *widget, Wt::WWidget *shown, Kind kind)
  {
    shown->setAttributeValue("aria-label", "Bound " + std::to_string(kind));
    bound_[kind] = widget;
  }

  void build(Wt::WContainerWidget &root)
  {
    line_ = bound<WLineEditZel>(root, Line);
    area_ = bound<WTextAreaZel>(root, Area);
    number_ = bound<WLineEditUInt32Zel>(root, Number);
    combo_ = new WComboBoxZel("rx", kParameters[Combo], true, kModes, kModeCount, &root);
    enter(combo_, combo_, Combo);
    check_ = bound<WCheckBoxZel>(root, Check);
    text_ = bound<WTextZel>(root, Text);
    numberText_ = bound<WUInt32Zel>(root, NumberText);
    anchor_ = bound<WAnchorZel>(root, Anchor);
    Wt::WLineEdit *other = new Wt::WLineEdit(&root);
    other->focussed().connect(std::bind([] {}));
    other->setAttributeValue("aria-label", "Other");
  }

  // ---- chance

  std::size_t below(std::size_t count)
  {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
  }
  bool chance(int percent) { return below(100) < static_cast<std::size_t>(percent); }

  // Records in any order: often a few, at times all, none, or one that is not there.
  Indexes selection()
  {
    if (chance(5))
      return {};
    Indexes all(kRecords);
    std::iota(all.begin(), all.end(), 1U);
    std::shuffle(all.begin(), all.end(), random_);
    all.resize(1 + (chance(60) ? below(4) : below(kRecords)));
    if (chance(8))
      all.insert(all.begin() + static_cast<std::ptrdiff_t>(below(all.size() + 1)), kMissing);
    return all;
  }

  std::string randomValue(const std::string &parameter)
  {
    static const std::map<std::string, std::vector<std::string>> values = {
        {"location",
         {"", "North",
          "S\xc3\xbc"
          "d",
          "<b>&amp;"}},
        {"description", {"", "fe80::1", "a b"}},
        {"sessionInactivityTimeout", {"0", "5", "1440"}},
        {"usbMode", {"disabled", "keyboard_mouse_only", "all_except_mass_storage", "all_devices"}},
        {"audioControl", {"enabled", "disabled"}}};
    const std::vector<std::string> &possible = values.at(parameter);
    return possible[below(possible.size())];
  }

  // ---- the model's store

  void load()
  {
    const ZelRequest request(ZelReqUtil_newGetResource("rx"));
    for (const char *parameter : kStored)
      ZelReqUtil_setSelect(request.get(), parameter);
    ZelReqUtil_setSelect(request.get(), "index");
    ZelClient_s *client = nullptr;
    ASSERT_EQ(Db_db.getZelClient(client), 0U);
    const ZelResponse response(ZelReqUtil_submit(request.get(), client));
    ASSERT_EQ(ZelRspUtil_numEntries(response.get()), static_cast<int>(kRecords));
    records_.clear();
    for (unsigned int row = 0; row < kRecords; ++row) {
      const int index = ZelRspUtil_getIndexedIntegerParam(response.get(), row, "index");
      for (const char *parameter : kStored)
        records_[static_cast<unsigned int>(index)][parameter] = valueIn(response.get(), row, parameter);
    }
  }

  static std::string valueIn(json_t *response, unsigned int row, const char *parameter)
  {
    if (isNumber(parameter))
      return std::to_string(ZelRspUtil_getIndexedIntegerParam(response, row, parameter));
    const char *text = ZelRspUtil_getIndexedStringParam(response, row, parameter);
    return text ? text : "";
  }

  Agreement agreementOf(const Indexes &indexes, const char *parameter) const
  {
    Agreement found = {Agreement::NoRecords, ""};
    for (const unsigned int index : indexes) {
      const auto record = records_.find(index);
      if (record == records_.end())
        return {Agreement::Unreadable, ""};
      const std::string &value = record->second.at(parameter);
      if (found.outcome == Agreement::Agreeing && value != found.value)
        return {Agreement::Differing, ""};
      found = {Agreement::Agreeing, value};
    }
    return found;
  }

  // ---- the model's widgets

  static int modeIndex(const std::string &value)
  {
    for (int i = 0; i < kModeCount; ++i)
      if (value == kModes[i].storeValue)
        return i;
    return 0;
  }

  void expectCombo(const Agreement &agreement)
  {
    Expected &combo = expected_[Combo];
    if (agreement.outcome == Agreement::NoRecords) {
      combo.shown = "0";
      return;
    }
    combo.hasBlank = agreement.outcome != Agreement::Agreeing;
    combo.shown = combo.hasBlank ? "blank" : std::to_string(modeIndex(agreement.value));
  }

  // After a read of the widget's own, or a bulk read.
  void expectRead(int kind, const Agreement &agreement, bool bulk)
  {
    Expected &expected = expected_[kind];
    const bool failed = agreement.outcome == Agreement::Unreadable;
    const bool agrees = agreement.outcome == Agreement::Agreeing;
    const bool differs = agreement.outcome == Agreement::Differing;
    if (failed && !bulk) {
      if (!isEditable(kind))
        expected.shown = "";
      return;
    }
    if (kind == Combo)
      expectCombo(agreement);
    else if (kind == Check)
      expected.shown = agrees ? (agreement.value == "enabled" ? "checked" : "unchecked")
                       : bulk ? "unchecked"
                              : "partial";
    else if (kind == NumberText && differs && !bulk)
      expected.shown = "0";
    else
      expected.shown = agreement.value;
    if (kind == Anchor && agreement.outcome != Agreement::NoRecords)
      expected.link = "https://[" + agreement.value + "]";
    if (!bulk || agreement.outcome != Agreement::NoRecords)
      expected.changed = false;
  }

  // What a widget would write; false for what the store or the widget refuses.
  bool valueOf(int kind, std::string &value) const
  {
    value = expected_[kind].shown;
    if (kind == Number) {
      value = std::to_string(std::strtoul(value.c_str(), nullptr, 10));
      return std::strtoul(value.c_str(), nullptr, 10) <= kHighestTimeout;
    }
    if (kind == Combo) {
      if (value == "blank")
        return false;
      value = kModes[std::atoi(value.c_str())].storeValue;
    } else if (kind == Check) {
      value = value == "checked" ? "enabled" : "disabled";
    }
    return true;
  }

  // ---- steps

  void readOne()
  {
    const int kind = static_cast<int>(below(KindCount));
    Indexes indexes = selection();
    const bool force = chance(50);
    what_ += "read " + std::to_string(kind) + (force ? " by force" : "");
    bool failed = false;
    std::vector<std::string> errors;
    page_.act([&] { failed = bound_[kind]->readFromDatabase(indexes, errors, force); });
    if (expected_[kind].changed && !force) {
      EXPECT_FALSE(failed);
      return;
    }
    const Agreement agreement = agreementOf(indexes, kParameters[kind]);
    expectRead(kind, agreement, false);
    const bool emptyCombo = kind == Combo && agreement.outcome == Agreement::NoRecords;
    EXPECT_EQ(failed, agreement.outcome == Agreement::Unreadable || emptyCombo);
    EXPECT_EQ(errors.size(), agreement.outcome == Agreement::Unreadable ? 1U : 0U);
  }

  void readAll()
  {
    Indexes indexes = selection();
    const bool force = chance(50);
    what_ += std::string("bulk read") + (force ? " by force" : "");
    bool answered = indexes.empty();
    page_.act([&] {
      ZelResponse response;
      if (!indexes.empty())
        response = retrieve(indexes);
      answered = answered || !ZelRspUtil_getObjectParam(response.get(), "errors");
      for (int kind = 0; answered && kind < KindCount; ++kind)
        bound_[kind]->getZelParam(response.get(), indexes, force);
    });
    EXPECT_EQ(answered, indexes != Indexes{kMissing});
    for (int kind = 0; answered && kind < KindCount; ++kind)
      if (!expected_[kind].changed || force)
        expectRead(kind, agreementOf(indexes, kParameters[kind]), true);
  }

  static ZelResponse retrieve(const Indexes &indexes)
  {
    const ZelRequest request(ZelReqUtil_newGetResource("rx"));
    for (const unsigned int index : indexes)
      ZelReqUtil_setIntegerQuery(request.get(), "index", index);
    ZelReqUtil_setSelect(request.get(), "index");
    for (const char *parameter : kStored)
      ZelReqUtil_setSelect(request.get(), parameter);
    ZelClient_s *client = nullptr;
    Db_db.getZelClient(client);
    return ZelResponse(ZelReqUtil_submit(request.get(), client));
  }

  void edit()
  {
    const int kind = static_cast<int>(below(Check + 1));
    Expected &expected = expected_[kind];
    Wt::Testing::Node *field = visitor_.field("Bound " + std::to_string(kind));
    std::string shown = expected.shown;
    if (kind == Combo) {
      const int item = static_cast<int>(below(kModeCount + (expected.hasBlank ? 1 : 0)));
      shown = item == kModeCount ? "blank" : std::to_string(item);
      if (shown != expected.shown)
        visitor_.choose(field, item);
    } else if (kind == Check) {
      visitor_.check(field, shown != "checked");
      shown = shown == "checked" ? "unchecked" : "checked";
    } else {
      static const char *const numbers[] = {"", "7", "12abc", "1440", "99999"};
      shown = kind == Number ? numbers[below(std::size(numbers))] : randomValue(kParameters[kind]) + "!";
      visitor_.focusOn(field);
      visitor_.typeWithoutLeaving(field, shown);
    }
    visitor_.focusOn(visitor_.field("Other"));
    what_ += "edit " + std::to_string(kind) + " to " + shown;
    expected.changed = expected.changed || shown != expected.shown;
    expected.shown = shown;
  }

  void writeOne()
  {
    const int kind = static_cast<int>(below(KindCount));
    Indexes indexes = selection();
    what_ += "write " + std::to_string(kind);
    bool failed = false;
    std::vector<std::string> errors;
    page_.act([&] { failed = bound_[kind]->writeToDatabase(indexes, errors); });
    if (!isEditable(kind)) {
      EXPECT_TRUE(failed);
      return;
    }
    if (!expected_[kind].changed || indexes.empty()) {
      EXPECT_FALSE(failed);
      return;
    }
    EXPECT_EQ(failed, expectWrite(kind, indexes));
    expected_[kind].changed = false;
  }

  // Writes to the model's store as a widget does; the result is the widget's.
  bool expectWrite(int kind, const Indexes &indexes)
  {
    std::string value;
    const bool good = valueOf(kind, value);
    if (kind == Combo && !good)
      return true;
    bool any = false;
    bool last = false;
    for (const unsigned int index : indexes) {
      last = !good || records_.count(index) == 0;
      any = any || last;
      if (!last)
        records_[index][kParameters[kind]] = value;
      if (last && kind != Combo && kind != Check)
        break;
    }
    return kind == Combo ? last : any;
  }

  void writeAll()
  {
    Indexes indexes = selection();
    what_ += "bulk write";
    page_.act([&] {
      for (const unsigned int index : indexes)
        writeRecord(index);
      for (WWidgetZel *widget : bound_)
        widget->clearContentChanged();
    });
    for (const unsigned int index : indexes)
      expectBulkWrite(index);
    for (Expected &expected : expected_)
      expected.changed = false;
  }

  void writeRecord(unsigned int index)
  {
    const ZelRequest request(ZelObj_new());
    ZelReqUtil_setMethod(request.get(), "SET");
    ZelReqUtil_setResource(request.get(), "rx");
    json_t *params = ZelObj_new();
    ZelObj_setInt32(params, "index", static_cast<int>(index));
    ZelObj_setObject(request.get(), "params", params);
    for (WWidgetZel *widget : bound_)
      widget->setZelParam(params);
    ZelClient_s *client = nullptr;
    Db_db.getZelClient(client);
    const ZelResponse response(ZelClient_getResponse(client, request.get()));
    EXPECT_TRUE(response);
  }

  void expectBulkWrite(unsigned int index)
  {
    const auto record = records_.find(index);
    if (record == records_.end())
      return;
    std::map<std::string, std::string> after = record->second;
    for (int kind = 0; kind <= Check; ++kind) {
      std::string value;
      const bool good = valueOf(kind, value);
      if (!expected_[kind].changed || (kind == Combo && !good) ||
          (kind == Check && expected_[kind].shown == "partial"))
        continue;
      if (!good)
        return; // the store refuses the whole request
      after[kParameters[kind]] = value;
    }
    record->second = after;
  }

  // Someone else writes to some records, often the same to all.
  void changeStore()
  {
    const char *parameter = kStored[below(std::size(kStored))];
    const std::string value = randomValue(parameter);
    Indexes indexes = chance(30) ? Indexes() : selection();
    if (indexes.empty())
      for (const auto &record : records_)
        indexes.push_back(record.first);
    what_ += std::string("store's ") + parameter + " to " + value;
    page_.act([&] {
      for (const unsigned int index : indexes) {
        if (records_.count(index) == 0)
          continue;
        std::vector<std::string> errors;
        EXPECT_EQ(Db_db.writeString("rx", index, parameter, value, errors), 0U);
        records_[index][parameter] = value;
      }
    });
  }

  // ---- comparison

  std::string shownBy(int kind) const
  {
    switch (kind) {
    case Line:
      return line_->text().toUTF8();
    case Area:
      return area_->text().toUTF8();
    case Number:
      return number_->text().toUTF8();
    case Combo:
      return combo_->currentIndex() == kModeCount ? "blank" : std::to_string(combo_->currentIndex());
    case Check:
      return check_->checkState() == Wt::Checked     ? "checked"
             : check_->checkState() == Wt::Unchecked ? "unchecked"
                                                     : "partial";
    case Text:
      return text_->text().toUTF8();
    case NumberText:
      return numberText_->text().toUTF8();
    default:
      return anchor_->text().toUTF8();
    }
  }

  void compare()
  {
    for (int kind = 0; kind < KindCount; ++kind) {
      EXPECT_EQ(shownBy(kind), expected_[kind].shown) << "widget " << kind;
      EXPECT_EQ(bound_[kind]->hasChangedContent(), expected_[kind].changed) << "widget " << kind;
    }
    EXPECT_EQ(combo_->count(), kModeCount + (expected_[Combo].hasBlank ? 1 : 0));
    EXPECT_EQ(anchor_->link().url(), expected_[Anchor].link);
  }

  void compareStore()
  {
    const auto expected = records_;
    page_.act([this] { load(); });
    EXPECT_EQ(records_, expected);
  }

  void step(int number)
  {
    what_ = "step " + std::to_string(number) + ": ";
    const std::size_t action = below(100);
    action < 25   ? readOne()
    : action < 45 ? readAll()
    : action < 75 ? edit()
    : action < 85 ? writeOne()
    : action < 93 ? writeAll()
                  : changeStore();
    compare();
    if (number % 100 == 99)
      compareStore();
  }

  const unsigned long seed_;
  std::mt19937 random_;
  TestStore store_;
  std::map<unsigned int, std::map<std::string, std::string>> records_; // what the store should hold
  std::array<Expected, KindCount> expected_;
  std::string what_; // the step, for messages

  std::array<WWidgetZel *, KindCount> bound_ = {};
  WLineEditZel *line_ = nullptr;
  WTextAreaZel *area_ = nullptr;
  WLineEditUInt32Zel *number_ = nullptr;
  WComboBoxZel *combo_ = nullptr;
  WCheckBoxZel *check_ = nullptr;
  WTextZel *text_ = nullptr;
  WUInt32Zel *numberText_ = nullptr;
  WAnchorZel *anchor_ = nullptr;
  KitPage page_;
  Visitor &visitor_;
};

} // namespace

TEST_F(BoundRandom, showAndWriteWhatTheyShouldOverAnyRecordsInThousandsOfSteps)
{
  LogCapture log; // of unknown values and refused writes, of which there are many
  for (int number = 0; number < kSteps && !HasFailure(); ++number) {
    step(number);
    if (HasFailure())
      ADD_FAILURE() << "seed " << seed_ << ", " << what_;
  }
  compareStore();
}
