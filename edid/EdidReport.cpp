// SPDX-License-Identifier: MIT
#include "EdidReport.h"

#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <cstdio>

namespace
{

constexpr unsigned char kHeader[] = {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};

constexpr double kCentimetresPerInch = 2.54;

struct FlagLine {
  unsigned char mask;
  const char *set;
  const char *clear;
};

struct ValueLine {
  unsigned char value;
  const char *line;
};

constexpr unsigned char kLevelMask = 0x60;
constexpr ValueLine kAnalogLevels[] = {
    {0x00, "\n         0.700, 0.300 (1.000 V p-p)"},
    {0x20, "\n         0.714, 0.286 (1.000 V p-p)"},
    {0x40, "\n         1.000, 0.400 (1.400 V p-p)"},
    {0x60, "\n         0.700, 0.000 (0.700 V p-p)"},
};

constexpr FlagLine kAnalogFlags[] = {
    {0x10, "\n         Pedestal: Expected", "\n         Pedestal: Not Expected"},
    {0x08, "\n         Separate Syncs: Supported", "\n         Separate Syncs: Not Supported"},
    {0x04, "\n         Composite Syncs: Supported", "\n         Composite Syncs: Not Supported"},
    {0x02, "\n         Sync-on-Green: Supported", "\n         Sync-on-Green: Not Supported"},
    {0x01, "\n         Serration during composite or SoG: Required",
     "\n         Serration during composite or SoG: Not Required"},
};

constexpr FlagLine kPowerFlags[] = {
    {0x80, "\n      DPMS Standby: Supported", "\n      DPMS Standby: Not Supported"},
    {0x40, "\n      DPMS Suspend: Supported", "\n      DPMS Suspend: Not Supported"},
    {0x20, "\n      DPMS Active Off/Very Low Power: Supported",
     "\n      DPMS Active Off/Very Low Power: Not Supported"},
};

constexpr unsigned char kDisplayTypeMask = 0x18;
constexpr ValueLine kDisplayTypes[] = {
    {0x00, "\n      Display Type: Monochrome / grayscale display"},
    {0x08, "\n      Display Type: RGB Color display"},
    {0x10, "\n      Display Type: Non-RGB multicolor display (e.g. RGY)"},
    {0x18, "\n      Display Type: Undefined"},
};

constexpr FlagLine kFeatureFlags[] = {
    {0x04, "\n      Color Space: sRGB standard default", "\n      Color Space: Non-Standard"},
    {0x02, "\n      Preferred Timing Mode: Defined in Detailed Timing Block #1",
     "\n      Preferred Timing Mode: Not Defined in Detailed Timing Block #1"},
    {0x01, "\n      Default GTF: Supported", "\n      Default GTF: Not Supported"},
};

// From bit 7 down.
constexpr const char *kTimings1[] = {
    "\n      720 x 400 @ 70 Hz (IBM, VGA):       ", "\n      720 x 400 @ 88 Hz (IBM, XGA2):      ",
    "\n      640 x 480 @ 60 Hz (IBM, VGA):       ", "\n      640 x 480 @ 67 Hz (Apple, Mac II):  ",
    "\n      640 x 480 @ 72 Hz (VESA):           ", "\n      640 x 480 @ 75 Hz (VESA):           ",
    "\n      800 x 600 @ 56 Hz (VESA):           ", "\n      800 x 600 @ 60 Hz (VESA):           ",
};
constexpr const char *kTimings2[] = {
    "\n      800 x 600 @ 72 Hz (VESA):           ", "\n      800 x 600 @ 75 Hz (VESA):           ",
    "\n      832 x 624 @ 75 Hz (Apple, Mac II):  ", "\n      1024 x 768 @ 87 Hz(I) (IBM):        ",
    "\n      1024 x 768 @ 60 Hz (VESA):          ", "\n      1024 x 768 @ 70 Hz (VESA):          ",
    "\n      1024 x 768 @ 75 Hz (VESA):          ", "\n      1280 x 1024 @ 75 Hz (VESA):         ",
};
constexpr const char *kManufacturersTiming = "\n      1152 x 870 @ 75 Hz (Apple, Mac II): ";

// Where a colour's coordinates are: the high bytes, and the place of the low bits of x; those of y are the
// two bits below.
struct ColorPlace {
  const char *name;
  int highX;
  int highY;
  int low;
  int shiftX;
};
constexpr ColorPlace kColors[] = {
    {"Red", 27, 28, 25, 6},
    {"Green", 29, 30, 25, 2},
    {"Blue", 31, 32, 26, 6},
    {"White", 33, 34, 26, 2},
};

// Tags of descriptors that are named and no more.
constexpr ValueLine kNamedDescriptors[] = {
    {0xFB, "\n         Color Point Data"},
    {0xFA, "\n         Standard Timing Identifications"},
    {0x10, "\n         Dummy Descriptor"},
};
constexpr unsigned char kFirstDefinedTag = 0x10;

constexpr FlagLine kSerration[] = {{0x04, "\n      Don't Serrate", "\n      Serrate"}};
constexpr FlagLine kSyncChannels[] = {{0x02, "\n      Sync-on-RGB", "\n      Sync-on-Green"}};
constexpr FlagLine kCompositePolarity[] = {
    {0x02, "\n      Composite Polarity: Positive", "\n      Composite Polarity: Negative"}};
constexpr FlagLine kSeparatePolarity[] = {
    {0x04, "\n      Vertical  Polarity: Positive", "\n      Vertical  Polarity: Negative"},
    {0x02, "\n      Horizontal Polarity: Positive", "\n      Horizontal Polarity: Negative"}};

template <std::size_t Count> std::string flagLines(unsigned char byte, const FlagLine (&lines)[Count])
{
  std::string all;
  for (const FlagLine &row : lines)
    all += byte & row.mask ? row.set : row.clear;
  return all;
}

template <std::size_t Count> const char *lineOf(unsigned char value, const ValueLine (&lines)[Count])
{
  for (const ValueLine &row : lines) {
    if (row.value == value)
      return row.line;
  }
  return nullptr;
}

const char *supported(unsigned int bit)
{
  return bit ? "Supported" : "Not Supported";
}

// Ten bits behind the point.
float coordinate(unsigned int high, unsigned int low)
{
  return static_cast<float>(high * 4 + (low & 3)) / 1024;
}

} // namespace

