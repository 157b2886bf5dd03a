// SPDX-License-Identifier: MIT
// What single bytes say.
#include "EdidBlock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

namespace
{

std::string reportWith(std::size_t first, std::initializer_list<int> values)
{
  return EdidBlock().set(first, values).report();
}

// A report with a timing in the first detailed block whose flags are these.
std::string reportWithFlags(int flags)
{
  return EdidBlock().set(54, {1}).set(71, {flags}).report();
}

std::string reportWithDescriptor(int tag, const std::string &text)
{
  return EdidBlock().set(90, {0, 0, 0, tag, 0}).set(95, text).report();
}

int count(const std::string &text, const std::string &part)
{
  int times = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++times;
  return times;
}

} // namespace

TEST(EdidReportLines, dumpEightLinesOfSixteenBytesAndNeverTheSecondHalf)
{
  const std::string report = EdidBlock().set(128, std::string(128, '\x5A')).report();
  const std::string dump = report.substr(0, report.find("\n\nDecoded data"));
  EXPECT_EQ(count(dump, "\n"), 1 + 8);
  EXPECT_EQ(count(dump, "  "), 128);
  EXPECT_EQ(dump.size(), std::string("Raw data (hexadecimal):\n").size() + 8 * (1 + 16 * 4));
  EXPECT_THAT(report, Not(HasSubstr("5A")));
}

TEST(EdidReportLines, replaceWhatTheTextHeldBefore)
{
  EXPECT_EQ(EdidBlock().report().rfind("Raw data (hexadecimal):\n\n  00  FF", 0), 0U);
}

TEST(EdidReportLines, tellTheLevelsOfAnAnalogInput)
{
  const std::string before = "\n      Video Input Definition:\n      Analog Input\n         ";
  EXPECT_THAT(reportWith(20, {0x00}), HasSubstr(before + "0.700, 0.300 (1.000 V p-p)\n"));
  EXPECT_THAT(reportWith(20, {0x20}), HasSubstr(before + "0.714, 0.286 (1.000 V p-p)\n"));
  EXPECT_THAT(reportWith(20, {0x40}), HasSubstr(before + "1.000, 0.400 (1.400 V p-p)\n"));
  EXPECT_THAT(reportWith(20, {0x60}), HasSubstr(before + "0.700, 0.000 (0.700 V p-p)\n"));
}

TEST(EdidReportLines, tellEachSyncOfAnAnalogInputByItsBit)
{
  EXPECT_THAT(reportWith(20, {0x1F}), HasSubstr("\n         Pedestal: Expected"
                                                "\n         Separate Syncs: Supported"
                                                "\n         Composite Syncs: Supported"
                                                "\n         Sync-on-Green: Supported"
                                                "\n         Serration during composite or SoG: Required\n"));
  EXPECT_THAT(reportWith(20, {0x00}),
              HasSubstr("\n         Pedestal: Not Expected"
                        "\n         Separate Syncs: Not Supported"
                        "\n         Composite Syncs: Not Supported"
                        "\n         Sync-on-Green: Not Supported"
                        "\n         Serration during composite or SoG: Not Required\n"));
  EXPECT_THAT(reportWith(20, {0x10}), HasSubstr("Pedestal: Expected\n         Separate Syncs: Not"));
  EXPECT_THAT(reportWith(20, {0x08}), HasSubstr("Separate Syncs: Supported\n         Composite Syncs: Not"));
  EXPECT_THAT(reportWith(20, {0x04}), HasSubstr("Composite Syncs: Supported\n         Sync-on-Green: Not"));
  EXPECT_THAT(reportWith(20, {0x02}),
              HasSubstr("Sync-on-Green: Supported\n         Serration during composite or "
                        "SoG: Not"));
  EXPECT_THAT(reportWith(20, {0x01}),
              HasSubstr("Sync-on-Green: Not Supported\n         Serration during composite or "
                        "SoG: Required"));
}

