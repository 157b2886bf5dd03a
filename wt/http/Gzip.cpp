// SPDX-License-Identifier: MIT
#include "http/Gzip.h"

#include <algorithm>
#include <zlib.h>

namespace Wt
{
namespace Net
{

namespace
{

constexpr int kGzipWindow = 15 + 16; // zlib's way to ask for the gzip file form

std::string_view trimmed(std::string_view text)
{
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
    text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
    text.remove_suffix(1);
  return text;
}

} // namespace

std::string gzip(std::string_view text, int level)
{
  z_stream stream = {};
  if (deflateInit2(&stream, level, Z_DEFLATED, kGzipWindow, 8, Z_DEFAULT_STRATEGY) != Z_OK)
    return std::string();
  std::string out(deflateBound(&stream, text.size()), '\0');
  stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(text.data()));
  stream.avail_in = static_cast<uInt>(text.size());
  stream.next_out = reinterpret_cast<Bytef *>(&out[0]);
  stream.avail_out = static_cast<uInt>(out.size());
  const bool done = deflate(&stream, Z_FINISH) == Z_STREAM_END;
  out.resize(done ? stream.total_out : 0);
  deflateEnd(&stream);
  out.shrink_to_fit();
  return out;
}

bool acceptsGzip(std::string_view acceptEncoding)
{
  while (!acceptEncoding.empty()) {
    std::string_view item = acceptEncoding.substr(0, acceptEncoding.find(','));
    acceptEncoding.remove_prefix(std::min(acceptEncoding.size(), item.size() + 1));
    const std::size_t parameters = item.find(';');
    const std::string_view name = trimmed(item.substr(0, parameters));
    if (name != "gzip" && name != "x-gzip" && name != "*")
      continue;
    const std::string_view quality =
        parameters == std::string_view::npos ? std::string_view() : trimmed(item.substr(parameters + 1));
    return quality.find_first_of("123456789", quality.find('=')) != std::string_view::npos || quality.empty();
  }
  return false;
}

} // namespace Net
} // namespace Wt
