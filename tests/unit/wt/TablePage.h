// SPDX-License-Identifier: MIT
#ifndef TESTS_TABLEPAGE_H_
#define TESTS_TABLEPAGE_H_

#include "WidgetPage.h"

#include <Wt/WStandardItem>
#include <Wt/WStandardItemModel>
#include <Wt/WTableView>
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

/// A list of a model with the columns "Name" and "State"; row i says "row i" and "state i".
class TablePage
{
public:
  explicit TablePage(int rows, Wt::SelectionMode mode = Wt::SingleSelection)
      : model(std::make_unique<Wt::WStandardItemModel>(0, 2)),
        page([this, rows, mode](Wt::WContainerWidget *root) {
          model->setHeaderData(0, std::string("Name"));
          model->setHeaderData(1, std::string("State"));
          fill(rows);
          view = new Wt::WTableView(root);
          view->setModel(model.get());
          view->setSelectionMode(mode);
          view->selectionChanged().connect(std::bind([this] { ++changes; }));
        })
  {
    browser = page.browser.get();
    event("table:scroll", "0,200");
  }

  void fill(int rows)
  {
    for (int i = 0; i < rows; ++i) {
      model->insertRow(i);
      model->setData(i, 0, boost::any("row " + std::to_string(i)));
      model->setData(i, 1, boost::any("state " + std::to_string(i)));
    }
  }

  Wt::Testing::Node *list() const { return page.styled("Wt-tableview"); }
  Wt::Testing::Node *body() const { return page.styled("Wt-tv-body"); }

  /// The rows that exist on the page, from the top.
  std::vector<Wt::Testing::Node *> rows() const
  {
    auto found =
        browser->page().findAll([](const Wt::Testing::Node &n) { return n.tag == "~r" && n.visible(); });
    std::sort(found.begin(), found.end(), [](const auto *a, const auto *b) {
      return std::stoi(a->get(".row")) < std::stoi(b->get(".row"));
    });
    return found;
  }

  Wt::Testing::Node *row(int number) const
  {
    for (Wt::Testing::Node *node : rows())
      if (node->get(".row") == std::to_string(number))
        return node;
    return nullptr;
  }

  Wt::Testing::Node *head(int column) const
  {
    return browser->byAttribute("data-column", std::to_string(column));
  }

  bool event(const std::string &name, const std::string &arguments, int modifiers = 0, int button = 1) const
  {
    return browser->event(list(), name,
                          "{\"b\":" + std::to_string(button) + ",\"m\":" + std::to_string(modifiers) +
                              ",\"a\":[" + arguments + "]}");
  }
  void press(int row, int modifiers = 0, int button = 1, int column = 0) const
  {
    event("table:down", std::to_string(row) + ',' + std::to_string(column), modifiers, button);
  }
  void key(int code, int modifiers = 0) const
  {
    event("table:key", std::to_string(code) + ',' + std::to_string(modifiers));
  }

  /// The selected rows as the server has them: "1 4 5".
  std::string selected() const
  {
    std::string text;
    for (const Wt::WModelIndex &index : view->selectedIndexes())
      text += (text.empty() ? "" : " ") + std::to_string(index.row());
    return text;
  }
  /// The rows that the page shows as selected.
  std::string shownSelected() const
  {
    std::string text;
    for (const Wt::Testing::Node *node : rows())
      if (node->hasClass("Wt-selected") && node->get("aria-selected") == "true")
        text += (text.empty() ? "" : " ") + node->get(".row");
    return text;
  }

  std::unique_ptr<Wt::WStandardItemModel> model;
  Wt::WTableView *view = nullptr;
  int changes = 0; ///< times that selectionChanged was emitted
  WidgetPage page;
  Wt::Testing::HeadlessBrowser *browser = nullptr;
};

#endif // TESTS_TABLEPAGE_H_
