// SPDX-License-Identifier: MIT
#ifndef ZEL_CLIENT_CLIENT_OPTIONS_H_
#define ZEL_CLIENT_CLIENT_OPTIONS_H_

#include <cstddef>
#include <string>

/// What the client library can be told beside its public operations: by the environment, and by tests.
namespace zelclient
{

/// Path of the store server's socket: the environment's NEVO_STORE_SOCKET, else /run/nevo/store.sock.
std::string socketPath();

/// Time limit of one request in milliseconds: what was set here, else the environment's
/// NEVO_STORE_TIMEOUT_MS, else 3000.
int requestTimeoutMs();
/// 0 goes back to the environment.
void setRequestTimeoutMs(int milliseconds);

/// The process-wide memory of answers that the server may call unchanged.
struct AnswerCacheUse {
  std::size_t entries;
  std::size_t bytes; // of JSON text
};
AnswerCacheUse answerCacheUse();

} // namespace zelclient

#endif // ZEL_CLIENT_CLIENT_OPTIONS_H_
