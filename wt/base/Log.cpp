// SPDX-License-Identifier: MIT
#include "base/Log.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <memory>
#include <mutex>

namespace Wt
{
namespace Engine
{

namespace
{

std::atomic<LogLevel> lowestLevel{LogLevel::Info};

struct Sink {
  std::mutex mutex;
  std::shared_ptr<const LogSink> function;
};

Sink &sink()
{
  static Sink *const instance = new Sink;
  return *instance;
}

std::string oneLine(std::string_view message)
{
  std::string result(message);
  for (char &c : result)
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
      c = '?';
  return result;
}

void writeToStandardError(LogLevel level, std::string_view scope, const std::string &message)
{
  const auto now = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  const auto sinceEpoch = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch());
  std::tm parts{};
  gmtime_r(&seconds, &parts);
  char time[32];
  std::strftime(time, sizeof time, "%Y-%m-%d %H:%M:%S", &parts);
  std::fprintf(stderr, "[%s.%03d] [%s] [%.*s] %s\n", time, static_cast<int>(sinceEpoch.count() % 1000),
               logLevelName(level), static_cast<int>(scope.size()), scope.data(), message.c_str());
}

} // namespace

const char *logLevelName(LogLevel level)
{
  static const char *const names[] = {"debug", "info", "warning", "error", "fatal"};
  return names[static_cast<int>(level)];
}

LogSink setLogSink(LogSink function)
{
  std::lock_guard<std::mutex> lock(sink().mutex);
  LogSink former = sink().function ? *sink().function : LogSink();
  sink().function = function ? std::make_shared<const LogSink>(std::move(function)) : nullptr;
  return former;
}

bool hasLogSink()
{
  std::lock_guard<std::mutex> lock(sink().mutex);
  return sink().function != nullptr;
}

void setLogLevel(LogLevel level)
{
  lowestLevel = level;
}

void log(LogLevel level, std::string_view scope, std::string_view message)
{
  if (level < lowestLevel)
    return;
  std::shared_ptr<const LogSink> function;
  {
    std::lock_guard<std::mutex> lock(sink().mutex);
    function = sink().function;
  }
  const std::string line = oneLine(message);
  if (function)
    (*function)(level, scope, line);
  else
    writeToStandardError(level, scope, line);
}

} // namespace Engine
} // namespace Wt
