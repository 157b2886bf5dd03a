// SPDX-License-Identifier: MIT
#include "life/FirmwareFile.h"

#include <cctype>

namespace zelsim
{

namespace
{

struct Omen {
  const char *part;
  const char *failure;
};

constexpr Omen kOmens[] = {
    {"missing", "failed_file_get"},      {"corrupt", "failed_file_content"},
    {"wrong-device", "failed_dev_type"}, {"push-error", "failed_file_push"},
    {"flash-error", "failed_flash"},     {"unknown-error", "failed"},
};

std::string baseOf(const std::string &path)
{
  const std::size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool isDigit(char c)
{
  return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

} // namespace

std::string deviceTypeOfFile(const std::string &path)
{
  const std::string base = baseOf(path);
  for (const std::string type : {"rx", "tx", "swx"})
    if (base.compare(0, type.size() + 1, type + "-") == 0)
      return type;
  return {};
}

std::string versionOfFile(const std::string &path)
{
  const std::string base = baseOf(path);
  for (std::size_t from = 0; from < base.size(); ++from) {
    std::size_t end = from;
    while (end < base.size() && (isDigit(base[end]) || (end > from && base[end] == '.')))
      ++end;
    while (end > from && base[end - 1] == '.')
      --end;
    const std::string run = base.substr(from, end - from);
    if (run.find('.') != std::string::npos && run.size() <= 32)
      return run;
    from = end > from ? end - 1 : from;
  }
  return {};
}

std::string failureOfFile(const std::string &path)
{
  for (const Omen &omen : kOmens)
    if (path.find(omen.part) != std::string::npos)
      return omen.failure;
  return {};
}

} // namespace zelsim