TEST(EdidReportLines, tellADigitalInputByItsLowestBitAlone)
{
  const std::string before = "\n      Video Input Definition:\n         Digital Input\n         ";
  for (const int input : {0x80, 0xFE})
    EXPECT_THAT(reportWith(20, {input}), HasSubstr(before + "Not VESA DFP 1.x TMDS CRGB Compliant\n\n"));
  for (const int input : {0x81, 0xFF})
    EXPECT_THAT(reportWith(20, {input}), HasSubstr(before + "VESA DFP 1.x TMDS CRGB"
                                                            "\n         1 pixel/clock"
                                                            "\n         Up to 8 bits/color MSB aligned"
                                                            "\n         DE active high\n\n"));
}

TEST(EdidReportLines, tellTheSizeInCentimetresAndInches)
{
  EXPECT_THAT(reportWith(21, {255, 255}),
              HasSubstr("\n\n      [FF]\n      Max. Horizontal Image Size = 255.000 cm or 100.394 in"
                        "\n\n      [FF]\n      Max. Vertical   Image Size = 255.000 cm or 100.394 in"
                        "\n\n      Max. Diagonal   Image Size = 360.624 cm or 141.978 in (calculated)\n"));
  EXPECT_THAT(reportWith(21, {3, 4}), HasSubstr("= 5.000 cm or 1.969 in (calculated)"));
}

TEST(EdidReportLines, tellTheDiagonalInSinglePrecision)
{
  // 83.934498... in double precision; the nearest single-precision number is above the half.
  EXPECT_THAT(reportWith(21, {0x4E, 0x1F}),
              HasSubstr("\n      Max. Diagonal   Image Size = 83.935 cm or 33.045 in"));
}

TEST(EdidReportLines, tellAnyDefinedGammaAsOne)
{
  for (const int gamma : {0x00, 0x01, 0x78, 0xFE})
    EXPECT_THAT(reportWith(23, {gamma}),
                HasSubstr("]\n      Display Transfer Characteristic (Gamma) = 1.000\n"));
  EXPECT_THAT(reportWith(23, {0xFF}),
              HasSubstr("[FF]\n      Display Transfer Characteristic (Gamma) = Not Defined Here\n"));
}

TEST(EdidReportLines, tellEachFeatureByItsBit)
{
  const std::string none = "\n      DPMS Standby: Not Supported"
                           "\n      DPMS Suspend: Not Supported"
                           "\n      DPMS Active Off/Very Low Power: Not Supported"
                           "\n      Display Type: Monochrome / grayscale display"
                           "\n      Color Space: Non-Standard"
                           "\n      Preferred Timing Mode: Not Defined in Detailed Timing Block #1"
                           "\n      Default GTF: Not Supported\n";
  const auto with = [&](const std::string &from, const std::string &to) {
    std::string text = none;
    return text.replace(text.find(from), from.size(), to);
  };
  EXPECT_THAT(reportWith(24, {0x00}), HasSubstr(none));
  EXPECT_THAT(reportWith(24, {0x80}), HasSubstr(with("Standby: Not ", "Standby: ")));
  EXPECT_THAT(reportWith(24, {0x40}), HasSubstr(with("Suspend: Not ", "Suspend: ")));
  EXPECT_THAT(reportWith(24, {0x20}), HasSubstr(with("Power: Not ", "Power: ")));
  EXPECT_THAT(reportWith(24, {0x08}), HasSubstr(with("Monochrome / grayscale", "RGB Color")));
  EXPECT_THAT(reportWith(24, {0x10}),
              HasSubstr(with("Monochrome / grayscale display", "Non-RGB multicolor display (e.g. RGY)")));
  EXPECT_THAT(reportWith(24, {0x18}), HasSubstr(with("Monochrome / grayscale display", "Undefined")));
  EXPECT_THAT(reportWith(24, {0x04}), HasSubstr(with("Non-Standard", "sRGB standard default")));
  EXPECT_THAT(reportWith(24, {0x02}), HasSubstr(with("Not Defined in", "Defined in")));
  EXPECT_THAT(reportWith(24, {0x01}), HasSubstr(with("GTF: Not ", "GTF: ")));
}

