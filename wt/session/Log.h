// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_LOG_H_
#define WT_SESSION_LOG_H_

#include <string>

namespace Wt {
namespace Engine {

/// Where the toolkit's log lines go; by default to standard error. Called from any thread. `level` is one of
/// "debug", "info", "warning", "error", "fatal".
typedef void (*LogSink)(const char *level, const std::string &text);
void setLogSink(LogSink sink);

/// Writes one line. Line breaks and control characters in `text` are replaced.
void log(const char *level, const std::string &text);

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_LOG_H_
