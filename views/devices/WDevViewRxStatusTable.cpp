// SPDX-License-Identifier: MIT
#include "WDevViewRxStatusTable.h"

#include "Text.h"
#include "WTextRxKeyboardLayout.h"
#include "WTextRxLoginDuration.h"
#include "WTextRxSesDuration.h"
#include "WTextRxSesMode.h"
#include "WTextRxStatus.h"
#include "WTextRxSwxName.h"
#include "WTextRxSwxPort.h"
#include "WTextRxUsrName.h"
#include "WTextZel.h"

WDevViewRxStatusTable::WDevViewRxStatusTable(Wt::WContainerWidget *parent)
    : WSettingsTable("rx", Plain, {text("Attribute"), text("Value")}, parent)
{
  addReadOnly<WTextZel>(text("EID"), "eid");
  addReadOnly<WTextZel>(text("Serial Number"), "serialNumber");
  addReadOnly<WTextZel>(text("Part Number"), "partNumber");
  addDerived<WTextRxStatus>(text("Status"));
  addDerived<WTextRxKeyboardLayout>(text("Keyboard Layout"));
  addDerived<WTextRxUsrName>(text("Logged in username"));
  addDerived<WTextRxSesMode>(text("Mode"));
  addDerived<WTextRxLoginDuration>(text("Logged in Duration"));
  addDerived<WTextRxSesDuration>(text("Session Duration"));
  addReadOnly<WTextZel>(text("Firmware"), "firmwareVersion");
  addDerived<WTextRxSwxName>(text("Attached Switch"));
  addDerived<WTextRxSwxPort>(text("Switch Port"));
}
