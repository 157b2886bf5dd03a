// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_JSON_TEXT_H_
#define ZEL_SIM_DATA_JSON_TEXT_H_

#include "data/Value.h"

#include <string>
#include <string_view>

namespace zelsim
{

/// Appends `text`, valid UTF-8, as a JSON text with its quotes.
void appendJsonText(std::string &out, std::string_view text);

/// Appends a value as JSON; None as null.
void appendJson(std::string &out, const Value &value);

/// Appends `,` unless `out` ends with an opening bracket, then the name and a colon.
void appendJsonName(std::string &out, std::string_view name);

} // namespace zelsim

#endif // ZEL_SIM_DATA_JSON_TEXT_H_
