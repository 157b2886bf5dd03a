// SPDX-License-Identifier: MIT
#include "data/IconFiles.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <zlib.h>

namespace zelsim
{

namespace
{

constexpr int kSide = 24;

struct Rgb {
  unsigned char red, green, blue;
};

const char *const kBrands[] = {"unknown", "halden", "greyfen"};

const Rgb kTints[][4] = {
    {{46, 94, 140}, {90, 110, 60}, {140, 84, 40}, {96, 72, 128}},
    {{20, 104, 112}, {52, 96, 150}, {124, 96, 30}, {128, 60, 84}},
    {{84, 92, 104}, {60, 108, 92}, {132, 80, 64}, {72, 84, 132}},
};

// Pictograms, eight rows of eight pixels: tower, rack, laptop, screen, camera, disk, globe, console.
const std::uint64_t kPictures[] = {
    0x7e42427e5a42427eULL, 0xff81ff81ff81ffffULL, 0x007e42427e00ff7eULL, 0xff818181ff18187eULL,
    0x3cff8199a599ff00ULL, 0x3c42819981c3bd7eULL, 0x3c5a99ffff995a3cULL, 0x00ffd5abffbdff00ULL,
};

const std::uint16_t kDigits[] = {075557, 026227, 071747, 071717, 055711,
                                 074717, 074757, 071111, 075757, 075717};

using Image = std::array<std::array<Rgb, kSide>, kSide>;

void drawTile(Image &image, Rgb tint)
{
  const Rgb ground = {244, 246, 248};
  for (int y = 0; y < kSide; ++y)
    for (int x = 0; x < kSide; ++x) {
      const bool edge = x == 0 || y == 0 || x == kSide - 1 || y == kSide - 1;
      image[y][x] = edge ? tint : ground;
    }
}

void drawPicture(Image &image, std::uint64_t picture, Rgb tint)
{
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x)
      if (picture >> (63 - (y / 2) * 8 - x / 2) & 1)
        image[4 + y][4 + x] = tint;
}

void drawDigit(Image &image, unsigned digit, int left, Rgb tint)
{
  for (int y = 0; y < 15; ++y)
    for (int x = 0; x < 9; ++x)
      if (kDigits[digit] >> (14 - (y / 3) * 3 - x / 3) & 1)
        image[5 + y][left + x] = tint;
}

void putNumber(std::string &out, std::uint32_t number)
{
  for (int shift = 24; shift >= 0; shift -= 8)
    out += static_cast<char>(number >> shift & 0xff);
}

void putChunk(std::string &out, const char *type, const std::string &data)
{
  const std::string body = type + data;
  putNumber(out, static_cast<std::uint32_t>(data.size()));
  out += body;
  putNumber(out, static_cast<std::uint32_t>(
                     crc32(0, reinterpret_cast<const Bytef *>(body.data()), static_cast<uInt>(body.size()))));
}

std::string deflated(const std::string &raw)
{
  uLongf length = compressBound(raw.size());
  std::string packed(length, '\0');
  compress2(reinterpret_cast<Bytef *>(packed.data()), &length, reinterpret_cast<const Bytef *>(raw.data()),
            raw.size(), 9);
  packed.resize(length);
  return packed;
}

std::string pngOf(const Image &image)
{
  std::string raw;
  for (const auto &row : image) {
    raw += '\0';
    for (const Rgb &pixel : row) {
      raw += static_cast<char>(pixel.red);
      raw += static_cast<char>(pixel.green);
      raw += static_cast<char>(pixel.blue);
    }
  }
  std::string file("\x89PNG\r\n\x1a\n", 8);
  std::string header;
  putNumber(header, kSide);
  putNumber(header, kSide);
  header += std::string("\x08\x02\0\0\0", 5);
  putChunk(file, "IHDR", header);
  putChunk(file, "IDAT", deflated(raw));
  putChunk(file, "IEND", "");
  return file;
}

bool writeIfMissing(const std::filesystem::path &path, unsigned index, unsigned brand)
{
  std::error_code error;
  if (std::filesystem::exists(path, error))
    return true;
  std::ofstream file(path, std::ios::binary);
  file << iconFile(index, brand);
  return file.good();
}

} // namespace

std::string iconFile(unsigned index, unsigned brand)
{
  const auto &palette = kTints[brand % std::size(kTints)];
  const Rgb tint = palette[index / std::size(kPictures) % std::size(palette)];
  Image image;
  drawTile(image, tint);
  if (index > 0 && index < kFirstCustomIcon) {
    drawPicture(image, kPictures[(index - 1) % std::size(kPictures)], tint);
  } else {
    drawDigit(image, index / 10 % 10, 3, tint);
    drawDigit(image, index % 10, 13, tint);
  }
  return pngOf(image);
}

bool writeMissingIcons(const std::string &folder)
{
  bool good = true;
  for (unsigned brand = 0; brand < std::size(kBrands); ++brand) {
    const auto base = std::filesystem::path(folder) / kBrands[brand];
    std::error_code error;
    std::filesystem::create_directories(base, error);
    for (unsigned index = 0; index <= kLastIcon; ++index) {
      char name[16];
      std::snprintf(name, sizeof name, "icon%2.2u.png", index);
      good = writeIfMissing(base / name, index, brand) && good;
    }
  }
  return good;
}

} // namespace zelsim
