// SPDX-License-Identifier: MIT
// A table of many fields over many records.
#include "BoundPage.h"
#include "WCheckBoxZel.h"
#include "WComboBoxZel.h"
#include "WSettingsTable.h"
#include "WTextZel.h"

#include <numeric>

using testing::ElementsAre;

namespace
{

constexpr unsigned int kRecords = 50;
constexpr int kLines = 8; // and one field of each other class
constexpr const char *kLineParams[kLines] = {"a", "b", "c", "d", "e", "f", "g", "h"};
constexpr WComboBoxPlus::Triplet kWords[] = {{"x", "[RSnnn]None", 1}, {"y", "[RSnnn]Shared", 2}};

class SixteenFields : public WSettingsTable
{
public:
  explicit SixteenFields(Wt::WContainerWidget *parent)
      : WSettingsTable("rx", ReadsAtOnce, {"Attribute", "Value"}, parent)
  {
    for (const char *param : kLineParams)
      lines.push_back(add<WLineEditZel>(param, param, ""));
    area = add<WTextAreaZel>("area", "area", "");
    number = add<WLineEditUInt32Zel>("number", "number", "");
    check = add<WCheckBoxZel>("check", "check", "");
    text = addReadOnly<WTextZel>("text", "text");
    for (const char *param : {"w1", "w2", "w3", "w4"})
      combos.push_back(addField(param, new WComboBoxZel("rx", param, true, kWords, 2), "", param));
  }

  std::vector<WLineEditZel *> lines;
  WTextAreaZel *area;
  WLineEditUInt32Zel *number;
  WCheckBoxZel *check;
  WTextZel *text;
  std::vector<WComboBoxZel *> combos;
};

// Fifty records that agree in all but "h", which differs in the last, and "w4", which differs in the first.
std::string records()
{
  std::string json = "[";
  for (unsigned int index = 1; index <= kRecords; ++index)
    json += std::string(index > 1 ? "," : "") + R"({"index":)" + std::to_string(index) +
            R"(,"a":"1","b":"2","c":"3","d":"4","e":"5","f":"6","g":"7","h":")" +
            (index == kRecords ? "other" : "8") +
            R"(","area":"9","number":10,"check":"enabled","text":"11","w1":"y","w2":"y","w3":"x","w4":")" +
            (index == 1 ? "x" : "y") + "\"}";
  return json + "]";
}

} // namespace

TEST(BulkRead, ofSixteenFieldsOverFiftyRecordsIsOneRequest)
{
  ScriptedStore store;
  store.setRecords("rx", records());
  SixteenFields *table = nullptr;
  KitPage page([&](Wt::WContainerWidget &root) { table = new SixteenFields(&root); });
  Indexes indexes(kRecords);
  std::iota(indexes.begin(), indexes.end(), 1U);
  page.act([&] { table->readFromDatabase(indexes); });
  EXPECT_EQ(store.requests().size(), 1U);

  std::vector<std::string> lines;
  for (const WLineEditZel *line : table->lines)
    lines.push_back(line->text().toUTF8());
  EXPECT_THAT(lines, ElementsAre("1", "2", "3", "4", "5", "6", "7", ""));
  EXPECT_EQ(table->area->text().toUTF8(), "9");
  EXPECT_EQ(table->number->text().toUTF8(), "10");
  EXPECT_EQ(table->check->checkState(), Wt::Checked);
  EXPECT_EQ(table->text->text().toUTF8(), "11");
  std::vector<int> combos;
  for (const WComboBoxZel *combo : table->combos)
    combos.push_back(combo->currentIndex());
  EXPECT_THAT(combos, ElementsAre(1, 1, 0, 2));
}
