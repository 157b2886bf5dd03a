// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_ICON_FILES_H_
#define ZEL_SIM_DATA_ICON_FILES_H_

#include <string>

namespace zelsim
{

/// Icons 1 to 16 are the standard ones; from this number on they may be replaced by the user.
constexpr unsigned kFirstCustomIcon = 17;
constexpr unsigned kLastIcon = 24;

/// The bytes of one icon, a PNG file of 24 by 24 pixels. 'brand' shifts its colour.
std::string iconFile(unsigned index, unsigned brand);

/// Writes the icons of all brands below 'folder' ("brand/iconNN.png") as far as they are missing, so that
/// replaced custom icons stay. False if a file cannot be written.
bool writeMissingIcons(const std::string &folder);

} // namespace zelsim

#endif // ZEL_SIM_DATA_ICON_FILES_H_
