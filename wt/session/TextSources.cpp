// SPDX-License-Identifier: MIT
#include "session/TextSources.h"

#include "base/StringResolver.h"

#include <Wt/WApplication>
#include <Wt/WLocale>
#include <Wt/WMessageResourceBundle>

namespace Wt {
namespace Engine {

void installTextSources()
{
  setStringResolver([](const std::string &key, std::string &result) {
    WApplication *application = WApplication::instance();
    return application && application->messageResourceBundle().resolveKey(key, result);
  });
  setPluralResolver([](const std::string &key, std::string &result, std::uint64_t amount) {
    WApplication *application = WApplication::instance();
    return application && application->messageResourceBundle().resolvePluralKey(key, result, amount);
  });
  setLocaleSource([] {
    const WApplication *application = WApplication::instance();
    return application ? application->locale().name() : std::string();
  });
}

} // namespace Engine
} // namespace Wt
