// SPDX-License-Identifier: MIT
#ifndef STORE_SECURITY_H_
#define STORE_SECURITY_H_

#include <string>
#include <vector>

/// Who is logged in: at this interface ("adminSession" records) and at the receivers ("userSession"). Only
/// the store decides who may be. All functions return 0 for success and 1 for failure; they use the
/// connection of the session whose code is running.

/// Opens a login at this interface. A failure does not tell its reason: a wrong password, a disabled
/// account, a missing right and an absent store look the same.
unsigned int Security_loginNevoUser(const char *username, const char *password, unsigned int &userIndex,
                                    bool &passwordIsInitialized);

/// Closes the user's login at this interface and logs so. A user without one is no failure.
unsigned int Security_logoutNevoUser(unsigned int userIndex, std::vector<std::string> &errors);

/// Gives an administrator a password of the person's own choice.
unsigned int Security_setPassword(const char *username, const char *password);

unsigned int Security_loginRxUser(unsigned int userIndex, unsigned int rxIndex,
                                  std::vector<std::string> &errors);

/// Logs the user of a receiver out. A receiver without a login is a failure without a message.
unsigned int Security_logoutUserByRxIndex(unsigned int rxIndex, std::vector<std::string> &errors);

/// Logs a user out of all receivers, up to the first that fails.
unsigned int Security_logoutUserByUserIndex(unsigned int userIndex, std::vector<std::string> &errors);

#endif // STORE_SECURITY_H_
