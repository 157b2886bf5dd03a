// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_GZIP_H_
#define WT_HTTP_GZIP_H_

#include <string>
#include <string_view>

namespace Wt
{
namespace Net
{

/// The text as a gzip file; empty where compressing fails. `level` is zlib's, 1 (quick) to 9 (small).
std::string gzip(std::string_view text, int level);

/// Whether the value of an Accept-Encoding header allows gzip.
bool acceptsGzip(std::string_view acceptEncoding);

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_GZIP_H_
