// SPDX-License-Identifier: MIT
#include "Convert.h"

#include "StoreTest.h"

#include <cstdlib>
#include <ctime>
#include <limits>

namespace
{

template <typename Enum>
void expectWordsInOrder(Enum (*convert)(const char *), const std::vector<const char *> &words)
{
  for (std::size_t i = 0; i < words.size(); ++i)
    EXPECT_EQ(static_cast<std::size_t>(convert(words[i])), i + 1) << words[i];
  EXPECT_EQ(static_cast<int>(convert("garbage")), 1);
  EXPECT_EQ(static_cast<int>(convert("")), 1);
  EXPECT_EQ(static_cast<int>(convert(nullptr)), 1);
  const std::string upper = std::string("R") + (words.back() + 1);
  EXPECT_EQ(static_cast<int>(convert(upper.c_str())), 1);
}

// Local time of a fixed zone while it lives.
class TimeZone
{
public:
  explicit TimeZone(const char *zone)
  {
    setenv("TZ", zone, 1);
    tzset();
  }
  ~TimeZone()
  {
    unsetenv("TZ");
    tzset();
  }
};

std::string stamp(long seconds, int size = 64)
{
  char buffer[64] = "before";
  Convert_dateTimeStampToString(seconds, buffer, size);
  return buffer;
}

} // namespace

TEST(ConvertWords, numberTheWordsOfTheStoreInOrderAndTakeAnUnknownOneForTheFirst)
{
  expectWordsInOrder(Convert_deviceStatusStringToEnum,
                     {"offline", "configuring", "ready", "reset_pending", "in_recovery"});
  expectWordsInOrder(Convert_deviceUsageStringToEnum,
                     {"usable", "not_usable_swx_capacity", "not_usable_swx_maintenance"});
  expectWordsInOrder(Convert_deviceUpgradeStatusStringToEnum,
                     {"idle", "upgrading", "failed", "failed_file_get", "failed_file_content",
                      "failed_dev_type", "failed_file_push", "failed_flash", "complete"});
  expectWordsInOrder(Convert_swxStatusStringToEnum,
                     {"offline", "dc_connected", "conflict_is_master", "conflict_other_master", "isc_failure",
                      "ready", "resetting"});
  expectWordsInOrder(Convert_swxUsageStringToEnum, {"usable", "exceeds_unmanaged_capacity", "maintenance"});
  expectWordsInOrder(Convert_functionKeyStringToEnum,
                     {"none", "f1", "f2", "f3", "f4", "f5", "f6", "f7", "f8", "f9", "f10", "f11", "f12"});
  expectWordsInOrder(Convert_osdCommonActionStringToEnum,
                     {"none", "connect_last_target", "connect_previous_target", "connect_next_target",
                      "connect_to_target_x", "logout_and_disconnect", "enumerate_keyboard", "enumerate_mouse",
                      "enumerate_keyboard_and_mouse", "enumerate_all_usb_devices"});
  expectWordsInOrder(Convert_wakeOnConnectActionStringToEnum, {"none", "keypress", "mouse_move"});
}

TEST(ConvertWords, takeAnUnknownAccessModeForTheLast)
{
  EXPECT_EQ(Convert_accessModeDbStringToEnum("share_mode"), 1);
  EXPECT_EQ(Convert_accessModeDbStringToEnum("private_mode"), 2);
  EXPECT_EQ(Convert_accessModeDbStringToEnum("share_or_private_mode"), 3);
  EXPECT_EQ(Convert_accessModeDbStringToEnum("garbage"), 3);
  EXPECT_EQ(Convert_accessModeDbStringToEnum(""), 3);
}

TEST(ConvertWords, leadBackFromEveryFunctionKeyAndAction)
{
  for (int i = 1; i <= 13; ++i) {
    const auto key = static_cast<Info_FunctionKey>(i);
    EXPECT_EQ(Convert_functionKeyStringToEnum(Convert_functionKeyEnumToZelString(key)), key);
  }
  for (int i = 1; i <= 10; ++i) {
    const auto action = static_cast<Info_OsdCommonAction>(i);
    EXPECT_EQ(Convert_osdCommonActionStringToEnum(Convert_osdCommonActionEnumToZelString(action).c_str()),
              action);
  }
  EXPECT_STREQ(Convert_functionKeyEnumToZelString(Info_FunctionKey_F12), "f12");
  EXPECT_EQ(Convert_osdCommonActionEnumToZelString(Info_OsdCommonAction_ConnectToTargetX),
            "connect_to_target_x");
}

