// SPDX-License-Identifier: MIT
// Sends one control command to a running zelsim and shows what came of it.
#include "Frame.h"
#include "control/ServerCommands.h"
#include "server/Listener.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

using zelsim::Json;

void printHelp()
{
  zelsim::Commands commands;
  zelsim::Faults faults;
  zelsim::addServerCommands(commands, faults);
  zelsim::addLifeCommands(commands);
  std::printf("zelctl, the remote control of a running zelsim\n"
              "\n"
              "  zelctl [--control PATH] COMMAND [ARGUMENT...]\n"
              "\n"
              "PATH is the store's control socket; default: the environment's NEVO_STORE_CONTROL, else\n"
              "NEVO_STORE_SOCKET (default /run/nevo/store.sock) with \".control\" behind it.\n"
              "\n"
              "%s"
              "\n"
              "Examples:\n"
              "  zelctl get rx 1 status\n"
              "  zelctl set rx 1 upgradePercent 37\n"
              "  zelctl slow 500 && zelctl slow off\n"
              "  zelctl jump 3600\n"
              "\n"
              "Ends with 0 if the command was carried out, 1 if it was refused, 2 if no store answered.\n",
              commands.help().c_str());
}

std::string defaultControlPath()
{
  if (const char *path = std::getenv("NEVO_STORE_CONTROL"); path && *path)
    return path;
  const char *socket = std::getenv("NEVO_STORE_SOCKET");
  return std::string(socket && *socket ? socket : "/run/nevo/store.sock") + ".control";
}

bool sendAll(int fd, std::string_view bytes)
{
  while (!bytes.empty()) {
    ssize_t sent = ::send(fd, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0)
      return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

bool receiveAll(int fd, char *bytes, std::size_t size)
{
  for (std::size_t have = 0; have < size;) {
    ssize_t got = ::recv(fd, bytes + have, size - have, 0);
    if (got <= 0)
      return false;
    have += static_cast<std::size_t>(got);
  }
  return true;
}

// Sends `request` as a frame and parses the frame that comes back; null if none does.
Json exchange(int fd, const json_t *request)
{
  char *text = json_dumps(request, JSON_COMPACT);
  std::string frame(zelwire::kHeaderSize, '\0');
  frame += text ? text : "";
  std::free(text);
  zelwire::putLength(reinterpret_cast<unsigned char *>(&frame[0]), frame.size() - zelwire::kHeaderSize);
  unsigned char header[zelwire::kHeaderSize];
  if (!sendAll(fd, frame) || !receiveAll(fd, reinterpret_cast<char *>(header), sizeof header))
    return nullptr;
  std::size_t length = zelwire::getLength(header);
  if (length > zelwire::kMaxFrame)
    return nullptr;
  std::string answer(length, '\0');
  if (!receiveAll(fd, &answer[0], length))
    return nullptr;
  return Json(zelwire::parseJson(answer));
}

} // namespace

int main(int argc, char **argv)
{
  int first = 1;
  std::string path = defaultControlPath();
  if (argc > 2 && std::strcmp(argv[1], "--control") == 0) {
    path = argv[2];
    first = 3;
  }
  if (first >= argc || std::strcmp(argv[first], "--help") == 0 || std::strcmp(argv[first], "help") == 0) {
    printHelp();
    return first >= argc ? 1 : 0;
  }
  Json words(json_array());
  for (int i = first; i < argc; ++i)
    json_array_append_new(words.get(), json_string(argv[i]));
  int fd = zelsim::connectTo(path);
  Json answer = fd >= 0 ? exchange(fd, words.get()) : nullptr;
  if (fd >= 0)
    ::close(fd);
  const char *text = json_string_value(json_object_get(answer.get(), "text"));
  if (!text) {
    std::fprintf(stderr, "zelctl: no store answers at %s\n", path.c_str());
    return 2;
  }
  bool failed = json_is_true(json_object_get(answer.get(), "failed"));
  if (failed)
    std::fprintf(stderr, "zelctl: %s\n", text);
  else
    std::fputs(text, stdout);
  return failed ? 1 : 0;
}
