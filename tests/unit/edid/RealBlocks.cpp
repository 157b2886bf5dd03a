// SPDX-License-Identifier: MIT
#include "RealBlocks.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace
{

fs::path folder()
{
  if (const char *named = std::getenv("NEVO_EDID_BLOCKS"))
    return named;
  for (fs::path above = fs::path(NEVO_SOURCE_DIR).parent_path();; above = above.parent_path()) {
    if (fs::is_directory(above / "shared" / "edid"))
      return above / "shared" / "edid";
    if (above == above.root_path())
      return {};
  }
}

} // namespace

std::vector<RealBlock> realBlocks()
{
  std::vector<RealBlock> blocks;
  std::error_code noFolder;
  for (const auto &entry : fs::directory_iterator(folder(), noFolder)) {
    if (entry.path().extension() != ".bin")
      continue;
    std::ifstream file(entry.path(), std::ios::binary);
    blocks.push_back({entry.path().filename(), {std::istreambuf_iterator<char>(file), {}}});
    blocks.back().bytes.resize(256);
  }
  return blocks;
}
