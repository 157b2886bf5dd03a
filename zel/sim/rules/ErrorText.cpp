// SPDX-License-Identifier: MIT
#include "rules/ErrorText.h"

#include <cstdio>

namespace zelsim
{

namespace
{

struct ErrorRow {
  Errno number;
  const char *words;
};

constexpr ErrorRow kErrors[] = {
    {kGeneralFailure, "general failure"},
    {kTimedOut, "operation timed out"},
    {kNotInitialized, "subsystem not initialized"},
    {kNotFound, "not found"},
    {kCapacityReached, "capacity reached"},
    {kInvalidParameter, "invalid parameter"},
    {kOutOfRange, "value out of range"},
    {kNotUnique, "value not unique"},
    {kInvalidEnumerated, "no word of the list"},
    {kTooShort, "too short"},
    {kTooLong, "too long"},
    {kTooLarge, "too large"},
    {kBadContent, "bad content"},
    {kInvalidFormat, "invalid format"},
    {kDeviceTypeMismatch, "device type mismatch"},
    {kInvalidSyntax, "invalid syntax"},
    {kMissingMethod, "missing method"},
    {kMissingResource, "missing resource"},
    {kInvalidMethod, "invalid method"},
    {kInvalidResource, "invalid resource"},
    {kMethodNotSupported, "method not supported"},
    {kMissingParameter, "missing parameter"},
    {kMissingKey, "missing key"},
    {kNoEntries, "no entries"},
    {kInvalidEnumeration, "invalid enumeration"},
    {kInvalidBinaryLength, "invalid binary length"},
    {kTruncated, "value too long, truncated"},
    {kUnknownParameter, "unknown parameter"},
    {kInUse, "in use"},
    {kDeviceNotOnline, "device not online"},
    {kCredentialsMissing, "user name or password missing"},
    {kNotAuthenticated, "wrong user name or password"},
    {kAccountNotEnabled, "account not enabled"},
    {kNotAuthorized, "not authorized"},
    {kNotAllowed, "not allowed"},
    {kSwxNotOnline, "switch not online"},
    {kRxNotOnline, "receiver not online"},
    {kTxNotOnline, "transmitter not online"},
    {kSwxAlreadyResetting, "switch already resetting"},
    {kRxAlreadyResetting, "receiver already resetting"},
    {kTxAlreadyResetting, "transmitter already resetting"},
    {kSwxNotReady, "switch not ready"},
    {kRxResetUnsupported, "way to reset not for receivers"},
    {kTxResetUnsupported, "way to reset not for transmitters"},
    {kIconNotCreated, "icon not created"},
    {kIconNotRemoved, "icon not removed"},
    {kIconNotReverted, "icon not reverted"},
    {kRxSessionActive, "user already logged in at the receiver"},
    {kTopologyError, "topology error"},
    {kPrivateToConnectedTx, "private session to a connected transmitter"},
    {kShareToPrivateTx, "shared session to a private transmitter"},
    {kShareLimit, "too many sharers"},
    {kRxAlreadyConnected, "receiver already connected"},
    {kNoPath, "no path"},
    {kInvalidCascadeChange, "invalid change of the cascade"},
    {kBackupNotReady, "backup not ready"},
    {kRestoreWithLinkedPeer, "restore with a linked peer"},
    {kNetChangeOnBackup, "network change on the backup"},
    {kDeleteOfflinePeer, "deletion of an offline peer"},
};

} // namespace

const char *errorWords(int number)
{
  for (const ErrorRow &row : kErrors)
    if (row.number == number)
      return row.words;
  return nullptr;
}

std::string describeProblem(const Problem &problem)
{
  const char *words = errorWords(problem.number);
  return "error " + std::to_string(problem.number) + (words ? std::string(", ") + words : std::string()) +
         (problem.detail.empty() ? "" : ": " + problem.detail);
}

std::string listErrors()
{
  std::string out;
  for (const ErrorRow &row : kErrors) {
    char line[80];
    std::snprintf(line, sizeof line, "%4d  %s\n", row.number, row.words);
    out += line;
  }
  return out;
}

} // namespace zelsim
