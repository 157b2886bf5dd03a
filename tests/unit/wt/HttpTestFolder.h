// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_WT_HTTP_TEST_FOLDER_H_
#define TESTS_UNIT_WT_HTTP_TEST_FOLDER_H_

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

/// A folder of a test's own, removed with all that is in it.
class HttpTestFolder
{
public:
  HttpTestFolder()
  {
    std::string pattern = (std::filesystem::temp_directory_path() / "http-test-XXXXXX").string();
    path_ = ::mkdtemp(&pattern[0]);
  }
  HttpTestFolder(const HttpTestFolder &) = delete;
  ~HttpTestFolder()
  {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
  }

  const std::string &path() const { return path_; }
  std::string operator/(const std::string &name) const { return path_ + "/" + name; }

  /// Writes a file, with the folders that it needs, and returns its path.
  std::string write(const std::string &name, const std::string &content) const
  {
    const std::string file = path_ + "/" + name;
    std::filesystem::create_directories(std::filesystem::path(file).parent_path());
    std::ofstream(file, std::ios::binary) << content;
    return file;
  }

private:
  std::string path_;
};

inline std::string readFile(const std::string &path)
{
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

#endif // TESTS_UNIT_WT_HTTP_TEST_FOLDER_H_
