// SPDX-License-Identifier: MIT
#include "control/Channel.h"

#include "Frame.h"
#include "data/JsonText.h"
#include "server/Listener.h"

#include <string_view>
#include <sys/socket.h>
#include <unistd.h>

namespace zelsim
{

namespace
{

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

// Sends `frame` and parses the frame that comes back; null if none does.
Json askAndListen(int fd, std::string_view frame)
{
  char header[zelwire::kHeaderSize];
  if (!sendAll(fd, frame) || !receiveAll(fd, header, sizeof header))
    return nullptr;
  std::size_t length = zelwire::getLength(reinterpret_cast<unsigned char *>(header));
  if (length > zelwire::kMaxFrame)
    return nullptr;
  std::string answer(length, '\0');
  if (!receiveAll(fd, &answer[0], length))
    return nullptr;
  return Json(zelwire::parseJson(answer));
}

} // namespace

bool sendCommand(const std::string &path, const std::vector<std::string> &words, Outcome &outcome)
{
  std::string frame(zelwire::kHeaderSize, '\0');
  frame += '[';
  for (const std::string &word : words) {
    if (frame.back() != '[')
      frame += ',';
    appendJsonText(frame, word);
  }
  frame += ']';
  zelwire::putLength(reinterpret_cast<unsigned char *>(&frame[0]), frame.size() - zelwire::kHeaderSize);
  int fd = connectTo(path);
  if (fd < 0)
    return false;
  Json answer = askAndListen(fd, frame);
  ::close(fd);
  const char *text = json_string_value(json_object_get(answer.get(), "text"));
  if (!text)
    return false;
  outcome = {json_is_true(json_object_get(answer.get(), "failed")), text};
  return true;
}

} // namespace zelsim
