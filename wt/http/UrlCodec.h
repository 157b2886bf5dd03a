// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_URL_CODEC_H_
#define WT_HTTP_URL_CODEC_H_

#include <map>
#include <string>
#include <string_view>

namespace Wt
{
namespace Net
{

/// Undoes percent encoding. False, with `out` unspecified, for a "%" without two hexadecimal digits behind
/// it.
bool percentDecode(std::string_view text, bool plusIsBlank, std::string &out);

/// All bytes but letters, digits and "-._~" become %XX, as in the extended values of header parameters.
std::string percentEncode(std::string_view text);

/// The pairs of "a=b&c=d", decoded. Malformed pairs, and all beyond the hundredth, are left out.
std::multimap<std::string, std::string> parseQuery(std::string_view query);

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_URL_CODEC_H_
