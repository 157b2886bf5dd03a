// SPDX-License-Identifier: MIT
#ifndef TESTS_REAL_BLOCKS_H_
#define TESTS_REAL_BLOCKS_H_

#include <string>
#include <vector>

// A block of 256 bytes as a monitor sent it. The name is MAKER-PRODUCT-KIND.bin, possibly with a note behind
// the kind, as in "del-f003-a-badsum.bin": the manufacturer in small letters with 0 for what is no letter,
// the product code, and "a" or "d" for analog or digital.
struct RealBlock {
  std::string name;
  std::vector<unsigned char> bytes;
};

// Those that lie in the folder that NEVO_EDID_BLOCKS names, or in a folder shared/edid beside the project or
// above it; none where there is no such folder, since the project has none of its own.
std::vector<RealBlock> realBlocks();

#endif // TESTS_REAL_BLOCKS_H_
