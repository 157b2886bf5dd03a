// SPDX-License-Identifier: MIT
#ifndef TESTS_LOG_CAPTURE_H_
#define TESTS_LOG_CAPTURE_H_

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

// The log entries that are written while it lives, as lines "LEVEL function: text".
class LogCapture
{
public:
  LogCapture()
  {
    setenv("NEVO_LOG_STDERR", "1", 1);
    testing::internal::CaptureStderr();
  }
  ~LogCapture() { text(); }
  LogCapture(const LogCapture &) = delete;
  LogCapture &operator=(const LogCapture &) = delete;

  // Ends the capture.
  const std::string &text()
  {
    if (isRunning_)
      text_ = testing::internal::GetCapturedStderr();
    isRunning_ = false;
    return text_;
  }

private:
  bool isRunning_ = true;
  std::string text_;
};

#endif // TESTS_LOG_CAPTURE_H_
