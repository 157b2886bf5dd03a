// SPDX-License-Identifier: MIT
#include "EventLog.h"

#include "SyslogRecord.h"

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

namespace
{

template <typename... Arguments> std::string formatted(const char *format, const Arguments &...arguments)
{
  if constexpr (sizeof...(Arguments) == 0) {
    return EventLog_format(format, nullptr, 0);
  } else {
    const EventLogArgument list[] = {EventLogArgument(arguments)...};
    return EventLog_format(format, list, sizeof...(Arguments));
  }
}

std::string printed(const char *format, ...) __attribute__((format(printf, 1, 2)));
std::string printed(const char *format, ...)
{
  char buffer[2048];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(buffer, sizeof buffer, format, arguments);
  va_end(arguments);
  return buffer;
}

template <typename Write> std::string standardErrorOf(Write write)
{
  setenv("NEVO_LOG_STDERR", "1", 1);
  testing::internal::CaptureStderr();
  write();
  return testing::internal::GetCapturedStderr();
}

} // namespace

TEST(EventLogFormat, printsHonestDirectivesAsPrintfDoes)
{
  EXPECT_EQ(formatted("%d of %u", -3, 7U), printed("%d of %u", -3, 7U));
  EXPECT_EQ(formatted("%s: %5d|%-5d|%05d|%+d", "x", 42, 42, 42, 42), "x:    42|42   |00042|+42");
  EXPECT_EQ(formatted("%x %X %#o", 255, 255U, 8), printed("%x %X %#o", 255U, 255U, 8U));
  EXPECT_EQ(formatted("%ld %llu %zu", -5L, 5ULL, std::size_t{9}), "-5 5 9");
  EXPECT_EQ(formatted("%u", -1), "4294967295");
  EXPECT_EQ(formatted("%d", 4294967295U), "-1");
  EXPECT_EQ(formatted("%hhu %hd", 300, 65537), "44 1");
  EXPECT_EQ(formatted("%.2f %e %g", 3.14159, 1e10, 0.5), printed("%.2f %e %g", 3.14159, 1e10, 0.5));
  EXPECT_EQ(formatted("%c%c", 'o', 'k'), "ok");
  EXPECT_EQ(formatted("[%8s][%-8s][%.2s]", "abc", "abc", "abc"), "[     abc][abc     ][ab]");
  EXPECT_EQ(formatted("%*d|%-*d|%.*f", 5, 1, 5, 2, 1, 0.25), printed("%*d|%-*d|%.*f", 5, 1, 5, 2, 1, 0.25));
  EXPECT_EQ(formatted("%d%% done", 50), "50% done");
  EXPECT_EQ(formatted("%lld", std::int64_t{-9223372036854775807LL}), "-9223372036854775807");
}

TEST(EventLogFormat, printsEnumerationsBooleansAndStandardStrings)
{
  enum Plain { One = 1 };
  enum class Scoped : unsigned char { Two = 2 };
  EXPECT_EQ(formatted("%d %d %d %s", One, Scoped::Two, true, std::string("text")), "1 2 1 text");
}

TEST(EventLogFormat, printsAddressesAsPrintfDoes)
{
  const int value = 0;
  EXPECT_EQ(formatted("%p", static_cast<const void *>(&value)),
            printed("%p", static_cast<const void *>(&value)));
}

TEST(EventLogFormat, leavesAFormatWithoutArgumentsUntouched)
{
  EXPECT_EQ(formatted("%s%s%n%999999999d %% 100%"), "%s%s%n%999999999d %% 100%");
  EXPECT_EQ(formatted(""), "");
}

TEST(EventLogFormat, printsDirectivesThatHaveNoArgumentAsTheyStand)
{
  EXPECT_EQ(formatted("%s and %s and %d", "one"), "one and %s and %d");
  EXPECT_EQ(formatted("%d %*d", 1), "1 %*d");
  EXPECT_EQ(formatted("%d %.*f", 1, 2), "1 %.*f");
}

TEST(EventLogFormat, printsDirectivesOfAnotherKindThanTheirArgumentAsTheyStand)
{
  EXPECT_EQ(formatted("%s %s", 65, "text"), "%s text");
  EXPECT_EQ(formatted("%d %d", "text", 65), "%d 65");
  EXPECT_EQ(formatted("%f %d", 1, 2), "%f 2");
  EXPECT_EQ(formatted("%5.1x", 1.5), "%5.1x");
  EXPECT_EQ(formatted("%*d", "wide", 1), "%*d");
}

TEST(EventLogFormat, neverWritesThroughTheCountDirective)
{
  int written = 77;
  EXPECT_EQ(formatted("abc%n", static_cast<const void *>(&written)), "abc%n");
  EXPECT_EQ(formatted("abc%hhn %d", 5), "abc%hhn 5");
  EXPECT_EQ(written, 77);
}

