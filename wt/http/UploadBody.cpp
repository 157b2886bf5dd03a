// SPDX-License-Identifier: MIT
#include "http/UploadBody.h"

#include "http/UrlCodec.h"

namespace Wt
{
namespace Net
{

UploadBody::UploadBody(const std::string &contentType)
{
  const std::string boundary = MultipartReader::boundaryOf(contentType);
  if (!boundary.empty()) {
    type_ = Type::Form;
    reader_.emplace(boundary, static_cast<MultipartReader::Handler &>(*this));
  } else if (contentType.compare(0, 33, "application/x-www-form-urlencoded") == 0) {
    type_ = Type::Parameters;
  } else {
    type_ = Type::Raw;
    Engine::SpooledFile description;
    description.contentType = contentType;
    ok_ = addFile(std::move(description));
  }
}

bool UploadBody::feed(std::string_view bytes)
{
  if (!ok_)
    return false;
  if (type_ == Type::Form)
    ok_ = reader_->feed(bytes);
  else if (type_ == Type::Parameters)
    ok_ = addText(bytes);
  else
    ok_ = files_.front().file.write(bytes);
  return ok_;
}

bool UploadBody::finish()
{
  if (type_ == Type::Parameters)
    parameters_ = parseQuery(text_);
  return ok_ && (!reader_ || reader_->complete());
}

std::vector<Engine::SpooledFile> UploadBody::takeFiles()
{
  std::vector<Engine::SpooledFile> files;
  for (Spooled &spooled : files_) {
    spooled.description.spoolPath = spooled.file.release();
    files.push_back(std::move(spooled.description));
  }
  files_.clear();
  return files;
}

bool UploadBody::addFile(Engine::SpooledFile description)
{
  Spooled spooled;
  if (files_.size() >= mostFiles || !spooled.file.create())
    return false;
  spooled.description = std::move(description);
  files_.push_back(std::move(spooled));
  return true;
}

bool UploadBody::addText(std::string_view bytes)
{
  texts_ += bytes.size();
  text_ += bytes;
  return texts_ <= longestTexts;
}

bool UploadBody::partBegins(const MultipartReader::Part &part)
{
  part_ = part;
  // A file field in which nothing was chosen comes as a part without name and content.
  if (!part.isFile || part.fileName.empty())
    return true;
  Engine::SpooledFile description;
  description.fieldName = part.fieldName;
  description.clientFileName = part.fileName;
  description.contentType = part.contentType;
  return addFile(std::move(description));
}

bool UploadBody::partBytes(std::string_view bytes)
{
  if (part_.isFile)
    return !part_.fileName.empty() && files_.back().file.write(bytes);
  return addText(bytes);
}

bool UploadBody::partEnds()
{
  if (!part_.isFile)
    parameters_.emplace(part_.fieldName, std::exchange(text_, std::string()));
  return true;
}

} // namespace Net
} // namespace Wt
