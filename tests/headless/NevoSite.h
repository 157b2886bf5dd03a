// SPDX-License-Identifier: MIT
#ifndef TESTS_NEVO_SITE_H_
#define TESTS_NEVO_SITE_H_

#include "testing/TestSite.h"

#include <chrono>
#include <ctime>
#include <string>
#include <vector>

class NevoApplication;

using Row = std::vector<std::string>;

// A browser's page of the system, as a person uses it.
class Visitor : public Wt::Testing::HeadlessBrowser
{
public:
  using Node = Wt::Testing::Node;

  explicit Visitor(Wt::Testing::TestSite &site);

  // The field that has this label; null if none shows.
  Node *field(const std::string &label) const { return byAttribute("aria-label", label); }
  Node *button(const std::string &text) const;
  // The link that shows this text; null if none does.
  Node *link(const std::string &text) const;
  bool canPress(const std::string &text) const;
  // The dialog that lies on top; null if there is none.
  Node *dialog() const;
  // All texts of that dialog, or nothing.
  std::string dialogText() const;

  bool atLogin() const { return field("Username") != nullptr; }
  // Fills the login in and presses its button.
  void logIn(const std::string &name = "operator", const std::string &password = "operator-1");
  // Logs in with a wrong password and confirms the message.
  void failToLogIn();

  // Clicks the tab of that name; false if none shows.
  bool openTab(const std::string &name);

  // The panel with this title, its list, and the texts of the rows that its list shows.
  Node *panel(const std::string &title) const;
  Node *list(const std::string &title) const;
  std::vector<Row> rows(const std::string &title) const;
  // The first texts of the selected rows.
  Row selected(const std::string &title) const;
  void selectRow(const std::string &title, int row);

  // Types into the list of a panel, as somebody does whose keyboard is there.
  void typeInto(const std::string &title, const std::string &ascii) { typeAt(panel(title), ascii); }
  void keyInto(const std::string &title, int keyCode) { keyAt(panel(title), keyCode); }
  void typeAt(Node *listens, const std::string &ascii);
  void keyAt(Node *listens, int keyCode);
  // What the list's filter mark says; nothing without a filter.
  std::string filterMark(const std::string &title) const { return markIn(panel(title)); }
  static std::string markIn(const Node *place);
};

// The system's sessions in the test's process, with its texts, its attributes and a clock that stands still
// until the test moves it: the time of the toolkit's timers and of Clock_now().
class NevoSite : public Wt::Testing::TestSite
{
public:
  NevoSite();
  ~NevoSite();

  // Seconds since the epoch, as the system sees them; each site begins a day after the one before.
  static std::time_t now();
  // Moves the clock while no timer ticks, as a suspended browser's session sees it.
  void jump(std::chrono::seconds time);
  // The object of the session that was opened last.
  NevoApplication &application() const { return *application_; }

private:
  NevoApplication *application_ = nullptr;
};

#endif // TESTS_NEVO_SITE_H_
