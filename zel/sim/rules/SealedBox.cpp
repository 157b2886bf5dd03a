// SPDX-License-Identifier: MIT
#include "rules/SealedBox.h"

#include <array>
#include <memory>
#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

namespace zelsim
{

namespace
{

const std::string kMark = "CZE1";
constexpr int kSaltSize = 16, kNonceSize = 12, kTagSize = 16, kKeySize = 32;

using Bytes = const unsigned char *;
using Context = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;
using Key = std::array<unsigned char, kKeySize>;

Bytes bytesOf(const std::string &text, std::size_t from = 0)
{
  return reinterpret_cast<Bytes>(text.data()) + from;
}

unsigned char *roomOf(std::string &text)
{
  return reinterpret_cast<unsigned char *>(text.data());
}

bool keyOf(const std::string &password, int rounds, Bytes salt, Key &key)
{
  return PKCS5_PBKDF2_HMAC(password.data(), static_cast<int>(password.size()), salt, kSaltSize, rounds,
                           EVP_sha256(), kKeySize, key.data()) == 1;
}

} // namespace

std::string sealBox(const std::string &plain, const std::string &password, int rounds)
{
  std::string head(kSaltSize + kNonceSize, '\0');
  Key key;
  if (RAND_bytes(roomOf(head), static_cast<int>(head.size())) != 1 ||
      !keyOf(password, rounds, bytesOf(head), key))
    return {};
  const Context context(EVP_CIPHER_CTX_new(), EVP_CIPHER_CTX_free);
  std::string sealed(plain.size(), '\0');
  std::string tag(kTagSize, '\0');
  int length = 0, rest = 0;
  const bool good =
      context &&
      EVP_EncryptInit_ex(context.get(), EVP_aes_256_gcm(), nullptr, key.data(), bytesOf(head, kSaltSize)) &&
      EVP_EncryptUpdate(context.get(), nullptr, &length, bytesOf(kMark), static_cast<int>(kMark.size())) &&
      EVP_EncryptUpdate(context.get(), roomOf(sealed), &length, bytesOf(plain),
                        static_cast<int>(plain.size())) &&
      EVP_EncryptFinal_ex(context.get(), roomOf(tag), &rest) &&
      EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_GET_TAG, kTagSize, roomOf(tag));
  OPENSSL_cleanse(key.data(), key.size());
  return good ? kMark + head + tag + sealed : std::string();
}

bool isSealedBox(const std::string &bytes)
{
  return bytes.compare(0, kMark.size(), kMark) == 0;
}

bool openBox(const std::string &box, const std::string &password, std::string &plain, int rounds)
{
  const std::size_t headSize = kMark.size() + kSaltSize + kNonceSize + kTagSize;
  Key key;
  if (box.size() < headSize || !isSealedBox(box) || !keyOf(password, rounds, bytesOf(box, kMark.size()), key))
    return false;
  const Context context(EVP_CIPHER_CTX_new(), EVP_CIPHER_CTX_free);
  std::string tag = box.substr(headSize - kTagSize, kTagSize);
  std::string opened(box.size() - headSize, '\0');
  int length = 0, rest = 0;
  unsigned char end[kTagSize];
  const bool good =
      context &&
      EVP_DecryptInit_ex(context.get(), EVP_aes_256_gcm(), nullptr, key.data(),
                         bytesOf(box, kMark.size() + kSaltSize)) &&
      EVP_DecryptUpdate(context.get(), nullptr, &length, bytesOf(kMark), static_cast<int>(kMark.size())) &&
      EVP_DecryptUpdate(context.get(), roomOf(opened), &length, bytesOf(box, headSize),
                        static_cast<int>(opened.size())) &&
      EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_SET_TAG, kTagSize, roomOf(tag)) &&
      EVP_DecryptFinal_ex(context.get(), end, &rest) > 0;
  OPENSSL_cleanse(key.data(), key.size());
  if (good)
    plain = std::move(opened);
  return good;
}

} // namespace zelsim
