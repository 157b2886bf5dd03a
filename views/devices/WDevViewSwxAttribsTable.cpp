// SPDX-License-Identifier: MIT
#include "WDevViewSwxAttribsTable.h"

#include "SwxConflict.h"
#include "Text.h"

#include <initializer_list>

WDevViewSwxAttribsTable::WDevViewSwxAttribsTable(Wt::WContainerWidget *parent)
    : WSettingsTable("swx", Plain, {text("Attribute"), text("Value")}, parent), isEditable(true)
{
  setFieldWidth(250);
  for (Wt::WWidget *field : std::initializer_list<Wt::WWidget *>{
           addLine(text("Switch Name"), "name", tr("tt.dev.swx.attr.name"), 40, "^([ -~]*)$"),
           addLine(text("Location"), "location", tr("tt.dev.swx.attr.loc"), 64, "^([ -~\n]*)$"),
           addArea(text("Description"), "description", tr("tt.dev.swx.attr.descr"), "([ -~\n]{0,64})"),
           addArea(text("Notes"), "notes", tr("tt.dev.swx.attr.notes"), "([ -~\n]{0,64})")})
    enableWhile(field, [this] { return isEditable; });
}

void WDevViewSwxAttribsTable::readFromDatabase(std::vector<unsigned int> indexes, bool force)
{
  isEditable = !SwxConflict_isAmong(indexes);
  WSettingsTable::readFromDatabase(indexes, force);
}
