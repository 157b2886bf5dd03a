// SPDX-License-Identifier: MIT
#include "WSysSettingsViewNevoTable.h"

#include "Text.h"
#include "WEnableDisable.h"

WSysSettingsViewNevoTable::WSysSettingsViewNevoTable(Wt::WContainerWidget *parent)
    : WSettingsTable("systemGlobals", SingleRecord | ToleratesErrors, {text("Setting"), text("Value")},
                     parent)
{
  addNumber(text("NEVO Inactivity Timeout (minutes, 0 means never)"), "nevoInactivityTimeout",
            tr("tt.sysSettings.nevo.nevoInactivityTimeout"), 0, 1440);
  WEnableDisable *banner = add<WEnableDisable>(text("NEVO Banner"), "nevoBannerEnable",
                                               tr("tt.sysSettings.nevo.nevoBannerEnable"));
  Wt::WWidget *bannerText = addArea(text("NEVO Banner Text"), "nevoBannerText",
                                    tr("tt.sysSettings.nevo.nevoBannerText"), "([ -~\n]{0,1024})");
  addLine(text("NEVO Help URL"), "nevoCustomHelpLink", tr("tt.sysSettings.nevo.nevoHelpUrl"), 1024,
          "^(http[s]?://[ -~]+)$|^$");
  enableWhile(bannerText, [banner] { return banner->isChosenEnabled(); });
}
