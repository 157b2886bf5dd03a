// SPDX-License-Identifier: MIT
#include "WDevViewTxStatusTable.h"

#include "Text.h"
#include "WTextTxSesMode.h"
#include "WTextTxStatus.h"
#include "WTextTxSwxName.h"
#include "WTextTxSwxPort.h"
#include "WTextZel.h"

WDevViewTxStatusTable::WDevViewTxStatusTable(Wt::WContainerWidget *parent)
    : WSettingsTable("tx", Plain, {text("Attribute"), text("Value")}, parent)
{
  addReadOnly<WTextZel>(text("EID"), "eid");
  addReadOnly<WTextZel>(text("Serial Number"), "serialNumber");
  addReadOnly<WTextZel>(text("Part Number"), "partNumber");
  addDerived<WTextTxStatus>(text("Status"));
  addDerived<WTextTxSesMode>(text("Mode"));
  addReadOnly<WTextZel>(text("Firmware"), "firmwareVersion");
  addDerived<WTextTxSwxName>(text("Attached Switch"));
  addDerived<WTextTxSwxPort>(text("Switch Port"));
}
