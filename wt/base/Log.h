// SPDX-License-Identifier: MIT
#ifndef WT_BASE_LOG_H_
#define WT_BASE_LOG_H_

#include <functional>
#include <string>
#include <string_view>

namespace Wt
{
namespace Engine
{

enum class LogLevel { Debug, Info, Warning, Error, Fatal };

typedef std::function<void(LogLevel level, std::string_view scope, std::string_view message)> LogSink;

/// Where messages go instead of stderr; an empty sink restores that. Gives back the former sink. May be
/// called from any thread, as is the sink itself.
LogSink setLogSink(LogSink sink);
/// False while messages go to stderr.
bool hasLogSink();

/// Messages below the level are dropped; Info at first.
void setLogLevel(LogLevel level);

/// Writes one line. Control characters of the message become '?', so that it stays one. `scope` names the
/// part that speaks.
void log(LogLevel level, std::string_view scope, std::string_view message);

const char *logLevelName(LogLevel level);

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_LOG_H_
