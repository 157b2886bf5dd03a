// SPDX-License-Identifier: MIT
#ifndef WT_WFILE_RESOURCE_H_
#define WT_WFILE_RESOURCE_H_

#include <Wt/WStreamResource>
#include <memory>
#include <string>

namespace Wt
{

/// Serves a file, which is opened for each request: 404 if it cannot be read, or is not a file. A download
/// that has begun goes on after the resource is deleted.
class WFileResource : public WStreamResource
{
public:
  explicit WFileResource(WObject *parent = nullptr);
  explicit WFileResource(const std::string &fileName, WObject *parent = nullptr);
  WFileResource(const std::string &mimeType, const std::string &fileName, WObject *parent = nullptr);
  ~WFileResource() override;

  void setFileName(const std::string &fileName);
  std::string fileName() const;

  void handleRequest(const Http::Request &request, Http::Response &response) override;

private:
  struct Name;
  std::shared_ptr<Name> name_;
};

} // namespace Wt

#endif // WT_WFILE_RESOURCE_H_
