// SPDX-License-Identifier: MIT
#include "data/Password.h"

#include <atomic>
#include <charconv>
#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>
#include <vector>

namespace zelsim
{

namespace
{

constexpr std::string_view kScheme = "pbkdf2-sha256$";
constexpr std::size_t kSaltSize = 16;
constexpr std::size_t kHashSize = 32;
constexpr unsigned kMostIterations = 10 * 1000 * 1000;

std::atomic<unsigned> iterationsOfNewHashes{60000};

thread_local const PasswordWork *prepared = nullptr;

std::string toHex(const unsigned char *bytes, std::size_t size)
{
  constexpr char digits[] = "0123456789abcdef";
  std::string out;
  for (std::size_t i = 0; i < size; ++i) {
    out += digits[bytes[i] >> 4];
    out += digits[bytes[i] & 15];
  }
  return out;
}

// Whether `text` is `size` bytes in hexadecimal.
bool fromHex(std::string_view text, unsigned char *bytes, std::size_t size)
{
  if (text.size() != size * 2)
    return false;
  for (std::size_t i = 0; i < size; ++i) {
    const char *begin = text.data() + i * 2;
    auto [end, error] = std::from_chars(begin, begin + 2, bytes[i], 16);
    if (error != std::errc() || end != begin + 2)
      return false;
  }
  return true;
}

bool derive(std::string_view password, const unsigned char *salt, unsigned iterations, unsigned char *hash)
{
  return PKCS5_PBKDF2_HMAC(password.data(), static_cast<int>(password.size()), salt, kSaltSize,
                           static_cast<int>(iterations), EVP_sha256(), kHashSize, hash) == 1;
}

// The next field of `text`, up to a dollar sign or the end, which is cut off `text`.
std::string_view nextField(std::string_view &text)
{
  std::string_view field = text.substr(0, text.find('$'));
  text.remove_prefix(std::min(text.size(), field.size() + 1));
  return field;
}

} // namespace

void setPasswordIterations(unsigned iterations)
{
  iterationsOfNewHashes = iterations == 0 ? 1 : iterations;
}

std::string hashPassword(std::string_view password)
{
  if (prepared && prepared->kept.empty() && prepared->password == password)
    return prepared->hash;
  unsigned char salt[kSaltSize];
  unsigned char hash[kHashSize];
  unsigned iterations = iterationsOfNewHashes;
  if (password.empty() || RAND_bytes(salt, sizeof salt) != 1 || !derive(password, salt, iterations, hash))
    return {};
  return std::string(kScheme) + std::to_string(iterations) + '$' + toHex(salt, sizeof salt) + '$' +
         toHex(hash, sizeof hash);
}

bool verifyPassword(std::string_view password, std::string_view kept)
{
  if (kept.empty())
    return password.empty();
  if (prepared && prepared->kept == kept && prepared->password == password)
    return prepared->matches;
  if (kept.substr(0, kScheme.size()) != kScheme)
    return false;
  kept.remove_prefix(kScheme.size());
  std::string_view count = nextField(kept);
  unsigned iterations = 0;
  std::from_chars(count.data(), count.data() + count.size(), iterations);
  unsigned char salt[kSaltSize];
  unsigned char wanted[kHashSize];
  if (iterations == 0 || iterations > kMostIterations || !fromHex(nextField(kept), salt, sizeof salt) ||
      !fromHex(nextField(kept), wanted, sizeof wanted))
    return false;
  unsigned char hash[kHashSize];
  return derive(password, salt, iterations, hash) && CRYPTO_memcmp(hash, wanted, sizeof hash) == 0;
}

void PasswordWork::carryOut()
{
  if (kept.empty())
    hash = hashPassword(password);
  else
    matches = verifyPassword(password, kept);
}

PreparedPassword::PreparedPassword(const PasswordWork *work)
{
  prepared = work;
}

PreparedPassword::~PreparedPassword()
{
  prepared = nullptr;
}

const std::string &nobodysPassword()
{
  static const std::string kept = hashPassword("nobody's");
  return kept;
}

} // namespace zelsim
