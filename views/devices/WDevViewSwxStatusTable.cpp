// SPDX-License-Identifier: MIT
#include "WDevViewSwxStatusTable.h"

#include "Text.h"
#include "WTextSwxStatus.h"
#include "WTextZel.h"

WDevViewSwxStatusTable::WDevViewSwxStatusTable(Wt::WContainerWidget *parent)
    : WSettingsTable("swx", Plain, {text("Attribute"), text("Value")}, parent)
{
  addReadOnly<WTextZel>(text("EID"), "eid");
  addReadOnly<WTextZel>(text("Serial Number"), "serialNumber");
  addReadOnly<WTextZel>(text("Part Number"), "partNumber");
  addDerived<WTextSwxStatus>(text("Status"));
  addReadOnly<WTextZel>(text("Firmware"), "firmwareVersion");
}
