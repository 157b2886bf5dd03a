// SPDX-License-Identifier: MIT
#include "http/ByteRange.h"

#include <Wt/WStreamResource>
#include <algorithm>
#include <istream>
#include <mutex>
#include <ostream>
#include <vector>

namespace Wt
{

struct WStreamResource::Settings {
  std::mutex mutex;
  std::string mimeType = "text/plain";
};

WStreamResource::WStreamResource(WObject *parent) : WResource(parent), settings_(std::make_shared<Settings>())
{
}

WStreamResource::WStreamResource(const std::string &mimeType, WObject *parent) : WStreamResource(parent)
{
  settings_->mimeType = mimeType;
}

WStreamResource::~WStreamResource()
{
  beingDeleted();
}

void WStreamResource::setMimeType(const std::string &mimeType)
{
  {
    const std::lock_guard<std::mutex> lock(settings_->mutex);
    settings_->mimeType = mimeType;
  }
  setChanged();
}

std::string WStreamResource::mimeType() const
{
  const std::lock_guard<std::mutex> lock(settings_->mutex);
  return settings_->mimeType;
}

void WStreamResource::setBufferSize(int size)
{
  bufferSize_ = std::clamp(size, 512, 1024 * 1024);
}

bool WStreamResource::prepare(const Http::Request &request, Http::Response &response, std::istream &input,
                              const std::string &mimeType, std::uint64_t &left)
{
  input.seekg(0, std::ios::end);
  const std::streamoff end = input.tellg();
  input.seekg(0, std::ios::beg);
  if (!input || end < 0) {
    response.setStatus(404);
    return false;
  }
  const std::uint64_t size = static_cast<std::uint64_t>(end);
  const Net::ByteRange range = Net::ByteRange::parse(request.headerValue("Range"), size);
  const bool part = range.kind == Net::ByteRange::Kind::Part;
  response.setMimeType(mimeType);
  response.addHeader("Accept-Ranges", "bytes");
  if (range.kind != Net::ByteRange::Kind::Whole)
    response.addHeader("Content-Range", range.contentRange(size));
  if (range.kind == Net::ByteRange::Kind::Unsatisfiable) {
    response.setStatus(416);
    return false;
  }
  response.setStatus(part ? 206 : 200);
  left = part ? range.length() : size;
  response.setContentLength(left);
  input.seekg(part ? static_cast<std::streamoff>(range.first) : 0, std::ios::beg);
  return true;
}

void WStreamResource::copy(Http::Response &response, std::istream &input, std::uint64_t left, int bufferSize)
{
  std::vector<char> buffer(static_cast<std::size_t>(bufferSize));
  std::ostream &out = response.out();
  while (left > 0 && input && out) {
    const std::uint64_t wanted = std::min<std::uint64_t>(left, buffer.size());
    input.read(buffer.data(), static_cast<std::streamsize>(wanted));
    out.write(buffer.data(), input.gcount());
    left -= static_cast<std::uint64_t>(input.gcount());
  }
}

void WStreamResource::handleRequestPiecewise(const Http::Request &request, Http::Response &response,
                                             std::istream &input)
{
  std::uint64_t left = 0;
  if (prepare(request, response, input, mimeType(), left) && request.method() != "HEAD")
    copy(response, input, left, bufferSize_);
}

} // namespace Wt
