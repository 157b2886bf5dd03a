// SPDX-License-Identifier: MIT
#ifndef STORE_DB_H_
#define STORE_DB_H_

#include "Info.h"
#include "ZelClient.h"

#include <string>
#include <vector>

/// The door to the store server for all but lists: typed reads and writes of single parameters, the questions
/// that the views ask about a device, a session or a user, and the commands that they send.
///
/// Results: 0 is success and 1 is failure; methods that answer a question return a bool. A failure may
/// come with translated texts appended to `errors` (which is never cleared here), or with none: there was
/// no connection or no answer. A read that fails leaves its outputs as they were unless told otherwise.
///
/// A record index of 0 means that the resource has one record, and no index is sent. Booleans are the words
/// "enabled" and "disabled" in the store.
///
/// All methods use the connection of the session whose code is running; outside any session they fail.
/// Nothing is kept here: each read or write is one request to the client library. Whether that costs a round
/// trip to the store is the library's affair; the project's own answers from what it holds while nothing is
/// new. What would ask for each row of a list reads records instead (records/).
class Db
{
public:
  using Errors = std::vector<std::string>;
  using Indexes = std::vector<unsigned int>;

  Db();
  ~Db();

  // --- Connection and memory

  /// The session's connection. It stays the session's; null or not valid after a failure.
  unsigned int getZelClient(ZelClient_s *&client);
  void closeZelClient();
  /// Frees a non-null object and nulls the pointer.
  void zelObjFree(json_t *&object);
  /// Record of the logged-in user in "user"; 0 without a session or a login.
  unsigned int getIndexOfCurrentlyLoggedInNevoUsr();

  // --- One parameter of one record

  unsigned int readUInt32(const char *resource, unsigned int index, const char *parameter,
                          unsigned int &value, Errors &errors);
  /// A record without that text leaves `value` as it was, which is no failure.
  unsigned int readString(const char *resource, unsigned int index, const char *parameter, std::string &value,
                          Errors &errors);
  /// True for "enabled" in any case of letters.
  unsigned int readEnableDisable(const char *resource, unsigned int index, const char *parameter, bool &value,
                                 Errors &errors);
  unsigned int writeUInt32(const char *resource, unsigned int index, const char *parameter,
                           unsigned int value, Errors &errors);
  unsigned int writeString(const char *resource, unsigned int index, const char *parameter, const char *value,
                           Errors &errors);
  unsigned int writeString(const char *resource, unsigned int index, const char *parameter,
                           const std::string &value, Errors &errors);
  unsigned int writeEnableDisable(const char *resource, unsigned int index, const char *parameter, bool value,
                                  Errors &errors);
  unsigned int deleteRecordByIndex(const char *resource, unsigned int index, Errors &errors);

  // --- One parameter of several records, one round trip each: the value where all agree, 0 or an empty
  // --- text where they differ. No records agree on 0 or an empty text.

  unsigned int readUInt32Merge(const char *resource, const Indexes &indexes, const char *parameter,
                               unsigned int &value, bool &allEqual, Errors &errors);
  unsigned int readStringMerge(const char *resource, const Indexes &indexes, const char *parameter,
                               std::string &value, Errors &errors);

  // --- The same from a response that the caller holds, without a round trip

  unsigned int extractUInt32(json_t *response, const char *parameter, unsigned int &value);
  /// A response without that text is a failure here.
  unsigned int extractString(json_t *response, const char *parameter, std::string &value);
  /// True for "enabled" in exactly these letters.
  unsigned int extractEnableDisable(json_t *response, const char *parameter, bool &value);
  /// A record that has no row in the response is a failure, and so is a row without the text.
  unsigned int extractUInt32Merge(json_t *response, const Indexes &indexes, const char *parameter,
                                  unsigned int &value, bool &allEqual);
  unsigned int extractStringMerge(json_t *response, const Indexes &indexes, const char *parameter,
                                  std::string &value, bool &allEqual);
  unsigned int extractEnableDisableMerge(json_t *response, const Indexes &indexes, const char *parameter,
                                         bool &value, bool &allEqual);

  // --- Searches by a key: the first record or row that has it. None is a failure without a message.

  unsigned int findIndexOfUInt32Key(const char *resource, const char *keyParameter, unsigned int keyValue,
                                    unsigned int &index, Errors &errors);
  unsigned int findIndexOfStringKey(const char *resource, const char *indexParameter,
                                    const char *keyParameter, const char *keyValue, unsigned int &index,
                                    Errors &errors);
  /// `offset` is the row's number from 0.
  unsigned int findOffsetOfUInt32KeyInZelRsp(json_t *response, const char *keyParameter,
                                             unsigned int keyValue, unsigned int &offset, Errors &errors);

