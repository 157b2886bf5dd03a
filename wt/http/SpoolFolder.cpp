// SPDX-License-Identifier: MIT
#include "http/SpoolFolder.h"

#include "base/Log.h"

#include <cctype>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>

namespace Wt
{
namespace Net
{

namespace
{

constexpr char kPrefix[] = "uploads-";
constexpr std::size_t kChanceLetters = 6; // as mkdtemp makes them

std::string parent()
{
  const char *chosen = std::getenv("TMPDIR");
  return chosen && chosen[0] == '/' ? chosen : "/tmp";
}

bool isSpoolFolder(const std::string &name)
{
  const std::string prefix = kPrefix;
  if (name.size() != prefix.size() + kChanceLetters || name.compare(0, prefix.size(), prefix) != 0)
    return false;
  for (const char c : name.substr(prefix.size()))
    if (!std::isalnum(static_cast<unsigned char>(c)))
      return false;
  return true;
}

/// Empty if it is not there, belongs to somebody else, or a living process has locked it.
FileHandle lock(const std::string &path)
{
  FileHandle folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  struct stat info = {};
  const bool own = folder && ::fstat(folder.get(), &info) == 0 && info.st_uid == ::geteuid();
  return own && ::flock(folder.get(), LOCK_EX | LOCK_NB) == 0 ? std::move(folder) : FileHandle();
}

} // namespace

SpoolFolder &SpoolFolder::instance()
{
  static SpoolFolder *const folder = new SpoolFolder;
  return *folder;
}

void SpoolFolder::make()
{
  std::string path = parent() + "/" + kPrefix + std::string(kChanceLetters, 'X');
  if (!::mkdtemp(&path[0])) {
    Engine::log(Engine::LogLevel::Error, "http", "No folder for uploads can be made in " + parent() + ".");
    return;
  }
  lock_ = lock(path);
  path_ = path;
}

std::string SpoolFolder::path()
{
  const std::lock_guard<std::mutex> held(mutex_);
  struct stat info = {};
  if (path_.empty() || ::stat(path_.c_str(), &info) != 0)
    make();
  return path_;
}

void SpoolFolder::leave()
{
  const std::lock_guard<std::mutex> held(mutex_);
  if (!path_.empty() && ::rmdir(path_.c_str()) == 0) {
    path_.clear();
    lock_.reset();
  }
}

void SpoolFolder::removeLeft()
{
  std::error_code ec;
  std::filesystem::directory_iterator entry(parent(), ec);
  for (; !ec && entry != std::filesystem::directory_iterator(); entry.increment(ec)) {
    const std::string path = entry->path().string();
    if (!isSpoolFolder(entry->path().filename().string()) || !lock(path))
      continue;
    std::error_code failure;
    std::filesystem::remove_all(path, failure);
    Engine::log(Engine::LogLevel::Info, "http",
                "Removed " + path + ", which an ended server has left" + (failure ? " in part" : "") + ".");
  }
}

} // namespace Net
} // namespace Wt
