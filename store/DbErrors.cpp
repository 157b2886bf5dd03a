// SPDX-License-Identifier: MIT
#include "Db.h"
#include "EventLog.h"
#include "Text.h"
#include "ZelRspUtil.h"

namespace
{

struct ZelError {
  int number;
  const char *key;
};

constexpr ZelError kZelErrors[] = {
    {1, "[RSnnn]General failure"},
    {4, "[RSnnn]Operation timed out"},
    {6, "[RSnnn]Subsystem not initialized"},
    {7, "[RSnnn]Not found"},
    {8, "[RSnnn]Capacity reached"},
    {9, "[RSnnn]Invalid parameter"},
    {10, "[RSnnn]Value out of range"},
    {11, "[RSnnn]Value not unique"},
    {12, "[RSnnn]Invalid enumerated value"},
    {13, "[RSnnn]Too short"},
    {14, "[RSnnn]Too long"},
    {15, "[RSnnn]Too large"},
    {16, "[RSnnn]Bad content"},
    {17, "[RSnnn]Invalid format"},
    {18, "[RSnnn]Device type mismatch"},
    {1001, "[RSnnn]Invalid syntax"},
    {1002, "[RSnnn]Missing method"},
    {1003, "[RSnnn]Missing resource"},
    {1004, "[RSnnn]Invalid method"},
    {1005, "[RSnnn]Invalid resource"},
    {1006, "[RSnnn]Method not supported"},
    {1007, "[RSnnn]Missing parameter(s)"},
    {1008, "[RSnnn]Missing key"},
    {1009, "[RSnnn]No entries"},
    {1010, "[RSnnn]Invalid enumeration"},
    {1011, "[RSnnn]Invalid binary length"},
    {1012, "[RSnnn]Value too long -- truncated"},
    {1013, "[RSnnn]Unknown parameter"},
    {1014, "[RSnnn]Resource is in use"},
    {1101, "[RSnnn]Device Not Online"},
    {1102, "[RSnnn]Username or Password not present in request"},
    {1103, "[RSnnn]Unable to authenticate user with supplied credentials"},
    {1104, "[RSnnn]User exists, but their account is not enabled"},
    {1105, "[RSnnn]User does not have the required authorization"},
    {1106, "[RSnnn]The operation was not allowed"},
    {1107, "[RSnnn]Swx not online"},
    {1108, "[RSnnn]Rx not online"},
    {1109, "[RSnnn]Tx not online"},
    {1110, "[RSnnn]Swx already resetting"},
    {1111, "[RSnnn]Rx already resetting"},
    {1112, "[RSnnn]Tx already resetting"},
    {1113, "[RSnnn]Swx not ready"},
    {1114, "[RSnnn]Rx reset mode not supported"},
    {1115, "[RSnnn]Tx reset mode not supported"},
    {1116, "[RSnnn]Icon unable to create file"},
    {1117, "[RSnnn]Icon unable to remove file"},
    {1118, "[RSnnn]Icon unable to revert file"},
    {1119, "[RSnnn]Rx user session already active"},
    {1120, wholeKey("result.failure.connection_topology_error")},
    {1121, wholeKey("result.failure.connection_topology_private_attempt_to_connected_tx")},
    {1122, wholeKey("result.failure.connection_topology_share_attempt_to_busy_private_tx")},
    {1123, wholeKey("result.failure.connection_topology_share_limit")},
    {1124, wholeKey("result.failure.connection_topology_rx_already_connected")},
    {1125, wholeKey("result.failure.connection_topology_no_path_available")},
    {1126, wholeKey("result.failure.invalid_cascade_change")},
    {1127, wholeKey("result.failure.backup_controller_not_ready")},
    {1128, wholeKey("result.failure.restore_not_permitted_with_linked_peer")},
    {1129, wholeKey("result.failure.net_change_not_permitted_on_backup_controller")},
    {1130, wholeKey("result.failure.delete_offline_peer_not_permitted")},
};

constexpr int kNoEntries = 1009;

Wt::WString messageOf(int number)
{
  Wt::WString message = text("Unknown error");
  bool isKnown = false;
  for (const ZelError &row : kZelErrors) {
    if (row.number == number) {
      message = Wt::WString::tr(row.key);
      isKnown = true;
    }
  }
  if (!isKnown)
    EventLog_write(2, 7, "interpZelErrors", "Unknown ZEL error number %d.", number);
  return message;
}

// The store's detail is a message key. One that has no text is shown in the toolkit's form for that.
std::string translatedDetail(const char *detail)
{
  const std::string translation = Wt::WString::tr(detail).toUTF8();
  if (translation == "??" + std::string(detail) + "??")
    EventLog_write(1, 7, "interpZelErrors", "Untranslated ZEL error detail string: \"%s\"", detail);
  return translation;
}

} // namespace

void Db::interpZelErrors(json_t *errorsObject, Errors &errors, bool suppressNoEntries)
{
  const int count = ZelRspUtil_numEntries(errorsObject);
  for (int i = 0; i < count; ++i) {
    const auto row = static_cast<unsigned int>(i);
    const int number = ZelRspUtil_getIndexedIntegerParam(errorsObject, row, "errno");
    const char *detail = ZelRspUtil_getIndexedStringParam(errorsObject, row, "detail");
    std::string message = messageOf(number).toUTF8();
    if (detail)
      message += ": " + translatedDetail(detail);
    message += ".";
    if (!suppressNoEntries || number != kNoEntries)
      errors.push_back(message);
  }
}

void Db::logZelErrors(const Errors &errors)
{
  for (const std::string &message : errors)
    EventLog_write(1, 7, "logZelErrors", message.c_str());
}
