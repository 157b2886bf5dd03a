// SPDX-License-Identifier: MIT
#include "session/Random.h"

#include "base/Log.h"

#include <cstdlib>
#include <openssl/rand.h>

namespace Wt
{
namespace Engine
{

namespace
{

void fill(unsigned char *bytes, std::size_t size)
{
  if (RAND_bytes(bytes, static_cast<int>(size)) != 1) {
    log(LogLevel::Fatal, "session", "no random numbers from the system; sessions would not be safe");
    std::abort();
  }
}

} // namespace

std::string randomHex(std::size_t bytes)
{
  static const char digits[] = "0123456789abcdef";
  std::string raw(bytes, '\0');
  fill(reinterpret_cast<unsigned char *>(&raw[0]), bytes);
  std::string hex;
  hex.reserve(2 * bytes);
  for (const char c : raw) {
    hex += digits[static_cast<unsigned char>(c) >> 4];
    hex += digits[c & 15];
  }
  return hex;
}

std::string randomName(std::size_t length)
{
  static const char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
  const unsigned count = sizeof alphabet - 1;
  std::string name;
  while (name.size() < length) {
    unsigned char bytes[32];
    fill(bytes, sizeof bytes);
    // Bytes beyond the last whole multiple would make some characters likelier than others.
    for (std::size_t i = 0; i < sizeof bytes && name.size() < length; ++i)
      if (bytes[i] < 256 / count * count)
        name += alphabet[bytes[i] % count];
  }
  return name;
}

} // namespace Engine
} // namespace Wt
