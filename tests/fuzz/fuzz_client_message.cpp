// SPDX-License-Identifier: MIT
// Messages of a browser: decoded or refused, whatever they hold.
#include "session/ClientMessage.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  Wt::Engine::ClientMessage message;
  Wt::Engine::ClientMessage::decode(std::string_view(reinterpret_cast<const char *>(data), size), message);
  return 0;
}
