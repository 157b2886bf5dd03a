// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_SPOOL_FILE_H_
#define WT_HTTP_SPOOL_FILE_H_

#include "http/FileHandle.h"

#include <string>
#include <string_view>

namespace Wt
{
namespace Net
{

/// A file of its own in this process's folder for uploads, readable by this user only; removed with the
/// object unless released.
class SpoolFile
{
public:
  SpoolFile() = default;
  SpoolFile(SpoolFile &&other) noexcept;
  SpoolFile &operator=(SpoolFile &&other) noexcept;
  ~SpoolFile();

  /// False if the file cannot be made.
  bool create();
  bool isOpen() const { return static_cast<bool>(file_); }
  /// False if the bytes cannot be written, because the disk is full for example.
  bool write(std::string_view bytes);
  /// Closes the file and leaves it, and its removal, to the caller.
  std::string release();

private:
  FileHandle file_;
  std::string path_;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_SPOOL_FILE_H_
