// SPDX-License-Identifier: MIT
#ifndef STORE_NEVO_PATH_H_
#define STORE_NEVO_PATH_H_

#include <string>

/// The relative path of the brand's theme folder, with a trailing "/". Read once: a change of brand needs a
/// restart.
const std::string &NevoPath_themeBase();

/// The absolute path of the folder that the store keeps settings archives and icons in, with a trailing "/":
/// "/data/settings/", unless the environment variable NEVO_SETTINGS_DIR names another.
std::string NevoPath_settingsBase();

/// The absolute path of the folder of the brand's transmitter icons, with a trailing "/". Read once.
const std::string &NevoPath_iconsBase();

/// The file of transmitter icon `index`: its number has two digits at least.
std::string NevoPath_iconFileName(unsigned int index);

/// The brand of this switch as a folder name: "halden", "greyfen" or, for every other value, "unknown".
std::string NevoPath_brand();

#endif // STORE_NEVO_PATH_H_
