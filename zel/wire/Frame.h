// SPDX-License-Identifier: MIT
#ifndef ZEL_WIRE_FRAME_H_
#define ZEL_WIRE_FRAME_H_

#include <cstddef>
#include <cstdint>
#include <jansson.h>
#include <string_view>

/// The wire between store client and store server: frames of a 4-byte length, most significant byte
/// first, and so many bytes of one JSON value.
///
/// A request frame holds {"method", "resource", "query", "select", "params"} as the client library builds
/// them, and may add "have": the tag of an answer to the same request that the client still holds. An
/// answer frame holds one of
//   {"data": VALUE, "tag": TEXT}   the answer, and (optionally) the tag under which to ask again
//   {"unchanged": true}            the answer that the client holds is still right
//   {"errors": [...]}              a failure
namespace zelwire
{

constexpr std::size_t kHeaderSize = 4;
constexpr std::size_t kMaxFrame = 8 * 1024 * 1024; // of the JSON text
constexpr unsigned kMaxDepth = 32;                 // of nesting

inline void putLength(unsigned char *header, std::size_t length)
{
  header[0] = static_cast<unsigned char>(length >> 24);
  header[1] = static_cast<unsigned char>(length >> 16);
  header[2] = static_cast<unsigned char>(length >> 8);
  header[3] = static_cast<unsigned char>(length);
}

inline std::size_t getLength(const unsigned char *header)
{
  return std::size_t{header[0]} << 24 | std::size_t{header[1]} << 16 | std::size_t{header[2]} << 8 |
         header[3];
}

/// Parses the JSON of a frame. Null for anything that is not one value of valid UTF-8 JSON, nests deeper
/// than kMaxDepth, or has an object with the same key twice. The caller owns the result.
json_t *parseJson(std::string_view text);

} // namespace zelwire

#endif // ZEL_WIRE_FRAME_H_
