// SPDX-License-Identifier: MIT
#include "NevoUtil.h"

#include "Clock.h"

#include <Wt/WString>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sys/stat.h>

namespace
{

constexpr off_t kMaxPngFileSize = 0xA00000;
constexpr int kFileTooLarge = 8;

// The signature, the length and name of the "IHDR" chunk, the width and the height.
constexpr unsigned char kK24x24PngStart[] = {0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A,
                                             0x00, 0x00, 0x00, 0x0D, 0x49, 0x48, 0x44, 0x52,
                                             0x00, 0x00, 0x00, 0x18, 0x00, 0x00, 0x00, 0x18};

bool isDigit(char c)
{
  return c >= '0' && c <= '9';
}

bool toNumber(const char *text, long &number)
{
  errno = 0;
  number = std::strtol(text, nullptr, 10);
  return errno != ERANGE;
}

} // namespace

bool NevoUtil_isNumeric(const char *text)
{
  if (!text)
    return false;
  if (*text == '-')
    ++text;
  if (!*text)
    return false;
  while (isDigit(*text))
    ++text;
  return !*text;
}

int NevoUtil_strLenOfDecInt(int value)
{
  return static_cast<int>(std::to_string(value).size());
}

char *NevoUtil_toLowercase(char *text)
{
  for (char *at = text; at && *at; ++at)
    *at = static_cast<char>(std::tolower(static_cast<unsigned char>(*at)));
  return text;
}

int NevoUtil_validate24x24PngFile(const char *path)
{
  struct stat status;
  if (!path || stat(path, &status) != 0)
    return 1;
  if (status.st_size > kMaxPngFileSize)
    return kFileTooLarge;
  const std::unique_ptr<FILE, int (*)(FILE *)> file(std::fopen(path, "rb"), std::fclose);
  if (!file)
    return 1;
  unsigned char start[sizeof kK24x24PngStart];
  if (std::fread(start, 1, sizeof start, file.get()) != sizeof start)
    return 1;
  return std::memcmp(start, kK24x24PngStart, sizeof start) == 0 ? 0 : 1;
}

void NevoUtil_concatErrMsgs(Wt::WString &text, const std::vector<std::string> &errors)
{
  for (const std::string &message : errors)
    text += Wt::WString::fromUTF8(" " + message);
}

std::string NevoUtil_secsToFormattedTimeString(unsigned int seconds)
{
  const unsigned int days = seconds / 86400;
  const unsigned int hours = seconds / 3600 % 24;
  const unsigned int minutes = seconds / 60 % 60;
  const unsigned int rest = seconds % 60;
  char buffer[32];
  if (days > 0)
    std::snprintf(buffer, sizeof buffer, "%u:%02u:%02u:%02u", days, hours, minutes, rest);
  else if (hours > 0)
    std::snprintf(buffer, sizeof buffer, "%u:%02u:%02u", hours, minutes, rest);
  else
    std::snprintf(buffer, sizeof buffer, "%u:%02u", minutes, rest);
  return buffer;
}

std::string NevoUtil_durationSince(unsigned int start)
{
  const auto now = static_cast<unsigned int>(Clock_now());
  return NevoUtil_secsToFormattedTimeString(now > start ? now - start : 0);
}

bool NevoUtil_lessThan(const std::string &a, const std::string &b)
{
  const char *left = a.c_str();
  const char *right = b.c_str();
  // A sign in front of a whole number is no common beginning: "-2" comes before "-1".
  const bool bothAreNumbers = NevoUtil_isNumeric(left) && NevoUtil_isNumeric(right);
  while (!bothAreNumbers && *left && *left == *right && !isDigit(*left)) {
    ++left;
    ++right;
  }
  if (!*left)
    return *right;
  if (!*right)
    return false;
  if (NevoUtil_isNumeric(left) && NevoUtil_isNumeric(right)) {
    long leftNumber = 0;
    long rightNumber = 0;
    if (toNumber(left, leftNumber) && toNumber(right, rightNumber))
      return leftNumber < rightNumber;
  }
  return std::strcmp(a.c_str(), b.c_str()) < 0;
}
