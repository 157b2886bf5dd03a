// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_TEST_STORE_H_
#define TESTS_SUPPORT_TEST_STORE_H_

#include <cstdint>
#include <initializer_list>
#include <string>
#include <sys/types.h>
#include <vector>

// A simulated switch of the test's own: a zelsim process on a socket and a database in a new directory,
// with nothing happening by itself unless asked for. It is ready when the constructor returns, and gone
// with its directory when the object is.
//
// The environment's NEVO_STORE_SOCKET points to the store that was started last, so that ZelClient_new()
// reaches it, and NEVO_SETTINGS_DIR to its folder of settings; destroying the store takes both back. Failures
// to start abort the test program with a word on stderr, since nothing else can work then.
class TestStore
{
public:
  struct Options {
    unsigned fleet = 0; // receivers and as many transmitters; 0 is the small lab
    std::uint64_t seed = 1;
    unsigned liveliness = 0;
    std::vector<std::string> more; // further options of zelsim, as words
  };

  struct Outcome {
    bool failed;      // refused, or nobody answered
    std::string text; // what the command printed, or why it failed
  };

  TestStore();
  explicit TestStore(Options options);
  ~TestStore();
  TestStore(const TestStore &) = delete;
  TestStore &operator=(const TestStore &) = delete;

  const std::string &directory() const { return directory_; }
  std::string socket() const { return directory_ + "/store.sock"; }
  std::string database() const { return directory_ + "/store.db"; }
  std::string settingsDirectory() const { return directory_ + "/settings"; }
  std::string iconDirectory() const { return settingsDirectory() + "/icons"; }
  pid_t pid() const { return pid_; }

  // A control command as zelctl takes it: control({"set", "rx", "1", "status", "offline"}).
  Outcome control(const std::vector<std::string> &words) const;
  // The value of a parameter as `zelctl get` shows it, without the line's end; index 0 for the record of a
  // resource that has only one.
  std::string get(const std::string &resource, unsigned index, const std::string &parameter) const;
  // Writes a parameter past all rules, read-only ones as well. False if the store refuses it.
  bool set(const std::string &resource, unsigned index, const std::string &parameter,
           const std::string &value) const;

  // Whether the switch has said that word on its standard output so far: "ready" or "restarts".
  bool hasSaid(const std::string &word, unsigned times = 1);

  // Ends the process at once, as a loss of power would.
  void kill();
  // Starts it again on what the database holds; kills it first if it still runs.
  void restart();
  // Waits for the process to end by itself (after control({"quit"})) and returns its exit code, or -1.
  int wait();

private:
  void start();

  Options options_;
  std::string directory_;
  std::string socketBefore_;   // NEVO_STORE_SOCKET as it was
  std::string settingsBefore_; // NEVO_SETTINGS_DIR as it was
  pid_t pid_ = -1;
  int output_ = -1;  // what it says, until it ends
  std::string said_; // so far
};

#endif // TESTS_SUPPORT_TEST_STORE_H_
