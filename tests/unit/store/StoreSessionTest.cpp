// SPDX-License-Identifier: MIT
#include "StoreSession.h"

#include "TestSession.h"

#include <gtest/gtest.h>

TEST(StoreSession, isNoneOutsideAnySession)
{
  EXPECT_EQ(StoreSession::current(), nullptr);
  EXPECT_EQ(StoreSession::currentClientAddress(), "");
}

TEST(StoreSession, isTheApplicationWhoseCodeRuns)
{
  const TestSession session;
  ASSERT_NE(StoreSession::current(), nullptr);
  EXPECT_EQ(StoreSession::current()->getIndexOfCurrentlyLoggedInUsr(), 7U);
  EXPECT_EQ(StoreSession::currentClientAddress(), "127.0.0.1");
}

TEST(StoreSession, isNoneInAnApplicationWithoutAStore)
{
  Wt::Test::WTestEnvironment environment;
  const Wt::WApplication application(environment);
  EXPECT_EQ(StoreSession::current(), nullptr);
}
