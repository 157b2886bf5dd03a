// SPDX-License-Identifier: MIT
#include "http/ResourcePipe.h"

#include <ostream>
#include <streambuf>

namespace Wt
{
namespace Net
{

ResourcePipe::ResourcePipe(std::function<void()> wake) : wake_(std::move(wake)) {}

void ResourcePipe::tell(std::unique_lock<std::mutex> &lock)
{
  const bool first = !std::exchange(told_, true);
  lock.unlock();
  if (first)
    wake_();
}

void ResourcePipe::begin(Head head)
{
  const std::lock_guard<std::mutex> lock(mutex_);
  arrived_.head = std::move(head);
}

void ResourcePipe::push(std::string bytes)
{
  std::unique_lock<std::mutex> lock(mutex_);
  room_.wait(lock, [this] { return abandoned_ || arrived_.bytes.size() < capacity; });
  if (abandoned_)
    return;
  arrived_.bytes += bytes;
  tell(lock);
}

void ResourcePipe::finish()
{
  std::unique_lock<std::mutex> lock(mutex_);
  arrived_.finished = true;
  tell(lock);
}

ResourcePipe::Arrived ResourcePipe::take()
{
  const std::lock_guard<std::mutex> lock(mutex_);
  told_ = false;
  Arrived taken = std::move(arrived_);
  arrived_ = Arrived();
  room_.notify_all();
  return taken;
}

void ResourcePipe::abandon()
{
  const std::lock_guard<std::mutex> lock(mutex_);
  abandoned_ = true;
  arrived_ = Arrived();
  room_.notify_all();
}

bool ResourcePipe::abandoned() const
{
  const std::lock_guard<std::mutex> lock(mutex_);
  return abandoned_;
}

class ResourceWriter::Buffer : public std::streambuf
{
public:
  explicit Buffer(ResourcePipe &pipe) : pipe_(pipe), bytes_(size, '\0') { rewind(); }

protected:
  int_type overflow(int_type c) override
  {
    if (sync() != 0)
      return traits_type::eof();
    if (!traits_type::eq_int_type(c, traits_type::eof())) {
      *pptr() = traits_type::to_char_type(c);
      pbump(1);
    }
    return traits_type::not_eof(c);
  }

  int sync() override
  {
    if (pptr() > pbase())
      pipe_.push(std::string(pbase(), pptr()));
    rewind();
    return pipe_.abandoned() ? -1 : 0;
  }

private:
  static constexpr std::size_t size = 16 * 1024;

  ResourcePipe &pipe_;
  std::string bytes_;

  void rewind() { setp(&bytes_[0], &bytes_[0] + bytes_.size()); }
};

ResourceWriter::ResourceWriter(std::shared_ptr<ResourcePipe> pipe) : pipe_(std::move(pipe)) {}

ResourceWriter::~ResourceWriter()
{
  finish();
}

void ResourceWriter::setStatus(int status)
{
  head_.status = status;
}

void ResourceWriter::addHeader(const std::string &name, const std::string &value)
{
  head_.headers.emplace_back(name, value);
}

void ResourceWriter::setMimeType(const std::string &mimeType)
{
  head_.mimeType = mimeType;
}

void ResourceWriter::setContentLength(std::uint64_t length)
{
  head_.length = length;
}

void ResourceWriter::begin()
{
  if (!std::exchange(begun_, true))
    pipe_->begin(head_);
}

std::ostream &ResourceWriter::out()
{
  begin();
  if (!stream_) {
    buffer_ = std::make_unique<Buffer>(*pipe_);
    stream_ = std::make_unique<std::ostream>(buffer_.get());
  }
  return *stream_;
}

void ResourceWriter::finish()
{
  if (std::exchange(finished_, true))
    return;
  begin();
  if (stream_)
    stream_->flush();
  pipe_->finish();
}

bool ResourceWriter::connected() const
{
  return !pipe_->abandoned();
}

} // namespace Net
} // namespace Wt
