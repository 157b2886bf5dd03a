// SPDX-License-Identifier: MIT
#include "http/ContentDisposition.h"

#include "base/Utf8.h"
#include "http/UrlCodec.h"

namespace Wt
{
namespace Net
{

std::string contentDisposition(const std::string &type, const std::string &fileName)
{
  std::string name;
  std::string plain; // for browsers that know no other form
  bool same = true;
  for (const char character : Engine::validUtf8(fileName)) {
    const unsigned char c = static_cast<unsigned char>(character);
    const bool separator = c == '/' || c == '\\';
    if (c < 0x20 || c == 0x7f)
      continue;
    name += separator ? '_' : character;
    if ((c & 0xc0) == 0x80)
      continue; // of a character that has already become one sign
    const bool fits = c < 0x80 && c != '"' && c != '%' && !separator;
    same = same && (fits || separator);
    plain += fits ? character : '_';
  }
  if (name.empty())
    return type;
  std::string value = type + "; filename=\"" + plain + "\"";
  if (!same)
    value += "; filename*=UTF-8''" + percentEncode(name);
  return value;
}

} // namespace Net
} // namespace Wt