TEST(ConvertWords, giveNoneForAnotherFunctionKeyAndNothingForAnotherAction)
{
  EXPECT_STREQ(Convert_functionKeyEnumToZelString(static_cast<Info_FunctionKey>(14)), "none");
  EXPECT_STREQ(Convert_functionKeyEnumToZelString(static_cast<Info_FunctionKey>(0)), "none");
  EXPECT_EQ(Convert_osdCommonActionEnumToZelString(static_cast<Info_OsdCommonAction>(11)), "");
}

TEST(ConvertTexts, nameTheStatesOfADevice)
{
  EXPECT_EQ(Convert_deviceStatusDbStringToUiString("offline"), shown("Offline"));
  EXPECT_EQ(Convert_deviceStatusDbStringToUiString("configuring"), shown("Configuring"));
  EXPECT_EQ(Convert_deviceStatusDbStringToUiString("ready"), shown("Ready"));
  EXPECT_EQ(Convert_deviceStatusDbStringToUiString("reset_pending"), shown("Reboot pending"));
  EXPECT_EQ(Convert_deviceStatusDbStringToUiString("in_recovery"), shown("In recovery"));
  EXPECT_EQ(Convert_deviceStatusDbStringToUiString("garbage"), shown("Unknown"));
}

TEST(ConvertTexts, nameTheKindsOfDevices)
{
  EXPECT_EQ(Convert_deviceTypeDbStringToUiString("none"), shown("None"));
  EXPECT_EQ(Convert_deviceTypeDbStringToUiString("rx"), shown("Receiver"));
  EXPECT_EQ(Convert_deviceTypeDbStringToUiString("tx"), shown("Transmitter"));
  EXPECT_EQ(Convert_deviceTypeDbStringToUiString("swx"), shown("Switch"));
  EXPECT_EQ(Convert_deviceTypeDbStringToUiString(""), shown("Unknown"));
  EXPECT_EQ(Convert_detailedDeviceTypeDbStringToUiString("rx_dvi_i_16"), shown("Receiver16"));
  EXPECT_EQ(Convert_detailedDeviceTypeDbStringToUiString("rx_dvi_i"), shown("Receiver8"));
  EXPECT_EQ(Convert_detailedDeviceTypeDbStringToUiString("tx_dvi_d"), shown("Transmitter (DVI)"));
  EXPECT_EQ(Convert_detailedDeviceTypeDbStringToUiString("tx_vga"), shown("Transmitter (VGA)"));
  EXPECT_EQ(Convert_detailedDeviceTypeDbStringToUiString("swx"), shown("Switch"));
  EXPECT_EQ(Convert_detailedDeviceTypeDbStringToUiString("none"), shown("Unknown"));
  EXPECT_EQ(Convert_detailedDeviceTypeDbStringToTxSubTypeUiString("tx_dvi_d"), shown("DVI"));
  EXPECT_EQ(Convert_detailedDeviceTypeDbStringToTxSubTypeUiString("tx_vga"), shown("VGA"));
  EXPECT_EQ(Convert_detailedDeviceTypeDbStringToTxSubTypeUiString("rx_dvi_i"), shown("Unknown"));
}

TEST(ConvertTexts, nameTheStatesOfAPort)
{
  EXPECT_EQ(Convert_portStateDbStringToUiString("no_device"), shown("No attached device"));
  EXPECT_EQ(Convert_portStateDbStringToUiString("idle"), shown("Idle"));
  EXPECT_EQ(Convert_portStateDbStringToUiString("in_use"), shown("In use"));
  EXPECT_EQ(Convert_portStateDbStringToUiString("upgrading"), shown("Upgrading firmware"));
  EXPECT_EQ(Convert_portStateDbStringToUiString("loopback_detected"), shown("Loopback detected"));
  EXPECT_EQ(Convert_portStateDbStringToUiString("self_detected"), shown("Self detected"));
  EXPECT_EQ(Convert_portStateDbStringToUiString("invalid_device"), shown("Invalid device"));
  EXPECT_EQ(Convert_portStateDbStringToUiString("device_error"), shown("Device error"));
  EXPECT_EQ(Convert_portStateDbStringToUiString("device_not_added"), shown("Device not added"));
  EXPECT_EQ(Convert_portStateDbStringToUiString("garbage"), shown("Unknown"));
}

