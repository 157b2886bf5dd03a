// SPDX-License-Identifier: MIT
#ifndef TESTS_DEMO_TABLES_H_
#define TESTS_DEMO_TABLES_H_

class WSettingsTable;

// New tables of bound widgets, one row for each class; the caller owns them. A row is labelled with its class
// and its parameter.

WSettingsTable *DemoTables_receivers();
// The same fields, which one request reads for all records.
WSettingsTable *DemoTables_receiversAtOnce();
WSettingsTable *DemoTables_system();

#endif
