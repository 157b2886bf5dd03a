// SPDX-License-Identifier: MIT
// What a monitor says of itself: any 256 bytes are told, and telling them again tells the same.
#include "Edid.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  std::uint8_t block[256] = {};
  std::copy_n(data, std::min(size, sizeof block), block);
  Edid edid;
  edid.populate(block, sizeof block);
  edid.isValid();
  edid.isDigital();
  std::string first;
  std::string second;
  edid.fullDecodeGet(first);
  edid.fullDecodeGet(second);
  if (first != second || edid.lengthGet() != 128)
    std::abort();
  return 0;
}
