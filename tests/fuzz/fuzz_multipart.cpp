// SPDX-License-Identifier: MIT
// Uploads, in pieces.
#include "http/MultipartReader.h"

#include <cstdint>
#include <string>

namespace
{

class Listener : public Wt::Net::MultipartReader::Handler
{
public:
  bool partBegins(const Wt::Net::MultipartReader::Part &part) override
  {
    return part.fileName.find('/') == std::string::npos;
  }
  bool partBytes(std::string_view) override { return true; }
  bool partEnds() override { return true; }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  const std::string_view bytes(reinterpret_cast<const char *>(data), size);
  Listener listener;
  Wt::Net::MultipartReader reader("b", listener);
  const std::size_t step = size ? 1 + data[0] % 32 : 1;
  for (std::size_t at = 0; at < size; at += step)
    if (!reader.feed(bytes.substr(at, step)))
      return 0;
  return 0;
}
