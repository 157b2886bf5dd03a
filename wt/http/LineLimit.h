// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_LINE_LIMIT_H_
#define WT_HTTP_LINE_LIMIT_H_

#include "http/NetworkLoop.h"

#include <string>

namespace Wt
{
namespace Net
{

/// Warnings of the server whose number strangers decide: a bounded number in each minute goes to the log, and
/// with the first of a later minute how many were left out. Network thread only.
class LineLimit
{
public:
  static constexpr unsigned kLinesPerMinute = 30;

  void warn(NetworkLoop::TimePoint now, const std::string &text);

private:
  NetworkLoop::TimePoint began_;
  unsigned lines_ = 0;
  bool begun_ = false;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_LINE_LIMIT_H_
