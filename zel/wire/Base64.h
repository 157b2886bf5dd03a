// SPDX-License-Identifier: MIT
#ifndef ZEL_WIRE_BASE64_H_
#define ZEL_WIRE_BASE64_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace zelwire
{

/// Binary blocks travel as base64 texts with padding.
std::string encodeBase64(const void *bytes, std::size_t length);

/// The bytes of `text`; `ok` is false for anything that encodeBase64() would not write.
std::string decodeBase64(std::string_view text, bool &ok);

} // namespace zelwire

#endif // ZEL_WIRE_BASE64_H_
