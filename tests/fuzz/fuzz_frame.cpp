// SPDX-License-Identifier: MIT
// JSON from the other end of the store's socket: parsed or refused, and what is parsed can be written again.
#include "Frame.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  const std::string_view text(reinterpret_cast<const char *>(data), size);
  json_t *value = zelwire::parseJson(text);
  if (!value)
    return 0;
  char *written = json_dumps(value, JSON_COMPACT | JSON_ENCODE_ANY);
  json_t *again = written ? zelwire::parseJson(written) : nullptr;
  if (!again || !json_equal(value, again))
    std::abort();
  json_decref(again);
  std::free(written);
  json_decref(value);
  return 0;
}
