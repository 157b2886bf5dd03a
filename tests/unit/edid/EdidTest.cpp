// SPDX-License-Identifier: MIT
#include "EdidBlock.h"
#include "LogCapture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;

namespace
{

// What isValid() answers and logs.
std::string validity(const Edid &edid)
{
  LogCapture log;
  const bool isValid = edid.isValid();
  return (isValid ? "valid " : "not valid ") + log.text();
}

std::string validity(const EdidBlock &block)
{
  Edid edid;
  edid.populate(block.data(), EdidBlock::size());
  return validity(edid);
}

std::string manufacturerOf(int high, int low)
{
  Edid edid;
  edid.populate(EdidBlock().set(8, {high, low}).data(), EdidBlock::size());
  std::string manufacturer = "before";
  edid.manufacturerIdGet(manufacturer);
  return manufacturer;
}

constexpr char kTellsNothing[] =
    "Raw data (hexadecimal):\n"
    "\n\nEDID data block is too short. Expected at least 128 bytes. Not decoding.";

} // namespace

TEST(Edid, isNotValidAndTellsNothingWhileItIsEmpty)
{
  Edid edid;
  EXPECT_EQ(validity(edid), "not valid 4 isValid: No EDID data.\n");
  std::string report = "what was there before";
  edid.fullDecodeGet(report);
  EXPECT_EQ(report, kTellsNothing);
  EXPECT_EQ(edid.lengthGet(), 0);
}

TEST(Edid, takesNoBlockOfAnotherSizeThanTheStores)
{
  const std::string bytes(1000, '\0');
  for (const unsigned int size : {0U, 1U, 128U, 255U, 257U, 512U}) {
    Edid edid;
    LogCapture log;
    edid.populate(bytes.data(), size);
    EXPECT_EQ(log.text(), "4 populate: Unexpected EDID data length (" + std::to_string(size) + ").\n");
    EXPECT_EQ(edid.lengthGet(), 0);
    EXPECT_EQ(validity(edid), "not valid 4 isValid: No EDID data.\n");
  }
}

TEST(Edid, keepsItsBlockWhenAnotherOneOfAWrongSizeIsRefused)
{
  Edid edid;
  edid.populate(EdidBlock().set(8, {0x10, 0xAC}).data(), EdidBlock::size());
  {
    LogCapture log;
    edid.populate(EdidBlock().data(), 128);
  }
  std::string manufacturer;
  edid.manufacturerIdGet(manufacturer);
  EXPECT_EQ(manufacturer, "DEL");
  EXPECT_EQ(edid.lengthGet(), 256);
}

TEST(Edid, keepsACopyOfTheBytes)
{
  EdidBlock block;
  Edid edid;
  edid.populate(block.set(10, {0x34, 0x12}).data(), EdidBlock::size());
  block.set(10, {0, 0});
  std::string code = "before";
  edid.productCodeGet(code);
  EXPECT_EQ(code, "1234");
}

TEST(Edid, isValidByHeaderAndManufacturerAloneWithoutALogEntry)
{
  EXPECT_EQ(validity(EdidBlock()), "valid ");
  EXPECT_EQ(validity(EdidBlock().set(127, {0x55})), "valid ");
  EXPECT_EQ(validity(EdidBlock().set(8, {0x7F, 0xFF})), "valid ");
}

TEST(Edid, isNotValidWithAnotherHeaderWhichIsLoggedWithoutLeadingZeros)
{
  EXPECT_EQ(validity(EdidBlock().set(0, {0x0A}).set(6, {0x05})),
            "not valid 4 isValid: Bad EDID header pattern (A FF FF FF FF FF 5 0).\n");
  for (std::size_t i = 0; i < 8; ++i)
    EXPECT_THAT(validity(EdidBlock().set(i, {0x7E})), HasSubstr("Bad EDID header pattern")) << i;
}

TEST(Edid, looksAtTheHeaderBeforeTheManufacturer)
{
  EXPECT_THAT(validity(EdidBlock().set(7, {1, 0x80})),
              HasSubstr("Bad EDID header pattern (0 FF FF FF FF FF FF 1)"));
}

TEST(Edid, isNotValidWithTheReservedBitOfTheManufacturerSet)
{
  EXPECT_EQ(validity(EdidBlock().set(8, {0x80, 0x12})),
            "not valid 4 isValid: Bad EDID manufacturer ID (80).\n");
  EXPECT_EQ(validity(EdidBlock().set(8, {0xFF})), "not valid 4 isValid: Bad EDID manufacturer ID (FF).\n");
}

TEST(Edid, isDigitalByTheTopBitOfByte20)
{
  for (const int input : {0x80, 0x81, 0xFF, 0x00, 0x7F}) {
    Edid edid;
    edid.populate(EdidBlock().set(20, {input}).data(), EdidBlock::size());
    EXPECT_EQ(edid.isDigital(), input >= 0x80) << input;
  }
}

TEST(Edid, spellsTheManufacturerInThreeLettersWithoutCheckingThem)
{
  EXPECT_EQ(manufacturerOf(0x10, 0xAC), "DEL");
  EXPECT_EQ(manufacturerOf(0x00, 0x00), "@@@");
  EXPECT_EQ(manufacturerOf(0x04, 0x21), "AAA");
  EXPECT_EQ(manufacturerOf(0x6B, 0x5A), "ZZZ");
  EXPECT_EQ(manufacturerOf(0x7F, 0xFF), "___");
  EXPECT_EQ(manufacturerOf(0xFF, 0xFF), "___"); // the reserved bit is not part of a letter
  EXPECT_EQ(validity(EdidBlock().set(8, {0, 0})), "valid ");
}

TEST(Edid, writesTheProductCodeInFourDigitsTheHighByteLast)
{
  for (const auto &[low, high, expected] :
       {std::tuple{0x34, 0x12, "1234"}, {0, 0, "0000"}, {0x0A, 0, "000A"}, {0xFF, 0xFE, "FEFF"}}) {
    Edid edid;
    edid.populate(EdidBlock().set(10, {low, high}).data(), EdidBlock::size());
    std::string code = "before";
    edid.productCodeGet(code);
    EXPECT_EQ(code, expected);
  }
}

TEST(Edid, has128BytesOnceItHasTold256)
{
  Edid edid;
  edid.populate(EdidBlock().set(128, std::string(128, '\x5A')).data(), EdidBlock::size());
  EXPECT_EQ(edid.lengthGet(), 256);
  std::string first;
  edid.fullDecodeGet(first);
  EXPECT_EQ(edid.lengthGet(), 128);
  std::string second;
  edid.fullDecodeGet(second);
  EXPECT_EQ(second, first);
  EXPECT_EQ(validity(edid), "valid ");
}
