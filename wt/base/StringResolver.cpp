// SPDX-License-Identifier: MIT
#include "base/StringResolver.h"

#include <atomic>

namespace Wt
{
namespace Engine
{

namespace
{

std::atomic<StringResolver> stringResolver{nullptr};
std::atomic<PluralResolver> pluralResolver{nullptr};
std::atomic<LocaleSource> localeSource{nullptr};

} // namespace

StringResolver setStringResolver(StringResolver resolver)
{
  return stringResolver.exchange(resolver);
}

PluralResolver setPluralResolver(PluralResolver resolver)
{
  return pluralResolver.exchange(resolver);
}

LocaleSource setLocaleSource(LocaleSource source)
{
  return localeSource.exchange(source);
}

bool resolveString(const std::string &key, std::string &result)
{
  const StringResolver resolver = stringResolver;
  return resolver && resolver(key, result);
}

bool resolvePlural(const std::string &key, std::string &result, std::uint64_t amount)
{
  const PluralResolver resolver = pluralResolver;
  return resolver && resolver(key, result, amount);
}

std::string currentLocaleName()
{
  const LocaleSource source = localeSource;
  return source ? source() : std::string();
}

} // namespace Engine
} // namespace Wt