  // --- Errors of the store

  /// Appends a translated message for each entry of an "errors" list; with suppressNoEntries, none for
  /// "no entries" (1009).
  void interpZelErrors(json_t *errorsObject, Errors &errors, bool suppressNoEntries);
  /// Logs the whole vector, also what an earlier call put there.
  void logZelErrors(const Errors &errors);

  // --- Change detection and the role of this switch

  /// Whether the data behind a change counter moved since `lastChange`, which it brings up to date. A
  /// caller starts its counter at 0. True as well if the store can't say.
  bool newDataIsAvailable(InfoMgr_InfoID id, unsigned int &lastChange);

  bool thisSwxIsManaged();
  bool thisSwxIsCascadeController();
  bool thisSwxIsBackupCascadeController();
  bool thisSwxIsMaster();

  // --- Status of devices

  unsigned int getRxStatus(unsigned int rxIndex, Info_DeviceStatus &status,
                           Info_DeviceUpgradeStatus &upgradeStatus, Info_DeviceUsage &usage,
                           bool &userIsLoggedIn, Errors &errors);
  unsigned int getTxStatus(unsigned int txIndex, Info_DeviceStatus &status,
                           Info_DeviceUpgradeStatus &upgradeStatus, Info_DeviceUsage &usage,
                           bool &isConnected, Info_ConnectionMode &mode, Errors &errors);
  unsigned int getSwxStatus(unsigned int swxIndex, Info_SwxStatus &status,
                            Info_DeviceUpgradeStatus &upgradeStatus, Info_SwxUsage &usage, Errors &errors);
  /// The status as one text for people, never empty: "Unknown" after a failure.
  unsigned int getRxOverallStatus(unsigned int rxIndex, std::string &status, Errors &errors);
  unsigned int getTxOverallStatus(unsigned int txIndex, std::string &status, Errors &errors);
  unsigned int getSwxOverallStatus(unsigned int swxIndex, std::string &status, Errors &errors);

  // --- Names

  unsigned int getRxNameFromRxIndex(unsigned int rxIndex, std::string &name, Errors &errors);
  unsigned int getTxNameFromTxIndex(unsigned int txIndex, std::string &name, Errors &errors);
  unsigned int getTxEidFromTxIndex(unsigned int txIndex, std::string &eid, Errors &errors);
  unsigned int getSwxEidFromSwxIndex(unsigned int swxIndex, std::string &eid, Errors &errors);
  unsigned int getUsernameFromUserIndex(unsigned int userIndex, std::string &name, Errors &errors);
  unsigned int getUserFullNameFromUserIndex(unsigned int userIndex, std::string &name, Errors &errors);
  /// The name, or "EID - " and the EID for a device without a name.
  unsigned int getRxNameOrEidFromRxIndex(unsigned int rxIndex, std::string &name, Errors &errors);
  unsigned int getTxNameOrEidFromTxIndex(unsigned int txIndex, std::string &name, Errors &errors);
  unsigned int getSwxNameOrEidFromSwxIndex(unsigned int swxIndex, std::string &name, Errors &errors);
  /// The transmitter that the receiver of a "userSession" record is connected to.
  unsigned int getTxNameOrEidFromUsrSesIndex(unsigned int userSessionIndex, std::string &name,
                                             Errors &errors);
  /// The store's word; "unknown" and success if it can't be read.
  unsigned int getKeyboardLayoutFromRxIndex(unsigned int rxIndex, std::string &layout, Errors &errors);
  /// A user that an external manager owns is known by the manager's name for it.
  unsigned int getLoggedInUsernameFromRxIndex(unsigned int rxIndex, std::string &name, Errors &errors);
  unsigned int getConnectedUsernameFromTxIndex(unsigned int txIndex, std::string &name, Errors &errors);

  // --- Topology

