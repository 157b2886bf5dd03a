// SPDX-License-Identifier: MIT
// What the browser is told, to the letter. A change that is wanted is accepted by running these tests with
// NEVO_ACCEPT=1 in the environment, which writes the files in golden/ anew; the difference is then part of
// the commit.
#include "WidgetPage.h"

#include <Wt/WAnchor>
#include <Wt/WCheckBox>
#include <Wt/WComboBox>
#include <Wt/WDialog>
#include <Wt/WHBoxLayout>
#include <Wt/WIntValidator>
#include <Wt/WLineEdit>
#include <Wt/WPushButton>
#include <Wt/WRegExpValidator>
#include <Wt/WStandardItem>
#include <Wt/WStandardItemModel>
#include <Wt/WTabWidget>
#include <Wt/WTable>
#include <Wt/WTableView>
#include <Wt/WText>
#include <Wt/WTextArea>
#include <Wt/WVBoxLayout>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

using namespace Wt;

namespace
{

/// A page, and what is told to it step by step.
class Transcript
{
public:
  explicit Transcript(std::function<void(WContainerWidget *)> build) : page_(std::move(build))
  {
    add("open");
  }

  void step(const std::string &name, std::function<void()> change)
  {
    page_.run(std::move(change));
    add(name);
  }

  std::string text;

private:
  /// One operation a line, so that a difference is easy to read.
  void add(const std::string &name)
  {
    text += "-- " + name + '\n';
    for (const char c : page_.browser->lastMessage()) {
      const bool between = c == '[' && text.size() > 1 && text.compare(text.size() - 2, 2, "],") == 0;
      text += between ? "\n[" : std::string(1, c);
    }
    text += '\n';
  }

  WidgetPage page_;
};

void compare(const std::string &name, const std::string &told)
{
  const std::string path = std::string(NEVO_SOURCE_DIR) + "/tests/unit/wt/golden/" + name + ".txt";
  if (std::getenv("NEVO_ACCEPT"))
    std::ofstream(path) << told;
  std::ostringstream known;
  known << std::ifstream(path).rdbuf();
  EXPECT_EQ(known.str(), told) << "if that is wanted: NEVO_ACCEPT=1";
}

} // namespace

TEST(Golden, fields)
{
  WLineEdit *line = nullptr;
  WCheckBox *box = nullptr;
  WComboBox *combo = nullptr;
  Transcript transcript([&](WContainerWidget *root) {
    line = new WLineEdit("text", root);
    line->setMaxLength(20);
    line->setEmptyText("Name");
    line->setToolTip("What it is called");
    line->setValidator(new WRegExpValidator("^[a-z]*$"));
    auto *number = new WLineEdit("7", root);
    number->setValidator(new WIntValidator(1, 10));
    auto *secret = new WLineEdit(root);
    secret->setEchoMode(WLineEdit::Password);
    secret->setAutoComplete(false);
    box = new WCheckBox("Tick", root);
    box->changed().connect(std::bind([] {}));
    combo = new WComboBox(root);
    combo->addItem("One");
    combo->addItem("Two");
    new WTextArea("lines\nof text", root);
  });
  transcript.step("values set", [&] {
    line->setText("NOT VALID");
    box->setChecked();
    combo->setCurrentIndex(1);
  });
  transcript.step("disabled and read only", [&] {
    line->setReadOnly(true);
    box->disable();
    combo->hide();
  });
  compare("fields", transcript.text);
}

TEST(Golden, dialog)
{
  WDialog *dialog = nullptr;
  Transcript transcript([&](WContainerWidget *root) {
    new WText("below", root);
    dialog = new WDialog("Title", root);
    auto *button = new WPushButton("Ok", dialog->contents());
    button->clicked().connect(dialog, &WDialog::accept);
  });
  transcript.step("shown", [&] { dialog->show(); });
  transcript.step("hidden", [&] { dialog->hide(); });
  compare("dialog", transcript.text);
}

TEST(Golden, layoutsAndTabs)
{
  WTabWidget *tabs = nullptr;
  Transcript transcript([&](WContainerWidget *root) {
    auto *column = new WVBoxLayout(root);
    auto *row = new WHBoxLayout();
    row->addWidget(new WText("left"), 1);
    row->addWidget(new WText("right"));
    column->addLayout(row);
    tabs = new WTabWidget();
    tabs->addTab(new WText("first"), "One", WTabWidget::PreLoading);
    tabs->addTab(new WText("second"), "Two", WTabWidget::LazyLoading);
    column->addWidget(tabs, 1);
  });
  transcript.step("another tab", [&] { tabs->setCurrentIndex(1); });
  compare("layouts-and-tabs", transcript.text);
}

TEST(Golden, table)
{
  WTable *table = nullptr;
  Transcript transcript([&](WContainerWidget *root) {
    table = new WTable(root);
    for (int row = 0; row < 2; ++row)
      for (int column = 0; column < 2; ++column)
        new WText(std::to_string(row) + std::to_string(column), table->elementAt(row, column));
  });
  transcript.step("a row inserted",
                  [&] { new WText("new", table->elementAt(table->insertRow(1)->rowNum(), 0)); });
  transcript.step("a row removed", [&] { table->deleteRow(0); });
  compare("table", transcript.text);
}

TEST(Golden, tableView)
{
  WStandardItemModel *model = nullptr;
  Transcript transcript([&](WContainerWidget *root) {
    model = new WStandardItemModel(3, 2, root);
    model->setHeaderData(0, Horizontal, std::string("Name"));
    model->setHeaderData(1, Horizontal, std::string("State"));
    for (int row = 0; row < 3; ++row)
      for (int column = 0; column < 2; ++column)
        model->setItem(row, column, new WStandardItem(std::to_string(row) + ":" + std::to_string(column)));
    auto *view = new WTableView(root);
    view->resize(400, 200);
    view->setSelectionMode(ExtendedSelection);
    view->setModel(model);
  });
  transcript.step("a text changed", [&] { model->item(1, 1)->setText("changed"); });
  transcript.step("a row on top", [&] { model->insertRow(0); });
  transcript.step("a row less", [&] { model->removeRow(2); });
  compare("table-view", transcript.text);
}
