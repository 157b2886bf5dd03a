// SPDX-License-Identifier: MIT
#include "WNtpStatus.h"

#include "Text.h"

namespace
{

struct StatusText {
  const char *word;
  const char *key;
};

constexpr StatusText kTexts[] = {
    {"unknown", "[RSnnn]Initializing"},
    {"inactive", "[RSnnn]Inactive"},
    {"bad_configuration", "[RSnnn]Incorrect configuration"},
    {"pending", "[RSnnn]Synchronization pending"},
    {"network_unreachable", "[RSnnn]Server unreachable"},
    {"server_unresponsive", "[RSnnn]Server unresponsive"},
    {"success", "[RSnnn]Successful"},
};

} // namespace

WNtpStatus::WNtpStatus(const char *resourceName, const char *parameterName, bool isIndexed,
                       Wt::WContainerWidget *parent)
    : WTextZel(resourceName, parameterName, isIndexed, parent)
{
}

Wt::WString WNtpStatus::textOf(const std::string &value) const
{
  for (const StatusText &row : kTexts) {
    if (value == row.word)
      return Wt::WString::tr(row.key);
  }
  return ::text("Unknown");
}
