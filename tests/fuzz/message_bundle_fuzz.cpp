// SPDX-License-Identifier: MIT
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/MessageFile.h"
#include "base/Utf8.h"

using Wt::Engine::MessageFile;

/// Whatever the file holds: it is read or refused with a reason, and all texts are valid UTF-8.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  std::string error;
  const auto file = MessageFile::parse(reinterpret_cast<const char *>(data), size, error);
  if (!file && error.empty())
    std::abort();
  if (!file)
    return 0;
  for (const auto &[key, text] : file->texts())
    if (!Wt::Engine::isValidUtf8(text) || file->find(key) != &text)
      std::abort();
  file->findPlural("d", size);
  return 0;
}
