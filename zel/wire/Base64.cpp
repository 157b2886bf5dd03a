// SPDX-License-Identifier: MIT
#include "Base64.h"

#include <openssl/evp.h>

namespace zelwire
{

namespace
{

// The library counts in int.
constexpr std::size_t kMostBytes = std::size_t{1} << 30;

} // namespace

std::string encodeBase64(const void *bytes, std::size_t length)
{
  if (length > kMostBytes / 4 * 3)
    return {};
  // The library writes a NUL behind the text.
  std::string out((length + 2) / 3 * 4 + 1, '\0');
  EVP_EncodeBlock(reinterpret_cast<unsigned char *>(&out[0]), static_cast<const unsigned char *>(bytes),
                  static_cast<int>(length));
  out.pop_back();
  return out;
}

std::string decodeBase64(std::string_view text, bool &ok)
{
  ok = text.empty();
  if (text.size() % 4 != 0 || text.size() > kMostBytes || text.empty())
    return {};
  const std::size_t padding = text.back() != '=' ? 0 : text[text.size() - 2] == '=' ? 2 : 1;
  std::string out(text.size() / 4 * 3, '\0');
  const int length =
      EVP_DecodeBlock(reinterpret_cast<unsigned char *>(&out[0]),
                      reinterpret_cast<const unsigned char *>(text.data()), static_cast<int>(text.size()));
  if (length < 0 || static_cast<std::size_t>(length) < padding)
    return {};
  out.resize(static_cast<std::size_t>(length) - padding);
  // The library lets blanks and bits that no byte takes pass; here one block has one text.
  ok = encodeBase64(out.data(), out.size()) == text;
  return ok ? out : std::string();
}

} // namespace zelwire
