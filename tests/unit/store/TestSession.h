// SPDX-License-Identifier: MIT
#ifndef TESTS_TEST_SESSION_H_
#define TESTS_TEST_SESSION_H_

#include <Wt/Test/WTestEnvironment>
#include <Wt/WApplication>
#include <memory>

// A session without a browser, whose application is the current one while it lives.
class TestSession
{
public:
  TestSession();
  ~TestSession();
  TestSession(const TestSession &) = delete;
  TestSession &operator=(const TestSession &) = delete;

  // Shows the English texts from now on; until then, keys show as "??key??".
  void useTexts();
  bool hasOpenClient() const;

private:
  class Application;

  Wt::Test::WTestEnvironment environment_;
  std::unique_ptr<Application> application_;
};

#endif // TESTS_TEST_SESSION_H_
