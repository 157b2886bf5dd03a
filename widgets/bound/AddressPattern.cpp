// SPDX-License-Identifier: MIT
#include "AddressPattern.h"

namespace
{

// The form with `part` for each of the letter.
std::string fill(const std::string &form, char letter, const std::string &part)
{
  std::string filled;
  for (const char c : form) {
    if (c == letter)
      filled += part;
    else
      filled += c;
  }
  return filled;
}

} // namespace

std::string AddressPattern_ipV4()
{
  return fill("^((B\\.){3}B)$", 'B', "(25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?)");
}

std::string AddressPattern_ipV6()
{
  // G is a group of hexadecimal digits, D the dotted form of the last two, B one of its bytes.
  std::string form = "^(((G:){7}(G|:))"
                     "|((G:){6}(:G|D|:))"
                     "|((G:){5}(((:G){1,2})|:D|:))"
                     "|((G:){4}(((:G){1,3})|((:G)?:D)|:))"
                     "|((G:){3}(((:G){1,4})|((:G){0,2}:D)|:))"
                     "|((G:){2}(((:G){1,5})|((:G){0,3}:D)|:))"
                     "|((G:){1}(((:G){1,6})|((:G){0,4}:D)|:))"
                     "|(:(((:G){1,7})|((:G){0,5}:D)|:)))$";
  form = fill(form, 'D', "(B(.B){3})");
  form = fill(form, 'B', "(25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])");
  return fill(form, 'G', "[0-9A-Fa-f]{1,4}");
}

std::string AddressPattern_hostName()
{
  return "^(([a-zA-Z0-9][a-zA-Z0-9-]{0,61}[a-zA-Z0-9])\\.)+([a-zA-Z]|[a-zA-Z][a-zA-Z0-9-]{0,61}[a-zA-Z0-9])$";
}
