// SPDX-License-Identifier: MIT
#include "Frame.h"

#include "JsonParser.h"

namespace zelwire
{

json_t *parseJson(std::string_view text)
{
  return text.size() > kMaxFrame ? nullptr : JsonParser(text).parse();
}

} // namespace zelwire
