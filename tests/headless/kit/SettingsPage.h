// SPDX-License-Identifier: MIT
#ifndef TESTS_SETTINGS_PAGE_H_
#define TESTS_SETTINGS_PAGE_H_

#include "KitPage.h"
#include "ScriptedStore.h"
#include "WEnableDisable.h"
#include "WSettingsTable.h"
#include "WTextZel.h"

#include <Wt/WLineEdit>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <jansson.h>
#include <memory>
#include <string>
#include <vector>

using Indexes = std::vector<unsigned int>;

// A table over receivers such as the views have many: attributes with rules, and one that depends on another.
class ReceiverTable : public WSettingsTable
{
public:
  explicit ReceiverTable(int options = Plain, Wt::WContainerWidget *parent = 0)
      : WSettingsTable("rx", options, {"Attribute", "Value"}, parent)
  {
    setFieldWidth(250);
    addLine("Name", "name", "What it is called", 40, "^([ -~]*)$", true);
    addLine("Location", "location", "Where it stands", 64, "^([ -~\n]*)$");
    addArea("Notes", "notes", "What there is to say", "([ -~\n]{0,64})");
    WEnableDisable *scaling = add<WEnableDisable>("Scaling", "scaling");
    WLineEditUInt32Zel *timeout = addNumber("Timeout", "timeout", "Minutes", 0, 1440, false);
    enableWhile(timeout, [scaling] { return scaling->isChosenEnabled(); });
    addReadOnly<WTextZel>("EID", "eid");
  }
};

// A page of settings of receivers 1 to 3. 1 and 2 are alike but for their names, 3 is different.
class SettingsPage : public testing::Test
{
protected:
  SettingsPage()
  {
    store_.setRecords("rx", R"([
      {"index": 1, "name": "a", "location": "hall", "notes": "", "scaling": "enabled", "timeout": 5, "eid": "E1"},
      {"index": 2, "name": "b", "location": "hall", "notes": "", "scaling": "enabled", "timeout": 5, "eid": "E2"},
      {"index": 3, "name": "c", "location": "roof", "notes": "x", "scaling": "disabled", "timeout": 7, "eid": "E3"}])");
  }

  void build(std::function<void(Wt::WContainerWidget &root)> make)
  {
    page_ = std::make_unique<KitPage>([make](Wt::WContainerWidget &root) {
      make(root);
      Wt::WLineEdit *elsewhere = new Wt::WLineEdit(&root);
      elsewhere->focussed().connect(std::bind([] {})); // only then is its focus told
      elsewhere->setAttributeValue("aria-label", "Elsewhere");
    });
  }
  Visitor &visitor() { return page_->visitor; }
  void leave() { visitor().focusOn(visitor().field("Elsewhere")); }

  // Types in a field, so that it notices, and leaves it.
  void edit(const std::string &label, const std::string &text)
  {
    visitor().focusOn(visitor().field(label));
    visitor().typeWithoutLeaving(visitor().field(label), text);
    leave();
  }
  void choose(const std::string &label, const std::string &item)
  {
    visitor().choose(visitor().field(label), item);
    leave();
  }
  std::string value(const std::string &label) { return visitor().field(label)->get(".value"); }
  bool isEnabled(const std::string &label) { return !visitor().field(label)->has("disabled"); }

  // The "params" of the writes so far.
  std::vector<std::string> written()
  {
    std::vector<std::string> texts;
    for (const std::string &request : store_.requests("SET")) {
      const std::unique_ptr<json_t, void (*)(json_t *)> json(json_loads(request.c_str(), 0, nullptr),
                                                             json_decref);
      const std::unique_ptr<char, void (*)(void *)> text(
          json_dumps(json_object_get(json.get(), "params"), JSON_COMPACT | JSON_SORT_KEYS), std::free);
      texts.push_back(text.get());
    }
    return texts;
  }

  ScriptedStore store_;
  std::unique_ptr<KitPage> page_;
};

#endif // TESTS_SETTINGS_PAGE_H_
