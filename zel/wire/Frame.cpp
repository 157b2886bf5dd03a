// SPDX-License-Identifier: MIT
#include "Frame.h"

namespace zelwire
{

namespace
{

// Whether brackets outside texts nest within bounds. Looks at nothing else: the parser does.
bool nestsWithinBounds(std::string_view text)
{
  unsigned depth = 0;
  bool inText = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (inText) {
      if (c == '\\')
        ++i;
      else if (c == '"')
        inText = false;
    } else if (c == '"') {
      inText = true;
    } else if (c == '{' || c == '[') {
      if (++depth > kMaxDepth)
        return false;
    } else if ((c == '}' || c == ']') && depth > 0) {
      --depth;
    }
  }
  return true;
}

} // namespace

json_t *parseJson(std::string_view text)
{
  if (text.size() > kMaxFrame || !nestsWithinBounds(text))
    return nullptr;
  return json_loadb(text.data(), text.size(), JSON_REJECT_DUPLICATES | JSON_DECODE_ANY, nullptr);
}

} // namespace zelwire
