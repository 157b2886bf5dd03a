// SPDX-License-Identifier: MIT
#ifndef TESTS_SESSIONS_VISITOR_H_
#define TESTS_SESSIONS_VISITOR_H_

#include "NevoSite.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

// An administrator at the tab of KVM sessions.
class SessionsVisitor : public Visitor
{
public:
  using Visitor::Visitor;

  enum List { Users, Receivers, Transmitters }; // of the dialog, from the left

  void openSessions()
  {
    open();
    logIn();
    openTab("Sessions");
  }
  void waitForRefresh() { advance(std::chrono::seconds(5)); }

  // Presses a button, the one that lies on top if there are several of that text.
  void press(const std::string &text)
  {
    const auto found =
        page().findAll([&](const Node &n) { return n.tag == "button" && n.text == text && n.visible(); });
    ASSERT_FALSE(found.empty()) << text;
    ASSERT_TRUE(click(found.back())) << text;
  }

  std::vector<Row> sessions() const { return rows("Sessions"); }
  void choose(int row) { selectRow("Sessions", row); }
  // With the key that adds a row to the selection, or takes it away.
  void chooseToo(int row)
  {
    event(list("Sessions"), "table:down", "{\"a\":[" + std::to_string(row) + ",1],\"b\":1,\"m\":2}");
  }
  // The values of the details by their labels; empty while none show.
  std::map<std::string, std::string> details() const
  {
    std::map<std::string, std::string> values;
    for (const Node *label : page().findAll(
             [](const Node &n) { return n.hasClass("nevo-attribute-table-label") && n.visible(); }))
      values[label->allText()] = label->parent->children[1]->allText();
    return values;
  }

  // ---- The dialog

  void openDialog() { press("Connect"); }
  Node *listOf(List which) const
  {
    std::vector<Node *> found;
    for (Node *view : page().findAll([](const Node &n) { return n.hasClass("Wt-tableview"); }))
      if (isInDialog(view))
        found.push_back(view);
    return found.size() == 3 ? found[which] : nullptr;
  }
  // What the list stands in, which hears the keys.
  Node *placeOf(List which) const { return listOf(which)->parent; }
  std::vector<Row> choices(List which) const
  {
    std::vector<Row> texts;
    collect(listOf(which), texts);
    return texts;
  }
  // The last texts of the rows: the names.
  Row names(List which) const
  {
    Row texts;
    for (const Row &row : choices(which))
      texts.push_back(row.back());
    return texts;
  }
  void pick(List which, const std::string &name)
  {
    const Row offered = names(which);
    for (std::size_t row = 0; row < offered.size(); ++row)
      if (offered[row] == name) {
        event(listOf(which), "table:down", "{\"a\":[" + std::to_string(row) + ",1],\"b\":1,\"m\":0}");
        return;
      }
    FAIL() << "There is no " << name;
  }
  void pickMode(const std::string &name) { Visitor::choose(byTag("select"), name); }
  bool canConnect() const
  {
    const auto found = page().findAll(
        [](const Node &n) { return n.tag == "button" && n.text == "Connect" && isInDialog(&n); });
    return !found.empty() && !found.back()->has("disabled");
  }

private:
  static bool isInDialog(const Node *node)
  {
    while (node && !node->hasClass("Wt-dialog"))
      node = node->parent;
    return node != nullptr;
  }
  static void collect(const Node *from, std::vector<Row> &texts)
  {
    if (!from)
      return;
    if (from->tag == "~r") {
      Row row;
      for (const Node *cell : from->children)
        row.push_back(cell->allText());
      texts.push_back(row);
      return;
    }
    for (const Node *child : from->children)
      collect(child, texts);
  }
};

#endif // TESTS_SESSIONS_VISITOR_H_
