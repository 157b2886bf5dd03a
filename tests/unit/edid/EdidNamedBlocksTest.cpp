// SPDX-License-Identifier: MIT
// Blocks whose names say what is in them: those of real monitors where there are some, and always a set that
// is made here in the same way.
#include "EdidBlock.h"
#include "RealBlocks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

namespace
{

// The code of three letters from 0 for "@".
EdidBlock blockOf(const std::string &letters, unsigned int product, bool isDigital)
{
  const unsigned int code =
      static_cast<unsigned int>((letters[0] - 64) << 10 | (letters[1] - 64) << 5 | (letters[2] - 64));
  EdidBlock block;
  block.set(8, {static_cast<int>(code >> 8), static_cast<int>(code & 0xFF)});
  block.set(10, {static_cast<int>(product & 0xFF), static_cast<int>(product >> 8)});
  block.set(20, {isDigital ? 0x80 : 0x00});
  return block.sign();
}

RealBlock named(const std::string &name, const EdidBlock &block)
{
  return {name, std::vector<unsigned char>(block.data(), block.data() + EdidBlock::size())};
}

std::vector<RealBlock> madeBlocks()
{
  return {named("abc-1234-a.bin", blockOf("ABC", 0x1234, false)),
          named("zzz-00ff-d.bin", blockOf("ZZZ", 0x00FF, true)),
          named("000-ff00-d.bin", blockOf("@@@", 0xFF00, true)),
          named("del-f003-a-badsum.bin", blockOf("DEL", 0xF003, false).set(127, {0x00})),
          named("del-f003-a-badheader.bin", blockOf("DEL", 0xF003, false).set(0, {0x0A}).set(127, {0x00})),
          named("abc-0001-d-badmaker.bin", blockOf("ABC", 1, true).set(8, {0x84}).set(127, {0x00}))};
}

std::string nameOf(Edid &edid)
{
  std::string manufacturer;
  std::string product;
  edid.manufacturerIdGet(manufacturer);
  edid.productCodeGet(product);
  std::string name = manufacturer + "-" + product + (edid.isDigital() ? "-d" : "-a");
  for (char &c : name) {
    if (c == '@' || c == '_')
      c = '0';
    else if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c - 'A' + 'a');
  }
  return name;
}

bool has(const std::string &name, const char *note)
{
  return name.find(note) != std::string::npos;
}

void expectToBeAsItsName(const RealBlock &block)
{
  SCOPED_TRACE(block.name);
  Edid edid;
  edid.populate(block.bytes.data(), 256);
  EXPECT_EQ(nameOf(edid), block.name.substr(0, 10));
  const bool makerIsBad = block.bytes[8] & 0x80;
  EXPECT_EQ(edid.isValid(), !has(block.name, "badheader") && !makerIsBad);

  std::string report;
  edid.fullDecodeGet(report);
  EXPECT_THAT(report,
              HasSubstr(has(block.name, "badheader") ? "\n   Invalid Header! " : "\n   Normal Header\n"));
  if (has(block.name, "-bad"))
    EXPECT_THAT(report, HasSubstr("\n   Invalid Checksum! Expected (hex): "));
  else
    EXPECT_THAT(report, EndsWith("\n   Normal Checksum"));
}

} // namespace

TEST(EdidOfNamedMonitors, isAsItsNameSays)
{
  for (const RealBlock &block : madeBlocks())
    expectToBeAsItsName(block);
  for (const RealBlock &block : realBlocks())
    expectToBeAsItsName(block);
}
