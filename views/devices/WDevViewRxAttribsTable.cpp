// SPDX-License-Identifier: MIT
#include "WDevViewRxAttribsTable.h"

#include "Text.h"

WDevViewRxAttribsTable::WDevViewRxAttribsTable(Wt::WContainerWidget *parent)
    : WSettingsTable("rx", Plain, {text("Attribute"), text("Value")}, parent)
{
  setFieldWidth(250);
  addLine(text("Receiver Name"), "name", tr("tt.dev.rx.attr.name"), 40, "^([ -~]*)$");
  addLine(text("Location"), "location", tr("tt.dev.rx.attr.loc"), 64, "^([ -~\n]*)$");
  addArea(text("Description"), "description", tr("tt.dev.rx.attr.descr"), "([ -~\n]{0,64})");
  addArea(text("Notes"), "notes", tr("tt.dev.rx.attr.notes"), "([ -~\n]{0,64})");
}
