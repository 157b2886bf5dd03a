// SPDX-License-Identifier: MIT
#ifndef STORE_STORE_SESSION_H_
#define STORE_STORE_SESSION_H_

#include <string>

struct ZelClient_s;

/// What the store access needs of a browser session. The session's application object derives from it
/// beside Wt::WApplication.
class StoreSession
{
public:
  virtual ~StoreSession() = default;

  /// The session's connection, opened if there is none that is good; null or not valid if that failed.
  /// The session keeps it.
  virtual ZelClient_s *getZelClient() = 0;
  /// Closes the connection if it is good; the next getZelClient() opens another.
  virtual void closeZelClient() = 0;
  /// Record of the logged-in user in "user"; 0 before a login.
  virtual unsigned int getIndexOfCurrentlyLoggedInUsr() = 0;

  /// The session whose code is running; null outside any session.
  static StoreSession *current();
  /// The address of that session's browser; empty outside any session.
  static std::string currentClientAddress();
};

#endif // STORE_STORE_SESSION_H_
