// SPDX-License-Identifier: MIT
#include "rules/SettingsArchive.h"

#include "rules/SealedBox.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <zlib.h>

namespace zelsim
{

namespace
{

constexpr std::size_t kTarBlock = 512;
constexpr std::size_t kUnpackLimit = 64u << 20;
const char kMemberName[] = "settings.json";

std::string tarOf(const std::string &text)
{
  char header[kTarBlock] = {};
  std::snprintf(header, 100, "%s", kMemberName);
  std::snprintf(header + 100, 8, "%07o", 0600u);
  std::snprintf(header + 108, 8, "%07o", 0u);
  std::snprintf(header + 116, 8, "%07o", 0u);
  std::snprintf(header + 124, 12, "%011zo", text.size());
  std::snprintf(header + 136, 12, "%011o", 0u);
  std::memset(header + 148, ' ', 8);
  header[156] = '0';
  std::memcpy(header + 257,
              "ustar\0"
              "00",
              8);
  unsigned sum = 0;
  for (const char c : header)
    sum += static_cast<unsigned char>(c);
  std::snprintf(header + 148, 8, "%06o", sum);
  std::string tar(header, kTarBlock);
  tar += text;
  tar.resize((tar.size() + kTarBlock - 1) / kTarBlock * kTarBlock);
  tar.append(2 * kTarBlock, '\0');
  return tar;
}

bool memberOf(const std::string &tar, std::string &text)
{
  if (tar.size() < kTarBlock || std::strncmp(tar.c_str(), kMemberName, 100) != 0)
    return false;
  std::size_t size = 0;
  const char *digits = tar.data() + 124;
  const auto parsed = std::from_chars(digits, digits + 11, size, 8);
  if (parsed.ec != std::errc() || size > tar.size() - kTarBlock)
    return false;
  text = tar.substr(kTarBlock, size);
  return true;
}

std::string gzipped(const std::string &raw)
{
  z_stream stream{};
  if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY) != Z_OK)
    return {};
  std::string packed(deflateBound(&stream, raw.size()), '\0');
  stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(raw.data()));
  stream.avail_in = static_cast<uInt>(raw.size());
  stream.next_out = reinterpret_cast<Bytef *>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  deflate(&stream, Z_FINISH);
  packed.resize(stream.total_out);
  deflateEnd(&stream);
  return packed;
}

bool gunzipped(const std::string &packed, std::string &raw)
{
  z_stream stream{};
  if (inflateInit2(&stream, 15 + 16) != Z_OK)
    return false;
  stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.data()));
  stream.avail_in = static_cast<uInt>(packed.size());
  char buffer[1 << 16];
  int result = Z_OK;
  while (result == Z_OK && raw.size() <= kUnpackLimit) {
    stream.next_out = reinterpret_cast<Bytef *>(buffer);
    stream.avail_out = sizeof buffer;
    result = inflate(&stream, Z_NO_FLUSH);
    raw.append(buffer, sizeof buffer - stream.avail_out);
  }
  inflateEnd(&stream);
  return result == Z_STREAM_END;
}

} // namespace

std::string packSettings(const std::string &text, const std::string &password)
{
  const std::string archive = gzipped(tarOf(text));
  return password.empty() ? archive : sealBox(archive, password);
}

ArchiveResult unpackSettings(const std::string &archive, const std::string &password, std::string &text)
{
  std::string plain = archive;
  if (isSealedBox(archive) && !openBox(archive, password, plain))
    return ArchiveResult::BadPassword;
  std::string tar;
  return gunzipped(plain, tar) && memberOf(tar, text) ? ArchiveResult::Good : ArchiveResult::BadFormat;
}

} // namespace zelsim
