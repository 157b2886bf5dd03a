// SPDX-License-Identifier: MIT
#include "http/SpoolFile.h"

#include "http/SpoolFolder.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>

namespace Wt
{
namespace Net
{

SpoolFile::SpoolFile(SpoolFile &&other) noexcept
    : file_(std::move(other.file_)), path_(std::exchange(other.path_, std::string()))
{
}

SpoolFile &SpoolFile::operator=(SpoolFile &&other) noexcept
{
  std::swap(file_, other.file_);
  std::swap(path_, other.path_);
  return *this;
}

SpoolFile::~SpoolFile()
{
  if (!path_.empty())
    ::unlink(path_.c_str());
}

bool SpoolFile::create()
{
  std::string path = SpoolFolder::instance().path() + "/upload-XXXXXX";
  file_ = FileHandle(::mkostemp(&path[0], O_CLOEXEC));
  if (file_)
    path_ = path;
  return isOpen();
}

bool SpoolFile::write(std::string_view bytes)
{
  while (!bytes.empty()) {
    const ssize_t n = ::write(file_.get(), bytes.data(), bytes.size());
    if (n < 0 && errno == EINTR)
      continue;
    if (n <= 0)
      return false;
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

std::string SpoolFile::release()
{
  file_.reset();
  return std::exchange(path_, std::string());
}

} // namespace Net
} // namespace Wt