TEST(EdidReportLines, takeEachCoordinatesLowBitsFromTheirOwnPlace)
{
  // The low bits of one coordinate at a time are 3, which is 0.003 of a whole.
  const struct {
    int low1;
    int low2;
    const char *lines;
  } cases[] = {
      {0xC0, 0, "Red   = (0.003, 0.000)\n      Green = (0.000, 0.000)"},
      {0x30, 0, "Red   = (0.000, 0.003)\n      Green = (0.000, 0.000)"},
      {0x0C, 0, "Red   = (0.000, 0.000)\n      Green = (0.003, 0.000)"},
      {0x03, 0, "Red   = (0.000, 0.000)\n      Green = (0.000, 0.003)"},
      {0, 0xC0, "Blue  = (0.003, 0.000)\n      White = (0.000, 0.000)"},
      {0, 0x30, "Blue  = (0.000, 0.003)\n      White = (0.000, 0.000)"},
      {0, 0x0C, "Blue  = (0.000, 0.000)\n      White = (0.003, 0.000)"},
      {0, 0x03, "Blue  = (0.000, 0.000)\n      White = (0.000, 0.003)"},
  };
  for (const auto &row : cases)
    EXPECT_THAT(reportWith(25, {row.low1, row.low2}), HasSubstr(row.lines));
}

TEST(EdidReportLines, takeEachCoordinatesHighBitsFromTheirOwnByte)
{
  EXPECT_THAT(reportWith(27, {0x20, 0x40, 0x60, 0x80, 0xA0, 0xC0, 0xE0, 0x10}),
              HasSubstr("\n      Red   = (0.125, 0.250)\n      Green = (0.375, 0.500)"
                        "\n      Blue  = (0.625, 0.750)\n      White = (0.875, 0.062)\n"));
}

TEST(EdidReportLines, tellEachEstablishedTimingByItsBit)
{
  const char *names[3][8] = {
      {"720 x 400 @ 70 Hz (IBM, VGA):       ", "720 x 400 @ 88 Hz (IBM, XGA2):      ",
       "640 x 480 @ 60 Hz (IBM, VGA):       ", "640 x 480 @ 67 Hz (Apple, Mac II):  ",
       "640 x 480 @ 72 Hz (VESA):           ", "640 x 480 @ 75 Hz (VESA):           ",
       "800 x 600 @ 56 Hz (VESA):           ", "800 x 600 @ 60 Hz (VESA):           "},
      {"800 x 600 @ 72 Hz (VESA):           ", "800 x 600 @ 75 Hz (VESA):           ",
       "832 x 624 @ 75 Hz (Apple, Mac II):  ", "1024 x 768 @ 87 Hz(I) (IBM):        ",
       "1024 x 768 @ 60 Hz (VESA):          ", "1024 x 768 @ 70 Hz (VESA):          ",
       "1024 x 768 @ 75 Hz (VESA):          ", "1280 x 1024 @ 75 Hz (VESA):         "},
      {"1152 x 870 @ 75 Hz (Apple, Mac II): ", "Reserved 6: ", "Reserved 5: ", "Reserved 4: ", "Reserved 3: ",
       "Reserved 2: ", "Reserved 1: ", "Reserved 0: "}};
  for (std::size_t byte = 0; byte < 3; ++byte) {
    for (int i = 0; i < 8; ++i) {
      const std::string report = reportWith(35 + byte, {0x80 >> i});
      const bool isReserved = byte == 2 && i > 0;
      const std::string line =
          std::string("\n      ") + names[byte][i] + (isReserved ? "1\n" : "Supported\n");
      EXPECT_THAT(report, HasSubstr(line));
      // It is the only one.
      const std::string timings = report.substr(report.find("Established Timings I"));
      EXPECT_EQ(count(timings, ": Supported\n") + count(timings, "  Supported\n") +
                    count(timings, "d 0: 1\n") + count(timings, "d 1: 1\n") + count(timings, "d 2: 1\n") +
                    count(timings, "d 3: 1\n") + count(timings, "d 4: 1\n") + count(timings, "d 5: 1\n") +
                    count(timings, "d 6: 1\n"),
                1)
          << line;
    }
  }
}

