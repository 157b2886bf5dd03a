// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_MIME_TYPES_H_
#define WT_HTTP_MIME_TYPES_H_

#include <string_view>

namespace Wt
{
namespace Net
{

/// What a static file is, judged by the end of its name.
struct MimeType {
  const char *extension; ///< with the dot
  const char *type;
  bool compressible;
  int maximumAge; ///< seconds for which a browser need not ask again; 0 = it asks each time
};

/// The entry for that file name; application/octet-stream for unknown endings.
const MimeType &mimeTypeOf(std::string_view fileName);

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_MIME_TYPES_H_
