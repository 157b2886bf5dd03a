// SPDX-License-Identifier: MIT
#include <Wt/WFileResource>
#include <fstream>
#include <mutex>
#include <sys/stat.h>

namespace Wt
{

namespace
{

bool isFile(const std::string &path)
{
  struct stat info = {};
  return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

} // namespace

/// Requests run in parallel with the session, which may set another name.
struct WFileResource::Name {
  std::mutex mutex;
  std::string path;
};

WFileResource::WFileResource(WObject *parent) : WStreamResource(parent), name_(std::make_shared<Name>()) {}

WFileResource::WFileResource(const std::string &fileName, WObject *parent) : WFileResource(parent)
{
  name_->path = fileName;
}

WFileResource::WFileResource(const std::string &mimeType, const std::string &fileName, WObject *parent)
    : WStreamResource(mimeType, parent), name_(std::make_shared<Name>())
{
  name_->path = fileName;
}

WFileResource::~WFileResource()
{
  beingDeleted();
}

void WFileResource::setFileName(const std::string &fileName)
{
  {
    const std::lock_guard<std::mutex> lock(name_->mutex);
    name_->path = fileName;
  }
  setChanged();
}

std::string WFileResource::fileName() const
{
  const std::lock_guard<std::mutex> lock(name_->mutex);
  return name_->path;
}

void WFileResource::handleRequest(const Http::Request &request, Http::Response &response)
{
  const std::string path = fileName();
  const auto file = std::make_shared<std::ifstream>();
  if (isFile(path))
    file->open(path, std::ios::binary);
  else
    file->setstate(std::ios::failbit);
  std::uint64_t left = 0;
  if (!prepare(request, response, *file, mimeType(), left) || request.method() == "HEAD")
    return;
  const int pieces = bufferSize();
  response.afterwards([file, left, pieces](Http::Response &self) { copy(self, *file, left, pieces); });
}

} // namespace Wt
