// SPDX-License-Identifier: MIT
#include "WPeriphViewMonAttribsTable.h"

#include "Db.h"
#include "Text.h"

#include <Wt/WText>
#include <algorithm>

WPeriphViewMonAttribsTable::WPeriphViewMonAttribsTable(unsigned int, Wt::WContainerWidget *parent)
    : WSettingsTable("edid", Plain, {text("Attribute"), text("Value")}, parent)
{
  setFieldWidth(250);
  nameField = addLine(text("Name"), "name", tr("tt.periph.mon.attr.nameField"), 40, "^([ -~]*)$", true);
  descriptionField =
      addArea(text("Description"), "description", tr("tt.periph.mon.attr.descrField"), "([ -~\n]{0,64})");
  for (const Wt::WString &label : {text("Manufacturer ID"), text("Product Code"), text("Type")}) {
    Wt::WText *shown = new Wt::WText("", Wt::PlainText);
    addRow(label, shown, "nevo-attribute-table-read-only-cell");
    derived.push_back(shown);
  }
}

void WPeriphViewMonAttribsTable::readFromDatabase(std::vector<unsigned int> indexes, bool force)
{
  if (hasChangedContent() && !force)
    return;
  WSettingsTable::readFromDatabase(indexes, force);
  std::vector<std::vector<std::string>> facts;
  for (const unsigned int index : indexes) {
    std::vector<std::string> found(derived.size());
    Db::Errors dropped;
    if (Db_db.getEdidInfo(index, found[0], found[1], found[2], dropped) != 0)
      return;
    facts.push_back(found);
  }
  for (std::size_t i = 0; i < derived.size(); ++i) {
    const auto differs = [&](const std::vector<std::string> &found) { return found[i] != facts[0][i]; };
    const bool isShown = !facts.empty() && std::none_of(facts.begin(), facts.end(), differs);
    derived[i]->setText(isShown ? Wt::WString::fromUTF8(facts[0][i]) : Wt::WString());
  }
}