TEST(EdidReportLines, tellAStandardTimingByItsAspect)
{
  EXPECT_THAT(reportWith(38, {0xD1, 0xC0}), HasSubstr("[D1 C0]\n      1920 x 1080 @ 60 Hz (16:9)\n"));
  EXPECT_THAT(reportWith(38, {0xD1, 0x00}), HasSubstr("[D1 00]\n      1920 x 1200 @ 60 Hz (16:10)\n"));
  EXPECT_THAT(reportWith(38, {0xD1, 0x40}), HasSubstr("[D1 40]\n      1920 x 1440 @ 60 Hz (4:3)\n"));
  EXPECT_THAT(reportWith(38, {0xD1, 0x80}), HasSubstr("[D1 80]\n      1920 x 1536 @ 60 Hz (5:4)\n"));
  EXPECT_THAT(reportWith(38, {0xD1, 0x3F}), HasSubstr("1920 x 1200 @ 123 Hz (16:10)\n"));
}

TEST(EdidReportLines, roundAHalfLineToTheEvenNumber)
{
  // 1368 and 1384 pixels at 16:9 are 769.5 and 778.5 lines.
  EXPECT_THAT(reportWith(38, {0x8C, 0xC0}), HasSubstr("\n      1368 x 770 @ 60 Hz (16:9)\n"));
  EXPECT_THAT(reportWith(38, {0x8E, 0xC0}), HasSubstr("\n      1384 x 778 @ 60 Hz (16:9)\n"));
}

TEST(EdidReportLines, takeOnlyOneAndOneForAnUnusedTiming)
{
  EXPECT_THAT(reportWith(38, {0x01, 0x01}), HasSubstr("#1\n\n      [01 01]\n      Unused\n"));
  EXPECT_THAT(reportWith(38, {0x01, 0x02}),
              HasSubstr("#1\n\n      [01 02]\n      256 x 160 @ 62 Hz (16:10)\n"));
  EXPECT_THAT(reportWith(38, {0x02, 0x01}),
              HasSubstr("#1\n\n      [02 01]\n      264 x 165 @ 61 Hz (16:10)\n"));
  EXPECT_THAT(reportWith(52, {0x01, 0x01}), HasSubstr("#8\n\n      [01 01]\n      Unused\n"));
}

TEST(EdidReportLines, takeOnlyTwoZerosForADescriptor)
{
  EXPECT_THAT(reportWith(54, {0x00, 0x01}),
              HasSubstr("#1\n\n      [00 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
                        "00]\n      Pixel Clock: 2.560 MHz\n"));
  EXPECT_THAT(reportWith(54, {0x01, 0x00}), HasSubstr("\n      Pixel Clock: 0.010 MHz\n"));
  EXPECT_THAT(reportWith(54, {0xFF, 0xFF}), HasSubstr("\n      Pixel Clock: 655.350 MHz\n"));
  EXPECT_THAT(reportWith(54, {0x00, 0x00}), Not(HasSubstr("Pixel Clock: ")));
}

TEST(EdidReportLines, nameADescriptorByItsTag)
{
  for (int tag = 0; tag < 256; ++tag) {
    const std::string report = reportWithDescriptor(tag, "");
    const std::string after = report.substr(report.find("Description #3"));
    const char *expected = tag == 0xFF   ? "\n         Monitor Serial Number: "
                           : tag == 0xFE ? "\n         ASCII String\n            "
                           : tag == 0xFD ? "\n         Monitor Range Limits\n"
                           : tag == 0xFC ? "\n         Monitor Name: "
                           : tag == 0xFB ? "\n         Color Point Data\n"
                           : tag == 0xFA ? "\n         Standard Timing Identifications\n"
                           : tag == 0x10 ? "\n         Dummy Descriptor\n"
                           : tag < 0x10  ? "\n         Defined by Manufacturer\n"
                                         : "\n         Currently Undefined\n";
    EXPECT_THAT(after, HasSubstr(std::string("]\n      Monitor Descriptor Block") + expected)) << tag;
  }
}

