// SPDX-License-Identifier: MIT
#include "Convert.h"
#include "Text.h"

#include <cstddef>

namespace
{

struct WordText {
  const char *word;
  const char *key;
};

constexpr WordText kDeviceStatuses[] = {
    {"offline", "[RSnnn]Offline"},
    {"configuring", "[RSnnn]Configuring"},
    {"ready", "[RSnnn]Ready"},
    {"reset_pending", "[RSnnn]Reboot pending"},
    {"in_recovery", "[RSnnn]In recovery"},
};

constexpr WordText kDeviceTypes[] = {
    {"none", "[RSnnn]None"},
    {"rx", "[RSnnn]Receiver"},
    {"tx", "[RSnnn]Transmitter"},
    {"swx", "[RSnnn]Switch"},
};

constexpr WordText kDetailedDeviceTypes[] = {
    {"rx_dvi_i_16", "[RSnnn]Receiver16"},
    {"rx_dvi_i", "[RSnnn]Receiver8"},
    {"tx_dvi_d", "[RSnnn]Transmitter (DVI)"},
    {"tx_vga", "[RSnnn]Transmitter (VGA)"},
    {"swx", "[RSnnn]Switch"},
};

constexpr WordText kTxSubTypes[] = {
    {"tx_dvi_d", "[RSnnn]DVI"},
    {"tx_vga", "[RSnnn]VGA"},
};

constexpr WordText kPortStates[] = {
    {"no_device", "[RSnnn]No attached device"},
    {"idle", "[RSnnn]Idle"},
    {"in_use", "[RSnnn]In use"},
    {"upgrading", "[RSnnn]Upgrading firmware"},
    {"loopback_detected", "[RSnnn]Loopback detected"},
    {"self_detected", "[RSnnn]Self detected"},
    {"invalid_device", "[RSnnn]Invalid device"},
    {"device_error", "[RSnnn]Device error"},
    {"device_not_added", "[RSnnn]Device not added"},
};

constexpr WordText kAlertSeverities[] = {
    {"info", "[RSnnn]Information"},
    {"warning", "[RSnnn]Warning"},
    {"error", "[RSnnn]Error"},
};

constexpr WordText kSyncPolarities[] = {
    {"negative_polarity", "[RSnnn]Negative"},
    {"positive_polarity", "[RSnnn]Positive"},
};

std::string unknown()
{
  return text("Unknown").toUTF8();
}

template <std::size_t Count> std::string textOf(const WordText (&table)[Count], const std::string &word)
{
  for (const WordText &row : table) {
    if (word == row.word)
      return Wt::WString::tr(row.key).toUTF8();
  }
  return unknown();
}

} // namespace

std::string Convert_deviceStatusDbStringToUiString(const std::string &word)
{
  return textOf(kDeviceStatuses, word);
}

std::string Convert_deviceTypeDbStringToUiString(const std::string &word)
{
  return textOf(kDeviceTypes, word);
}

std::string Convert_detailedDeviceTypeDbStringToUiString(const std::string &word)
{
  return textOf(kDetailedDeviceTypes, word);
}

std::string Convert_detailedDeviceTypeDbStringToTxSubTypeUiString(const std::string &word)
{
  return textOf(kTxSubTypes, word);
}

std::string Convert_portStateDbStringToUiString(const std::string &word)
{
  return textOf(kPortStates, word);
}

std::string Convert_alertSeverityDbStringToUiString(const std::string &word)
{
  return textOf(kAlertSeverities, word);
}

std::string Convert_syncPolarityDbStringToUiString(const std::string &word)
{
  return textOf(kSyncPolarities, word);
}

std::string Convert_userRoleDbStringToUiString(const std::string &word)
{
  if (word == "user")
    return Convert_userRoleEnumToString(Info_UserRole_User);
  if (word == "admin")
    return Convert_userRoleEnumToString(Info_UserRole_Admin);
  return unknown();
}

std::string Convert_accessModeDbStringToUiString(const std::string &word)
{
  // An unknown word would become "shared or private" as an enumeration, but is no such thing to a reader.
  const Info_AccessMode mode = Convert_accessModeDbStringToEnum(word);
  if (mode == Info_AccessMode_ShareOrPrivate && word != "share_or_private_mode")
    return unknown();
  return Convert_accessModeEnumToString(mode);
}

std::string Convert_userRoleEnumToString(Info_UserRole role)
{
  switch (role) {
  case Info_UserRole_User:
    return text("User").toUTF8();
  case Info_UserRole_Admin:
    return text("Admin").toUTF8();
  }
  return unknown();
}

std::string Convert_accessModeEnumToString(Info_AccessMode mode)
{
  switch (mode) {
  case Info_AccessMode_Share:
    return text("Shared").toUTF8();
  case Info_AccessMode_Private:
    return text("Private").toUTF8();
  case Info_AccessMode_ShareOrPrivate:
    return text("Shared or Private").toUTF8();
  }
  return unknown();
}
