// SPDX-License-Identifier: MIT
#include "Section.h"
#include "sections.h"

#include <Wt/WHBoxLayout>
#include <Wt/WPushButton>
#include <Wt/WStandardItem>
#include <Wt/WStandardItemModel>
#include <Wt/WTableView>
#include <Wt/WText>
#include <Wt/WTimer>
#include <Wt/WVBoxLayout>
#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace gallery
{

using Wt::WString;

namespace
{

const int kRows = 5000;
const int kRecords = 60; ///< in the list whose rows move

/// Tells the size that its layout gives to it.
class SizedBox : public Wt::WContainerWidget
{
public:
  SizedBox(const char *name, Section *section) : name_(name), section_(section)
  {
    addStyleClass("gallery-sized");
    new Wt::WText(name, this);
    setLayoutSizeAware(true);
  }

protected:
  void layoutSizeChanged(int width, int height) override
  {
    section_->tell(name_ + (" is " + std::to_string(width) + " by " + std::to_string(height)));
  }

private:
  std::string name_;
  Section *section_;
};

std::string number(int row)
{
  const std::string digits = std::to_string(row);
  return std::string(4 - digits.size(), '0') + digits;
}

void fill(Wt::WStandardItemModel *model)
{
  model->insertRows(0, kRows);
  for (int row = 0; row < kRows; ++row) {
    model->setData(row, 0, boost::any("Port " + number(row)));
    model->setData(
        row, 1,
        boost::any(row == 1 ? WString::fromUTF8(kLongText) : WString("State " + number(kRows - row))));
  }
}

Wt::WTableView *addList(Section *section, const char *name, Wt::SelectionMode mode,
                        Wt::WStandardItemModel *model)
{
  Wt::WTableView *view = new Wt::WTableView(section->row(name));
  view->setAttributeValue("aria-label", name);
  view->setModel(model);
  view->setSelectionMode(mode);
  view->setAlternatingRowColors(true);
  view->resize(420, 200);
  view->selectionChanged().connect(std::bind([=] {
    std::string rows;
    for (const Wt::WModelIndex &index : view->selectedIndexes())
      rows += ' ' + Wt::asString(index.data()).toUTF8();
    section->tell(std::string(name) + ": selected" + (rows.empty() ? " nothing" : rows));
  }));
  view->columnResized().connect(std::bind(
      [=](int column, const Wt::WLength &width) {
        section->tell(std::string(name) + ": column " + std::to_string(column) + " is " + width.cssText());
      },
      std::placeholders::_1, std::placeholders::_2));
  return view;
}

/// Puts a new record on top and takes one away further below.
void moveRows(Wt::WStandardItemModel *model, int number)
{
  const int kLeaving = 5;
  model->insertRow(0);
  model->setData(0, 0, boost::any("Record " + std::to_string(number)));
  model->setData(0, 1, boost::any(std::string("Ticked")));
  model->setData(0, 1, boost::any(false), Wt::CheckStateRole);
  model->item(0, 1)->setFlags(Wt::ItemIsSelectable | Wt::ItemIsUserCheckable);
  if (model->rowCount() > kRecords)
    model->removeRow(kLeaving);
}

/// What a list that is behind its page would do to its rows: see the buttons.
void addMovingRows(Section *section)
{
  Wt::WStandardItemModel *model = new Wt::WStandardItemModel(0, 2, section);
  model->setHeaderData(0, std::string("Name"));
  model->setHeaderData(1, std::string("Tick"));
  for (int number = 0; number < kRecords; ++number)
    moveRows(model, number);
  Wt::WTableView *view = addList(section, "moving rows", Wt::ExtendedSelection, model);
  view->doubleClicked().connect(std::bind(
      [=](const Wt::WModelIndex &index) {
        const Wt::WModelIndex record = index.isValid() ? model->index(index.row(), 0) : index;
        section->tell("double click on " +
                      (record.isValid() ? Wt::asString(record.data()).toUTF8() : "nothing"));
      },
      std::placeholders::_1));
  model->dataChanged().connect(std::bind(
      [=](const Wt::WModelIndex &from) {
        const boost::any state = from.data(Wt::CheckStateRole);
        if (!state.empty() && boost::any_cast<bool>(state))
          section->tell("ticked " + Wt::asString(model->data(from.row(), 0)).toUTF8());
      },
      std::placeholders::_1));
  Wt::WTimer *timer = new Wt::WTimer(section);
  timer->setInterval(1000);
  std::shared_ptr<int> number = std::make_shared<int>(kRecords);
  timer->timeout().connect(std::bind([=] {
    // As slow as a store may be: the events that come meanwhile are handled after the rows have moved.
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    moveRows(model, ++*number);
  }));
  (new Wt::WPushButton("Let rows move", section->row("each second")))
      ->clicked()
      .connect(timer, &Wt::WTimer::start);
}

} // namespace

void addLayouts(Wt::WContainerWidget *page)
{
  Section *section = new Section("Layouts", page);
  Wt::WContainerWidget *across = new Wt::WContainerWidget(section->row("columns"));
  across->resize(500, 60);
  Wt::WHBoxLayout *columns = new Wt::WHBoxLayout(across);
  columns->addWidget(new SizedBox("Left", section));
  columns->addWidget(new Wt::WText("The rest"), 1);
  columns->setResizable(0, true, 150);
  Wt::WContainerWidget *down = new Wt::WContainerWidget(section->row("rows"));
  down->resize(500, 200);
  Wt::WVBoxLayout *rows = new Wt::WVBoxLayout(down);
  rows->addWidget(new SizedBox("Upper", section));
  rows->addWidget(new Wt::WText("Lower"), 1);
  rows->setResizable(0, true, 80);
}

void addViews(Wt::WContainerWidget *page)
{
  Section *section = new Section("Lists", page);
  Wt::WStandardItemModel *model = new Wt::WStandardItemModel(0, 2, section);
  model->setHeaderData(0, std::string("Name"));
  model->setHeaderData(1, std::string("State"));
  fill(model);
  Wt::WTableView *single = addList(section, "single selection", Wt::SingleSelection, model);
  addList(section, "extended selection", Wt::ExtendedSelection, model);
  addList(section, "no selection", Wt::NoSelection, model);
  Wt::WContainerWidget *place = section->row("acting");
  (new Wt::WPushButton("Scroll to 2500", place))->clicked().connect(std::bind([=] {
    single->scrollTo(model->index(2500, 0), Wt::WAbstractItemView::PositionAtTop);
  }));
  (new Wt::WPushButton("Rebuild the lists", place))->clicked().connect(std::bind([=] {
    model->removeRows(0, model->rowCount());
    fill(model);
    section->tell("rebuilt");
  }));
  addMovingRows(section);
}

} // namespace gallery