TEST(EdidReportLines, writeAllThirteenCharactersOfATextAsTheyAre)
{
  const std::string text = "A b\n \x80\xFF\t<i>%s";
  for (const auto &[tag, before] : {std::pair{0xFF, "\n         Monitor Serial Number: "},
                                    {0xFE, "\n         ASCII String\n            "},
                                    {0xFC, "\n         Monitor Name: "}})
    EXPECT_THAT(reportWithDescriptor(tag, text),
                HasSubstr(before + text + "\n\n\n   Detailed Timing Description #4\n"));
  EXPECT_THAT(reportWithDescriptor(0xFC, "Lab 7\n       "),
              HasSubstr("Monitor Name: Lab 7\n       \n\n\n   Det"));
}

TEST(EdidReportLines, leaveOutTheZerosWithinAText)
{
  EXPECT_THAT(reportWithDescriptor(0xFC, std::string("AB\0CD\0\0\0\0\0\0\0E", 13)),
              HasSubstr("\n         Monitor Name: ABCDE\n\n\n"));
}

TEST(EdidReportLines, writeTheClockOfTheRangeLimitsWithAZeroBehindIt)
{
  EXPECT_THAT(reportWithDescriptor(0xFD, "\x01\x02\x03\x04\xFF"),
              HasSubstr("\n         Monitor Range Limits"
                        "\n            Min. Vertical   rate: 1 Hz"
                        "\n            Max. Vertical   rate: 2 Hz"
                        "\n            Min. Horizontal rate: 3 kHz"
                        "\n            Max. Horizontal rate: 4 kHz"
                        "\n            Max. Supported Pixel Clock: 2550 MHz\n\n"));
  EXPECT_THAT(reportWithDescriptor(0xFD, ""), HasSubstr("Max. Supported Pixel Clock: 00 MHz\n"));
}

TEST(EdidReportLines, takeEachNumberOfATimingFromItsOwnBits)
{
  const struct {
    std::size_t at;
    int value;
    const char *line;
  } cases[] = {
      {2, 0xFF, "Horizontal Active: 255 pixels"},
      {4, 0xF0, "Horizontal Active: 3840 pixels"},
      {3, 0xFF, "Horizontal Blanking: 255 pixels"},
      {4, 0x0F, "Horizontal Blanking: 3840 pixels"},
      {5, 0xFF, "Vertical   Active: 255 pixels"},
      {7, 0xF0, "Vertical   Active: 3840 pixels"},
      {6, 0xFF, "Vertical   Blanking: 255 pixels"},
      {7, 0x0F, "Vertical   Blanking: 3840 pixels"},
      {8, 0xFF, "Horizontal Sync Offset: 255 pixels"},
      {11, 0xC0, "Horizontal Sync Offset: 768 pixels"},
      {9, 0xFF, "Horizontal Sync Pulse Width: 255 pixels"},
      {11, 0x30, "Horizontal Sync Pulse Width: 768 pixels"},
      {10, 0xF0, "Vertical   Sync Offset: 15 pixels"},
      {11, 0x0C, "Vertical   Sync Offset: 48 pixels"},
      {10, 0x0F, "Vertical   Sync Pulse Width: 15 pixels"},
      {11, 0x03, "Vertical   Sync Pulse Width: 48 pixels"},
      {12, 0xFF, "Horizontal Image Size: 255 mm"},
      {14, 0xF0, "Horizontal Image Size: 3840 mm"},
      {13, 0xFF, "Vertical   Image Size: 255 mm"},
      {14, 0x0F, "Vertical   Image Size: 3840 mm"},
      {15, 0xFF, "Horizontal Border: 255"},
      {16, 0xFF, "Vertical   Border: 255"},
  };
  for (const auto &row : cases) {
    const std::string report = EdidBlock().set(54, {1}).set(54 + row.at, {row.value}).report();
    EXPECT_THAT(report, HasSubstr(std::string("\n      ") + row.line + "\n"));
    // The other eleven are 0 (a byte that two share has bits of one only).
    const std::string timing = report.substr(report.find("Pixel Clock"), report.find("Non-Interlaced"));
    EXPECT_EQ(count(timing, ": 0 pixels\n") + count(timing, ": 0 mm\n") + count(timing, "Border: 0\n"), 11)
        << row.line;
  }
}

