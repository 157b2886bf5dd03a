// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_RANDOM_H_
#define WT_SESSION_RANDOM_H_

#include <cstddef>
#include <string>

namespace Wt
{
namespace Engine
{

/// `bytes` unguessable bytes as hexadecimal digits. Ends the process if the system has no randomness to give.
std::string randomHex(std::size_t bytes);

/// `length` unguessable letters and digits.
std::string randomName(std::size_t length);

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_RANDOM_H_
