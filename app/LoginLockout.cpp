// SPDX-License-Identifier: MIT
#include "LoginLockout.h"

#include "Clock.h"
#include "EventLog.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

const int kFailuresBeforeLockout = 4;
const unsigned long kLockoutSeconds = 300;
const mode_t kOwnerOnly = 0600;

} // namespace

LoginLockout::Attempt::Attempt(LoginLockout &lockout)
    : lockout_(lockout), verdict_(lockout.begin()), open_(verdict_ == Verdict::Go)
{
}

LoginLockout::Attempt::~Attempt()
{
  if (open_)
    lockout_.end(false);
}

void LoginLockout::Attempt::succeeded()
{
  open_ = false;
  lockout_.end(true);
}

LoginLockout::LoginLockout(int &failureCount, std::time_t &lockoutTimeSec, std::string stateFile)
    : failureCount_(failureCount), lockoutTimeSec_(lockoutTimeSec), stateFile_(std::move(stateFile))
{
  read();
}

std::string LoginLockout::stateFileOfProcess()
{
  const char *named = std::getenv("STATE_DIRECTORY");
  const std::string directories = named ? named : "";
  const std::string first = directories.substr(0, directories.find(':'));
  return first.empty() ? std::string() : first + "/login-lockout";
}

LoginLockout::Verdict LoginLockout::begin()
{
  const std::lock_guard<std::mutex> held(mutex_);
  if (static_cast<unsigned long>(Clock_now() - lockoutTimeSec_) < kLockoutSeconds) {
    if (failureCount_ != 0) {
      failureCount_ = 0;
      write();
    }
    return Verdict::LockedOut;
  }
  // After a lockout whose message nobody saw the count is above the limit already: one attempt is left.
  if (underWay_ >= std::max(kFailuresBeforeLockout + 1 - failureCount_, 1))
    return Verdict::Wait;
  ++underWay_;
  return Verdict::Go;
}

void LoginLockout::end(bool succeeded)
{
  const std::lock_guard<std::mutex> held(mutex_);
  --underWay_;
  if (succeeded) {
    failureCount_ = 0;
    lockoutTimeSec_ = 0;
  } else if (++failureCount_ > kFailuresBeforeLockout) {
    lockoutTimeSec_ = Clock_now();
  }
  write();
}

void LoginLockout::read()
{
  if (stateFile_.empty())
    return;
  std::ifstream file(stateFile_);
  int count = 0;
  long long since = 0;
  if (file >> count >> since && count >= 0 && count <= kFailuresBeforeLockout + 1 && since >= 0) {
    failureCount_ = count;
    lockoutTimeSec_ = static_cast<std::time_t>(since);
  }
}

/// With the lock held. A file that cannot be written is a pity and no reason to let nobody in.
void LoginLockout::write() const
{
  if (stateFile_.empty())
    return;
  const std::string fresh = stateFile_ + ".new";
  const std::string text =
      std::to_string(failureCount_) + ' ' + std::to_string(static_cast<long long>(lockoutTimeSec_)) + '\n';
  const int file = ::open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, kOwnerOnly);
  const bool written =
      file >= 0 && ::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
  if (file >= 0)
    ::close(file);
  if (!written || std::rename(fresh.c_str(), stateFile_.c_str()) != 0)
    EventLog_write(2, 7, "LoginLockout", "The login failures cannot be written to %s.", stateFile_.c_str());
}
