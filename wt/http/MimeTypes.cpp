// SPDX-License-Identifier: MIT
#include "http/MimeTypes.h"

namespace Wt
{
namespace Net
{

namespace
{

// Texts are asked for anew each time (mostly answered with "not modified"), so that an updated program and
// its style sheets never disagree; images may be a few minutes old.
constexpr int kMinutes = 60;

const MimeType kTypes[] = {
    {".css", "text/css; charset=utf-8", true, 0},
    {".csv", "text/csv; charset=utf-8", true, 0},
    {".gif", "image/gif", false, 10 * kMinutes},
    {".gz", "application/gzip", false, 0},
    {".htm", "text/html; charset=utf-8", true, 0},
    {".html", "text/html; charset=utf-8", true, 0},
    {".ico", "image/x-icon", true, 10 * kMinutes},
    {".jpeg", "image/jpeg", false, 10 * kMinutes},
    {".jpg", "image/jpeg", false, 10 * kMinutes},
    {".js", "text/javascript; charset=utf-8", true, 0},
    {".json", "application/json", true, 0},
    {".map", "application/json", true, 0},
    {".mjs", "text/javascript; charset=utf-8", true, 0},
    {".pdf", "application/pdf", false, 0},
    {".png", "image/png", false, 10 * kMinutes},
    {".svg", "image/svg+xml", true, 10 * kMinutes},
    {".txt", "text/plain; charset=utf-8", true, 0},
    {".wasm", "application/wasm", true, 0},
    {".webp", "image/webp", false, 10 * kMinutes},
    {".woff", "font/woff", false, 10 * kMinutes},
    {".woff2", "font/woff2", false, 10 * kMinutes},
    {".xml", "application/xml", true, 0},
};

const MimeType kUnknown = {"", "application/octet-stream", false, 0};

bool endsWith(std::string_view text, std::string_view lowerCaseEnd)
{
  if (text.size() < lowerCaseEnd.size())
    return false;
  text.remove_prefix(text.size() - lowerCaseEnd.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i] >= 'A' && text[i] <= 'Z' ? static_cast<char>(text[i] | 0x20) : text[i];
    if (c != lowerCaseEnd[i])
      return false;
  }
  return true;
}

} // namespace

const MimeType &mimeTypeOf(std::string_view fileName)
{
  for (const MimeType &type : kTypes)
    if (endsWith(fileName, type.extension))
      return type;
  return kUnknown;
}

} // namespace Net
} // namespace Wt
