// SPDX-License-Identifier: MIT
// Patterns of validators and the texts that they are held against: the first line is the pattern.
#include "base/Pattern.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  const std::string text(reinterpret_cast<const char *>(data), size < 2000 ? size : 2000);
  const std::size_t line = text.find('\n');
  const Wt::Engine::Pattern pattern(text.substr(0, line), size % 2 == 1);
  if (pattern.valid() && line != std::string::npos)
    pattern.matches(std::string_view(text).substr(line + 1));
  return 0;
}
