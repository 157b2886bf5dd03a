// SPDX-License-Identifier: MIT
// Requests as their bytes arrive, in two pieces, with a body of whatever size they claim.
#include "http/RequestParser.h"
#include "http/UrlCodec.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  if (size == 0)
    return 0;
  const std::string_view bytes(reinterpret_cast<const char *>(data) + 1, size - 1);
  const std::size_t cut = bytes.size() * data[0] / 256;
  Wt::Net::RequestParser parser;
  std::size_t body = 0;
  parser.setBodySink([&body](std::string_view some) { body += some.size(); });
  std::size_t used = 0;
  for (const std::size_t end : {cut, bytes.size()})
    for (std::size_t taken = 1;
         used < end && taken > 0 && parser.state() <= Wt::Net::RequestParser::State::Body;) {
      taken = parser.parse(bytes.substr(used, end - used));
      used += taken;
    }
  if (parser.state() == Wt::Net::RequestParser::State::Failed)
    return 0;
  std::string path;
  Wt::Net::percentDecode(parser.head().target, false, path);
  Wt::Net::parseQuery(parser.head().target);
  return 0;
}
