// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_SCRIPT_ASSET_H_
#define WT_HTTP_SCRIPT_ASSET_H_

#include "http/Response.h"

#include <memory>
#include <string>

namespace Wt
{
namespace Net
{

struct ParsedHead;

/// The browser's runtime as it is served: compressed once, on first use.
class ScriptAsset
{
public:
  /// Changes with the text of the runtime; a URL with "v=" and this never goes stale.
  static std::string version();

  explicit ScriptAsset(bool compression) : compression_(compression) {}

  /// `requestedVersion` is what the URL had as "v", or an empty text.
  Response respond(const std::string &requestedVersion, const ParsedHead &request);

private:
  bool compression_;
  std::shared_ptr<const std::string> plain_;
  std::shared_ptr<const std::string> zipped_;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_SCRIPT_ASSET_H_