TEST(ConvertTexts, nameSeveritiesAndPolarities)
{
  EXPECT_EQ(Convert_alertSeverityDbStringToUiString("info"), shown("Information"));
  EXPECT_EQ(Convert_alertSeverityDbStringToUiString("warning"), shown("Warning"));
  EXPECT_EQ(Convert_alertSeverityDbStringToUiString("error"), shown("Error"));
  EXPECT_EQ(Convert_alertSeverityDbStringToUiString("fatal"), shown("Unknown"));
  EXPECT_EQ(Convert_syncPolarityDbStringToUiString("negative_polarity"), shown("Negative"));
  EXPECT_EQ(Convert_syncPolarityDbStringToUiString("positive_polarity"), shown("Positive"));
  EXPECT_EQ(Convert_syncPolarityDbStringToUiString("garbage"), shown("Unknown"));
}

TEST(ConvertTexts, nameRolesAndAccessModes)
{
  EXPECT_EQ(Convert_userRoleDbStringToUiString("user"), shown("User"));
  EXPECT_EQ(Convert_userRoleDbStringToUiString("admin"), shown("Admin"));
  EXPECT_EQ(Convert_userRoleDbStringToUiString("root"), shown("Unknown"));
  EXPECT_EQ(Convert_userRoleEnumToString(static_cast<Info_UserRole>(0)), shown("Unknown"));
  EXPECT_EQ(Convert_accessModeDbStringToUiString("share_mode"), shown("Shared"));
  EXPECT_EQ(Convert_accessModeDbStringToUiString("private_mode"), shown("Private"));
  EXPECT_EQ(Convert_accessModeDbStringToUiString("share_or_private_mode"), shown("Shared or Private"));
  EXPECT_EQ(Convert_accessModeDbStringToUiString("garbage"), shown("Unknown"));
  EXPECT_EQ(Convert_accessModeEnumToString(static_cast<Info_AccessMode>(0)), shown("Unknown"));
}

TEST(ConvertNumbers, parseAWholeDecimalText)
{
  unsigned int value = 77;
  EXPECT_EQ(Convert_stringToUInt32("42", value), 0U);
  EXPECT_EQ(value, 42U);
  EXPECT_EQ(Convert_stringToUInt32("", value), 0U);
  EXPECT_EQ(value, 0U);
  EXPECT_EQ(Convert_stringToUInt32(" +7", value), 0U);
  EXPECT_EQ(value, 7U);
  EXPECT_EQ(Convert_stringToUInt32("-1", value), 0U);
  EXPECT_EQ(value, std::numeric_limits<unsigned int>::max());
}

TEST(ConvertNumbers, reportATextOfWhichSomethingStayedUnread)
{
  unsigned int value = 77;
  EXPECT_EQ(Convert_stringToUInt32("42 ", value), 1U);
  EXPECT_EQ(value, 42U);
  EXPECT_EQ(Convert_stringToUInt32("abc", value), 1U);
  EXPECT_EQ(value, 0U);
  EXPECT_EQ(Convert_stringToUInt32("0x10", value), 1U);
  EXPECT_EQ(Convert_stringToUInt32(std::string("4\0", 2), value), 1U);
}

TEST(ConvertNumbers, writeDatesWithoutAndTimesWithLeadingZeros)
{
  const TimeZone utc("UTC0");
  EXPECT_EQ(stamp(1457338500), "2016-3-7 08:15:00");
  EXPECT_EQ(stamp(1457337900), "2016-3-7 08:05:00");
  EXPECT_EQ(stamp(0), "1970-1-1 00:00:00");
  EXPECT_EQ(stamp(1483228799), "2016-12-31 23:59:59");
}

TEST(ConvertNumbers, writeDatesInLocalTime)
{
  const TimeZone east("EST5");
  EXPECT_EQ(stamp(0), "1969-12-31 19:00:00");
}

