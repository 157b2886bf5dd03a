// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_ZEL_FAKE_SERVER_H_
#define TESTS_UNIT_ZEL_FAKE_SERVER_H_

#include "Frame.h"
#include "server/Listener.h"

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

// A server that behaves as badly as a test wants: it takes one connection on a socket of its own and runs
// the given function on it in a thread. NEVO_STORE_SOCKET points to it while it lives.
class FakeServer
{
public:
  explicit FakeServer(std::function<void(int fd)> behaviour)
  {
    std::string name = "/tmp/nevo-fake-XXXXXX";
    directory_ = ::mkdtemp(&name[0]);
    std::string path = directory_ + "/sock";
    std::string problem;
    listener_ = zelsim::listenAt(path, problem);
    ::setenv("NEVO_STORE_SOCKET", path.c_str(), 1);
    thread_ = std::thread([this, behaviour = std::move(behaviour)] {
      int fd = -1;
      while (!stopping_ && (fd = ::accept(listener_, nullptr, nullptr)) < 0)
        ::usleep(500);
      if (fd >= 0 && !stopping_)
        behaviour(fd);
      ::close(fd);
    });
  }

  ~FakeServer()
  {
    stopping_ = true;
    thread_.join();
    ::close(listener_);
    ::unsetenv("NEVO_STORE_SOCKET");
    std::filesystem::remove_all(directory_);
  }

  // Receives one frame's text; empty when the client has hung up.
  static std::string receive(int fd)
  {
    unsigned char header[zelwire::kHeaderSize];
    if (::recv(fd, header, sizeof header, MSG_WAITALL) != static_cast<ssize_t>(sizeof header))
      return {};
    std::string text(zelwire::getLength(header), '\0');
    if (::recv(fd, &text[0], text.size(), MSG_WAITALL) != static_cast<ssize_t>(text.size()))
      return {};
    return text;
  }

  static void sendRaw(int fd, std::string_view bytes)
  {
    ::send(fd, bytes.data(), bytes.size(), MSG_NOSIGNAL);
  }

  static std::string frame(std::string_view text)
  {
    std::string bytes(zelwire::kHeaderSize, '\0');
    zelwire::putLength(reinterpret_cast<unsigned char *>(&bytes[0]), text.size());
    return bytes.append(text);
  }

  static void send(int fd, std::string_view text) { sendRaw(fd, frame(text)); }

  // Waits until the client hangs up, taking whatever it sends.
  static void waitForEnd(int fd)
  {
    char bytes[4096];
    while (::recv(fd, bytes, sizeof bytes, 0) > 0)
      continue;
  }

private:
  std::string directory_;
  int listener_ = -1;
  std::atomic<bool> stopping_{false};
  std::thread thread_;
};

#endif // TESTS_UNIT_ZEL_FAKE_SERVER_H_
