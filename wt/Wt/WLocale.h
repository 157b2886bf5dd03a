// SPDX-License-Identifier: MIT
#ifndef WT_WLOCALE_H_
#define WT_WLOCALE_H_

#include <string>

namespace Wt
{

/// A person's language by its name, such as "en" or "en-GB".
class WLocale
{
public:
  WLocale() = default;
  WLocale(const std::string &name) : name_(name) {}
  WLocale(const char *name) : name_(name ? name : "") {}

  const std::string &name() const { return name_; }
  bool operator==(const WLocale &other) const { return name_ == other.name_; }
  bool operator!=(const WLocale &other) const { return name_ != other.name_; }

private:
  std::string name_;
};

} // namespace Wt

#endif // WT_WLOCALE_H_
