// SPDX-License-Identifier: MIT
#ifndef TESTS_TEST_SESSION_H_
#define TESTS_TEST_SESSION_H_

#include "StoreSession.h"

// A session without a browser: while it lives, it is the current one.
class TestSession : public StoreSession
{
public:
  TestSession();
  ~TestSession() override;
  TestSession(const TestSession &) = delete;
  TestSession &operator=(const TestSession &) = delete;

  ZelClient_s *getZelClient() override;
  void closeZelClient() override;
  unsigned int getIndexOfCurrentlyLoggedInUsr() override { return 7; }

  bool hasOpenClient() const;

private:
  ZelClient_s *client_ = nullptr;
};

#endif
