// SPDX-License-Identifier: MIT
#include "http/ScriptAsset.h"

#include "browser/EmbeddedScript.h"
#include "http/Gzip.h"
#include "http/RequestParser.h"

#include <cstdint>
#include <cstdio>

namespace Wt
{
namespace Net
{

std::string ScriptAsset::version()
{
  // FNV-1a: this tells releases apart, nobody has to be unable to forge it.
  std::uint64_t hash = 14695981039346656037u;
  for (const char c : Browser::script())
    hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211u;
  char text[20];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(hash));
  return text;
}

Response ScriptAsset::respond(const std::string &requestedVersion, const ParsedHead &request)
{
  const bool zip = compression_ && acceptsGzip(request.header("accept-encoding"));
  const std::string current = version();
  const std::string tag = "\"" + current + (zip ? "-gz\"" : "\"");
  Response response;
  response.add("Content-Type", "text/javascript; charset=utf-8");
  response.add("ETag", tag);
  response.add("Vary", "Accept-Encoding");
  response.add("Cache-Control",
               requestedVersion == current ? "public, max-age=31536000, immutable" : "no-cache");
  if (request.header("if-none-match").find(tag) != std::string::npos) {
    response.status = 304;
    return response;
  }
  std::shared_ptr<const std::string> &body = zip ? zipped_ : plain_;
  if (!body)
    body = std::make_shared<const std::string>(zip ? gzip(Browser::script(), 9)
                                                   : std::string(Browser::script()));
  response.sharedBody = body;
  if (zip)
    response.add("Content-Encoding", "gzip");
  return response;
}

} // namespace Net
} // namespace Wt
