// SPDX-License-Identifier: MIT
#include "http/MultipartReader.h"

#include <algorithm>

namespace Wt
{
namespace Net
{

namespace
{

constexpr std::size_t kLongestBoundary = 70;

std::string lowerCase(std::string_view text)
{
  std::string lower(text);
  for (char &c : lower)
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c | 0x20);
  return lower;
}

/// The value of `name=value` or `name="value"` among the parameters of a field; false if there is none.
bool parameter(std::string_view field, std::string_view name, std::string &value)
{
  const std::string lower = lowerCase(field);
  std::size_t at = 0;
  while ((at = lower.find(name, at)) != std::string::npos) {
    const std::size_t end = at + name.size();
    const bool alone = at > 0 && (lower[at - 1] == ';' || lower[at - 1] == ' ' || lower[at - 1] == '\t');
    if (alone && end < lower.size() && lower[end] == '=')
      break;
    at = end;
  }
  if (at == std::string::npos)
    return false;
  std::string_view rest = field.substr(at + name.size() + 1);
  const bool quoted = !rest.empty() && rest.front() == '"';
  if (quoted)
    rest.remove_prefix(1);
  // Browsers write a quote within a name as %22, so that the next quote always ends the value.
  value = rest.substr(0, rest.find_first_of(quoted ? "\"" : "; \t"));
  return true;
}

std::string withoutFolders(const std::string &name)
{
  const std::size_t separator = name.find_last_of("/\\");
  std::string base = separator == std::string::npos ? name : name.substr(separator + 1);
  base.erase(
      std::remove_if(base.begin(), base.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }),
      base.end());
  return base.substr(0, 255);
}

} // namespace

std::string MultipartReader::boundaryOf(std::string_view contentType)
{
  static constexpr std::string_view type = "multipart/form-data";
  std::string boundary;
  if (lowerCase(contentType.substr(0, type.size())) != type ||
      !parameter(contentType, "boundary", boundary) || boundary.size() > kLongestBoundary ||
      boundary.find_first_of("\r\n") != std::string::npos)
    return std::string();
  return boundary;
}

MultipartReader::MultipartReader(const std::string &boundary, Handler &handler)
    : delimiter_("\r\n--" + boundary), handler_(handler), held_("\r\n")
{
}

bool MultipartReader::fail()
{
  state_ = State::Failed;
  held_ = std::string();
  return false;
}

bool MultipartReader::feed(std::string_view bytes)
{
  if (state_ == State::Epilogue)
    return true;
  if (state_ == State::Failed)
    return false;
  held_ += bytes;
  while (step()) {
  }
  return state_ != State::Failed;
}

/// One piece of work; false when there is nothing more to do with what is held.
bool MultipartReader::step()
{
  switch (state_) {
  case State::Content:
    return content();
  case State::AfterBoundary:
    return afterBoundary();
  case State::Headers:
    return headers();
  case State::Epilogue:
  case State::Failed:
    break;
  }
  return false;
}

bool MultipartReader::emit(std::string_view bytes)
{
  return !inPart_ || bytes.empty() || handler_.partBytes(bytes);
}

bool MultipartReader::content()
{
  const std::size_t at = held_.find(delimiter_);
  if (at == std::string::npos) {
    // The end of what is held may be the beginning of a boundary.
    const std::size_t safe = held_.size() - std::min(held_.size(), delimiter_.size() - 1);
    if (!emit(std::string_view(held_).substr(0, safe)))
      return fail();
    held_.erase(0, safe);
    return false;
  }
  if (!emit(std::string_view(held_).substr(0, at)) || (inPart_ && !handler_.partEnds()))
    return fail();
  inPart_ = false;
  held_.erase(0, at + delimiter_.size());
  state_ = State::AfterBoundary;
  return true;
}

bool MultipartReader::afterBoundary()
{
  if (held_.size() < 2)
    return false;
  if (held_.compare(0, 2, "--") == 0) {
    state_ = State::Epilogue;
    held_ = std::string();
    return false;
  }
  if (held_.compare(0, 2, "\r\n") != 0 || ++parts_ > mostParts)
    return fail();
  state_ = State::Headers;
  return true;
}

bool MultipartReader::headers()
{
  const std::size_t end = held_.find("\r\n\r\n");
  if (end == std::string::npos)
    return held_.size() > longestHeaders ? fail() : false;
  const Part part = describe(std::string_view(held_).substr(0, end));
  held_.erase(0, end + 4);
  if (part.fieldName.empty() || !handler_.partBegins(part))
    return fail();
  inPart_ = true;
  state_ = State::Content;
  return true;
}

MultipartReader::Part MultipartReader::describe(std::string_view headers)
{
  Part part;
  while (!headers.empty()) {
    const std::string_view line = headers.substr(0, headers.find("\r\n"));
    headers.remove_prefix(std::min(headers.size(), line.size() + 2));
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos)
      continue;
    const std::string name = lowerCase(line.substr(0, colon));
    std::string_view value = line.substr(colon + 1);
    value.remove_prefix(std::min(value.size(), value.find_first_not_of(" \t")));
    if (name == "content-type") {
      part.contentType = value;
    } else if (name == "content-disposition") {
      std::string fileName;
      parameter(value, "name", part.fieldName);
      part.isFile = parameter(value, "filename", fileName);
      part.fileName = withoutFolders(fileName);
    }
  }
  return part;
}

} // namespace Net
} // namespace Wt