  /// The switch and the port at which a device hangs. A device that no port shows is no failure, and
  /// leaves both outputs as they were. It hangs at no switch, so the name of its switch is empty.
  unsigned int getSwxIndexAndPortIndexFromTxIndex(unsigned int txIndex, unsigned int &swxIndex,
                                                  unsigned int &portIndex, Errors &errors);
  unsigned int getSwxIndexAndPortIndexFromRxIndex(unsigned int rxIndex, unsigned int &swxIndex,
                                                  unsigned int &portIndex, Errors &errors);
  unsigned int getSwxNameOrEidFromTxIndex(unsigned int txIndex, std::string &name, Errors &errors);
  unsigned int getSwxNameOrEidFromRxIndex(unsigned int rxIndex, std::string &name, Errors &errors);
  unsigned int getSwxNameFromTxIndex(unsigned int txIndex, std::string &name, Errors &errors);
  unsigned int getSwxNameFromRxIndex(unsigned int rxIndex, std::string &name, Errors &errors);
  /// Whether the set holds a slave, or both kinds; false for masters only and after a failure.
  bool slaveSwxIsInSet(const Indexes &swxIndexes, Errors &errors);

  // --- Sessions and users

  /// Translated. An unknown mode leaves the text as it was; no connection is a failure.
  unsigned int getSessionModeFromTxIndex(unsigned int txIndex, std::string &mode, Errors &errors);
  unsigned int getSessionModeFromRxIndex(unsigned int rxIndex, std::string &mode, Errors &errors);
  /// In the form of NevoUtil_secsToFormattedTimeString().
  unsigned int getSessionDurationFromTxIndex(unsigned int txIndex, std::string &duration, Errors &errors);
  unsigned int getSessionDurationFromRxIndex(unsigned int rxIndex, std::string &duration, Errors &errors);
  unsigned int getLoginDurationFromRxIndex(unsigned int rxIndex, std::string &duration, Errors &errors);
  unsigned int getLoggedInUserIndexFromRxIndex(unsigned int rxIndex, unsigned int &userIndex, Errors &errors);
  bool userIsLoggedInToRx(unsigned int userIndex, Errors &errors);
  bool userIsLoggedInToNevo(unsigned int userIndex, Errors &errors);
  /// Translated.
  unsigned int getUserRoleFromUserIndex(unsigned int userIndex, std::string &role, Errors &errors);
  /// The store's word.
  unsigned int getAllowedAccessModeFromUserIndex(unsigned int userIndex, std::string &mode, Errors &errors);
  unsigned int getEnableAllTargetAccessFromUserIndex(unsigned int userIndex, bool &allTargetAccess,
                                                     Errors &errors);
  /// `allowed` is false after a failure.
  unsigned int getUserTxAccessRight(unsigned int userIndex, unsigned int txIndex, bool &allowed,
                                    Errors &errors);

  // --- Commands

  /// Logs the user in at the receiver, then connects.
  unsigned int createKvmSession(unsigned int userIndex, unsigned int rxIndex, unsigned int txIndex,
                                Info_ConnectionMode mode, Errors &errors);
  /// Disconnects, and logs the receiver's user out whether or not that worked.
  unsigned int destroyKvmSession(unsigned int connectionIndex, Errors &errors);
  unsigned int createUpgradeRecord(const std::string &protocol, const std::string &location,
                                   const std::string &filename, const std::string &username,
                                   const std::string &password, unsigned int &index, Errors &errors);
  unsigned int clearAllHistoricalAlerts(Errors &errors);
  unsigned int ackAllAlerts(Errors &errors);
  unsigned int ackSpecificAlert(unsigned int instanceId, Errors &errors);
  /// What a monitor's data says of itself: manufacturer and product as Edid has them, and the key of the text
  /// for its type, which is left to the caller to translate. A record without data is an analog "@@@" "0000".
  unsigned int getEdidInfo(unsigned int edidIndex, std::string &manufacturer, std::string &productCode,
                           std::string &type, Errors &errors);
  /// Copies at most `size` bytes of the monitor's data and zeroes the rest of the buffer.
  unsigned int getEdidByName(const std::string &name, char *buffer, unsigned int size, Errors &errors);
  unsigned int pushEdidToTx(unsigned int txIndex, unsigned int edidIndex, Errors &errors);
  /// `deviceType` is "rx"; anything else means a transmitter.
  unsigned int pullEdidFromDevice(const std::string &deviceType, unsigned int deviceIndex,
                                  const std::string &name, const std::string &description, Errors &errors);
  /// Lets the display of the device with that EID flash for so many seconds; the resource is one of commands
  /// ("rxControl", "txControl", "swxControl"). 0 goes out as 1 and 1 as 2, any other value as it is.
  unsigned int triggerLcdBacklightFlash(const char *resource, const std::string &eid, unsigned int duration,
                                        Errors &errors);
  unsigned int requestDeviceReboot(const char *resource, unsigned int index, Errors &errors);

private:
  bool clientFailureLogged; // keeps "no connection" to one log line for the process's life
};

extern Db Db_db;

#endif // STORE_DB_H_
