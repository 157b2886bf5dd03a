// SPDX-License-Identifier: MIT
#include "WDevViewTxAttribsTable.h"

#include "Text.h"

WDevViewTxAttribsTable::WDevViewTxAttribsTable(Wt::WContainerWidget *parent)
    : WSettingsTable("tx", Plain, {text("Attribute"), text("Value")}, parent)
{
  setFieldWidth(250);
  addLine(text("Transmitter Name"), "name", tr("tt.dev.tx.attr.name"), 40, "^([ -~]*)$");
  addLine(text("Location"), "location", tr("tt.dev.tx.attr.loc"), 64, "^([ -~]*)$");
  addArea(text("Description"), "description", tr("tt.dev.tx.attr.descr"), "([ -~\n]{0,64})");
  addArea(text("Notes"), "notes", tr("tt.dev.tx.attr.notes"), "([ -~]{0,64})");
}
