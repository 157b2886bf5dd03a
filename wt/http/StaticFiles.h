// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_STATIC_FILES_H_
#define WT_HTTP_STATIC_FILES_H_

#include "http/FileHandle.h"
#include "http/Response.h"

#include <list>
#include <memory>
#include <string>

namespace Wt
{
namespace Net
{

struct ParsedHead;

/**
 * Answers requests for files below the document root. A file is only ever served when the opened file itself,
 * with all symbolic links followed, lies below the root. Used by the network thread alone.
 */
class StaticFiles
{
public:
  static constexpr std::size_t largestCompressed = 512 * 1024;
  static constexpr std::size_t cacheSize = 1024 * 1024;

  /// `root` must be an existing directory; without `compression` files are sent as they are.
  StaticFiles(const std::string &root, bool compression);

  /// `path` is percent-decoded and begins with "/".
  Response respond(const std::string &path, const ParsedHead &request);

private:
  struct Opened {
    FileHandle file;
    std::uint64_t size = 0;
    std::int64_t modifiedSeconds = 0;
    std::string tag; ///< changes with the content
  };
  struct Compressed {
    std::string path;
    std::string tag;
    std::shared_ptr<const std::string> bytes;
  };

  std::string root_;
  bool compression_;
  std::list<Compressed> cache_; ///< the last used in front
  std::size_t cached_ = 0;

  Opened open(const std::string &path) const;
  bool isBelowRoot(int descriptor) const;
  std::shared_ptr<const std::string> compressed(const std::string &path, const Opened &opened);
  void shrinkCache();
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_STATIC_FILES_H_