TEST(ConvertNumbers, cutADateToItsBuffer)
{
  const TimeZone utc("UTC0");
  EXPECT_EQ(stamp(1457337900, 10), "2016-3-7 ");
  EXPECT_EQ(stamp(1457337900, 0), "before");
  EXPECT_EQ(stamp(1457337900, -1), "before");
  Convert_dateTimeStampToString(0, nullptr, 10);
}

TEST(ConvertNumbers, showTheEpochForADateWhoseYearIsOutOfBounds)
{
  const TimeZone utc("UTC0");
  EXPECT_EQ(stamp(std::numeric_limits<long>::max()), "1970-1-1 00:00:00");
}

TEST(ConvertTimings, giveTheLineRateRoundedTwice)
{
  EXPECT_EQ(Convert_videoTimingToHorFreq(108000, 1280, 48, 112, 248), 64U);
  EXPECT_EQ(Convert_videoTimingToHorFreq(148500, 1920, 88, 44, 148), 67U);
  EXPECT_EQ(Convert_videoTimingToHorFreq(25175, 640, 16, 96, 48), 31U);
  // 63.96 kHz is rounded up to tenths first, and only then cut.
  EXPECT_EQ(Convert_videoTimingToHorFreq(63960, 1000, 0, 0, 0), 64U);
  EXPECT_EQ(Convert_videoTimingToHorFreq(63940, 1000, 0, 0, 0), 63U);
}

TEST(ConvertTimings, giveTheFrameRateRounded)
{
  EXPECT_EQ(Convert_videoTimingToFrameRate(108000, 1280, 48, 112, 248, 1024, 1, 3, 38), 60U);
  EXPECT_EQ(Convert_videoTimingToFrameRate(148500, 1920, 88, 44, 148, 1080, 4, 5, 36), 60U);
  EXPECT_EQ(Convert_videoTimingToFrameRate(25175, 640, 16, 96, 48, 480, 10, 2, 33), 60U);
  EXPECT_EQ(Convert_videoTimingToFrameRate(74250, 1980, 0, 0, 0, 750, 0, 0, 0), 50U);
  // A half rounds up; the largest single below it doesn't.
  EXPECT_EQ(Convert_videoTimingToFrameRate(5, 2000, 0, 0, 0, 1, 0, 0, 0), 3U);
  EXPECT_EQ(Convert_videoTimingToFrameRate(5, 2001, 0, 0, 0, 1, 0, 0, 0), 2U);
  EXPECT_EQ(Convert_videoTimingToFrameRate(1048576, 12125, 0, 0, 0, 172961, 0, 0, 0), 0U);
}

TEST(ConvertTimings, passThroughSinglePrecision)
{
  // 16777217 is not a single: it counts as 16777216.
  EXPECT_EQ(Convert_videoTimingToFrameRate(16777217, 2000, 0, 0, 0, 1, 0, 0, 0), 8388608U);
  // Above 2^23 nothing is rounded: 16777219 counts as 16777220.
  EXPECT_EQ(Convert_videoTimingToFrameRate(16777219, 1000, 0, 0, 0, 1, 0, 0, 0), 16777220U);
  EXPECT_EQ(Convert_videoTimingToHorFreq(1000000000, 1, 0, 0, 0), 1000000000U);
  // In double precision alone, the last digit of each of these would be another one.
  EXPECT_EQ(Convert_videoTimingToHorFreq(24786213, 78, 0, 0, 0), 317771U);
  EXPECT_EQ(Convert_videoTimingToHorFreq(74121757, 126, 0, 0, 0), 588268U);
  EXPECT_EQ(Convert_videoTimingToFrameRate(34406046, 19, 0, 0, 0, 526, 0, 0, 0), 3442671U);
  EXPECT_EQ(Convert_videoTimingToFrameRate(82039305, 22, 0, 0, 0, 786, 0, 0, 0), 4744350U);
}

TEST(ConvertTimings, areDefinedForATimingWithoutPixels)
{
  EXPECT_EQ(Convert_videoTimingToHorFreq(108000, 0, 0, 0, 0), std::numeric_limits<unsigned int>::max());
  EXPECT_EQ(Convert_videoTimingToHorFreq(0, 0, 0, 0, 0), 0U);
  EXPECT_EQ(Convert_videoTimingToFrameRate(0, 0, 0, 0, 0, 0, 0, 0, 0), 0U);
}
