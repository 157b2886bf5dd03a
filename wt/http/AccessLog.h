// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_ACCESS_LOG_H_
#define WT_HTTP_ACCESS_LOG_H_

#include "http/FileHandle.h"

#include <cstdint>
#include <string>

namespace Wt
{
namespace Net
{

/// One line for each request, in the common log format. Queries are left out: they may hold names of
/// sessions.
class AccessLog
{
public:
  /// A file to append to, "-" for no log, or "" for standard output.
  explicit AccessLog(const std::string &fileName);

  /// False if the file could not be opened.
  bool isUsable() const { return usable_; }
  /// Opens the file anew, after it was moved away.
  void reopen();

  /// Never waits: a line is lost when the reader of a pipe does not keep up.
  void write(const std::string &address, const std::string &method, const std::string &path, int status,
             std::uint64_t bodySize);

private:
  std::string fileName_;
  FileHandle file_;
  bool usable_ = true;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_ACCESS_LOG_H_
