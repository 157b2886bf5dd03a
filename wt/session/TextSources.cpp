// SPDX-License-Identifier: MIT
#include "session/TextSources.h"

#include "base/StringResolver.h"

#include <Wt/WApplication>
#include <Wt/WLocale>
#include <Wt/WMessageResourceBundle>
#include <Wt/WServer>
#include <mutex>

namespace Wt
{
namespace Engine
{

namespace
{

/// Runs `ask` with the server's texts, if there are any. They know nothing of threads.
template <class Ask> bool askServer(Ask ask)
{
  static std::mutex mutex;
  const WServer *server = WServer::instance();
  WLocalizedStrings *strings = server ? server->localizedStrings() : nullptr;
  const std::lock_guard<std::mutex> held(mutex);
  return strings && ask(*strings);
}

} // namespace

void installTextSources()
{
  setStringResolver([](const std::string &key, std::string &result) {
    if (WApplication *application = WApplication::instance())
      return application->messageResourceBundle().resolveKey(key, result);
    return askServer([&](WLocalizedStrings &strings) { return strings.resolveKey(key, result); });
  });
  setPluralResolver([](const std::string &key, std::string &result, std::uint64_t amount) {
    if (WApplication *application = WApplication::instance())
      return application->messageResourceBundle().resolvePluralKey(key, result, amount);
    return askServer(
        [&](WLocalizedStrings &strings) { return strings.resolvePluralKey(key, result, amount); });
  });
  setLocaleSource([] {
    const WApplication *application = WApplication::instance();
    return application ? application->locale().name() : std::string();
  });
}

} // namespace Engine
} // namespace Wt
