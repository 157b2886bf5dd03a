// SPDX-License-Identifier: MIT
#ifndef APP_WPREFS_TABLE_H_
#define APP_WPREFS_TABLE_H_

#include "WSettingsTable.h"

/// A user's warnings, each on or off. They are also turned off in the boxes that warn.
class WPrefsTable : public WSettingsTable
{
public:
  explicit WPrefsTable(Wt::WContainerWidget *parent = 0);
};

#endif // APP_WPREFS_TABLE_H_
