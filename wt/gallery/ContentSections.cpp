// SPDX-License-Identifier: MIT
#include "Section.h"
#include "sections.h"

#include <Wt/WAnchor>
#include <Wt/WIconPair>
#include <Wt/WImage>
#include <Wt/WLineEdit>
#include <Wt/WProgressBar>
#include <Wt/WPushButton>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WText>
#include <functional>

namespace gallery
{

using Wt::WString;

namespace
{

const char *const kTeal =
    "data:image/gif;base64,R0lGODlhAQABAPAAAACAgP///yH5BAAAAAAALAAAAAABAAEAAAICRAEAOw==";
const char *const kMaroon =
    "data:image/gif;base64,R0lGODlhAQABAPAAAIAAAP///yH5BAAAAAAALAAAAAABAAEAAAICRAEAOw==";

Wt::WImage *square(const char *url, const char *text)
{
  Wt::WImage *image = new Wt::WImage(Wt::WLink(url), text);
  image->resize(16, 16);
  return image;
}

void addIconPair(Section *section, const char *name, bool clickIsSwitch)
{
  Wt::WContainerWidget *place = section->row(name);
  place->clicked().connect(std::bind(section->teller(std::string("click reached the row of ") + name)));
  Wt::WIconPair *pair = new Wt::WIconPair(kTeal, kMaroon, clickIsSwitch, place);
  pair->icon1()->setAlternateText(WString::fromUTF8(std::string("Fold ") + name));
  pair->icon2()->setAlternateText(WString::fromUTF8(std::string("Unfold ") + name));
  pair->icon1()->resize(16, 16);
  pair->icon2()->resize(16, 16);
  pair->icon1Clicked().connect(std::bind(section->teller(std::string("folded ") + name)));
  pair->icon2Clicked().connect(std::bind(section->teller(std::string("unfolded ") + name)));
}

} // namespace

void addTextsAndLinks(Wt::WContainerWidget *page)
{
  Section *section = new Section("Texts, images and links", page);
  new Wt::WText("<b>Bold</b> and <i>italic</i>", section->row("rich text"));
  new Wt::WText(WString::fromUTF8(kMarkupText), Wt::PlainText, section->row("plain text"));
  new Wt::WText(WString::fromUTF8(kLongText), Wt::PlainText, section->row("long text"));
  new Wt::WText(WString::fromUTF8(kHebrewText), Wt::PlainText, section->row("right-to-left text"));
  section->row("image")->addWidget(square(kTeal, "A square"));
  new Wt::WAnchor(Wt::WLink("#end"), "To the end", section->row("link"));
  Wt::WAnchor *away = new Wt::WAnchor(Wt::WLink("https://[::1]/"), "New window", section->row("link away"));
  away->setTarget(Wt::TargetNewWindow);
  Wt::WAnchor *off = new Wt::WAnchor(Wt::WLink("#end"), "Disabled link", section->row("disabled link"));
  off->disable();
  Wt::WAnchor *act = new Wt::WAnchor(section->row("link without address"));
  act->setText("Just a click");
  act->clicked().connect(std::bind(section->teller("clicked the link")));
  new Wt::WAnchor(Wt::WLink("#end"), square(kMaroon, "Another square"), section->row("image link"));
}

void addIconPairs(Wt::WContainerWidget *page)
{
  Section *section = new Section("Icon pairs", page);
  addIconPair(section, "switching pair", true);
  addIconPair(section, "plain pair", false);
}

void addProgressBars(Wt::WContainerWidget *page)
{
  Section *section = new Section("Progress bars", page);
  for (const int value : {0, 42, 100}) {
    Wt::WProgressBar *bar = new Wt::WProgressBar(section->row("at " + std::to_string(value)));
    bar->setAttributeValue("aria-label", "At " + std::to_string(value));
    bar->setValue(value);
  }
  Wt::WContainerWidget *place = section->row("moving");
  Wt::WProgressBar *moving = new Wt::WProgressBar(place);
  moving->setAttributeValue("aria-label", "Moving");
  Wt::WPushButton *more = new Wt::WPushButton("Ten more", place);
  more->clicked().connect(std::bind([moving] { moving->setValue(moving->value() + 10); }));
}

void addTables(Wt::WContainerWidget *page)
{
  Section *section = new Section("Tables", page);
  Wt::WTable *table = new Wt::WTable(section->row("table with a head"));
  table->setHeaderCount(1);
  const char *const heads[] = {"Name", "Value", "Remark"};
  for (int column = 0; column < 3; ++column)
    new Wt::WText(heads[column], table->elementAt(0, column));
  for (int row = 1; row < 4; ++row) {
    new Wt::WText("Setting " + std::to_string(row), table->elementAt(row, 0));
    new Wt::WLineEdit("value " + std::to_string(row), table->elementAt(row, 1));
    table->elementAt(row, 2);
  }
  table->elementAt(1, 2)->setRowSpan(2);
  new Wt::WText("For two rows", table->elementAt(1, 2));
  Wt::WPushButton *grow = new Wt::WPushButton("Add a row", section->row("growing"));
  grow->clicked().connect(std::bind([table] {
    const int row = table->rowCount();
    new Wt::WText("Row " + std::to_string(row), table->elementAt(row, 0));
  }));
}

} // namespace gallery
