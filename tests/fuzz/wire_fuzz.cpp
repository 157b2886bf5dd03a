// SPDX-License-Identifier: MIT
// The decoder of both sides, and what the client library does with whatever it decoded.
#include "Base64.h"
#include "Frame.h"
#include "ZelObj.h"
#include "ZelRspUtil.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace
{

void readAsResponse(json_t *response)
{
  char buffer[64];
  for (int row = 0; row < ZelRspUtil_numEntries(response) && row < 8; ++row) {
    ZelRspUtil_getIndexedStringParam(response, static_cast<unsigned>(row), "a");
    ZelRspUtil_getIndexedIntegerParam(response, static_cast<unsigned>(row), "a");
    ZelRspUtil_getIndexedBinaryParam(response, static_cast<unsigned>(row), "a", buffer, sizeof buffer);
  }
  ZelRspUtil_getBooleanParam(response, "a");
  json_t *flat = ZelObj_collapse(response, "a", "b");
  json_t *flatter = ZelObj_collapse(flat, "a", "b");
  ZelObj_free(flatter);
  ZelObj_free(flat);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  std::string_view input(reinterpret_cast<const char *>(data), size);
  bool ok = false;
  std::string bytes = zelwire::decodeBase64(input, ok);
  if (ok && zelwire::encodeBase64(bytes.data(), bytes.size()) != input)
    std::abort();
  json_t *value = zelwire::parseJson(input);
  if (!value)
    return 0;
  // Whatever was read is written as something that reads as the same.
  char *text = json_dumps(value, JSON_COMPACT | JSON_ENCODE_ANY | JSON_REAL_PRECISION(17));
  json_t *again = text ? zelwire::parseJson(text) : nullptr;
  if (!json_equal(value, again))
    std::abort();
  readAsResponse(value);
  json_decref(again);
  std::free(text);
  json_decref(value);
  return 0;
}
