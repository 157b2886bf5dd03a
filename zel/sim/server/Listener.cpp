// SPDX-License-Identifier: MIT
#include "server/Listener.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace zelsim
{

namespace
{

constexpr int kQueue = 512;

bool makeAddress(const std::string &path, sockaddr_un &address)
{
  address = {};
  address.sun_family = AF_UNIX;
  if (path.empty() || path.size() >= sizeof address.sun_path)
    return false;
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  return true;
}

bool bindPrivately(int fd, const sockaddr_un &address)
{
  mode_t before = ::umask(0117);
  int result = ::bind(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address);
  int error = errno;
  ::umask(before);
  errno = error;
  return result == 0;
}

} // namespace

int connectTo(const std::string &path)
{
  sockaddr_un address;
  if (!makeAddress(path, address))
    return -1;
  int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (fd >= 0 && ::connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0)
    return fd;
  if (fd >= 0)
    ::close(fd);
  return -1;
}

int listenAt(const std::string &path, std::string &problem)
{
  sockaddr_un address;
  if (!makeAddress(path, address)) {
    problem = "socket " + path + ": no usable path";
    return -1;
  }
  struct stat present;
  if (::lstat(path.c_str(), &present) == 0 && S_ISSOCK(present.st_mode)) {
    int other = connectTo(path);
    if (other >= 0) {
      ::close(other);
      problem = "socket " + path + ": another store listens here";
      return -1;
    }
    ::unlink(path.c_str());
  }
  int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (fd >= 0 && bindPrivately(fd, address) && ::listen(fd, kQueue) == 0)
    return fd;
  problem = "socket " + path + ": " + std::strerror(errno);
  if (fd >= 0)
    ::close(fd);
  return -1;
}

} // namespace zelsim
