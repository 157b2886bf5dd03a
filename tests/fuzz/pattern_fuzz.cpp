// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdint>
#include <string>

#include "base/Pattern.h"
#include "base/PluralRule.h"

/// The first line is a pattern, the rest a text that it is tried on.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  const std::string input(reinterpret_cast<const char *>(data), size);
  const std::size_t cut = std::min(input.find('\n'), input.size());
  const std::string text = cut < input.size() ? input.substr(cut + 1) : std::string();
  const Wt::Engine::Pattern pattern(input.substr(0, cut));
  pattern.matches(text);
  Wt::Engine::PluralRule(text).form(size);
  return 0;
}
