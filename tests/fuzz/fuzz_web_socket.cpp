// SPDX-License-Identifier: MIT
// WebSocket frames in pieces.
#include "http/WebSocketCodec.h"

#include <cstdint>
#include <string>

namespace
{

class Listener : public Wt::Net::WebSocketCodec::Handler
{
public:
  void textMessage(std::string message) override { bytes += message.size(); }
  void ping(std::string_view payload) override
  {
    bytes += Wt::Net::WebSocketCodec::pongFrame(payload).size();
  }
  void pong() override {}
  void close(int) override {}
  std::size_t bytes = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  const std::string_view bytes(reinterpret_cast<const char *>(data), size);
  Wt::Net::WebSocketCodec codec;
  Listener listener;
  const std::size_t step = size ? 1 + data[0] % 32 : 1;
  for (std::size_t at = 0; at < size; at += step)
    if (codec.receive(bytes.substr(at, step), listener) != 0)
      return 0;
  return 0;
}
