// SPDX-License-Identifier: MIT
// Passwords are hashed beside the store's loop: nobody waits for somebody else's login.
#include "RawClient.h"
#include "TestStore.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <poll.h>
#include <string>
#include <vector>

namespace
{

constexpr const char *kQuestion = R"({"method":"GET","resource":"systemGlobals"})";

std::string login(const std::string &name, const std::string &password)
{
  return R"({"method":"CREATE","resource":"adminSession","params":{"username":")" + name +
         R"(","password":")" + password + R"(","sessionType":"nevo","ipAddress":"192.0.2.7"}})";
}

// Hashes take as long as on a switch.
TestStore::Options slowHashes()
{
  TestStore::Options options;
  options.more = {"--password-rounds", "60000"};
  return options;
}

bool hasAnswer(const RawClient &client)
{
  pollfd waiting{client.fd(), POLLIN, 0};
  return ::poll(&waiting, 1, 0) > 0;
}

TEST(PasswordDesk, answersOthersWhileManyWrongPasswordsAreChecked)
{
  const TestStore store(slowHashes());
  std::vector<std::unique_ptr<RawClient>> strangers;
  for (int i = 0; i < 60; ++i)
    strangers.push_back(std::make_unique<RawClient>(store.socket()));
  RawClient somebody(store.socket());
  ASSERT_FALSE(somebody.ask(kQuestion).empty());
  for (const auto &stranger : strangers)
    stranger->send(login("operator", "wrong"));
  for (int i = 0; i < 5; ++i)
    ASSERT_FALSE(somebody.ask(kQuestion).empty());
  const auto answered = std::count_if(strangers.begin(), strangers.end(),
                                      [](const auto &stranger) { return hasAnswer(*stranger); });
  EXPECT_LT(answered, 30) << "whoever asked had to wait for the others' passwords";
  for (const auto &stranger : strangers)
    EXPECT_NE(std::string::npos, stranger->receive().find("1103"));
}

TEST(PasswordDesk, keepsTheOrderOfAConnection)
{
  const TestStore store(slowHashes());
  RawClient client(store.socket());
  client.sendRaw(RawClient::frame(kQuestion) + RawClient::frame(login("operator", "wrong")) +
                 RawClient::frame(login("operator", "operator-1")) + RawClient::frame(kQuestion));
  EXPECT_NE(std::string::npos, client.receive().find("nevoInactivityTimeout"));
  EXPECT_NE(std::string::npos, client.receive().find("1103"));
  EXPECT_NE(std::string::npos, client.receive().find("userIndex"));
  EXPECT_NE(std::string::npos, client.receive().find("nevoInactivityTimeout"));
}

TEST(PasswordDesk, forgetsWhoHangsUp)
{
  const TestStore store(slowHashes());
  {
    std::vector<std::unique_ptr<RawClient>> strangers;
    for (int i = 0; i < 300; ++i) {
      strangers.push_back(std::make_unique<RawClient>(store.socket()));
      strangers.back()->send(login("operator", "wrong"));
    }
  }
  // All of these would take more than the ten seconds that receive() waits.
  RawClient client(store.socket());
  EXPECT_NE(std::string::npos, client.ask(login("operator", "operator-1")).find("userIndex"));
}

TEST(PasswordDesk, endsInTheMiddleOfItsWork)
{
  TestStore store(slowHashes());
  RawClient client(store.socket());
  for (int i = 0; i < 8; ++i)
    client.send(login("operator", "wrong"));
  ASSERT_FALSE(store.control({"quit"}).failed);
  EXPECT_EQ(0, store.wait());
}

TEST(PasswordDesk, takesAsLongForANameThatIsNotThere)
{
  TestStore::Options options;
  options.more = {"--password-rounds", "300000"};
  const TestStore store(options);
  RawClient client(store.socket());
  const auto time = [&client](const char *name) {
    auto best = std::chrono::steady_clock::duration::max();
    for (int i = 0; i < 3; ++i) {
      const auto began = std::chrono::steady_clock::now();
      EXPECT_NE(std::string::npos, client.ask(login(name, "wrong")).find("1103"));
      best = std::min(best, std::chrono::steady_clock::now() - began);
    }
    return best;
  };
  EXPECT_GT(time("nobody") * 2, time("operator"));
}

} // namespace
