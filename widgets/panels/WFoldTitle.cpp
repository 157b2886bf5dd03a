// SPDX-License-Identifier: MIT
#include "WFoldTitle.h"

#include "NevoPath.h"
#include "Text.h"

#include <Wt/WIconPair>
#include <Wt/WImage>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WTableRow>
#include <Wt/WText>
#include <string>

namespace
{

/// What the mark is to who cannot see it: it has a name of its own beside the title's, and says which way it
/// stands.
void describe(Wt::WIconPair &mark, const Wt::WString &title)
{
  const Wt::WString name = Wt::WString::fromUTF8(text("Fold or unfold").toUTF8() + " " + title.toUTF8());
  for (Wt::WImage *icon : {mark.icon1(), mark.icon2()}) {
    icon->setAlternateText(name);
    icon->setAttributeValue("aria-expanded", icon == mark.icon1() ? "true" : "false");
  }
}

} // namespace

WFoldTitle::WFoldTitle(const Wt::WString &title, const char *expandedIcon, const char *collapsedIcon,
                       Wt::WContainerWidget *parent)
    : Wt::WObject(parent), line(new Wt::WTable(parent))
{
  const std::string folder = NevoPath_themeBase();
  mark = new Wt::WIconPair(folder + expandedIcon, folder + collapsedIcon, true);
  describe(*mark, title);
  mark->setMargin(Wt::WLength(4), Wt::Left | Wt::Right);
  mark->icon1Clicked().connect(this, &WFoldTitle::showState);
  mark->icon2Clicked().connect(this, &WFoldTitle::showState);

  // The empty row above the mark sets it on the text's line.
  Wt::WTable *markTable = new Wt::WTable();
  new Wt::WText(Wt::WString(), markTable->elementAt(0, 0));
  markTable->rowAt(0)->setHeight(Wt::WLength(2));
  markTable->elementAt(1, 0)->addWidget(mark);

  Wt::WText *words = new Wt::WText(title);
  words->setWordWrap(false);
  words->setAttributeValue("role", "heading");
  words->setAttributeValue("aria-level", "2");

  Wt::WTableCell *markCell = line->elementAt(0, 0);
  markCell->addWidget(markTable);
  markCell->setContentAlignment(Wt::AlignMiddle);
  markCell->setMargin(Wt::WLength(4));
  Wt::WTableCell *textCell = line->elementAt(0, 1);
  textCell->addWidget(words);
  textCell->setContentAlignment(Wt::AlignMiddle);
}

void WFoldTitle::setState(int newState)
{
  state = newState;
  showState();
}

void WFoldTitle::showState()
{
  mark->setState(state);
}
