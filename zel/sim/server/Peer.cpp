// SPDX-License-Identifier: MIT
#include "server/Peer.h"

#include "Frame.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/uio.h>
#include <unistd.h>

namespace zelsim
{

namespace
{

constexpr std::size_t kReadSize = 64 * 1024;
// Requests are small; nobody may make the store gather more than this for one.
constexpr std::size_t kMaxRequest = 1024 * 1024;
// Memory that a long frame took and that is given back afterwards.
constexpr std::size_t kKeptCapacity = 64 * 1024;

std::size_t lengthAt(std::string_view bytes)
{
  return zelwire::getLength(reinterpret_cast<const unsigned char *>(bytes.data()));
}

void putLengthAt(std::string &frames, std::size_t at, std::size_t length)
{
  zelwire::putLength(reinterpret_cast<unsigned char *>(&frames[at]), length);
}

void clear(std::string &text)
{
  text.clear();
  if (text.capacity() > kKeptCapacity)
    text.shrink_to_fit();
}

} // namespace

Peer::Peer(int fd, std::uint64_t id, bool isControl) : fd_(fd), id_(id), isControl_(isControl) {}

Peer::~Peer()
{
  ::close(fd_);
}

bool Peer::read()
{
  static char buffer[kReadSize]; // one loop, one thread
  ssize_t got = ::recv(fd_, buffer, sizeof buffer, MSG_DONTWAIT);
  if (got < 0)
    return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
  if (got == 0)
    return false;
  if (consumed_ == input_.size())
    clear(input_);
  else
    input_.erase(0, consumed_);
  consumed_ = 0;
  input_.append(buffer, static_cast<std::size_t>(got));
  return true;
}

bool Peer::nextFrame(std::string_view &text, bool &tooLong) const
{
  std::string_view rest = std::string_view(input_).substr(consumed_);
  tooLong = false;
  if (rest.size() < zelwire::kHeaderSize)
    return false;
  std::size_t length = lengthAt(rest);
  tooLong = length > kMaxRequest;
  if (tooLong || rest.size() - zelwire::kHeaderSize < length)
    return false;
  text = rest.substr(zelwire::kHeaderSize, length);
  return true;
}

void Peer::consume(std::string_view frame)
{
  consumed_ += zelwire::kHeaderSize + frame.size();
}

bool Peer::hasWholeFrame() const
{
  std::string_view text;
  bool tooLong = false;
  return nextFrame(text, tooLong) || tooLong;
}

std::string &Peer::begin()
{
  marks_.push_back({held_.size(), false});
  held_.append(zelwire::kHeaderSize, '\0');
  return held_;
}

void Peer::end(bool depends)
{
  Mark &mark = marks_.back();
  mark.depends = depends;
  putLengthAt(held_, mark.begin, held_.size() - mark.begin - zelwire::kHeaderSize);
}

void Peer::replaceDependent(std::string_view json)
{
  std::string before;
  std::vector<Mark> marks;
  before.swap(held_);
  marks.swap(marks_);
  for (std::size_t i = 0; i < marks.size(); ++i) {
    std::size_t from = marks[i].begin + zelwire::kHeaderSize;
    std::size_t to = i + 1 < marks.size() ? marks[i + 1].begin : before.size();
    begin() += marks[i].depends ? json : std::string_view(before).substr(from, to - from);
    end(false);
  }
}

void Peer::cutInTheMiddle()
{
  std::size_t text = marks_.back().begin + zelwire::kHeaderSize;
  held_.resize(text + (held_.size() - text) / 2);
  finish();
}

void Peer::release(Time when)
{
  marks_.clear();
  if (held_.empty())
    return;
  if (hasOutput()) {
    // Behind what was on its way when this answer was put off.
    output_ += held_;
    held_.clear();
    return;
  }
  output_.swap(held_);
  held_.clear();
  sent_ = 0;
  due_ = when;
  stalledSince_ = when;
}

ssize_t Peer::sendSome()
{
  iovec part{&output_[sent_], output_.size() - sent_};
  alignas(cmsghdr) char control[CMSG_SPACE(sizeof attached_)] = {};
  msghdr message{};
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  if (attached_ >= 0) {
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    cmsghdr *header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof attached_);
    std::memcpy(CMSG_DATA(header), &attached_, sizeof attached_);
  }
  ssize_t done = ::sendmsg(fd_, &message, MSG_NOSIGNAL | MSG_DONTWAIT);
  if (done > 0)
    attached_ = -1;
  return done;
}

bool Peer::flush(Time now)
{
  while (hasOutput()) {
    ssize_t done = sendSome();
    if (done < 0) {
      if (errno == EINTR)
        continue;
      return errno == EAGAIN || errno == EWOULDBLOCK;
    }
    sent_ += static_cast<std::size_t>(done);
    stalledSince_ = now;
  }
  clear(output_);
  sent_ = 0;
  return !finishing_;
}

} // namespace zelsim
