// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_SETTINGS_ARCHIVE_H_
#define ZEL_SIM_RULES_SETTINGS_ARCHIVE_H_

#include <string>

namespace zelsim
{

/// What became of an archive that was opened.
enum class ArchiveResult { Good, BadFormat, BadPassword };

/// Packs a text into a gzipped tar archive with one member, "settings.json". With a password the archive
/// is encrypted (AES-256-GCM, key from PBKDF2), so that a wrong password and any changed byte are noticed.
/// Empty on failure of the system's random source.
std::string packSettings(const std::string &text, const std::string &password);

/// Opens what packSettings made. An encrypted archive needs its password; with any other, or none, it is
/// BadPassword. Archives that unpack to more than 64 MiB are BadFormat.
ArchiveResult unpackSettings(const std::string &archive, const std::string &password, std::string &text);

} // namespace zelsim

#endif // ZEL_SIM_RULES_SETTINGS_ARCHIVE_H_
