// SPDX-License-Identifier: MIT
// Ten thousand blocks that no monitor would send, held against what is true of every report.
#include "EdidBlock.h"
#include "RealBlocks.h"

#include <gtest/gtest.h>
#include <random>

namespace
{

using Block = std::vector<unsigned char>;

constexpr int kBlocks = 10000;

class BlockMaker
{
public:
  explicit BlockMaker(unsigned int seed) : random_(seed), seeds_(realBlocks())
  {
    const EdidBlock plain;
    seeds_.push_back({"plain", Block(plain.data(), plain.data() + EdidBlock::size())});
  }

  // Half are all random, half a monitor's with one to twenty bytes changed.
  Block next()
  {
    Block block(256);
    if (below(2) == 0) {
      for (unsigned char &byte : block)
        byte = byteAtRandom();
      return block;
    }
    block = seeds_[below(seeds_.size())].bytes;
    for (std::size_t changes = 1 + below(20); changes > 0; --changes)
      block[below(block.size())] = byteAtRandom();
    return block;
  }

private:
  std::size_t below(std::size_t limit) { return random_() % limit; }
  unsigned char byteAtRandom()
  {
    static constexpr unsigned char kEdges[] = {0x00, 0x01, 0x7F, 0x80, 0xFF, '%', 'n', '\n'};
    return below(3) == 0 ? kEdges[below(sizeof kEdges)] : static_cast<unsigned char>(below(256));
  }

  std::mt19937 random_;
  std::vector<RealBlock> seeds_;
};

std::string hex(unsigned int byte)
{
  char text[8];
  std::snprintf(text, sizeof text, "%02X", byte);
  return text;
}

// The headings stand in every report, once each and in this order.
std::vector<std::string> headings()
{
  std::vector<std::string> all = {"Raw data (hexadecimal):\n",
                                  "\n\nDecoded data -- corresponding raw data shown as hexadecimal in []:",
                                  "\n\n   Vendor/Product Identification\n",
                                  "\n   EDID Version ",
                                  "\n\n   Basic Display Parameters / Features\n",
                                  "\n\n      Max. Diagonal   Image Size = ",
                                  "\n\n   Color Characteristics\n",
                                  "\n\n   Established Timings I\n",
                                  "\n\n   Established Timings II\n",
                                  "\n\n   Manufacturer's Timings\n"};
  for (int number = 1; number <= 8; ++number)
    all.push_back("\n\n   Standard Timing Identification #" + std::to_string(number) + "\n");
  for (int number = 1; number <= 4; ++number)
    all.push_back("\n\n   Detailed Timing Description #" + std::to_string(number) + "\n");
  all.push_back("\n   Extension Flag: ");
  return all;
}

void expectHeadingsInOrder(const std::string &report)
{
  std::size_t at = 0;
  for (const std::string &heading : headings()) {
    at = report.find(heading, at);
    ASSERT_NE(at, std::string::npos) << heading;
  }
}

void expectBlockToBeTold(const Block &block)
{
  Edid edid;
  edid.populate(block.data(), 256);
  const bool headerIsRight = std::equal(block.begin(), block.begin() + 8, EdidBlock().data());
  EXPECT_EQ(edid.isValid(), headerIsRight && block[8] < 128);
  EXPECT_EQ(edid.isDigital(), block[20] >= 128);

  std::string report;
  edid.fullDecodeGet(report);
  expectHeadingsInOrder(report);
  EXPECT_LT(report.size(), 8000U);

  unsigned int sum = 0;
  for (int i = 0; i < 127; ++i)
    sum += block[i];
  const unsigned int right = (256 - sum % 256) % 256;
  const std::string end =
      "\n\n   [" + hex(block[127]) + "]\n   " +
      (block[127] == right ? "Normal Checksum" : "Invalid Checksum! Expected (hex): " + hex(right));
  EXPECT_EQ(report.substr(report.size() - std::min(end.size(), report.size())), end);
}

} // namespace

TEST(EdidOfAnyBytes, isToldWhole)
{
  const unsigned int seed = std::random_device()();
  BlockMaker maker(seed);
  for (int i = 0; i < kBlocks && !testing::Test::HasFailure(); ++i) {
    SCOPED_TRACE("block " + std::to_string(i) + " of seed " + std::to_string(seed));
    expectBlockToBeTold(maker.next());
  }
}