TEST(EdidReportLines, tellInterlaceAndStereoButNotItsMode)
{
  EXPECT_THAT(reportWithFlags(0x00), HasSubstr("\n      Non-Interlaced\n      Normal display, no stereo\n"));
  EXPECT_THAT(reportWithFlags(0x80), HasSubstr("\n      Interlaced\n      Normal display, no stereo\n"));
  for (const int stereo : {0x20, 0x40, 0x60, 0x61})
    EXPECT_THAT(reportWithFlags(stereo), HasSubstr("\n      Non-Interlaced\n      Stereoscopic display\n"));
}

TEST(EdidReportLines, tellTheSyncOfATimingByItsKind)
{
  const struct {
    int kind;
    const char *name;
    const char *bit2[2];
    const char *bit1[2];
  } kinds[] = {
      {0x00, "Analog composite", {"Serrate", "Don't Serrate"}, {"Sync-on-Green", "Sync-on-RGB"}},
      {0x08, "Bipolar analog composite", {"Serrate", "Don't Serrate"}, {"Sync-on-Green", "Sync-on-RGB"}},
      {0x10,
       "Digital composite",
       {"Serrate", "Don't Serrate"},
       {"Composite Polarity: Negative", "Composite Polarity: Positive"}},
      {0x18,
       "Digital separate",
       {"Vertical  Polarity: Negative", "Vertical  Polarity: Positive"},
       {"Horizontal Polarity: Negative", "Horizontal Polarity: Positive"}},
  };
  for (const auto &row : kinds) {
    for (int bits = 0; bits < 4; ++bits) {
      const std::string expected = std::string("\n      Normal display, no stereo\n      ") + row.name +
                                   "\n      " + row.bit2[bits >> 1] + "\n      " + row.bit1[bits & 1] +
                                   "\n\n   Detailed Timing Description #2\n";
      EXPECT_THAT(reportWithFlags(row.kind | bits << 1), HasSubstr(expected));
      EXPECT_THAT(reportWithFlags(row.kind | bits << 1 | 1), HasSubstr(expected)); // bit 0 says nothing here
    }
  }
}

TEST(EdidReportLines, endWithTheChecksumAndWithoutALineFeed)
{
  // The header's six FF add up to FA.
  EXPECT_THAT(EdidBlock().report(), EndsWith("\n\n   [00]\n   Extension Flag: 0 extension blocks follow"
                                             "\n\n   [06]\n   Normal Checksum"));
  EXPECT_THAT(reportWith(127, {0x07}), EndsWith("\n\n   [07]\n   Invalid Checksum! Expected (hex): 06"));
  EXPECT_THAT(reportWith(126, {0x06, 0x00}), EndsWith("\n   Extension Flag: 6 extension blocks follow"
                                                      "\n\n   [00]\n   Normal Checksum"));
}

TEST(EdidReportLines, ofABlockWithAWrongChecksumAreOtherwiseTheSame)
{
  const std::string right = EdidBlock().report();
  const std::string wrong = reportWith(127, {0xEE});
  const std::size_t decoded = right.find("Decoded data");
  const std::size_t end = right.rfind("\n\n");
  EXPECT_EQ(wrong.substr(decoded, end - decoded), right.substr(decoded, end - decoded));
  EXPECT_THAT(wrong, EndsWith("\n\n   [EE]\n   Invalid Checksum! Expected (hex): 06"));
}

TEST(EdidReportLines, ofABlockWithABadHeaderOrManufacturerAreOtherwiseTheSame)
{
  const std::string report = reportWith(7, {0x01, 0x90, 0xAC});
  EXPECT_THAT(report,
              HasSubstr("\n   Invalid Header! Expected: 00 FF FF FF FF FF FF 00"
                        "\n\n   Vendor/Product Identification"
                        "\n\n      [90 AC]\n      ID Manufacturer Name (EISA 3-character code) = DEL\n"));
}
