// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_HTTP_DATE_H_
#define WT_HTTP_HTTP_DATE_H_

#include <ctime>
#include <string>
#include <string_view>

namespace Wt
{
namespace Net
{

/// "Sun, 06 Nov 1994 08:49:37 GMT".
std::string httpDate(std::time_t time);

/// The reverse, for that form only; false for any other.
bool parseHttpDate(std::string_view text, std::time_t &time);

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_HTTP_DATE_H_
