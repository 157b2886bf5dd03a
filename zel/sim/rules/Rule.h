// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_RULE_H_
#define ZEL_SIM_RULES_RULE_H_

#include "data/Catalogue.h"
#include "data/Value.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zelsim
{

struct World;

/// Error numbers of the store. The first block is about values, the second about requests, the third
/// about what the switch allows.
enum Errno : int {
  kOk = 0,
  kGeneralFailure = 1,
  kTimedOut = 4,
  kNotInitialized = 6,
  kNotFound = 7,
  kCapacityReached = 8,
  kInvalidParameter = 9,
  kOutOfRange = 10,
  kNotUnique = 11,
  kInvalidEnumerated = 12,
  kTooShort = 13,
  kTooLong = 14,
  kTooLarge = 15,
  kBadContent = 16,
  kInvalidFormat = 17,
  kDeviceTypeMismatch = 18,

  kInvalidSyntax = 1001,
  kMissingMethod = 1002,
  kMissingResource = 1003,
  kInvalidMethod = 1004,
  kInvalidResource = 1005,
  kMethodNotSupported = 1006,
  kMissingParameter = 1007,
  kMissingKey = 1008,
  kNoEntries = 1009,
  kInvalidEnumeration = 1010,
  kInvalidBinaryLength = 1011,
  kTruncated = 1012,
  kUnknownParameter = 1013,
  kInUse = 1014,

  kDeviceNotOnline = 1101,
  kCredentialsMissing = 1102,
  kNotAuthenticated = 1103,
  kAccountNotEnabled = 1104,
  kNotAuthorized = 1105,
  kNotAllowed = 1106,
  kSwxNotOnline = 1107,
  kRxNotOnline = 1108,
  kTxNotOnline = 1109,
  kSwxAlreadyResetting = 1110,
  kRxAlreadyResetting = 1111,
  kTxAlreadyResetting = 1112,
  kSwxNotReady = 1113,
  kRxResetUnsupported = 1114,
  kTxResetUnsupported = 1115,
  kIconNotCreated = 1116,
  kIconNotRemoved = 1117,
  kIconNotReverted = 1118,
  kRxSessionActive = 1119,
  kTopologyError = 1120,
  kPrivateToConnectedTx = 1121,
  kShareToPrivateTx = 1122,
  kShareLimit = 1123,
  kRxAlreadyConnected = 1124,
  kNoPath = 1125,
  kInvalidCascadeChange = 1126,
  kBackupNotReady = 1127,
  kRestoreWithLinkedPeer = 1128,
  kNetChangeOnBackup = 1129,
  kDeleteOfflinePeer = 1130
};

/// Why a request is refused. Converts from an Errno; `detail` is shown to the user behind the error's
/// text, so it is a name of the catalogue (isDataName) or nothing.
struct Problem {
  Problem(Errno errorNumber = kOk, std::string errorDetail = {})
      : number(errorNumber), detail(std::move(errorDetail))
  {
  }
  explicit operator bool() const { return number != kOk; }

  Errno number;
  std::string detail;
};

/// One request on one record, after validation against the catalogue.
struct Call {
  Method method;
  const Resource &resource;
  unsigned index;       // the record; in a check before a CREATE, 0; 0 for single-record resources
  const json_t *params; // object; what the client sent, without "index"
  json_t *answer;       // object; an action may add members to the answer
  std::uint64_t client; // the connection that asks
  int takesMs = 0;      // how long the client waits for the answer; an action may say

  bool has(const char *parameter) const { return json_object_get(params, parameter) != nullptr; }
  /// What the client sent; empty, 0 or false where it did not.
  std::string text(const char *parameter) const;
  std::int64_t number(const char *parameter) const;
  bool flag(const char *parameter) const;
};

/// What the switch does about requests, beyond keeping values. Registered once at the start.
///
/// A SET, CREATE or DELETE goes: validation by the catalogue (types, limits, words, unique values, record
/// there, room for it) - checks, in the order of registration - values stored, record made or removed -
/// actions of the parameters that the request names - actions of the method. The first problem ends it
/// and takes back everything that the request has done. DELETE actions run before the record is removed.
class Rules
{
public:
  using Check = std::function<Problem(World &, const Call &)>;
  using Action = std::function<Problem(World &, Call &)>;
  /// The present value of a kComputed parameter.
  using Reader = std::function<Value(const World &, unsigned index)>;

  void check(std::string_view resource, Method method, Check check);
  void act(std::string_view resource, Method method, Action action);
  /// Runs when a SET or CREATE names the parameter, with its new value already stored (a kCommand
  /// parameter is in `call` only).
  void onParameter(std::string_view resource, std::string_view parameter, Action action);
  void read(std::string_view resource, std::string_view parameter, Reader reader);

  /// For the server.
  Problem runChecks(World &world, const Call &call) const;
  Problem runActions(World &world, Call &call) const;
  Problem runParameterActions(World &world, Call &call) const;
  const Reader *reader(std::string_view resource, std::string_view parameter) const;

private:
  static std::string key(std::string_view resource, Method method);
  static std::string key(std::string_view resource, std::string_view parameter);

  std::unordered_map<std::string, std::vector<Check>> checks_;
  std::unordered_map<std::string, std::vector<Action>> actions_;
  std::unordered_map<std::string, std::vector<Action>> parameterActions_;
  std::unordered_map<std::string, Reader> readers_;
};

/// RuleBook.cpp: registers every rule of the switch.
void registerRules(Rules &rules);

} // namespace zelsim

#endif // ZEL_SIM_RULES_RULE_H_
