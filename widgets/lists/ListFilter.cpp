// SPDX-License-Identifier: MIT
#include "ListFilter.h"

#include "RecordList.h"
#include "Text.h"

#include <Wt/WContainerWidget>
#include <Wt/WInteractWidget>
#include <Wt/WPushButton>
#include <Wt/WTableView>
#include <Wt/WText>
#include <string>

namespace
{

const std::size_t kMostBytes = 100; ///< of what is typed

/// "2500" as "2,500".
std::string grouped(int number)
{
  std::string digits = std::to_string(number);
  for (int at = static_cast<int>(digits.size()) - 3; at > 0; at -= 3)
    digits.insert(static_cast<std::size_t>(at), ",");
  return digits;
}

/// What a key writes; empty for a key that writes nothing, or means a command.
std::string writtenBy(const Wt::WKeyEvent &event)
{
  const bool control = event.modifiers().testFlag(Wt::ControlModifier);
  const bool alt = event.modifiers().testFlag(Wt::AltModifier);
  // The two together write characters on some keyboards.
  if (control != alt || event.modifiers().testFlag(Wt::MetaModifier))
    return std::string();
  const std::string text = event.text().toUTF8();
  const bool writes = !text.empty() && static_cast<unsigned char>(text[0]) >= ' ' && text[0] != 0x7F;
  return writes ? text : std::string();
}

void dropLastCharacter(std::string &text)
{
  while (!text.empty() && (text.back() & 0xC0) == 0x80)
    text.pop_back();
  if (!text.empty())
    text.pop_back();
}

} // namespace

ListFilter::ListFilter(RecordList &records, Wt::WInteractWidget &scope, Wt::WContainerWidget &place)
    : Wt::WObject(&records), list(records), chip(new Wt::WContainerWidget(&place)),
      words(new Wt::WText(Wt::WString(), Wt::PlainText, chip)), end(new Wt::WPushButton(chip))
{
  chip->setStyleClass("nevo-list-filter");
  words->setAttributeValue("role", "status");
  end->setText(Wt::WString::fromUTF8("\xE2\x9C\x95"));
  end->setToolTip(text("Show all rows again"));
  end->setAttributeValue("aria-label", text("Show all rows again"));
  end->clicked().connect(this, &ListFilter::clear);
  scope.keyPressed().connect(this, &ListFilter::keyPressed);
  scope.keyWentDown().connect(this, &ListFilter::keyWentDown);
  list.contentsChanged().connect(this, &ListFilter::showMark);
  list.view.setAttributeValue("aria-keyshortcuts", "A-Z 0-9 Escape");
  showMark();
}

bool ListFilter::isActive() const
{
  return inviting || !list.filter().empty();
}

void ListFilter::clear()
{
  inviting = false;
  set(std::string());
  showMark();
}

void ListFilter::invite()
{
  inviting = true;
  list.view.setFocus(true);
  showMark();
}

void ListFilter::keyPressed(Wt::WKeyEvent event)
{
  const std::string typed = writtenBy(event);
  // A blank before the first word is a key of the list itself.
  if (typed.empty() || (typed == " " && list.filter().empty()))
    return;
  if (list.filter().size() + typed.size() <= kMostBytes)
    set(list.filter() + typed);
}

void ListFilter::keyWentDown(Wt::WKeyEvent event)
{
  if (event.key() == Wt::Key_Escape && hearsEscape) {
    if (isActive())
      clear();
  } else if (event.key() == Wt::Key_Backspace) {
    std::string shorter = list.filter();
    dropLastCharacter(shorter);
    set(shorter);
  }
}

void ListFilter::set(const std::string &text)
{
  // A list with unsaved edits below keeps its selection, so its rows stay.
  if (list.view.isEnabled())
    list.setFilter(text);
}

void ListFilter::showMark()
{
  const std::string typed = list.filter();
  if (!typed.empty())
    words->setText(Wt::WString::tr("list.filter")
                       .arg(Wt::WString::fromUTF8(typed))
                       .arg(grouped(list.shownCount()))
                       .arg(grouped(list.recordCount())));
  else
    words->setText(inviting ? text("Type to find rows.") : Wt::WString());
  end->setHidden(!isActive());
  chip->toggleStyleClass("nevo-active", isActive());
}
