// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_FORM_H_
#define ZEL_SIM_RULES_FORM_H_

#include <string>

namespace zelsim
{

/// The forms that a text may have to have.
enum class Form {
  Alphanumeric, // letters and digits
  Visible,      // ASCII without blanks
  EidOrEmpty,   // six alphanumerics, a dash, six alphanumerics
  MacOrEmpty,   // six or eight groups of two hexadecimal digits, all joined by ":" or all by "-"
  IpV4,
  IpV6,
  AddressOrEmpty, // IPv4 or IPv6
  HostOrEmpty,    // the same, or a host name with at least one dot
  LinkOrEmpty     // begins with http:// or https://
};

bool hasForm(const std::string &text, Form form);

} // namespace zelsim

#endif // ZEL_SIM_RULES_FORM_H_
