// SPDX-License-Identifier: MIT
#include "http/StaticFiles.h"

#include "http/ByteRange.h"
#include "http/Gzip.h"
#include "http/HttpDate.h"
#include "http/MimeTypes.h"
#include "http/RequestParser.h"

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>

namespace Wt
{
namespace Net
{

namespace
{

// An image with scripts in it must stay an image when it is opened as a page of its own.
const char kImagePolicy[] = "default-src 'none'; style-src 'unsafe-inline'; img-src data:; sandbox";

std::string canonical(const std::string &path)
{
  char resolved[PATH_MAX];
  return ::realpath(path.c_str(), resolved) ? std::string(resolved) : path;
}

/// Neither a way upwards nor a hidden file, nor anything that a file system would not take as a name.
bool isServable(const std::string &path)
{
  if (path.empty() || path[0] != '/' || path.find("..") != std::string::npos ||
      path.find('\0') != std::string::npos)
    return false;
  for (std::size_t at = path.find("/."); at != std::string::npos; at = path.find("/.", at + 1))
    if (path.compare(at, 13, "/.well-known/") != 0)
      return false;
  return true;
}

bool tagListed(const std::string &list, const std::string &tag)
{
  return list == "*" || list.find(tag) != std::string::npos;
}

bool isUnmodified(const ParsedHead &request, const std::string &tag, std::int64_t modified)
{
  const std::string &tags = request.header("if-none-match");
  if (!tags.empty())
    return tagListed(tags, tag);
  std::time_t since = 0;
  return parseHttpDate(request.header("if-modified-since"), since) && modified <= since;
}

bool rangeApplies(const ParsedHead &request, const std::string &tag, std::int64_t modified)
{
  const std::string &condition = request.header("if-range");
  return condition.empty() || condition == tag || condition == httpDate(static_cast<std::time_t>(modified));
}

bool readAll(int descriptor, std::string &bytes)
{
  std::size_t got = 0;
  while (got < bytes.size()) {
    const ssize_t n = ::pread(descriptor, &bytes[got], bytes.size() - got, static_cast<off_t>(got));
    if (n <= 0)
      return false;
    got += static_cast<std::size_t>(n);
  }
  return true;
}

void describe(Response &response, const MimeType &type, const std::string &tag, std::int64_t modified)
{
  response.add("Content-Type", type.type);
  response.add("ETag", tag);
  response.add("Last-Modified", httpDate(static_cast<std::time_t>(modified)));
  response.add("Cache-Control",
               type.maximumAge ? "max-age=" + std::to_string(type.maximumAge) : std::string("no-cache"));
  if (type.compressible)
    response.add("Vary", "Accept-Encoding");
  if (std::string_view(type.extension) == ".svg")
    response.add("Content-Security-Policy", kImagePolicy);
}

void sendPart(Response &response, FileHandle file, std::uint64_t size, const ByteRange &range)
{
  response.add("Accept-Ranges", "bytes");
  if (range.kind != ByteRange::Kind::Whole)
    response.add("Content-Range", range.contentRange(size));
  if (range.kind == ByteRange::Kind::Unsatisfiable) {
    response.status = 416;
    return;
  }
  const bool part = range.kind == ByteRange::Kind::Part;
  response.status = part ? 206 : 200;
  response.file = std::move(file);
  response.fileOffset = part ? range.first : 0;
  response.fileLength = part ? range.length() : size;
}

} // namespace

StaticFiles::StaticFiles(const std::string &root, bool compression)
    : root_(canonical(root)), compression_(compression)
{
  if (root_.back() != '/')
    root_ += '/';
}

bool StaticFiles::isBelowRoot(int descriptor) const
{
  char link[64];
  std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
  char target[PATH_MAX];
  const ssize_t size = ::readlink(link, target, sizeof target);
  return size > 0 && static_cast<std::size_t>(size) < sizeof target &&
         std::string_view(target, static_cast<std::size_t>(size)).substr(0, root_.size()) == root_;
}

StaticFiles::Opened StaticFiles::open(const std::string &path) const
{
  Opened opened;
  FileHandle file(::open((root_ + path.substr(1)).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat info = {};
  if (!file || !isBelowRoot(file.get()) || ::fstat(file.get(), &info) != 0 || !S_ISREG(info.st_mode))
    return opened;
  opened.size = static_cast<std::uint64_t>(info.st_size);
  opened.modifiedSeconds = info.st_mtim.tv_sec;
  char tag[64];
  std::snprintf(tag, sizeof tag, "%llx-%llx.%lx", static_cast<unsigned long long>(info.st_size),
                static_cast<unsigned long long>(info.st_mtim.tv_sec),
                static_cast<unsigned long>(info.st_mtim.tv_nsec));
  opened.tag = tag;
  opened.file = std::move(file);
  return opened;
}

std::shared_ptr<const std::string> StaticFiles::compressed(const std::string &path, const Opened &opened)
{
  for (auto entry = cache_.begin(); entry != cache_.end(); ++entry) {
    if (entry->path != path)
      continue;
    if (entry->tag == opened.tag) {
      cache_.splice(cache_.begin(), cache_, entry);
      return entry->bytes;
    }
    cached_ -= entry->bytes->size();
    cache_.erase(entry);
    break;
  }
  std::string plain(static_cast<std::size_t>(opened.size), '\0');
  if (!readAll(opened.file.get(), plain))
    return nullptr;
  auto bytes = std::make_shared<const std::string>(gzip(plain, 6));
  if (bytes->empty() || bytes->size() >= plain.size())
    return nullptr;
  cache_.push_front({path, opened.tag, bytes});
  cached_ += bytes->size();
  shrinkCache();
  return bytes;
}

void StaticFiles::shrinkCache()
{
  while (cached_ > cacheSize) {
    cached_ -= cache_.back().bytes->size();
    cache_.pop_back();
  }
}

Response StaticFiles::respond(const std::string &requested, const ParsedHead &request)
{
  const std::string path =
      !requested.empty() && requested.back() == '/' ? requested + "index.html" : requested;
  if (!isServable(path))
    return Response::plain(404);
  const MimeType &type = mimeTypeOf(path);
  Opened opened = open(path);
  const std::string &wantedRange = request.header("range");
  const bool zipped = compression_ && type.compressible && wantedRange.empty() &&
                      acceptsGzip(request.header("accept-encoding"));
  Opened sibling = zipped ? open(path + ".gz") : Opened();
  if (!opened.file && !sibling.file)
    return Response::plain(404);
  std::shared_ptr<const std::string> bytes;
  if (zipped && !sibling.file && opened.size > 0 && opened.size <= largestCompressed)
    bytes = compressed(path, opened);

  const Opened &chosen = sibling.file ? sibling : opened;
  const std::string tag = "\"" + chosen.tag + (sibling.file || bytes ? "-gz\"" : "\"");
  Response response;
  describe(response, type, tag, chosen.modifiedSeconds);
  if (isUnmodified(request, tag, chosen.modifiedSeconds)) {
    response.status = 304;
  } else if (bytes || sibling.file) {
    response.add("Content-Encoding", "gzip");
    response.sharedBody = bytes;
    response.fileLength = sibling.size;
    response.file = std::move(sibling.file);
  } else {
    const bool ranged = !wantedRange.empty() && rangeApplies(request, tag, opened.modifiedSeconds);
    const ByteRange range = ranged ? ByteRange::parse(wantedRange, opened.size) : ByteRange();
    sendPart(response, std::move(opened.file), opened.size, range);
  }
  return response;
}

} // namespace Net
} // namespace Wt
