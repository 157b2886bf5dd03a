// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_RESPONSE_H_
#define WT_HTTP_RESPONSE_H_

#include "http/FileHandle.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Wt
{
namespace Net
{

/// An answer that is known when it is begun: its body is a text, a text shared with a cache, or a part of a
/// file.
struct Response {
  int status = 200;
  std::vector<std::pair<std::string, std::string>> headers;
  std::string body;
  std::shared_ptr<const std::string> sharedBody;
  FileHandle file;
  std::uint64_t fileOffset = 0;
  std::uint64_t fileLength = 0;

  void add(const char *name, std::string value) { headers.emplace_back(name, std::move(value)); }
  std::uint64_t bodySize() const { return file ? fileLength : sharedBody ? sharedBody->size() : body.size(); }

  /// A short page of plain text that says what the status means.
  static Response plain(int status);
};

/// The reason phrase of a status, such as "Not Found".
std::string_view reasonPhrase(int status);

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_RESPONSE_H_