bool EdidReport::hasNormalHeader(const unsigned char *bytes)
{
  return std::equal(std::begin(kHeader), std::end(kHeader), bytes);
}

EdidReport::EdidReport(const unsigned char *bytes, int length, std::string &text)
    : bytes_(bytes), length_(length), text_(text)
{
  text_.clear();
}

void EdidReport::add(const char *format, ...)
{
  char piece[256];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(piece, sizeof piece, format, arguments);
  va_end(arguments);
  text_ += piece;
}

void EdidReport::addBytes(const char *before, int first, int count)
{
  add("%s[", before);
  for (int i = first; i < first + count; ++i)
    add(i == first ? "%02X" : " %02X", bytes_[i]);
  add("]");
}

void EdidReport::addRawData()
{
  add("Raw data (hexadecimal):\n");
  for (int i = 0; i < length_; ++i) {
    if (i % 16 == 0)
      add("\n");
    add("  %2.2X", bytes_[i]);
  }
}

void EdidReport::addTooShort()
{
  add("\n\nEDID data block is too short. Expected at least 128 bytes. Not decoding.");
}

void EdidReport::addDecodedData(const std::string &manufacturer, const std::string &productCode)
{
  add("\n\nDecoded data -- corresponding raw data shown as hexadecimal in []:");
  addHeader();
  addIdentification(manufacturer, productCode);
  addVersion();
  addVideoInput();
  addImageSize();
  addGamma();
  addFeatures();
  addColors();
  addEstablishedTimings();
  for (int number = 1; number <= 8; ++number)
    addStandardTiming(number);
  for (int number = 1; number <= 4; ++number)
    addDetailedBlock(number);
  addBytes("\n\n   ", 126, 1);
  add("\n   Extension Flag: %d extension blocks follow", bytes_[126]);
  addChecksum();
}

void EdidReport::addHeader()
{
  addBytes("\n\n   ", 0, 8);
  add(hasNormalHeader(bytes_) ? "\n   Normal Header"
                              : "\n   Invalid Header! Expected: 00 FF FF FF FF FF FF 00");
}

void EdidReport::addIdentification(const std::string &manufacturer, const std::string &productCode)
{
  add("\n\n   Vendor/Product Identification");
  addBytes("\n\n      ", 8, 2);
  add("\n      ID Manufacturer Name (EISA 3-character code) = %s", manufacturer.c_str());
  addBytes("\n\n      ", 10, 2);
  add("\n      ID Product Code (hexadecimal)                = %s", productCode.c_str());
  addBytes("\n\n      ", 12, 4);
  add("\n      ID Serial Number (hexadecimal)               = %02X%02X%02X%02X", bytes_[15], bytes_[14],
      bytes_[13], bytes_[12]);
  addBytes("\n\n      ", 16, 2);
  add("\n      Manufactured: Week %d of %d", bytes_[16], bytes_[17] + 1990);
}

void EdidReport::addVersion()
{
  addBytes("\n\n   ", 18, 2);
  add("\n   EDID Version %d.%d\n", bytes_[18], bytes_[19]);
}

