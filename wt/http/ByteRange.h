// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_BYTE_RANGE_H_
#define WT_HTTP_BYTE_RANGE_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace Wt
{
namespace Net
{

/// What a Range header asks for.
struct ByteRange {
  enum class Kind {
    Whole,        ///< no range, a form that is not understood, or several ranges: the whole is sent
    Part,         ///< first to last, both within the size
    Unsatisfiable ///< begins behind the end: status 416
  };

  Kind kind = Kind::Whole;
  std::uint64_t first = 0;
  std::uint64_t last = 0;

  std::uint64_t length() const { return last - first + 1; }
  /// The value of Content-Range for a whole of `size` bytes.
  std::string contentRange(std::uint64_t size) const;

  static ByteRange parse(std::string_view header, std::uint64_t size);
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_BYTE_RANGE_H_
