// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_FILE_HANDLE_H_
#define WT_HTTP_FILE_HANDLE_H_

#include <unistd.h>
#include <utility>

namespace Wt
{
namespace Net
{

/// Owns a file descriptor.
class FileHandle
{
public:
  FileHandle() = default;
  explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
  FileHandle(FileHandle &&other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  FileHandle &operator=(FileHandle &&other) noexcept
  {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~FileHandle() { reset(); }

  int get() const { return descriptor_; }
  explicit operator bool() const { return descriptor_ >= 0; }
  void reset()
  {
    if (descriptor_ >= 0)
      ::close(descriptor_);
    descriptor_ = -1;
  }

private:
  int descriptor_ = -1;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_FILE_HANDLE_H_
