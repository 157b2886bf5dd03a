// SPDX-License-Identifier: MIT
#ifndef STORE_SESSION_RECORD_H_
#define STORE_SESSION_RECORD_H_

#include <optional>
#include <string>
#include <vector>

/// A session as the lists of sessions show it. A text that cannot be read, or that there is none for, is
/// empty.
struct SessionRecord {
  unsigned int index = 0; ///< of the login or of the KVM session, by which list it is
  std::string user;
  std::string receiver;
  std::string transmitter;
  std::string mode;
  unsigned int startTime = 0; ///< seconds since 1970

  /// The logins at receivers, with the KVM session of those that are connected, whose start counts then.
  /// None, as opposed to an empty list, if the logins cannot be read.
  [[nodiscard]] static std::optional<std::vector<SessionRecord>> readLogins();
  /// The KVM sessions. None, as opposed to an empty list, if they cannot be read.
  [[nodiscard]] static std::optional<std::vector<SessionRecord>> readConnections();

  /// For how long it has lasted, as NevoUtil_durationSince() tells it.
  std::string durationText() const;
};

#endif // STORE_SESSION_RECORD_H_
