// SPDX-License-Identifier: MIT
#ifndef TESTS_KIT_PAGE_H_
#define TESTS_KIT_PAGE_H_

#include "NevoSite.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WEvent>
#include <Wt/WPushButton>
#include <functional>
#include <string>

// A page that shows the widgets that the test builds, with the system's texts. They reach the store that
// lives.
class KitPage
{
public:
  // `build` fills the page; it runs within the session.
  explicit KitPage(std::function<void(Wt::WContainerWidget &root)> build);

  // Runs `action` within the session when the page's button of that text is pressed; to be used in `build`.
  static void addButton(Wt::WContainerWidget &root, const std::string &text, std::function<void()> action);
  // Runs an action within the session now.
  void act(const std::function<void()> &action);

private:
  Wt::WApplication *application_ = nullptr;

public:
  Wt::Testing::TestSite site;
  Visitor visitor;
};

#endif // TESTS_KIT_PAGE_H_
