// SPDX-License-Identifier: MIT
#include "data/WriteAheadLog.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string_view>

namespace zelsim
{

namespace
{

// The form of the file: a header, then frames of a header and a page each. Numbers are big endian, but for
// the words that are summed up, whose order the first number tells.
constexpr std::size_t kHeaderSize = 32;
constexpr std::size_t kFrameHeaderSize = 24;
constexpr std::size_t kSaltSize = 8;
constexpr std::uint32_t kLittleEndianSums = 0x377f0682;
constexpr std::uint32_t kBigEndianSums = 0x377f0683;

std::uint32_t bigEndian(std::string_view bytes, std::size_t at)
{
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < 4; ++i)
    number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
  return number;
}

struct Sum {
  std::uint32_t first = 0;
  std::uint32_t second = 0;
  bool littleEndian = false;

  std::uint32_t word(std::string_view bytes, std::size_t at) const
  {
    const std::uint32_t number = bigEndian(bytes, at);
    return littleEndian ? __builtin_bswap32(number) : number;
  }
  void add(std::string_view bytes)
  {
    for (std::size_t at = 0; at + 8 <= bytes.size(); at += 8) {
      first += word(bytes, at) + second;
      second += word(bytes, at + 4) + first;
    }
  }
  bool isAt(std::string_view bytes, std::size_t at) const
  {
    return bigEndian(bytes, at) == first && bigEndian(bytes, at + 4) == second;
  }
};

} // namespace

std::string damageOfLog(const std::string &path)
{
  std::ifstream file(path, std::ios::binary);
  const std::string log((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  if (log.empty())
    return {};
  const std::string_view all(log);
  Sum sum;
  sum.littleEndian = all.size() >= kHeaderSize && bigEndian(all, 0) == kLittleEndianSums;
  if (all.size() < kHeaderSize || (!sum.littleEndian && bigEndian(all, 0) != kBigEndianSums))
    return "its log of writes is damaged from the beginning";
  sum.add(all.substr(0, 24));
  const std::size_t frame = kFrameHeaderSize + bigEndian(all, 8);
  if (!sum.isAt(all, 24) || frame <= kFrameHeaderSize)
    return "its log of writes is damaged from the beginning";
  std::size_t at = kHeaderSize;
  for (; at + frame <= all.size(); at += frame) {
    // What stands there from an earlier round of the log has other salts.
    if (all.substr(at + 8, kSaltSize) != all.substr(16, kSaltSize))
      return {};
    sum.add(all.substr(at, 8));
    sum.add(all.substr(at + kFrameHeaderSize, frame - kFrameHeaderSize));
    if (!sum.isAt(all, at + 16))
      return "its log of writes is damaged";
  }
  return at == all.size() ? std::string() : std::string("its log of writes ends in the middle of one");
}

} // namespace zelsim
