// SPDX-License-Identifier: MIT
#ifndef STORE_DB_EXCHANGE_H_
#define STORE_DB_EXCHANGE_H_

#include "ZelClient.h"
#include "ZelValue.h"

#include <optional>
#include <string>
#include <vector>

/// The part that all talks with the store have in common. `function` is the name of the caller for the log.

/// No request object could be made: logs `message` and returns 1.
unsigned int DbExchange_noRequest(const char *function,
                                  const char *message = "Cannot create ZEL request object.");

/// What "no entries" (1009), by which the store tells that a resource is empty, is for the caller.
enum class DbExchange_NoEntries {
  AreAnError, ///< a message like any other
  AreNone     ///< nothing that needs a message
};

/// Whether a response tells of a failure, whose messages are logged and appended to `errors`.
[[nodiscard]] bool DbExchange_failed(const json_t *response, std::vector<std::string> &errors,
                                     DbExchange_NoEntries noEntries = DbExchange_NoEntries::AreAnError);

/// Asks for one parameter of one record, or of a resource that has only one record if there is no index.
/// Returns as DbExchange_send() does.
[[nodiscard]] unsigned int DbExchange_read(const char *function, const char *resource,
                                           std::optional<unsigned int> index, const char *parameter,
                                           ZelResponse &response, std::vector<std::string> &errors);

/// Sends a request. Returns 0 with the response, or 1: no response, which logs `noResponseMessage` unless it
/// is null; or a response with errors, which are logged and appended to `errors`.
[[nodiscard]] unsigned int DbExchange_send(const char *function, ZelClient_s *client,
                                           const ZelRequest &request, const char *noResponseMessage,
                                           ZelResponse &response, std::vector<std::string> &errors);

#endif // STORE_DB_EXCHANGE_H_
