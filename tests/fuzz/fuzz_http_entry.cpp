// SPDX-License-Identifier: MIT
// A whole connection as a hostile peer may use it: any bytes, in any pieces, with pauses, hang-ups, a slow
// reader and sessions that answer, wait or refuse. The first byte of each piece of the input says what
// happens.
#include "testing/MemoryNetwork.h"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>

namespace
{

using namespace Wt;
using Testing::FakeSessions;
using Testing::MemoryConnection;

const std::string &root()
{
  static const std::string folder = [] {
    std::string pattern = (std::filesystem::temp_directory_path() / "fuzz-XXXXXX").string();
    const std::string made = ::mkdtemp(&pattern[0]);
    std::ofstream(made + "/a.css") << std::string(3000, 'a');
    std::ofstream(made + "/b.bin") << std::string(200000, 'b');
    return made;
  }();
  return folder;
}

void answer(const FakeSessions::ResourceRequest &request)
{
  for (const Engine::SpooledFile &file : request.files)
    std::remove(file.spoolPath.c_str());
  request.response->setStatus(request.tooLarge ? 413 : 200);
  request.response->addHeader("X-Echo", request.head.query);
  request.response->out() << request.head.path;
}

/// What the peer does next, by the kind of the piece.
void act(MemoryConnection &peer, int kind, std::string_view bytes)
{
  switch (kind) {
  case 1:
    peer.wait(std::chrono::seconds(bytes.size()));
    break;
  case 2:
    peer.channel.holding = !peer.channel.holding;
    peer.takeHeld();
    break;
  case 3:
    peer.say(Testing::clientFrame(1, bytes));
    break;
  case 4:
    peer.say(Testing::webSocketRequest("a", "http://a"));
    break;
  case 5:
    peer.connection->shutDown();
    break;
  case 6:
    for (const char c : bytes)
      peer.say(std::string_view(&c, 1));
    break;
  default:
    peer.say(bytes);
    break;
  }
  if (peer.channel.closing || peer.channel.aborted)
    peer.hangUp();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  if (size == 0)
    return 0;
  MemoryConnection peer(root());
  peer.sessions.refusing = (data[0] & 1) != 0;
  peer.service.behindProxy = (data[0] & 2) != 0;
  peer.service.maximumBody = (data[0] & 4) != 0 ? 100 : 100000;
  if ((data[0] & 8) == 0)
    peer.sessions.onResource = [](FakeSessions::ResourceRequest request) { answer(request); };
  std::string_view rest(reinterpret_cast<const char *>(data) + 1, size - 1);
  while (rest.size() > 2 && !peer.channel.closing && !peer.channel.aborted) {
    const int kind = static_cast<unsigned char>(rest[0]) & 7;
    const std::size_t length =
        (static_cast<unsigned char>(rest[0]) >> 3) * 64u + static_cast<unsigned char>(rest[1]);
    rest.remove_prefix(2);
    act(peer, kind, rest.substr(0, length));
    rest.remove_prefix(std::min(rest.size(), length));
  }
  return 0;
}
