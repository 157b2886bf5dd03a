// SPDX-License-Identifier: MIT
#ifndef TESTS_BOUND_PAGE_H_
#define TESTS_BOUND_PAGE_H_

#include "KitPage.h"
#include "LogCapture.h"
#include "ScriptedStore.h"

#include <Wt/WLineEdit>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <jansson.h>
#include <memory>
#include <string>
#include <vector>

using Indexes = std::vector<unsigned int>;

// A JSON value of the test's own.
using JsonValue = std::unique_ptr<json_t, void (*)(json_t *)>;

inline JsonValue jsonOf(const std::string &text)
{
  return {json_loads(text.c_str(), JSON_REJECT_DUPLICATES, nullptr), json_decref};
}

inline std::string textOf(const json_t *value)
{
  const std::unique_ptr<char, void (*)(void *)> text(json_dumps(value, JSON_COMPACT | JSON_SORT_KEYS),
                                                     std::free);
  return text ? text.get() : "";
}

// A page with one bound widget, which is called "Bound", a field "Other" to leave it for, and a store that
// holds receivers 1 to 4: "a" is the same in 1, 2 and 3, "s" differs in all.
template <class Widget> class BoundPage : public testing::Test
{
protected:
  using Make = std::function<Widget *(Wt::WContainerWidget &root)>;

  explicit BoundPage(Make make)
      : page_([this, make](Wt::WContainerWidget &root) {
          widget_ = make(root);
          widget_->setAttributeValue("aria-label", "Bound");
          widget_->contentChanged().connect(std::bind([this] { ++changes_; }));
          Wt::WLineEdit *other = new Wt::WLineEdit(&root);
          other->focussed().connect(std::bind([] {})); // only then is its focus told
          other->setAttributeValue("aria-label", "Other");
        }),
        visitor_(page_.visitor)
  {
  }

  // The widget's operations, within the session.
  bool read(Indexes indexes, bool force = false)
  {
    bool failed = false;
    page_.act([&] { failed = widget_->readFromDatabase(indexes, errors_, force); });
    return failed;
  }
  bool write(Indexes indexes)
  {
    bool failed = false;
    page_.act([&] { failed = widget_->writeToDatabase(indexes, errors_); });
    return failed;
  }
  void bulkRead(const std::string &response, Indexes indexes, bool force = false)
  {
    const JsonValue value = jsonOf(response);
    page_.act([&] { widget_->getZelParam(value.get(), indexes, force); });
  }
  // What the widget adds to a request for many widgets.
  std::string added()
  {
    const JsonValue params = jsonOf("{}");
    page_.act([&] { widget_->setZelParam(params.get()); });
    return textOf(params.get());
  }
  void setChanged()
  {
    page_.act([&] { widget_->setContentChanged(); });
  }

  // What a person does.
  Wt::Testing::Node *field() { return visitor_.field("Bound"); }
  void enter() { visitor_.focusOn(field()); }
  void leave() { visitor_.focusOn(visitor_.field("Other")); }
  // Types in the field, so that it notices, and leaves it.
  void edit(const std::string &text)
  {
    enter();
    visitor_.typeWithoutLeaving(field(), text);
    leave();
  }

  std::string text() const { return widget_->text().toUTF8(); }

  // The writes so far, as their "params".
  std::vector<std::string> written()
  {
    std::vector<std::string> params;
    for (const std::string &request : store_.requests("SET"))
      params.push_back(textOf(json_object_get(jsonOf(request).get(), "params")));
    return params;
  }
  std::size_t requestCount() { return store_.requests().size(); }

  ScriptedStore store_;
  std::vector<std::string> errors_;
  int changes_ = 0; // how often the widget told of a change
  Widget *widget_ = nullptr;
  KitPage page_;
  Visitor &visitor_;
};

constexpr char kNotFound[] = R"([{"errno": 7}])";

#endif // TESTS_BOUND_PAGE_H_
