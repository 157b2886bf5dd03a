// SPDX-License-Identifier: MIT
#include "TestStore.h"

#include "control/Channel.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace
{

constexpr int kStartTimeoutMs = 60 * 1000;

[[noreturn]] void giveUp(const char *why)
{
  std::fprintf(stderr, "TestStore: %s\n", why);
  std::abort();
}

std::string makeDirectory()
{
  const char *base = std::getenv("TMPDIR");
  std::string name = std::string(base && *base ? base : "/tmp") + "/nevo-store-XXXXXX";
  if (!::mkdtemp(&name[0]))
    giveUp("cannot make a directory");
  return name;
}

std::string setting(const char *name)
{
  const char *value = std::getenv(name);
  return value ? value : "";
}

void restore(const char *name, const std::string &value)
{
  if (value.empty())
    ::unsetenv(name);
  else
    ::setenv(name, value.c_str(), 1);
}

// Appends what comes within `timeoutMs`; false if nothing does, or no more ever will.
bool listenTo(int fd, int timeoutMs, std::string &said)
{
  char bytes[64];
  pollfd waiting{fd, POLLIN, 0};
  int ready = -1;
  do
    ready = ::poll(&waiting, 1, timeoutMs);
  while (ready < 0 && errno == EINTR);
  ssize_t got = ready > 0 ? ::read(fd, bytes, sizeof bytes) : 0;
  if (got > 0)
    said.append(bytes, static_cast<std::size_t>(got));
  return got > 0;
}

unsigned countOf(const std::string &text, const std::string &line)
{
  unsigned count = 0;
  for (std::size_t at = text.find(line + "\n"); at != std::string::npos; at = text.find(line + "\n", at + 1))
    ++count;
  return count;
}

} // namespace

TestStore::TestStore() : TestStore(Options{}) {}

TestStore::TestStore(Options options) : options_(std::move(options)), directory_(makeDirectory())
{
  socketBefore_ = setting("NEVO_STORE_SOCKET");
  settingsBefore_ = setting("NEVO_SETTINGS_DIR");
  std::filesystem::create_directory(settingsDirectory());
  start();
}

TestStore::~TestStore()
{
  kill();
  restore("NEVO_STORE_SOCKET", socketBefore_);
  restore("NEVO_SETTINGS_DIR", settingsBefore_);
  std::error_code ignored;
  std::filesystem::remove_all(directory_, ignored);
}

void TestStore::start()
{
  std::vector<std::string> words = {NEVO_ZELSIM,
                                    "--socket",
                                    socket(),
                                    "--database",
                                    database(),
                                    "--settings",
                                    settingsDirectory(),
                                    "--fleet",
                                    std::to_string(options_.fleet),
                                    "--seed",
                                    std::to_string(options_.seed),
                                    "--liveliness",
                                    std::to_string(options_.liveliness),
                                    "--password-rounds",
                                    "1000"};
  words.insert(words.end(), options_.more.begin(), options_.more.end());
  std::vector<char *> arguments;
  for (std::string &word : words)
    arguments.push_back(&word[0]);
  arguments.push_back(nullptr);

  int said[2];
  if (::pipe2(said, O_CLOEXEC) != 0)
    giveUp("cannot make a pipe");
  pid_ = ::fork();
  if (pid_ < 0)
    giveUp("cannot fork");
  if (pid_ == 0) {
    // Whatever becomes of the test program, no store stays behind.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::dup2(said[1], STDOUT_FILENO);
    ::execv(arguments[0], arguments.data());
    ::_exit(127);
  }
  ::close(said[1]);
  output_ = said[0];
  said_.clear();
  while (countOf(said_, "ready") == 0)
    if (!listenTo(output_, kStartTimeoutMs, said_))
      giveUp("the store does not start");
  ::setenv("NEVO_STORE_SOCKET", socket().c_str(), 1);
  ::setenv("NEVO_SETTINGS_DIR", settingsDirectory().c_str(), 1);
}

TestStore::Outcome TestStore::control(const std::vector<std::string> &words) const
{
  zelsim::Outcome outcome;
  if (!zelsim::sendCommand(socket() + ".control", words, outcome))
    return {true, "no store answers"};
  return {outcome.failed, outcome.text};
}

std::string TestStore::get(const std::string &resource, unsigned index, const std::string &parameter) const
{
  Outcome outcome = control({"get", resource, std::to_string(index), parameter});
  if (!outcome.text.empty() && outcome.text.back() == '\n')
    outcome.text.pop_back();
  return outcome.text;
}

bool TestStore::set(const std::string &resource, unsigned index, const std::string &parameter,
                    const std::string &value) const
{
  return !control({"set", resource, std::to_string(index), parameter, value}).failed;
}

bool TestStore::hasSaid(const std::string &word, unsigned times)
{
  while (output_ >= 0 && listenTo(output_, 0, said_)) {
  }
  return countOf(said_, word) >= times;
}

void TestStore::kill()
{
  if (pid_ > 0)
    ::kill(pid_, SIGKILL);
  wait();
}

int TestStore::wait()
{
  int status = 0;
  pid_t ended = pid_ > 0 ? ::waitpid(pid_, &status, 0) : -1;
  pid_ = -1;
  if (output_ >= 0)
    ::close(output_);
  output_ = -1;
  return ended > 0 && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void TestStore::restart()
{
  kill();
  start();
}
