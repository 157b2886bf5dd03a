// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_SEALED_BOX_H_
#define ZEL_SIM_RULES_SEALED_BOX_H_

#include <string>

namespace zelsim
{

/// The work that makes a person's password a key. What is drawn at random needs a single round.
constexpr int kPasswordRounds = 120000;

/// Encrypts bytes under a password with an authenticated cipher. The result begins with a mark, the salt,
/// the nonce and the tag. Empty on failure of the system's random source.
std::string sealBox(const std::string &plain, const std::string &password, int rounds = kPasswordRounds);

/// True if the bytes begin as sealBox's results do.
bool isSealedBox(const std::string &bytes);

/// Decrypts what sealBox made. False, with 'plain' untouched, if the password is wrong or a byte changed.
bool openBox(const std::string &box, const std::string &password, std::string &plain,
             int rounds = kPasswordRounds);

} // namespace zelsim

#endif // ZEL_SIM_RULES_SEALED_BOX_H_
