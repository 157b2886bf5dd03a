// SPDX-License-Identifier: MIT
#include "session/Log.h"

#include <atomic>
#include <cstdio>
#include <ctime>

namespace Wt {
namespace Engine {

namespace {

void writeToStandardError(const char *level, const std::string &text)
{
  char stamp[32];
  const std::time_t now = std::time(nullptr);
  std::tm parts;
  localtime_r(&now, &parts);
  std::strftime(stamp, sizeof stamp, "%Y-%m-%d %H:%M:%S", &parts);
  std::fprintf(stderr, "[%s] [%s] %s\n", stamp, level, text.c_str());
}

std::atomic<LogSink> currentSink{&writeToStandardError};

} // namespace

void setLogSink(LogSink sink)
{
  currentSink = sink ? sink : &writeToStandardError;
}

void log(const char *level, const std::string &text)
{
  std::string line = text;
  for (char &c : line)
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
      c = '?';
  currentSink.load()(level, line);
}

} // namespace Engine
} // namespace Wt
