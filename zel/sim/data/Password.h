// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_PASSWORD_H_
#define ZEL_SIM_DATA_PASSWORD_H_

#include <string>
#include <string_view>

namespace zelsim
{

/// Passwords are kept as PBKDF2-HMAC-SHA256 under a random salt; the text says its own iterations:
/// "pbkdf2-sha256$ITERATIONS$SALT$HASH", salt and hash in hexadecimal.

/// Iterations of new hashes. The default takes some 20 ms; tests that make many accounts set it lower.
void setPasswordIterations(unsigned iterations);

/// The kept form of `password`; empty for an empty password, or if there is no randomness to be had.
std::string hashPassword(std::string_view password);

/// Whether `password` is the one behind `kept`; false for a text that is no kept form. Takes the same
/// time for every password. An empty `kept` stands for the empty password: whether an account may have
/// that is for the rules to say.
bool verifyPassword(std::string_view password, std::string_view kept);

/// A piece of the work above that was done ahead, on another thread. verifyPassword() with the same password
/// and kept form, and hashPassword() of the same password, take its result instead of their time while a
/// PreparedPassword of it lives on the same thread.
struct PasswordWork {
  std::string password;
  std::string kept; // to be verified against; empty: a new hash is wanted
  bool matches = false;
  std::string hash;

  /// Fills `matches` or `hash`. For any thread.
  void carryOut();
};

class PreparedPassword
{
public:
  explicit PreparedPassword(const PasswordWork *work);
  ~PreparedPassword();
  PreparedPassword(const PreparedPassword &) = delete;
  PreparedPassword &operator=(const PreparedPassword &) = delete;
};

/// A kept form that no password matches, to take the time for an account that isn't there.
const std::string &nobodysPassword();

} // namespace zelsim

#endif // ZEL_SIM_DATA_PASSWORD_H_
