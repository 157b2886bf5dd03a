// SPDX-License-Identifier: MIT
#ifndef STORE_EDID_FACTS_H_
#define STORE_EDID_FACTS_H_

#include <cstddef>
#include <string>

/// Bytes of a monitor's data in the store.
inline constexpr std::size_t kEdidSize = 256;

/// What a monitor's data says of itself, as Db::getEdidInfo() gives it.
void EdidFacts_read(char (&block)[kEdidSize], std::string &manufacturer, std::string &productCode,
                    std::string &typeKey);

#endif // STORE_EDID_FACTS_H_
