// SPDX-License-Identifier: MIT
#ifndef WT_BASE_STRING_RESOLVER_H_
#define WT_BASE_STRING_RESOLVER_H_

#include <cstdint>
#include <string>

namespace Wt
{
namespace Engine
{

/// The seams through which texts reach the session that runs on this thread. The engine sets each once,
/// before it serves; until then no key resolves and the locale is "".

/// Puts the text of a key into `result`; false if the key is unknown or no session runs.
typedef bool (*StringResolver)(const std::string &key, std::string &result);
/// The same for the plural form that the amount asks for.
typedef bool (*PluralResolver)(const std::string &key, std::string &result, std::uint64_t amount);
/// The name of the session's locale, such as "en-GB".
typedef std::string (*LocaleSource)();

/// Each gives back what was set before.
StringResolver setStringResolver(StringResolver resolver);
PluralResolver setPluralResolver(PluralResolver resolver);
LocaleSource setLocaleSource(LocaleSource source);

bool resolveString(const std::string &key, std::string &result);
bool resolvePlural(const std::string &key, std::string &result, std::uint64_t amount);
std::string currentLocaleName();

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_STRING_RESOLVER_H_
