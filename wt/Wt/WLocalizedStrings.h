// SPDX-License-Identifier: MIT
#ifndef WT_WLOCALIZED_STRINGS_H_
#define WT_WLOCALIZED_STRINGS_H_

#include <cstdint>
#include <string>

namespace Wt
{

/// A source of translated texts, asked by their keys.
class WLocalizedStrings
{
public:
  virtual ~WLocalizedStrings();

  /// Looks again at what lies behind, such as files.
  virtual void refresh();
  /// False if the key is unknown.
  virtual bool resolveKey(const std::string &key, std::string &result) = 0;
  virtual bool resolvePluralKey(const std::string &key, std::string &result, std::uint64_t amount);
};

} // namespace Wt

#endif // WT_WLOCALIZED_STRINGS_H_
