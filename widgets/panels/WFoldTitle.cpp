// SPDX-License-Identifier: MIT
#include "WFoldTitle.h"

#include "NevoPath.h"

#include <Wt/WIconPair>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WTableRow>
#include <Wt/WText>
#include <string>

WFoldTitle WFoldTitle::build(const Wt::WString &title, const char *expandedIcon, const char *collapsedIcon,
                             Wt::WContainerWidget *parent)
{
  WFoldTitle line;
  const std::string folder = NevoPath_themeBase();
  line.mark = new Wt::WIconPair(folder + expandedIcon, folder + collapsedIcon, true);
  line.mark->setMargin(Wt::WLength(4), Wt::Left | Wt::Right);

  // The empty row above the mark sets it on the text's line.
  Wt::WTable *markTable = new Wt::WTable();
  new Wt::WText(Wt::WString(), markTable->elementAt(0, 0));
  markTable->rowAt(0)->setHeight(Wt::WLength(2));
  markTable->elementAt(1, 0)->addWidget(line.mark);

  Wt::WText *text = new Wt::WText(title);
  text->setWordWrap(false);

  line.table = new Wt::WTable(parent);
  Wt::WTableCell *markCell = line.table->elementAt(0, 0);
  markCell->addWidget(markTable);
  markCell->setContentAlignment(Wt::AlignMiddle);
  markCell->setMargin(Wt::WLength(4));
  Wt::WTableCell *textCell = line.table->elementAt(0, 1);
  textCell->addWidget(text);
  textCell->setContentAlignment(Wt::AlignMiddle);
  return line;
}
