// SPDX-License-Identifier: MIT
#ifndef TESTS_CLIENT_SESSION_H_
#define TESTS_CLIENT_SESSION_H_

#include "StoreSession.h"
#include "ZelClient.h"

// A session's side of the store access, for applications that have nothing else: its own connection, and a
// user who counts as logged in.
class ClientSession : public StoreSession
{
public:
  static constexpr unsigned int kUser = 7;

  ClientSession() = default;
  ~ClientSession() override { ZelClient_close(client_); }
  ClientSession(const ClientSession &) = delete;
  ClientSession &operator=(const ClientSession &) = delete;

  ZelClient_s *getZelClient() override
  {
    if (!ZelClient_isValid(client_)) {
      ZelClient_close(client_);
      client_ = ZelClient_new();
    }
    return client_;
  }

  void closeZelClient() override
  {
    ZelClient_close(client_);
    client_ = nullptr;
  }

  unsigned int getIndexOfCurrentlyLoggedInUsr() override { return kUser; }

  bool hasOpenClient() const { return ZelClient_isValid(client_); }

private:
  ZelClient_s *client_ = nullptr;
};

#endif // TESTS_CLIENT_SESSION_H_
