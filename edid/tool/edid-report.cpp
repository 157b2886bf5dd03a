// SPDX-License-Identifier: MIT
// Prints what the interface tells an operator about the EDID blocks in files.
#include "Edid.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

namespace
{

constexpr std::size_t kBaseBlock = 128;
constexpr std::size_t kStoredBlock = 256;   // what the decoder takes
constexpr std::size_t kLongestRead = 65536; // whatever is longer need not be counted

constexpr char kHelp[] =
    "edid-report, what the EDID blocks of monitors say\n"
    "\n"
    "  edid-report FILE...\n"
    "\n"
    "Each FILE is one block of 128 or 256 bytes, such as /sys/class/drm/card0-HDMI-A-1/edid. The report is\n"
    "the one that the monitor library shows; with several files, each has its name above it.\n"
    "\n"
    "Ends with 0 if all files were reported, 1 if one could not be (the others are), 2 without a file.\n";

struct FileCloser {
  void operator()(std::FILE *file) const { std::fclose(file); }
};

bool complain(const char *path, const std::string &what)
{
  std::fprintf(stderr, "edid-report: %s: %s\n", path, what.c_str());
  return false;
}

// The block, a short one filled up with zeros. False, with the reason told, if the file holds none.
bool readBlock(const char *path, std::string &block)
{
  const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path, "rb"));
  if (!file)
    return complain(path, std::strerror(errno));
  block.resize(kLongestRead + 1);
  block.resize(std::fread(&block[0], 1, block.size(), file.get()));
  if (std::ferror(file.get()))
    return complain(path, std::strerror(errno));
  if (block.size() != kBaseBlock && block.size() != kStoredBlock) {
    const bool isCut = block.size() > kLongestRead;
    return complain(path,
                    (isCut ? "more than " + std::to_string(kLongestRead) : std::to_string(block.size())) +
                        " bytes long; an EDID block has 128 or 256.");
  }
  block.resize(kStoredBlock);
  return true;
}

bool report(const char *path)
{
  std::string block;
  if (!readBlock(path, block))
    return false;
  Edid edid;
  edid.populate(block.data(), static_cast<unsigned int>(block.size()));
  std::string text;
  edid.fullDecodeGet(text);
  text += '\n';
  std::fwrite(text.data(), 1, text.size(), stdout);
  return true;
}

bool isHelp(const char *argument)
{
  return std::strcmp(argument, "--help") == 0 || std::strcmp(argument, "-h") == 0;
}

} // namespace

int main(int argc, char **argv)
{
  if (argc < 2) {
    std::fputs(kHelp, stderr);
    return 2;
  }
  if (isHelp(argv[1])) {
    std::fputs(kHelp, stdout);
    return 0;
  }
  bool all = true;
  for (int i = 1; i < argc; ++i) {
    if (argc > 2)
      std::printf("%s== %s\n\n", i == 1 ? "" : "\n", argv[i]);
    all = report(argv[i]) && all;
    // What is told about this file stands before what is told about the next, wherever both go.
    all = std::fflush(stdout) == 0 && all;
  }
  return all ? 0 : 1;
}
