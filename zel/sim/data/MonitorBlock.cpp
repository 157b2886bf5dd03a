// SPDX-License-Identifier: MIT
#include "data/MonitorBlock.h"

#include "data/VideoTimings.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

namespace zelsim
{

namespace
{

const MonitorModel kModels[] = {
    {"CRV", 0x2410, "CRV 24W", true, 0, 52, 32},      {"NLM", 0x1a27, "NLM Pano 27", true, 1, 60, 34},
    {"OPX", 0x0519, "OPX 519S", true, 4, 38, 30},     {"VNT", 0x2005, "VNT Desk 20", true, 3, 43, 27},
    {"OPX", 0x0321, "OPX Wall 21", false, 2, 43, 33}, {"VNT", 0x1501, "VNT Rack 15", false, 6, 30, 23},
    {"NLM", 0x0116, "NLM Cart 16", true, 5, 34, 19},
};

constexpr std::size_t kHalfBlock = 128;

void putChecksum(unsigned char *half)
{
  unsigned sum = 0;
  for (std::size_t i = 0; i < kHalfBlock - 1; ++i)
    sum += half[i];
  half[kHalfBlock - 1] = static_cast<unsigned char>(256 - sum % 256);
}

void putDetailedTiming(unsigned char *out, const VideoTiming &t, unsigned widthMm, unsigned heightMm)
{
  const auto low = [](unsigned v) { return static_cast<unsigned char>(v & 0xff); };
  const unsigned clock = t.pixelClock / 10;
  const unsigned hBlank = t.horizontalFrontPorch + t.horizontalSyncWidth + t.horizontalBackPorch;
  const unsigned vBlank = t.verticalFrontPorch + t.verticalSyncWidth + t.verticalBackPorch;
  out[0] = low(clock);
  out[1] = low(clock >> 8);
  out[2] = low(t.horizontalResolution);
  out[3] = low(hBlank);
  out[4] = low((t.horizontalResolution >> 8) << 4 | hBlank >> 8);
  out[5] = low(t.verticalResolution);
  out[6] = low(vBlank);
  out[7] = low((t.verticalResolution >> 8) << 4 | vBlank >> 8);
  out[8] = low(t.horizontalFrontPorch);
  out[9] = low(t.horizontalSyncWidth);
  out[10] = low((t.verticalFrontPorch & 15) << 4 | (t.verticalSyncWidth & 15));
  out[11] = low((t.horizontalFrontPorch >> 8) << 6 | (t.horizontalSyncWidth >> 8) << 4 |
                (t.verticalFrontPorch >> 4) << 2 | t.verticalSyncWidth >> 4);
  out[12] = low(widthMm);
  out[13] = low(heightMm);
  out[14] = low((widthMm >> 8) << 4 | heightMm >> 8);
  out[17] = low(0x18u | (t.verticalPositive ? 4u : 0u) | (t.horizontalPositive ? 2u : 0u));
}

void putText(unsigned char *out, unsigned char tag, const char *text)
{
  out[3] = tag;
  const std::size_t length = std::min<std::size_t>(std::strlen(text), 13);
  std::fill(out + 5, out + 18, static_cast<unsigned char>(' '));
  std::memcpy(out + 5, text, length);
  if (length < 13)
    out[5 + length] = '\n';
}

void putRangeLimits(unsigned char *out)
{
  const unsigned char limits[] = {0,  0, 0,    0xfd, 0,   50,  76,  30,  83,
                                  17, 0, '\n', ' ',  ' ', ' ', ' ', ' ', ' '};
  std::copy(std::begin(limits), std::end(limits), out);
}

void putIdentity(unsigned char *out, const MonitorModel &model, std::uint32_t serial)
{
  const unsigned char header[] = {0, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0};
  std::copy(std::begin(header), std::end(header), out);
  const auto letter = [&model](int i) { return static_cast<unsigned>(model.maker[i] - '@'); };
  const unsigned maker = letter(0) << 10 | letter(1) << 5 | letter(2);
  out[8] = static_cast<unsigned char>(maker >> 8);
  out[9] = static_cast<unsigned char>(maker);
  out[10] = static_cast<unsigned char>(model.product);
  out[11] = static_cast<unsigned char>(model.product >> 8);
  for (int i = 0; i < 4; ++i)
    out[12 + i] = static_cast<unsigned char>(serial >> (8 * i));
  out[16] = static_cast<unsigned char>(1 + serial % 52);
  out[17] = static_cast<unsigned char>(18 + serial % 8);
  out[18] = 1;
  out[19] = 3;
}

void putFeatures(unsigned char *out, const MonitorModel &model)
{
  out[20] = model.digital ? 0x81 : 0x0e;
  out[21] = static_cast<unsigned char>(model.widthCm);
  out[22] = static_cast<unsigned char>(model.heightCm);
  out[23] = 120;
  out[24] = 0xee;
  const unsigned char colours[] = {0xee, 0x91, 0xa3, 0x54, 0x4c, 0x99, 0x26, 0x0f, 0x50, 0x54};
  std::copy(std::begin(colours), std::end(colours), out + 25);
  out[35] = 0x21;
  out[36] = 0x08;
  // 1280 x 1024 and 1152 x 864 at 60 and 75 Hz; 01 01 marks an unused entry.
  const unsigned char standard[] = {0x81, 0x80, 0x71, 0x4f, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
  std::copy(std::begin(standard), std::end(standard), out + 38);
}

} // namespace

const MonitorModel *monitorModels(std::size_t &count)
{
  count = std::size(kModels);
  return kModels;
}

MonitorBlock monitorBlock(const MonitorModel &model, std::uint32_t serial)
{
  MonitorBlock block{};
  unsigned char *base = block.data();
  putIdentity(base, model, serial);
  putFeatures(base, model);
  std::size_t count = 0;
  const VideoTiming *timings = videoTimings(count);
  putDetailedTiming(base + 54, timings[model.timing % count], model.widthCm * 10, model.heightCm * 10);
  char number[14];
  std::snprintf(number, sizeof number, "%s%08X", model.maker, static_cast<unsigned>(serial));
  putText(base + 72, 0xff, number);
  putRangeLimits(base + 90);
  putText(base + 108, 0xfc, model.name);
  base[126] = model.digital ? 1 : 0;
  putChecksum(base);
  if (model.digital) {
    unsigned char *extension = base + kHalfBlock;
    extension[0] = 2;
    extension[1] = 3;
    extension[2] = 4;
    putChecksum(extension);
  }
  return block;
}

} // namespace zelsim
