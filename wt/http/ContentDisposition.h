// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_CONTENT_DISPOSITION_H_
#define WT_HTTP_CONTENT_DISPOSITION_H_

#include <string>

namespace Wt
{
namespace Net
{

/// The value of a Content-Disposition header: `type` is "attachment" or "inline". Whatever the name (UTF-8)
/// holds, it stays a name: no folders, no control characters, nothing that ends the quotes.
std::string contentDisposition(const std::string &type, const std::string &fileName);

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_CONTENT_DISPOSITION_H_
