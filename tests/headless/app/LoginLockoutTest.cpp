// SPDX-License-Identifier: MIT
#include "LoginLockout.h"

#include "Clock.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace
{

using Verdict = LoginLockout::Verdict;

std::atomic<std::time_t> sNow{1000000};

std::time_t standingTime()
{
  return sNow;
}

/// A server's lockout, and the folder that stays when the server is started again.
class LoginLockoutTest : public testing::Test
{
protected:
  LoginLockoutTest()
  {
    Clock_setSource(standingTime);
    char name[] = "/tmp/lockout-test-XXXXXX";
    folder = ::mkdtemp(name);
    restart();
  }
  ~LoginLockoutTest() override
  {
    ::unlink(file().c_str());
    ::rmdir(folder.c_str());
    Clock_setSource(nullptr);
  }

  std::string file() const { return folder + "/login-lockout"; }
  void restart()
  {
    count = 0;
    since = 0;
    lockout = std::make_unique<LoginLockout>(count, since, file());
  }
  Verdict attempt(bool right = false)
  {
    LoginLockout::Attempt attempt(*lockout);
    if (right && attempt.verdict() == Verdict::Go)
      attempt.succeeded();
    return attempt.verdict();
  }
  void fail(int times)
  {
    for (int i = 0; i < times; ++i)
      ASSERT_EQ(Verdict::Go, attempt()) << i;
  }

  std::string folder;
  int count = 0;
  std::time_t since = 0;
  std::unique_ptr<LoginLockout> lockout;
};

} // namespace

TEST_F(LoginLockoutTest, refusesTheSixthAttemptForFiveMinutes)
{
  fail(5);
  EXPECT_EQ(Verdict::LockedOut, attempt(true));
  sNow += 299;
  EXPECT_EQ(Verdict::LockedOut, attempt(true));
  sNow += 1;
  EXPECT_EQ(Verdict::Go, attempt(true));
}

TEST_F(LoginLockoutTest, isSetByOneFailureAfterALockoutThatNobodySaw)
{
  fail(5);
  sNow += 300;
  fail(1);
  EXPECT_EQ(Verdict::LockedOut, attempt());
}

TEST_F(LoginLockoutTest, letsNoMoreAttemptsBeUnderWayThanFailuresAreLeft)
{
  fail(2);
  std::vector<std::unique_ptr<LoginLockout::Attempt>> underWay;
  for (int i = 0; i < 3; ++i) {
    underWay.push_back(std::make_unique<LoginLockout::Attempt>(*lockout));
    ASSERT_EQ(Verdict::Go, underWay.back()->verdict()) << i;
  }
  EXPECT_EQ(Verdict::Wait, attempt(true));
  underWay[0]->succeeded();
  EXPECT_EQ(Verdict::Go, attempt(true)) << "a success gives back what the attempts took";
  underWay.clear();
  EXPECT_EQ(2, count);
}

TEST_F(LoginLockoutTest, letsFivePasswordsThroughThatAreTriedAllAtOnce)
{
  std::atomic<int> gone{0};
  std::vector<std::thread> threads;
  for (int i = 0; i < 50; ++i) {
    threads.emplace_back([this, &gone] {
      for (Verdict verdict = Verdict::Wait; verdict == Verdict::Wait;) {
        LoginLockout::Attempt attempt(*lockout);
        verdict = attempt.verdict();
        gone += verdict == Verdict::Go;
        std::this_thread::yield();
      }
    });
  }
  for (std::thread &thread : threads)
    thread.join();
  EXPECT_EQ(5, gone);
}

TEST_F(LoginLockoutTest, survivesARestartOfTheServer)
{
  fail(3);
  restart();
  EXPECT_EQ(3, count);
  fail(2);
  restart();
  EXPECT_EQ(Verdict::LockedOut, attempt(true));
  sNow += 300;
  EXPECT_EQ(Verdict::Go, attempt(true));
  restart();
  fail(5);
}

TEST_F(LoginLockoutTest, keepsItsFileForItsOwnerOnly)
{
  fail(1);
  struct stat status = {};
  ASSERT_EQ(0, ::stat(file().c_str(), &status));
  EXPECT_EQ(0600U, status.st_mode & 07777U);
}

TEST_F(LoginLockoutTest, takesADamagedFileForNone)
{
  for (const char *text : {"", "x", "7 1", "-1 1", "5", "5 -1", "99999999999999999999 1", "\xff\xfe"}) {
    std::ofstream(file()) << text;
    restart();
    EXPECT_EQ(0, count) << text;
    EXPECT_EQ(0, since) << text;
  }
}

TEST_F(LoginLockoutTest, worksWhereNothingCanBeKept)
{
  lockout = std::make_unique<LoginLockout>(count, since, "/nowhere/at/all");
  fail(5);
  EXPECT_EQ(Verdict::LockedOut, attempt());
}