void EdidReport::addVideoInput()
{
  const unsigned char input = bytes_[20];
  add("\n   Basic Display Parameters / Features");
  addBytes("\n\n      ", 20, 1);
  add("\n      Video Input Definition:");
  if (input & 0x80) {
    add("\n         Digital Input");
    add(input & 0x01 ? "\n         VESA DFP 1.x TMDS CRGB"
                       "\n         1 pixel/clock"
                       "\n         Up to 8 bits/color MSB aligned"
                       "\n         DE active high"
                     : "\n         Not VESA DFP 1.x TMDS CRGB Compliant");
    return;
  }
  add("\n      Analog Input");
  add("%s", lineOf(input & kLevelMask, kAnalogLevels));
  text_ += flagLines(input, kAnalogFlags);
}

void EdidReport::addImageSize()
{
  const int horizontal = bytes_[21];
  const int vertical = bytes_[22];
  addBytes("\n\n      ", 21, 1);
  add("\n      Max. Horizontal Image Size = %d.000 cm or %0.3f in", horizontal,
      static_cast<float>(horizontal / kCentimetresPerInch));
  addBytes("\n\n      ", 22, 1);
  add("\n      Max. Vertical   Image Size = %d.000 cm or %0.3f in", vertical,
      static_cast<float>(vertical / kCentimetresPerInch));
  const auto diagonal = static_cast<float>(std::sqrt(horizontal * horizontal + vertical * vertical));
  add("\n\n      Max. Diagonal   Image Size = %0.3f cm or %0.3f in (calculated)", diagonal,
      static_cast<float>(diagonal / kCentimetresPerInch));
}

void EdidReport::addGamma()
{
  const int gamma = bytes_[23];
  addBytes("\n\n      ", 23, 1);
  // The division is of whole numbers, so every gamma that is defined reads 1.000.
  const int factor = gamma / 255;
  if (gamma == 255)
    add("\n      Display Transfer Characteristic (Gamma) = Not Defined Here");
  else
    add("\n      Display Transfer Characteristic (Gamma) = %0.3f", factor * 2.54 + 1.0);
}

void EdidReport::addFeatures()
{
  const unsigned char features = bytes_[24];
  addBytes("\n\n      ", 24, 1);
  text_ += flagLines(features, kPowerFlags);
  add("%s", lineOf(features & kDisplayTypeMask, kDisplayTypes));
  text_ += flagLines(features, kFeatureFlags);
}

void EdidReport::addColors()
{
  add("\n\n   Color Characteristics");
  addBytes("\n\n      ", 25, 10);
  for (const ColorPlace &color : kColors) {
    const unsigned int low = bytes_[color.low];
    add("\n      %-5s = (%0.3f, %0.3f)", color.name, coordinate(bytes_[color.highX], low >> color.shiftX),
        coordinate(bytes_[color.highY], low >> (color.shiftX - 2)));
  }
}

void EdidReport::addEstablishedTimings()
{
  add("\n\n   Established Timings I");
  addBytes("\n\n      ", 35, 1);
  for (int i = 0; i < 8; ++i)
    add("%s%s", kTimings1[i], supported(bytes_[35] & (0x80 >> i)));
  add("\n\n   Established Timings II");
  addBytes("\n\n      ", 36, 1);
  for (int i = 0; i < 8; ++i)
    add("%s%s", kTimings2[i], supported(bytes_[36] & (0x80 >> i)));
  add("\n\n   Manufacturer's Timings");
  addBytes("\n\n      ", 37, 1);
  add("%s%s", kManufacturersTiming, supported(bytes_[37] & 0x80));
  for (int bit = 6; bit >= 0; --bit)
    add("\n      Reserved %d: %d", bit, bytes_[37] >> bit & 1);
}

void EdidReport::addStandardTiming(int number)
{
  const int first = 38 + 2 * (number - 1);
  add("\n\n   Standard Timing Identification #%d", number);
  addBytes("\n\n      ", first, 2);
  const unsigned char size = bytes_[first];
  const unsigned char rate = bytes_[first + 1];
  if (size == 1 && rate == 1) {
    add("\n      Unused");
    return;
  }
  const auto width = static_cast<float>((size + 31) * 8);
  const auto refresh = static_cast<float>((rate & 0x3F) + 60);
  switch (rate & 0xC0) {
  case 0x00:
    add("\n      %.0f x %.0f @ %.0f Hz (16:10)", width, width * 10 * 0.0625F, refresh);
    break;
  case 0x40:
    add("\n      %.0f x %.0f @ %.0f Hz (4:3)", width, width * 3 * 0.25F, refresh);
    break;
  case 0x80:
    add("\n      %.0f x %.0f @ %.0f Hz (5:4)", width, width * 4 / 5, refresh);
    break;
  default:
    add("\n      %.0f x %.0f @ %.0f Hz (16:9)", width, width * 9 * 0.0625F, refresh);
  }
}

