// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_REQUEST_H_
#define WT_HTTP_REQUEST_H_

#include <cstdint>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Wt
{

class WResource;

namespace Engine
{
struct RequestHead;
struct SpooledFile;
} // namespace Engine

namespace Http
{

class ResponseContinuation;

typedef std::map<std::string, std::vector<std::string>> ParameterMap;

/// A file that came with a request: a counted handle. The temporary file is removed with the last one, unless
/// it was stolen or moved away.
class UploadedFile
{
public:
  UploadedFile();
  UploadedFile(const std::string &spoolName, const std::string &clientFileName,
               const std::string &contentType);

  const std::string &spoolFileName() const;
  /// As the user's system names it.
  const std::string &clientFileName() const;
  const std::string &contentType() const;
  /// Leaves the temporary file to the caller.
  void stealSpoolFile() const;

private:
  struct File;
  std::shared_ptr<File> file_;
};

typedef std::multimap<std::string, UploadedFile> UploadedFileMap;

/// A request for a resource. Valid while WResource::handleRequest() runs.
class Request
{
public:
  Request(const Request &) = delete;
  Request &operator=(const Request &) = delete;
  ~Request();

  /// The first value of a parameter, or null.
  const std::string *getParameter(const std::string &name) const;
  const std::vector<std::string> &getParameterValues(const std::string &name) const;
  const ParameterMap &getParameterMap() const { return parameters_; }
  const UploadedFileMap &uploadedFiles() const { return files_; }
  const UploadedFile *getUploadedFile(const std::string &name) const;
  /// The size of a body that was over the limit and not taken, or 0.
  std::int64_t tooLarge() const { return tooLarge_; }

  const std::string method() const;
  const std::string path() const;
  /// What the path has behind the one where the application lives.
  const std::string pathInfo() const;
  const std::string queryString() const;
  const std::string urlScheme() const;
  /// The Host header.
  const std::string serverName() const;
  const std::string clientAddress() const;
  /// An empty text if the browser did not send that header.
  const std::string headerValue(const std::string &name) const;
  const std::string contentType() const;
  int contentLength() const;
  /// The body, if it was neither a form nor parameters; else an empty stream.
  std::istream &in() const;
  /// What the answer to this request has left to be continued, or null when it begins.
  ResponseContinuation *continuation() const { return continuation_; }

private:
  friend class Wt::WResource;

  Request(Engine::RequestHead head, std::vector<Engine::SpooledFile> files, std::uint64_t tooLarge);

  std::unique_ptr<Engine::RequestHead> head_;
  ParameterMap parameters_;
  UploadedFileMap files_;
  UploadedFile body_;
  mutable std::unique_ptr<std::istream> in_;
  std::int64_t tooLarge_;
  ResponseContinuation *continuation_ = nullptr;
};

} // namespace Http
} // namespace Wt

#endif // WT_HTTP_REQUEST_H_
