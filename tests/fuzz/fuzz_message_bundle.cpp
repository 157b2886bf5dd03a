// SPDX-License-Identifier: MIT
// Files of translated texts.
#include "base/MessageFile.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  std::string error;
  const auto file = Wt::Engine::MessageFile::parse(reinterpret_cast<const char *>(data), size, error);
  if (file) {
    file->find("a");
    file->findPlural("a", size);
  }
  return 0;
}
