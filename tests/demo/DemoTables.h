// SPDX-License-Identifier: MIT
#ifndef TESTS_DEMO_TABLES_H_
#define TESTS_DEMO_TABLES_H_

#include "TargetItem.h"

#include <vector>

class WSettingsTable;

// New tables of bound widgets, one row for each class; the caller owns them. A row is labelled with its class
// and its parameter.

WSettingsTable *DemoTables_receivers();
// The same fields, which one request reads for all records.
WSettingsTable *DemoTables_receiversAtOnce();
WSettingsTable *DemoTables_system();
WSettingsTable *DemoTables_receiverChoices();
WSettingsTable *DemoTables_receiverVideo();
WSettingsTable *DemoTables_targets(std::vector<TargetItem> targets);
WSettingsTable *DemoTables_transmitters();
WSettingsTable *DemoTables_switches();
WSettingsTable *DemoTables_network();
WSettingsTable *DemoTables_users();
WSettingsTable *DemoTables_systemAddresses();
// Those that no parameter is bound to: they are there, and save nothing.
WSettingsTable *DemoTables_unbound();

#endif // TESTS_DEMO_TABLES_H_
