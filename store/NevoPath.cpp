// SPDX-License-Identifier: MIT
#include "NevoPath.h"

#include "Attributes.h"
#include "NevoUtil.h"

#include <cstdio>
#include <cstdlib>

std::string NevoPath_brand()
{
  char brand[128];
  std::snprintf(brand, sizeof brand, "%s", Attributes_getString("switch.oem.short", "unknown"));
  const std::string name = NevoUtil_toLowercase(brand);
  return name == "halden" || name == "greyfen" ? name : "unknown";
}

const std::string &NevoPath_themeBase()
{
  static const std::string pathBase = "resources/themes/" + NevoPath_brand() + "/";
  return pathBase;
}

std::string NevoPath_settingsBase()
{
  const char *named = std::getenv("NEVO_SETTINGS_DIR");
  const std::string folder = named && *named == '/' ? named : "/data/settings";
  return folder.back() == '/' ? folder : folder + "/";
}

const std::string &NevoPath_iconsBase()
{
  static const std::string iconsBase = NevoPath_settingsBase() + "icons/" + NevoPath_brand() + "/";
  return iconsBase;
}

std::string NevoPath_iconFileName(unsigned int index)
{
  char number[11];
  std::snprintf(number, sizeof number, "%2.2u", index);
  return NevoPath_iconsBase() + "icon" + number + ".png";
}