TEST(EventLogFormat, leavesUnknownAndUnfinishedDirectivesAsTheyStand)
{
  EXPECT_EQ(formatted("%k %1$s %", "x"), "%k %1$s %");
  EXPECT_EQ(formatted("100%; sure: %d", 1), "100%; sure: 1");
  EXPECT_EQ(formatted("%lllld", 1), "%lllld");
}

TEST(EventLogFormat, refusesFieldsWideEnoughToExhaustMemory)
{
  EXPECT_EQ(formatted("%2000000000d", 1), "%2000000000d");
  EXPECT_EQ(formatted("%.99999999999999f", 1.0), "%.99999999999999f");
  EXPECT_EQ(formatted("%*d", 2000000000, 1), "%*d");
}

TEST(EventLogFormat, printsANullTextAndANullFormat)
{
  const char *none = nullptr;
  EXPECT_EQ(formatted("[%s]", none), "[(null)]");
  EXPECT_EQ(formatted(nullptr), "");
}

TEST(EventLog, writesLevelFunctionAndTextInOneLine)
{
  const std::string line =
      standardErrorOf([] { EventLog_write(3, 7, "createUi", "%s logged in to NEVO.", "admin"); });
  EXPECT_EQ(line, "3 createUi: admin logged in to NEVO.\n");
}

TEST(EventLog, takesAnyTextAsAFormatWithoutArguments)
{
  const std::string hostile = "%s%n%p 100% of \"EID\"";
  const std::string line = standardErrorOf([&] { EventLog_write(1, 7, "logZelErrors", hostile.c_str()); });
  EXPECT_EQ(line, "1 logZelErrors: %s%n%p 100% of \"EID\"\n");
}

TEST(EventLog, keepsATextWithLineBreaksAndTerminalCommandsToOneHarmlessLine)
{
  const std::string line = standardErrorOf(
      [] { EventLog_write(1, 7, "f", "%s", "a\n3 createUi: root logged in\x1b[2J\r\x7f\xc2\x9b"); });
  EXPECT_EQ(line, "1 f: a\\x0a3 createUi: root logged in\\x1b[2J\\x0d\\x7f\\xc2\\x9b\n");
}

TEST(EventLog, keepsWellFormedTextOfAnyLanguageAndEscapesBrokenBytes)
{
  const std::string line = standardErrorOf([] {
    EventLog_write(1, 7, "f", "%s",
                   "Z\xc3\xbcrich \xe6\x9d\xb1 \xf0\x9f\x96\xa5 \xff\xc3 \xe2\x80\xae \xed\xa0\x80");
  });
  EXPECT_EQ(line,
            "1 f: Z\xc3\xbcrich \xe6\x9d\xb1 \xf0\x9f\x96\xa5 \\xff\\xc3 \\xe2\\x80\\xae \\xed\\xa0\\x80\n");
}

TEST(EventLog, cutsAnEntryThatIsTooLong)
{
  const std::string line = standardErrorOf([] { EventLog_write(1, 7, "f", "%s", std::string(100000, 'x')); });
  EXPECT_LT(line.size(), 9000U);
  EXPECT_EQ(line.substr(line.size() - 4), "...\n");
}

TEST(EventLog, isSilentOnStandardErrorThatIsNoTerminalUnlessAsked)
{
  unsetenv("NEVO_LOG_STDERR");
  testing::internal::CaptureStderr();
  EventLog_write(1, 7, "f", "text");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(EventLog, writesEachEntryToSyslogWithTheLevelAsItsPriority)
{
  unsetenv("NEVO_LOG_STDERR");
  SyslogRecord::clear();
  EventLog_write(1, 7, "f", "error %d", 1);
  EventLog_write(2, 7, "f", "warning %s");
  EventLog_write(3, 7, "f", "notice");
  EventLog_write(4, 7, "f", "trace");
  ASSERT_EQ(SyslogRecord::entries().size(), 4U);
  EXPECT_EQ(SyslogRecord::entries()[0].text, "[7] f: error 1");
  EXPECT_EQ(SyslogRecord::entries()[1].text, "[7] f: warning %s");
  EXPECT_EQ(SyslogRecord::entries()[0].severity, 3);
  EXPECT_EQ(SyslogRecord::entries()[1].severity, 4);
  EXPECT_EQ(SyslogRecord::entries()[2].severity, 5);
  EXPECT_EQ(SyslogRecord::entries()[3].severity, 7);
}

TEST(EventLog, namesTheProgramByTheLastPartOfItsPath)
{
  EventLog_init("/usr/bin/nevo-server");
  EXPECT_EQ(SyslogRecord::ident(), "nevo-server");
  EventLog_init(nullptr);
  EXPECT_EQ(SyslogRecord::ident(), "nevo-server");
}
