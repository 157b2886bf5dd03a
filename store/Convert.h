// SPDX-License-Identifier: MIT
#ifndef STORE_CONVERT_H_
#define STORE_CONVERT_H_

#include "Info.h"

#include <string>

/// Between the store's lower-case words, the small enumerations of the code and the interface's texts.
/// An unknown word is never an error: it becomes the default that is told below.

/// Store word to enumeration. Words match exactly; an unknown or null word gives the first value.
Info_DeviceStatus Convert_deviceStatusStringToEnum(const char *word);
Info_DeviceUsage Convert_deviceUsageStringToEnum(const char *word);
Info_DeviceUpgradeStatus Convert_deviceUpgradeStatusStringToEnum(const char *word);
Info_SwxStatus Convert_swxStatusStringToEnum(const char *word);
Info_SwxUsage Convert_swxUsageStringToEnum(const char *word);
Info_FunctionKey Convert_functionKeyStringToEnum(const char *word);
Info_OsdCommonAction Convert_osdCommonActionStringToEnum(const char *word);
Info_WakeOnConnectAction Convert_wakeOnConnectActionStringToEnum(const char *word);
/// An unknown word gives the last value, shared or private.
Info_AccessMode Convert_accessModeDbStringToEnum(const std::string &word);

/// Enumeration to store word. A value that has none gives "none".
const char *Convert_functionKeyEnumToZelString(Info_FunctionKey key);
/// A value that has none gives an empty text.
std::string Convert_osdCommonActionEnumToZelString(Info_OsdCommonAction action);

/// Store word to interface text, in UTF-8. An unknown word gives the text "Unknown".
std::string Convert_deviceStatusDbStringToUiString(const std::string &word);
std::string Convert_deviceTypeDbStringToUiString(const std::string &word);
std::string Convert_detailedDeviceTypeDbStringToUiString(const std::string &word);
std::string Convert_detailedDeviceTypeDbStringToTxSubTypeUiString(const std::string &word);
std::string Convert_portStateDbStringToUiString(const std::string &word);
std::string Convert_alertSeverityDbStringToUiString(const std::string &word);
std::string Convert_syncPolarityDbStringToUiString(const std::string &word);
std::string Convert_userRoleDbStringToUiString(const std::string &word);
std::string Convert_accessModeDbStringToUiString(const std::string &word);

/// Enumeration to interface text, in UTF-8; "Unknown" for any other value.
std::string Convert_userRoleEnumToString(Info_UserRole role);
std::string Convert_accessModeEnumToString(Info_AccessMode mode);

/// Parses a whole decimal number with strtol, which takes leading blanks and a sign. Returns 0, or 1 if
/// something stayed unread; an empty text is 0 with the value 0.
unsigned int Convert_stringToUInt32(const std::string &text, unsigned int &value);

/// Local time as "2016-3-7 08:05:00" (month and day without leading zero), cut to `size` bytes.
void Convert_dateTimeStampToString(long seconds, char *buffer, int size);

/// Line rate in kHz of a video timing whose pixel clock is in kHz.
unsigned int Convert_videoTimingToHorFreq(unsigned int pixelClock, unsigned int horizontalResolution,
                                          unsigned int horizontalFrontPorch, unsigned int horizontalSyncWidth,
                                          unsigned int horizontalBackPorch);

/// Frame rate in Hz of a video timing.
unsigned int Convert_videoTimingToFrameRate(unsigned int pixelClock, unsigned int horizontalResolution,
                                            unsigned int horizontalFrontPorch,
                                            unsigned int horizontalSyncWidth,
                                            unsigned int horizontalBackPorch, unsigned int verticalResolution,
                                            unsigned int verticalFrontPorch, unsigned int verticalSyncWidth,
                                            unsigned int verticalBackPorch);

#endif // STORE_CONVERT_H_
