// SPDX-License-Identifier: MIT
#include "base/Log.h"

#include <gtest/gtest.h>

using namespace Wt::Engine;

TEST(Log, goesToTheSinkAsOneLine)
{
  std::string lines;
  const auto former = setLogSink([&lines](LogLevel level, std::string_view scope, std::string_view message) {
    lines += std::string(logLevelName(level)) + " " + std::string(scope) + " " + std::string(message) + ";";
  });
  log(LogLevel::Error, "test", "first\nsecond\x1b[2J");
  log(LogLevel::Debug, "test", "too low");
  setLogSink(former);
  EXPECT_EQ(lines, "error test first?second?[2J;");
}
