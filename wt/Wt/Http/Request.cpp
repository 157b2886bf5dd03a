// SPDX-License-Identifier: MIT
#include "Request.h"

#include "session/SessionHost.h"

#include <charconv>
#include <cstdio>
#include <fstream>
#include <sstream>

namespace Wt
{
namespace Http
{

struct UploadedFile::File {
  std::string spoolName;
  std::string clientName;
  std::string contentType;
  bool owned = false;

  ~File()
  {
    if (owned)
      std::remove(spoolName.c_str());
  }
};

UploadedFile::UploadedFile() : file_(std::make_shared<File>()) {}

UploadedFile::UploadedFile(const std::string &spoolName, const std::string &clientFileName,
                           const std::string &contentType)
    : UploadedFile()
{
  file_->spoolName = spoolName;
  file_->clientName = clientFileName;
  file_->contentType = contentType;
  file_->owned = true;
}

const std::string &UploadedFile::spoolFileName() const
{
  return file_->spoolName;
}

const std::string &UploadedFile::clientFileName() const
{
  return file_->clientName;
}

const std::string &UploadedFile::contentType() const
{
  return file_->contentType;
}

void UploadedFile::stealSpoolFile() const
{
  file_->owned = false;
}

Request::Request(Engine::RequestHead head, std::vector<Engine::SpooledFile> files, std::uint64_t tooLarge)
    : head_(std::make_unique<Engine::RequestHead>(std::move(head))),
      tooLarge_(static_cast<std::int64_t>(tooLarge))
{
  for (const auto &parameter : head_->parameters)
    parameters_[parameter.first].push_back(parameter.second);
  for (const Engine::SpooledFile &file : files) {
    const UploadedFile handle(file.spoolPath, file.clientFileName, file.contentType);
    if (file.fieldName.empty())
      body_ = handle;
    else
      files_.emplace(file.fieldName, handle);
  }
}

Request::~Request() = default;

const std::string *Request::getParameter(const std::string &name) const
{
  const auto found = parameters_.find(name);
  return found == parameters_.end() ? nullptr : &found->second.front();
}

const std::vector<std::string> &Request::getParameterValues(const std::string &name) const
{
  static const std::vector<std::string> none;
  const auto found = parameters_.find(name);
  return found == parameters_.end() ? none : found->second;
}

const UploadedFile *Request::getUploadedFile(const std::string &name) const
{
  const auto found = files_.find(name);
  return found == files_.end() ? nullptr : &found->second;
}

const std::string Request::method() const
{
  return head_->method;
}

const std::string Request::path() const
{
  return head_->path;
}

const std::string Request::pathInfo() const
{
  const std::string &entry = head_->entryPoint;
  const bool below = head_->path.compare(0, entry.size(), entry) == 0;
  return below ? head_->path.substr(entry.size()) : std::string();
}

const std::string Request::queryString() const
{
  return head_->query;
}

const std::string Request::urlScheme() const
{
  return head_->scheme;
}

const std::string Request::serverName() const
{
  return head_->host;
}

const std::string Request::clientAddress() const
{
  return head_->clientAddress;
}

const std::string Request::headerValue(const std::string &name) const
{
  std::string lower = name;
  for (char &c : lower)
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c | 0x20);
  return head_->header(lower);
}

const std::string Request::contentType() const
{
  return headerValue("content-type");
}

int Request::contentLength() const
{
  const std::string text = headerValue("content-length");
  int length = 0;
  std::from_chars(text.data(), text.data() + text.size(), length);
  return length;
}

std::istream &Request::in() const
{
  if (!in_ && body_.spoolFileName().empty())
    in_ = std::make_unique<std::istringstream>();
  else if (!in_)
    in_ = std::make_unique<std::ifstream>(body_.spoolFileName(), std::ios::binary);
  return *in_;
}

} // namespace Http
} // namespace Wt
