// SPDX-License-Identifier: MIT
#ifndef TESTS_SETTINGS_TABLES_PAGE_H_
#define TESTS_SETTINGS_TABLES_PAGE_H_

#include "KitPage.h"
#include "TestStore.h"
#include "WSettingsTable.h"

#include <Wt/WLineEdit>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

using Indexes = std::vector<unsigned int>;

// A page with one table of settings over a simulated switch.
class SettingsTables : public testing::Test
{
protected:
  using Maker = std::function<WSettingsTable *()>;

  SettingsTables() : store_(options()) {}

  void show(const Maker &make, const Indexes &records)
  {
    records_ = records;
    page_ = std::make_unique<KitPage>([this, make](Wt::WContainerWidget &root) {
      table_ = make();
      root.addWidget(table_);
      Wt::WLineEdit *elsewhere = new Wt::WLineEdit(&root);
      elsewhere->focussed().connect(std::bind([] {})); // only then is its focus told
      elsewhere->setAttributeValue("aria-label", "Elsewhere");
    });
    read();
  }
  template <class Table> Table *showTable(const Indexes &records)
  {
    show([] { return new Table(); }, records);
    return static_cast<Table *>(table_);
  }
  void read(bool force = true)
  {
    page_->act([&] { table_->readFromDatabase(records_, force); });
  }
  void readOf(const Indexes &records)
  {
    records_ = records;
    read();
  }
  bool write()
  {
    bool failed = false;
    errors_.clear();
    page_->act([&] { failed = table_->writeToDatabase(records_, errors_); });
    return failed;
  }
  bool allValid()
  {
    return asked([](WSettingsTable &table) { return table.isAllValid(); });
  }
  bool anyValid()
  {
    return asked([](WSettingsTable &table) { return table.isAnyValid(); });
  }

  Visitor &visitor() { return page_->visitor; }
  void leave() { visitor().focusOn(visitor().field("Elsewhere")); }
  void type(const std::string &label, const std::string &text)
  {
    ASSERT_TRUE(visitor().focusOn(visitor().field(label))) << label;
    ASSERT_TRUE(visitor().typeWithoutLeaving(visitor().field(label), text)) << label;
    leave();
  }
  void choose(const std::string &label, const std::string &item)
  {
    ASSERT_TRUE(visitor().choose(visitor().field(label), item)) << label;
    leave();
  }
  /// What the field holds; of a choice the number of the chosen item, which pages are not told while it is
  /// the first.
  std::string value(const std::string &label)
  {
    const auto &field = *visitor().field(label);
    const std::string held = field.get(".value");
    return held.empty() && field.tag == "select" ? "0" : held;
  }
  std::string shown(const std::string &label) { return visitor().field(label)->allText(); }
  bool isEnabled(const std::string &label) { return !visitor().field(label)->has("disabled"); }

  static TestStore::Options options()
  {
    TestStore::Options options;
    options.more = {"--database", ":memory:"};
    return options;
  }

  TestStore store_;
  std::unique_ptr<KitPage> page_;
  WSettingsTable *table_ = nullptr;
  Indexes records_;
  std::vector<std::string> errors_;

private:
  bool asked(const std::function<bool(WSettingsTable &)> &question)
  {
    bool answer = false;
    page_->act([&] { answer = question(*table_); });
    return answer;
  }
};

#endif // TESTS_SETTINGS_TABLES_PAGE_H_
