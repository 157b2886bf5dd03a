// SPDX-License-Identifier: MIT
#ifndef TESTS_RESOURCE_FILES_H_
#define TESTS_RESOURCE_FILES_H_

#include <fstream>
#include <iterator>
#include <string>

/// The folders of the brands' themes.
inline const char *const kBrandNames[] = {"halden", "greyfen", "unknown"};

/// The path of a file below resources/.
inline std::string resourcePath(const std::string &name)
{
  return std::string(NEVO_SOURCE_DIR "/resources/") + name;
}

/// The whole content of a file below resources/; empty if it cannot be read.
inline std::string resourceText(const std::string &name)
{
  std::ifstream file(resourcePath(name), std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

#endif // TESTS_RESOURCE_FILES_H_