void EdidReport::addDetailedBlock(int number)
{
  const int first = 54 + 18 * (number - 1);
  add("\n\n   Detailed Timing Description #%d", number);
  addBytes("\n\n      ", first, 18);
  const unsigned char *block = bytes_ + first;
  if (block[0] == 0 && block[1] == 0)
    addDescriptor(block);
  else
    addDetailedTiming(block);
}

void EdidReport::addDescriptor(const unsigned char *block)
{
  const unsigned char tag = block[3];
  add("\n      Monitor Descriptor Block");
  if (tag == 0xFF) {
    add("\n         Monitor Serial Number: ");
    addDescriptorText(block);
  } else if (tag == 0xFE) {
    add("\n         ASCII String");
    add("\n            ");
    addDescriptorText(block);
  } else if (tag == 0xFD) {
    addRangeLimits(block);
  } else if (tag == 0xFC) {
    add("\n         Monitor Name: ");
    addDescriptorText(block);
  } else if (const char *line = lineOf(tag, kNamedDescriptors)) {
    add("%s", line);
  } else {
    add(tag < kFirstDefinedTag ? "\n         Defined by Manufacturer" : "\n         Currently Undefined");
  }
}

// All 13 characters: neither the line feed that ends a shorter text nor the blanks behind it are taken off.
void EdidReport::addDescriptorText(const unsigned char *block)
{
  for (int i = 5; i < 18; ++i)
    add("%c", block[i]);
  add("\n");
}

void EdidReport::addRangeLimits(const unsigned char *block)
{
  add("\n         Monitor Range Limits");
  add("\n            Min. Vertical   rate: %d Hz", block[5]);
  add("\n            Max. Vertical   rate: %d Hz", block[6]);
  add("\n            Min. Horizontal rate: %d kHz", block[7]);
  add("\n            Max. Horizontal rate: %d kHz", block[8]);
  add("\n            Max. Supported Pixel Clock: %d0 MHz", block[9]);
}

void EdidReport::addDetailedTiming(const unsigned char *b)
{
  const auto number = [](int value) { return static_cast<float>(value); };
  add("\n      Pixel Clock: %.3f MHz", number(b[0] + 256 * b[1]) / 100);
  add("\n      Horizontal Active: %.0f pixels", number((b[4] & 0xF0) * 16 + b[2]));
  add("\n      Horizontal Blanking: %.0f pixels", number((b[4] & 0x0F) * 256 + b[3]));
  add("\n      Vertical   Active: %.0f pixels", number((b[7] & 0xF0) * 16 + b[5]));
  add("\n      Vertical   Blanking: %.0f pixels", number((b[7] & 0x0F) * 256 + b[6]));
  add("\n      Horizontal Sync Offset: %.0f pixels", number((b[11] & 0xC0) * 4 + b[8]));
  add("\n      Horizontal Sync Pulse Width: %.0f pixels", number((b[11] & 0x30) * 16 + b[9]));
  add("\n      Vertical   Sync Offset: %.0f pixels", number((b[11] & 0x0C) * 4 + (b[10] >> 4)));
  add("\n      Vertical   Sync Pulse Width: %.0f pixels", number((b[11] & 0x03) * 16 + (b[10] & 0x0F)));
  add("\n      Horizontal Image Size: %.0f mm", number((b[14] & 0xF0) * 16 + b[12]));
  add("\n      Vertical   Image Size: %.0f mm", number((b[14] & 0x0F) * 256 + b[13]));
  add("\n      Horizontal Border: %d", b[15]);
  add("\n      Vertical   Border: %d", b[16]);
  add(b[17] & 0x80 ? "\n      Interlaced" : "\n      Non-Interlaced");
  add(b[17] & 0x60 ? "\n      Stereoscopic display" : "\n      Normal display, no stereo");
  addSync(b[17]);
}

void EdidReport::addSync(unsigned char flags)
{
  switch (flags & 0x18) {
  case 0x00:
    add("\n      Analog composite");
    text_ += flagLines(flags, kSerration) + flagLines(flags, kSyncChannels);
    break;
  case 0x08:
    add("\n      Bipolar analog composite");
    text_ += flagLines(flags, kSerration) + flagLines(flags, kSyncChannels);
    break;
  case 0x10:
    add("\n      Digital composite");
    text_ += flagLines(flags, kSerration) + flagLines(flags, kCompositePolarity);
    break;
  default:
    add("\n      Digital separate");
    text_ += flagLines(flags, kSeparatePolarity);
  }
}

void EdidReport::addChecksum()
{
  unsigned int sum = 0;
  for (int i = 0; i < 127; ++i)
    sum += bytes_[i];
  const unsigned int expected = -sum & 0xFF;
  addBytes("\n\n   ", 127, 1);
  if (bytes_[127] == expected)
    add("\n   Normal Checksum");
  else
    add("\n   Invalid Checksum! Expected (hex): %02X", expected);
}
