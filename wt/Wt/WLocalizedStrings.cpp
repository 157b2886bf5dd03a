// SPDX-License-Identifier: MIT
#include <Wt/WLocalizedStrings>

namespace Wt
{

WLocalizedStrings::~WLocalizedStrings() = default;

void WLocalizedStrings::refresh() {}

bool WLocalizedStrings::resolvePluralKey(const std::string &, std::string &, std::uint64_t)
{
  return false;
}

} // namespace Wt
