// SPDX-License-Identifier: MIT
#include "DemoTables.h"

#include "WAnchorZel.h"
#include "WCheckBoxZel.h"
#include "WComboBoxZel.h"
#include "WLineEditUInt32Zel.h"
#include "WLineEditZel.h"
#include "WSettingsTable.h"
#include "WTextAreaZel.h"
#include "WTextZel.h"
#include "WUInt32Zel.h"

namespace
{

const int pixelsOfFields = 250;

constexpr WComboBoxPlus::Triplet usbLogLevels[] = {
    {"none", "[RSnnn]None", 0}, {"info", "[RSnnn]Information", 1}, {"debug", "[RSnnn]Events", 2}};

// A table whose rows are added from outside.
class DemoTable : public WSettingsTable
{
public:
  DemoTable(const char *resource, int options) : WSettingsTable(resource, options, {"Widget", "Value"})
  {
    setFieldWidth(pixelsOfFields);
  }
  using WSettingsTable::addField;
  using WSettingsTable::isIndexed;

  template <class Field> void edited(const char *label, const char *param)
  {
    add<Field>(label, param, Wt::WString());
  }
  template <class Field> void shown(const char *label, const char *param)
  {
    addReadOnly<Field>(label, param);
  }
};

DemoTable *receivers(int options)
{
  DemoTable *table = new DemoTable("rx", options);
  table->edited<WLineEditZel>("WLineEditZel name", "name");
  table->edited<WTextAreaZel>("WTextAreaZel notes", "notes");
  table->edited<WLineEditUInt32Zel>("WLineEditUInt32Zel sessionInactivityTimeout",
                                    "sessionInactivityTimeout");
  table->edited<WCheckBoxZel>("WCheckBoxZel audioControl", "audioControl");
  table->addField("WComboBoxZel usbLogLevel", new WComboBoxZel("rx", "usbLogLevel", true, usbLogLevels, 3),
                  Wt::WString(), "usbLogLevel");
  table->shown<WTextZel>("WTextZel eid", "eid");
  table->shown<WUInt32Zel>("WUInt32Zel sharingInactivityTimeout", "sharingInactivityTimeout");
  table->shown<WAnchorZel>("WAnchorZel location", "location");
  return table;
}

} // namespace

WSettingsTable *DemoTables_receivers()
{
  return receivers(WSettingsTable::Plain);
}

WSettingsTable *DemoTables_receiversAtOnce()
{
  return receivers(WSettingsTable::ReadsAtOnce);
}

WSettingsTable *DemoTables_system()
{
  DemoTable *table = new DemoTable("systemGlobals", WSettingsTable::SingleRecord);
  table->edited<WTextAreaZel>("WTextAreaZel nevoBannerText", "nevoBannerText");
  table->edited<WCheckBoxZel>("WCheckBoxZel nevoBannerEnable", "nevoBannerEnable");
  table->edited<WLineEditUInt32Zel>("WLineEditUInt32Zel nevoInactivityTimeout", "nevoInactivityTimeout");
  table->edited<WLineEditZel>("WLineEditZel nevoCustomHelpLink", "nevoCustomHelpLink");
  return table;
}
